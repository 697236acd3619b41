#!/usr/bin/env bash
# Builds the plug-in against an SDK elsewhere, as with a vendor's: an installed copy of the stand-in, outside the tree.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
build dev

sdk=build/vendor/sdk
tree=build/vendor/build
say "Installing a copy of the SDK into $sdk"
rm -rf "$sdk" "$tree" build/vendor/package
cmake --install build/dev --component sdk --prefix "$PWD/$sdk" >/dev/null
say "Building a project that finds it by its CMake package"
cmake -S tests/package -B build/vendor/package -G Ninja -DCMAKE_PREFIX_PATH="$PWD/$sdk" >/dev/null
cmake --build build/vendor/package
QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} build/vendor/package/sdk-consumer

say "Reading the widgets as Qt Designer does"
QT_PLUGIN_PATH=$PWD/$sdk/lib/qt5/plugins QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} build/vendor/package/designer-widgets

# Without its build tree at hand, the plug-in can only find what was installed.
say "Building the plug-in with MOVIRA_SDK_DIR=$sdk"
cmake -S . -B "$tree" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMOVIRA_SDK_DIR="$PWD/$sdk" \
    -DSOFTCLOTH_BUILD_HOST=OFF -DSOFTCLOTH_BUILD_TESTS=OFF >/dev/null
cmake --build "$tree" --parallel "$jobs"

library=$tree/lib/MVPhysicsSoftClothSection.so
readelf -d "$library" | grep -q 'NEEDED.*libMVPluginQt\.so' || { say "not linked to the SDK"; exit 1; }
if grep -q '"[^"]*/sdk/MVPluginQt/AbstractPlugin\.cpp"' "$tree/compile_commands.json"; then
    say "the stand-in was built although a vendor's SDK was named"
    exit 1
fi
say "The workbench runs the library built against it"
QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} build/dev/bin/softcloth-workbench --plugin "$library" --tour build/vendor/tour
