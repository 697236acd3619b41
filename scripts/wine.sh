#!/usr/bin/env bash
# Runs a Windows program of the build: wine.sh LIBRARIES PROGRAM [ARGUMENT…], LIBRARIES being the folder in which the
# libraries for Windows are installed. CMake and CTest call it.
set -euo pipefail
libraries=$1
shift

# Where Windows programs look for DLLs apart from their own folder: Qt's and the compiler's run time.
run_time=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
WINEPATH=
for folder in "$libraries/bin" "$run_time" /usr/x86_64-w64-mingw32/lib; do
    WINEPATH+="Z:${folder//\//\\};"
done
export WINEPATH

# An installation of Windows of our own, without what it would offer to download.
export WINEPREFIX=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/softcloth-windows/wine}
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES='mscoree,mshtml='
mkdir -p "$(dirname "$WINEPREFIX")"

# Qt's test programs would write to a debugger otherwise.
export QT_FORCE_STDERR_LOGGING=1
# Where the platform without a display looks for fonts.
export QT_QPA_FONTDIR='Z:\usr\share\fonts\truetype\dejavu'
# Wine keeps variables of Qt to itself but for those that are meant for its programs.
for variable in $(compgen -e QT_); do
    export "WINE$variable=${!variable}"
done

exec wine "$@"
