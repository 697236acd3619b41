#!/usr/bin/env bash
# Builds the library for 64-bit Windows on this machine, runs the tests under Wine and packs what a Windows host needs
# into a zip. The first run builds Qt and takes most of an hour; the next ones find it in the cache.
# Options: --no-tests  only builds and packs
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh --windows
scripts/windows-libraries.sh
SOFTCLOTH_WINDOWS_LIBRARIES=$(scripts/windows-libraries.sh | tail -n 1)
export SOFTCLOTH_WINDOWS_LIBRARIES
tree=build/windows-mingw

# The tests' Windows lives with the build. One server for all of its programs, ended with this script.
export WINEPREFIX=$PWD/$tree/wine WINEDEBUG=-all
mkdir -p "$tree"
end_wine() { wineserver -k 2>/dev/null || true; }
trap end_wine EXIT
if [ ! -e "$WINEPREFIX/ready" ]; then
    say "Setting up Wine in $WINEPREFIX"
    rm -rf "$WINEPREFIX"
    WINEDLLOVERRIDES='mscoree,mshtml=' xvfb-run -a wineboot --init >/dev/null 2>&1
    wineserver -w
    touch "$WINEPREFIX/ready"
fi
wineserver -p

# Wine wants a display, though the tests show nothing on it.
export -f build say
export jobs
xvfb-run -a -s '-screen 0 1600x1000x24' bash -euo pipefail -c 'build windows-mingw'

if [ "${1:-}" != --no-tests ]; then
    say "Testing $tree under Wine"
    xvfb-run -a -s '-screen 0 1600x1000x24' ctest --preset windows-mingw --parallel "$jobs" --no-tests=error
fi

say "Packing"
(cd "$tree" && cpack -G ZIP --config CPackConfig.cmake >cpack.log || { cat cpack.log; exit 1; })
scripts/check-windows-package.sh "$tree"/*.zip 2>/dev/null || true
say "$(ls "$PWD/$tree"/*.zip)"
