#!/usr/bin/env bash
# Builds what Debian has no Windows packages of, once, into a cache folder: the parts of Qt that the panel and its tests
# use, a reader of tga images, and Assimp with the model formats that the tests read. All comes out of Debian's source
# packages. Can be interrupted at any time and goes on where it was; says on its last line where the result is.
# Environment: SOFTCLOTH_WINDOWS_CACHE  the cache folder (default: softcloth-windows in the user's cache folder)
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh --windows

cache=${SOFTCLOTH_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/softcloth-windows}
target=x86_64-w64-mingw32
tool_chain=$PWD/cmake/MinGW.cmake
sources=(qtbase-opensource-src kimageformats assimp zlib)
qt_release=5.15.8

qt_options=(-opensource -confirm-license -release -xplatform win32-g++ -device-option "CROSS_COMPILE=$target-"
    -no-opengl -no-angle -no-openssl -no-sql-sqlite -no-sql-odbc -nomake examples -nomake tests -no-dbus -no-icu
    -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz
    -no-feature-sql -no-feature-network -no-feature-printer -no-feature-tabletevent -no-direct2d -no-pch -silent)
qt_modules=(widgets xml testlib winmain plugins)
model_formats=(3DS BLEND COLLADA FBX GLTF OBJ PLY STL)

# Another release or other options are other libraries.
libraries=$cache/$(printf '%s\n' "$qt_release" "${qt_options[@]}" "${qt_modules[@]}" "${model_formats[@]}" |
    sha256sum | cut -c1-12)
installed=$libraries/installed

# to_log LOG COMMAND…: runs the command with its output in the log and shows how far the compiler has got.
to_log() {
    local log=$libraries/$1.log
    shift
    local before=$SECONDS
    if ! "$@" 2>&1 | tee "$log" |
        awk '/^compiling |Building C/ && ++n % 100 == 0 { print "   " n " files compiled"; fflush() }'; then
        tail -n 30 "$log"
        say "Failed; all that was said is in $log"
        return 1
    fi
    say "   done in $((SECONDS - before)) s"
}

# The compiler whose run time has std::mutex and std::thread; the other variant may be installed beside it.
choose_compiler() {
    local tool
    for tool in gcc g++; do
        if [[ $("$target-$tool" -v 2>&1) != *'Thread model: posix'* ]]; then
            local as_root=()
            [ "$(id -u)" -eq 0 ] || as_root=(sudo)
            say "Choosing the posix variant of $target-$tool"
            "${as_root[@]}" update-alternatives --set "$target-$tool" "/usr/bin/$target-$tool-posix"
        fi
    done
}

# Debian's sources, from where the machine has its packages from and without a change to its own lists.
fetch_sources() {
    local apt=$cache/apt
    rm -rf "$apt"
    mkdir -p "$apt/lists/partial" "$apt/places" "$cache/sources"
    local list
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.{list,sources}; do
        if [ -e "$list" ]; then
            sed -E '/^deb-src /d; s/^deb /deb-src /; s/^Types:.*/Types: deb-src/' "$list" \
                >"$apt/places/$(basename "$list")"
        fi
    done
    local here=(-o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$apt/places"
        -o "Dir::State::Lists=$apt/lists" -o APT::Sandbox::User=)
    say "Fetching the sources of ${sources[*]}"
    # Other vendors' places may have no sources; what is missing then shows in the next step.
    apt-get "${here[@]}" -qq update || true
    (cd "$cache/sources" && apt-get "${here[@]}" -qq --download-only source "${sources[@]}")
    touch "$cache/sources/complete"
}

# unpack SOURCE: into a folder of its name, which is there only when it is whole.
unpack() {
    [ -d "$libraries/$1" ] && return
    [ -e "$cache/sources/complete" ] || fetch_sources
    rm -rf "$libraries/$1.part"
    say "Unpacking $1"
    dpkg-source --no-check -x "$(ls "$cache/sources/$1"_*.dsc | tail -n 1)" "$libraries/$1.part" \
        >"$libraries/unpack.log" 2>&1
    mv "$libraries/$1.part" "$libraries/$1"
}

# step FUNCTION: once.
step() {
    [ -e "$libraries/$1.done" ] && return
    # In a shell of its own, so that it may change the folder and its first failing command ends it.
    (set -e; "$1")
    touch "$libraries/$1.done"
}

configure_qt() {
    say "Configuring Qt (two to four minutes)"
    rm -rf "$libraries/qt-build"
    mkdir -p "$libraries/qt-build"
    cd "$libraries/qt-build"
    to_log configure-qt "$libraries/qtbase-opensource-src/configure" "${qt_options[@]}" -prefix "$installed"
    # For the sources alone: of the examples nothing is built, and the tests are not in the package. A makefile that is
    # still missing then is made when its folder is built.
    make -j "$jobs" sub-src-qmake_all >"$libraries/qmake-qt.log" 2>&1 || true
}

build_qt() {
    say "Building Qt (15 to 25 minutes on two cores)"
    cd "$libraries/qt-build/src"
    to_log build-qt make -j "$jobs" "${qt_modules[@]/#/sub-}"
}

install_qt() {
    say "Installing Qt"
    local parts=("${qt_modules[@]}" corelib gui moc rcc uic)
    parts=("${parts[@]/#/sub-}")
    cd "$libraries/qt-build/src"
    to_log install-qt make -j 1 "${parts[@]/%/-install_subtargets}"
    cd ..
    to_log install-qmake make -j 1 sub-qmake-qmake-aux-pro-install_subtargets install_mkspecs
}

# The panel's weight images may be tga files, whose reader comes apart from Qt.
build_tga_reader() {
    say "Building the tga reader"
    local project=$libraries/tga
    rm -rf "$project"
    mkdir -p "$project"
    cd "$project"
    cp "$libraries"/kimageformats/src/imageformats/{tga.cpp,tga_p.h,tga.json,util_p.h} .
    cat >tga.pro <<'PROJECT'
TEMPLATE = lib
CONFIG += plugin release
TARGET = kimg_tga
QT = core gui
HEADERS = tga_p.h
SOURCES = tga.cpp
target.path = $$[QT_INSTALL_PLUGINS]/imageformats
INSTALLS = target
PROJECT
    "$installed/bin/qmake"
    to_log tga make -j "$jobs" install
}

# Debian's sources leave out what Debian has apart: there it is taken from.
build_assimp() {
    say "Building Assimp"
    local source=$libraries/assimp
    if grep -q 'find_package(draco' "$source/code/CMakeLists.txt"; then
        patch -R -p1 -s -d "$source" <"$source/debian/patches/use-system-libdraco.patch"
    fi
    mkdir -p "$source/contrib/unzip"
    cp "$libraries"/zlib/contrib/minizip/{crypt.h,ioapi.c,ioapi.h,unzip.c,unzip.h} "$source/contrib/unzip"
    : >"$source/contrib/unzip/crypt.c"
    cp -rL /usr/include/utf8.h /usr/include/utf8 /usr/include/stb "$source/include"
    # One run time for the whole program, Qt's.
    sed -i '/-static-libgcc -static-libstdc++/d' "$source/code/CMakeLists.txt"
    local formats=("${model_formats[@]/#/-DASSIMP_BUILD_}")
    cmake -S "$source" -B "$libraries/assimp-build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$tool_chain" \
        -DCMAKE_INSTALL_PREFIX="$installed" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF \
        -DASSIMP_BUILD_TESTS=OFF -DASSIMP_BUILD_ASSIMP_TOOLS=OFF -DASSIMP_BUILD_ZLIB=OFF -DASSIMP_BUILD_MINIZIP=ON \
        -DASSIMP_BUILD_DRACO=OFF -DASSIMP_NO_EXPORT=ON -DASSIMP_WARNINGS_AS_ERRORS=OFF \
        -DASSIMP_BUILD_ALL_IMPORTERS_BY_DEFAULT=OFF "${formats[@]/%/_IMPORTER=ON}" >"$libraries/configure-assimp.log" 2>&1
    to_log assimp cmake --build "$libraries/assimp-build" --parallel "$jobs" --target install
}

choose_compiler
mkdir -p "$libraries"
# Two at a time would be in each other's way.
exec 9>"$libraries/lock"
flock -n 9 || { say "Waiting for another run"; flock 9; }

for source in "${sources[@]}"; do
    unpack "$source"
done
for function in configure_qt build_qt install_qt build_tga_reader build_assimp; do
    step "$function"
done
say "The libraries for Windows are ready in"
printf '%s\n' "$installed"
