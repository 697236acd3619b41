#!/usr/bin/env bash
# Makes the pictures of the documentation again: runs the tour and copies some of its pictures to docs/images.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh
build dev softcloth-workbench

tour=build/pictures
rm -rf "$tour"
runtime=$(mktemp -d)
trap 'rm -rf "$runtime"' EXIT
XDG_RUNTIME_DIR=$runtime QT_QPA_PLATFORM=offscreen build/dev/bin/softcloth-workbench --tour "$tour"

# picture of the tour (without its number) and name in the documentation
while read -r step name; do
    cp "$tour"/[0-9][0-9]-"$step".png "docs/images/$name.png"
done <<'PICTURES'
random-factor-dragged workbench
preset-applied-panel preset
random-factor-dragged-panel wind
weight-image-loaded-SoftClothMaterialDlg weight-image
brightness-changed-SoftClothMaterialDlg embedded
table-narrowed-SoftClothMaterialTable material-table
PICTURES
say "The pictures are in docs/images"
