#!/usr/bin/env bash
# Installs what the project needs on a Debian 12 machine: only what is missing, nothing when all is there.
# Options: --tools    also the tools that check the sources (clang-format, clang-tidy, clazy)
#          --fuzz     also the compiler of the fuzzers
#          --windows  also what builds and runs the Windows library (MinGW, Wine, the tools that unpack Qt's sources)
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

packages=(
    # compiler and build tools
    g++ cmake ninja-build ccache binutils mold
    # Qt: widgets, run-time forms and Designer plug-ins, translations tools, further image formats
    qtbase5-dev qttools5-dev qttools5-dev-tools qt5-image-formats-plugins qttranslations5-l10n
    # model import, what else its CMake files want, and real models for the tests
    libassimp-dev zlib1g-dev libminizip-dev assimp-testmodels
    # viewport and cloth preview: rays and closest points, arithmetic; the other solver of the preview's benchmark
    libembree-dev libeigen3-dev libbullet-dev
    # a display where there is none with OpenGL drawn by the processor, a font, and one with Chinese and Japanese characters
    xvfb xauth libgl1-mesa-dri fontconfig fonts-dejavu-core fonts-droid-fallback
)
for option in "$@"; do
    case $option in
    --tools) packages+=(clang-format clang-tidy clazy) ;;
    --fuzz) packages+=(clang libclang-rt-14-dev) ;;
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
# Another installation may be going on, as on a machine that has just started. apt-get waits for that where it installs,
# but not where it reads the lists.
apt_get() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=600 "$@"; }
until problem=$(LC_ALL=C apt_get update 2>&1); do
    case $problem in
    *"Could not get lock"*) sleep 5 ;;
    *)
        printf '%s\n' "$problem" >&2
        exit 1
        ;;
    esac
done
apt_get install -y --no-install-recommends "${missing[@]}" >/dev/null
