#!/usr/bin/env bash
# Builds the library for 64-bit Windows on this machine, runs the tests under Wine and packs what a Windows host needs
# into a zip. The first run builds Qt and takes about 35 minutes on two cores; the next ones find it in the cache.
# Options: --no-tests  only builds and packs
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh --windows

# Wine's programs want a display, though the tests show next to nothing on it.
if [ -z "${SOFTCLOTH_VIRTUAL_DISPLAY:-}" ]; then
    scripts/windows-libraries.sh
    SOFTCLOTH_WINDOWS_LIBRARIES=$(scripts/windows-libraries.sh | tail -n 1)
    export SOFTCLOTH_WINDOWS_LIBRARIES SOFTCLOTH_VIRTUAL_DISPLAY=yes
    exec xvfb-run -a -s '-screen 0 1600x1400x24' scripts/windows.sh "$@"
fi

# A Windows of its own for this build, and one server for all of its programs, which ends with this script.
tree=build/windows-mingw
export WINEPREFIX=$PWD/$tree/wine WINEDEBUG=-all
if [ ! -e "$WINEPREFIX/ready" ]; then
    say "Setting up Wine in $WINEPREFIX"
    rm -rf "$WINEPREFIX"
    mkdir -p "$tree"
    WINEDLLOVERRIDES='mscoree,mshtml=' wineboot --init >/dev/null 2>&1
    wineserver -w
    touch "$WINEPREFIX/ready"
fi
# Its dialog font; without it the first one of this machine would take its place.
mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
cp -u /usr/share/wine/fonts/tahoma*.ttf "$WINEPREFIX/drive_c/windows/Fonts"
trap 'wineserver -k || true' EXIT
wineserver -p
# The first program brings up Windows' own services, which hold on to its output as long as they run: one that waits, as
# long as this script runs, lest it be a test whose end is then not seen.
exec 8> >(scripts/wine.sh "$SOFTCLOTH_WINDOWS_LIBRARIES" cmd /c more >/dev/null 2>&1)

build windows-mingw

if [ "${1:-}" != --no-tests ]; then
    say "Testing $tree under Wine"
    ctest --preset windows-mingw --parallel "$jobs" --no-tests=error
    say "Pictures of the sections are in $tree/pictures"
fi

say "Packing"
rm -f "$tree"/*.zip
cmake -E chdir "$tree" cpack >"$tree/cpack.log" || {
    cat "$tree/cpack.log"
    exit 1
}
package=$(ls "$tree"/*.zip)
contents=$(cmake -E tar tf "$package")
for file in README.txt Plugins/MVPhysicsSoftClothSection.{dll,rcc} Data/PhysicsSoftPreset/0/1_Cotton.{ini,png} \
    licenses/LGPL-3.0.txt; do
    grep -q "/$file\$" <<<"$contents" || {
        say "$package lacks $file"
        exit 1
    }
done
say "The package for a Windows host: $package"
