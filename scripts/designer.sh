#!/usr/bin/env bash
# Opens forms in Qt Designer with the panel's own widgets in them: the property section, or the .ui files that are named.
[ $# -eq 0 ] || forms=$(realpath -- "$@")
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh
build dev BFQtCustomWidgetPluginU

# Qt looks for Designer's widgets in the folder "designer" of each plug-in folder.
plugins=$PWD/build/dev/qt-plugins
mkdir -p "$plugins/designer"
ln -sf ../../lib/libBFQtCustomWidgetPluginU.so "$plugins/designer/"
export QT_PLUGIN_PATH=$plugins${QT_PLUGIN_PATH:+:$QT_PLUGIN_PATH}

mapfile -t files <<<"${forms:-$(ls resources/forms/*Property*.ui)}"
exec "$(qtpaths --binaries-dir 2>/dev/null || qmake -query QT_INSTALL_BINS)/designer" "${files[@]}"
