#!/usr/bin/env bash
# Installs what the project needs on a Debian 12 machine: only what is missing, nothing when all is there.
# Options: --tools    also the tools that check the sources (clang-format, clang-tidy, clazy)
#          --windows  also what builds and runs the Windows library (MinGW, Wine, the tools that unpack Qt's sources)
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

packages=(
    # compiler and build tools
    g++ cmake ninja-build ccache binutils
    # Qt: widgets, run-time forms and Designer plug-ins, translations tools, further image formats
    qtbase5-dev qttools5-dev qttools5-dev-tools qt5-image-formats-plugins
    # model import, what its CMake files want besides, and real models for the tests
    libassimp-dev zlib1g-dev libminizip-dev assimp-testmodels
    # a display where there is none, and a font
    xvfb xauth fontconfig fonts-dejavu-core
)
for option in "$@"; do
    case $option in
    --tools) packages+=(clang-format clang-tidy clazy) ;;
    --windows)
        packages+=(
            # cross compiler and what unpacks and builds Debian's sources
            g++-mingw-w64-x86-64-posix make dpkg-dev patch perl python3 util-linux
            # parts of those sources that Debian has apart
            libz-mingw-w64-dev libutfcpp-dev libstb-dev
            # the tests' Windows, with a font of its own
            wine wine64 fonts-wine
        )
        ;;
    *)
        say "Unknown option $option"
        exit 1
        ;;
    esac
done

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
fi
say "Installing ${missing[*]}"
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
