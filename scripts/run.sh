#!/usr/bin/env bash
# Builds the workbench and starts it. Arguments go to the workbench (try --help).
# Without a display it runs the tour under a virtual one and leaves pictures.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh
build dev softcloth-workbench

workbench=build/dev/bin/softcloth-workbench
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$workbench" "$@"
fi

tour=build/tour
say "No display: running the tour under Xvfb"
runtime=$(mktemp -d)
trap 'rm -rf "$runtime"' EXIT
XDG_RUNTIME_DIR=$runtime QT_QPA_PLATFORM=xcb \
    xvfb-run -a -s '-screen 0 1600x1000x24' "$workbench" --tour "$tour" "$@"
say "Pictures and the call journal are in $tour"
