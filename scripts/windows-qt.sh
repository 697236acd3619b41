#!/usr/bin/env bash
# Builds Qt for 64-bit Windows out of Debian's source packages, once, into a cache folder: the modules and plug-ins that
# the panel and its tests use. Can be interrupted at any time and goes on where it was; prints the folder of the finished
# Qt on its last line.
# Environment: SOFTCLOTH_WINDOWS_CACHE  the cache folder (default: softcloth-windows in the user's cache folder)
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh --windows

cache=${SOFTCLOTH_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/softcloth-windows}
prefix=x86_64-w64-mingw32-
sources=(qtbase-opensource-src)
release=5.15.8

options=(-opensource -confirm-license -release -xplatform win32-g++ -device-option "CROSS_COMPILE=$prefix"
    -no-opengl -no-angle -no-openssl -no-sql-sqlite -no-sql-odbc -nomake examples -nomake tests -no-dbus -no-icu
    -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz
    -no-feature-sql -no-feature-network -no-feature-printer -no-feature-tabletevent -no-direct2d -no-pch -silent)
modules=(widgets testlib winmain plugins)

# Another release or other options are another Qt.
qt=$cache/qt-$release-$(printf '%s\n' "$release" "${options[@]}" "${modules[@]}" | sha256sum | cut -c1-8)

# to_log LOG COMMAND…: runs the command with its output in the log and shows how far the compiler has got.
to_log() {
    local log=$1
    shift
    local before=$SECONDS
    if ! "$@" 2>&1 | tee "$log" | awk '/^compiling / && ++n % 100 == 0 { print "   " n " files compiled"; fflush() }'; then
        tail -n 30 "$log"
        say "Failed; everything that was said is in $log"
        return 1
    fi
    say "   done in $((SECONDS - before)) s"
}

# The compiler whose run time has std::mutex and std::thread; the other variant may be installed beside it.
choose_compiler() {
    local tool
    for tool in gcc g++; do
        if ! "$prefix$tool" -v 2>&1 | grep -q '^Thread model: posix'; then
            local as_root=()
            [ "$(id -u)" -eq 0 ] || as_root=(sudo)
            say "Choosing the posix variant of $prefix$tool"
            "${as_root[@]}" update-alternatives --set "$prefix$tool" "/usr/bin/$prefix$tool-posix"
        fi
    done
}

# Debian's sources without a change to the machine's own list of them.
fetch_sources() {
    local apt=$cache/apt
    mkdir -p "$apt/lists/partial" "$cache/sources"
    printf 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(debian_mirror) %s main\n' \
        bookworm bookworm-updates >"$apt/sources.list"
    local here=(-o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=- -o "Dir::State::Lists=$apt/lists"
        -o APT::Sandbox::User=)
    say "Fetching the sources of ${sources[*]}"
    apt-get "${here[@]}" -qq update
    (cd "$cache/sources" && apt-get "${here[@]}" -qq --download-only source "${sources[@]}")
}

# unpack SOURCE: into a folder of its name, which is there only when it is whole.
unpack() {
    [ -d "$qt/$1" ] && return
    local description
    description=$(ls "$cache/sources/$1_$release"*.dsc 2>/dev/null | tail -n 1) || true
    if [ -z "$description" ]; then
        fetch_sources
        description=$(ls "$cache/sources/$1_$release"*.dsc | tail -n 1)
    fi
    rm -rf "$qt/$1.part"
    say "Unpacking $1"
    dpkg-source --no-check -x "$description" "$qt/$1.part" >"$qt/unpack.log" 2>&1
    mv "$qt/$1.part" "$qt/$1"
}

# step NAME FUNCTION: once.
step() {
    [ -e "$qt/$1.done" ] && return
    "$2"
    touch "$qt/$1.done"
}

configure_qt() {
    rm -rf "$qt/build"
    mkdir -p "$qt/build"
    cd "$qt/build"
    say "Configuring Qt (two or three minutes)"
    to_log "$qt/configure.log" "$qt/qtbase-opensource-src/configure" "${options[@]}" -prefix "$qt/installed"
    # The tests are not in the package, which make says and passes over.
    make -j "$jobs" qmake_all >"$qt/qmake.log" 2>&1 || true
}

build_qt() {
    cd "$qt/build/src"
    say "Building Qt (15 to 25 minutes on two cores)"
    to_log "$qt/build.log" make -j "$jobs" "${modules[@]/#/sub-}"
}

install_qt() {
    cd "$qt/build/src"
    say "Installing Qt into $qt/installed"
    local parts=("${modules[@]}" corelib gui moc rcc uic)
    to_log "$qt/install.log" make -j 1 "${parts[@]/%/-install_subtargets}"
}

# The panel's weight images may be tga files.
build_image_formats() {
    rm -rf "$qt/imageformats"
    mkdir -p "$qt/imageformats"
    cd "$qt/imageformats"
    say "Building the tga reader"
    "$qt/installed/bin/qmake" "$qt/qtimageformats-opensource-src/src/plugins/imageformats/tga/tga.pro"
    to_log "$qt/imageformats.log" make -j "$jobs" install
}

choose_compiler
mkdir -p "$qt"
# Two at a time would be in each other's way.
exec 9>"$qt/lock"
flock -n 9 || { say "Waiting for another build of Qt"; flock 9; }

for source in "${sources[@]}"; do
    unpack "$source"
done
step configure configure_qt
step build build_qt
step install install_qt
step imageformats build_image_formats
say "Qt for Windows is ready"
printf '%s\n' "$qt/installed"
