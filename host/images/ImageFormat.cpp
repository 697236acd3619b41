#include "host/images/ImageFormat.h"

#include "host/images/TgaReader.h"

#include <QtEndian>

#include <algorithm>
#include <cstdlib>

namespace Host {

namespace {

/// Numbers at places of a byte array; beyond its end all is 0.
class Bytes
{
public:
    explicit Bytes(const QByteArray& bytes)
        : m_bytes(bytes)
    {
    }

    qint64 Size() const { return m_bytes.size(); }
    bool Has(qint64 position, qint64 count = 1) const
    {
        return position >= 0 && count >= 0 && position <= Size() - count;
    }

    /// Where \p byte comes next; -1 when it does not.
    qint64 Find(quint8 byte, qint64 position) const
    {
        return Has(position) ? m_bytes.indexOf(char(byte), int(position)) : -1;
    }

    quint8 Byte(qint64 position) const { return Has(position) ? quint8(m_bytes.at(int(position))) : quint8(0); }

    template <class Number>
    Number Little(qint64 position) const
    {
        return Has(position, sizeof(Number)) ? qFromLittleEndian<Number>(m_bytes.constData() + position) : Number(0);
    }
    template <class Number>
    Number Big(qint64 position) const
    {
        return Has(position, sizeof(Number)) ? qFromBigEndian<Number>(m_bytes.constData() + position) : Number(0);
    }

private:
    const QByteArray& m_bytes;
};

/// A size that a header claims; empty when it is none.
QSize SizeOf(qint64 width, qint64 height)
{
    constexpr qint64 most = 0x7fffffff;
    return width > 0 && height > 0 && width <= most && height <= most ? QSize(int(width), int(height)) : QSize();
}

ImageHeader PngHeader(const Bytes& bytes)
{
    constexpr qint64 firstChunk = 8;
    constexpr qint64 chunkFrame = 12; // length, name and check sum around the data
    constexpr quint32 endName = 0x49454e44;
    ImageHeader header{ImageFormat::Png, SizeOf(bytes.Big<quint32>(16), bytes.Big<quint32>(20)), false};
    for (qint64 chunk = firstChunk; bytes.Has(chunk, chunkFrame); chunk += chunkFrame + bytes.Big<quint32>(chunk)) {
        if (bytes.Big<quint32>(chunk + 4) == endName) {
            header.isComplete = true;
            break;
        }
    }
    return header;
}

bool StandsAlone(quint8 marker)
{
    return marker == 0x01 || (marker >= 0xd0 && marker <= 0xd8);
}

bool IsFrameStart(quint8 marker)
{
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

/// The place of the next marker after compressed data, in which 0xff 0x00 and restart markers occur.
qint64 EndOfScan(const Bytes& bytes, qint64 position)
{
    while ((position = bytes.Find(0xff, position)) >= 0) {
        const quint8 next = bytes.Byte(position + 1);
        if (next != 0 && next != 0xff && !(next >= 0xd0 && next <= 0xd7)) {
            return position;
        }
        ++position;
    }
    return bytes.Size();
}

ImageHeader JpegHeader(const Bytes& bytes)
{
    constexpr quint8 endOfImage = 0xd9;
    constexpr quint8 startOfScan = 0xda;
    ImageHeader header{ImageFormat::Jpeg, {}, false};
    qint64 position = 2;
    while (bytes.Has(position, 2) && bytes.Byte(position) == 0xff) {
        const quint8 marker = bytes.Byte(position + 1);
        if (marker == 0xff) { // padding
            ++position;
            continue;
        }
        if (marker == endOfImage) {
            header.isComplete = !header.size.isEmpty();
            break;
        }
        position += 2;
        if (StandsAlone(marker)) {
            continue;
        }
        if (IsFrameStart(marker)) {
            header.size = SizeOf(bytes.Big<quint16>(position + 5), bytes.Big<quint16>(position + 3));
        }
        position += bytes.Big<quint16>(position);
        if (marker == startOfScan) {
            position = EndOfScan(bytes, position);
        }
    }
    return header;
}

/// The size in bytes of the colour table that \p flags announce.
qint64 GifTableSize(quint8 flags)
{
    return (flags & 0x80) != 0 ? 3 * (qint64(2) << (flags & 0x07)) : 0;
}

/// The place behind a sequence of sub-blocks, which an empty one ends; -1 when the end is missing.
qint64 EndOfSubBlocks(const Bytes& bytes, qint64 position)
{
    while (bytes.Has(position)) {
        const quint8 size = bytes.Byte(position);
        position += 1 + size;
        if (size == 0) {
            return position;
        }
    }
    return -1;
}

/// The first picture counts; what follows would be an animation.
ImageHeader GifHeader(const Bytes& bytes)
{
    constexpr quint8 extension = 0x21;
    constexpr quint8 picture = 0x2c;
    const int screenWidth = bytes.Little<quint16>(6);
    const int screenHeight = bytes.Little<quint16>(8);
    ImageHeader header{ImageFormat::Gif, SizeOf(screenWidth, screenHeight), false};
    qint64 position = 13 + GifTableSize(bytes.Byte(10));
    while (position >= 0 && bytes.Byte(position) == extension) {
        position = EndOfSubBlocks(bytes, position + 2);
    }
    if (position < 0 || bytes.Byte(position) != picture) {
        return header;
    }
    // Some write a screen that is smaller than the picture on it, in one direction or in both.
    const int right = bytes.Little<quint16>(position + 1) + bytes.Little<quint16>(position + 5);
    const int bottom = bytes.Little<quint16>(position + 3) + bytes.Little<quint16>(position + 7);
    header.size = SizeOf(std::max(screenWidth, right), std::max(screenHeight, bottom));
    const qint64 data = position + 10 + GifTableSize(bytes.Byte(position + 9)) + 1;
    header.isComplete = bytes.Has(data) && EndOfSubBlocks(bytes, data) >= 0;
    return header;
}

ImageHeader BmpHeader(const Bytes& bytes)
{
    constexpr qint64 fileHeaderSize = 14;
    constexpr quint32 oldHeaderSize = 12;
    constexpr quint32 runLength8 = 1;
    constexpr quint32 runLength4 = 2;
    const bool isOld = bytes.Little<quint32>(14) == oldHeaderSize;
    const qint64 width = isOld ? bytes.Little<quint16>(18) : bytes.Little<qint32>(18);
    const qint64 height = isOld ? bytes.Little<quint16>(20) : std::abs(qint64(bytes.Little<qint32>(22)));
    const qint64 depth = bytes.Little<quint16>(isOld ? 24 : 28);
    const quint32 compression = isOld ? 0 : bytes.Little<quint32>(30);
    const bool isRunLength = compression == runLength8 || compression == runLength4;
    if (width <= 0 || height <= 0) {
        return {ImageFormat::Bmp, {}, false};
    }
    const qint64 lineSize = (width * depth + 31) / 32 * 4;
    const qint64 tooMuch = bytes.Size() + 1; // no product of larger numbers is needed to know that data are missing
    const qint64 dataSize =
        isRunLength ? bytes.Little<quint32>(34) : std::min(lineSize, tooMuch) * std::min(height, tooMuch);
    const bool hasHeader = bytes.Has(0, fileHeaderSize + oldHeaderSize);
    const bool hasData = bytes.Has(bytes.Little<quint32>(10), std::max<qint64>(dataSize, 1));
    return {ImageFormat::Bmp, SizeOf(width, height), hasHeader && hasData};
}

} // namespace

ImageHeader ReadImageHeader(const QByteArray& bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1a\n")) {
        return PngHeader(Bytes(bytes));
    }
    if (bytes.startsWith("\xff\xd8\xff")) {
        return JpegHeader(Bytes(bytes));
    }
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a")) {
        return GifHeader(Bytes(bytes));
    }
    if (bytes.startsWith("BM")) {
        return BmpHeader(Bytes(bytes));
    }
    return ReadTgaHeader(bytes);
}

QByteArray SuffixOf(ImageFormat format)
{
    switch (format) {
    case ImageFormat::Bmp:
        return "bmp";
    case ImageFormat::Gif:
        return "gif";
    case ImageFormat::Jpeg:
        return "jpg";
    case ImageFormat::Png:
        return "png";
    case ImageFormat::Tga:
        return "tga";
    case ImageFormat::None:
        break;
    }
    return {};
}

} // namespace Host
