#!/usr/bin/env python3
"""Draws the handles of the random-factor slider: BTN_Diamond_<state>.png and the @2x variant of each.

Run it in this folder after a change of the shape or the colours. Needs nothing but Python.
"""

import struct
import zlib

SIZE = 17  # logical pixels; odd, so that a handle has a middle column to point at its value with
RADIUS = 8.0  # from the middle to a corner
OUTLINE = 1.4  # thickness
SAMPLES = 8  # per pixel and direction

STATES = {  # outline and fill
    "unselect": ((0xE0, 0xE0, 0xE0), (0x6E, 0x6E, 0x6E)),
    "select": ((0xFF, 0xFF, 0xFF), (0x2A, 0x82, 0xDA)),
    "hover": ((0xFF, 0xFF, 0xFF), (0xA8, 0xA8, 0xA8)),
    "disable": ((0x5E, 0x5E, 0x5E), (0x46, 0x46, 0x46)),
}


def pixel(column, row, scale, outline, fill):
    """Colour and coverage of one pixel, averaged over its samples."""
    middle = SIZE / 2
    inner = RADIUS - OUTLINE * 2**0.5
    total = [0, 0, 0]
    covered = 0
    for i in range(SAMPLES * SAMPLES):
        x = (column + (i % SAMPLES + 0.5) / SAMPLES) / scale
        y = (row + (i // SAMPLES + 0.5) / SAMPLES) / scale
        distance = abs(x - middle) + abs(y - middle)
        if distance > RADIUS:
            continue
        covered += 1
        for channel, part in enumerate(outline if distance > inner else fill):
            total[channel] += part
    if covered == 0:
        return bytes(4)
    alpha = round(255 * covered / SAMPLES**2)
    return bytes([round(part / covered) for part in total] + [alpha])


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(scale, outline, fill):
    size = SIZE * scale
    lines = b"".join(
        b"\0" + b"".join(pixel(column, row, scale, outline, fill) for column in range(size)) for row in range(size)
    )
    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    return (
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(lines, 9)) + chunk(b"IEND", b"")
    )


for state, colours in STATES.items():
    for scale, suffix in ((1, ""), (2, "@2x")):
        with open(f"BTN_Diamond_{state}{suffix}.png", "wb") as file:
            file.write(png(scale, *colours))
