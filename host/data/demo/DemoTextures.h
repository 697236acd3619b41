#pragma once

#include <QImage>

namespace Demo {

/// The body: skin, a face, a bodysuit and boots, laid out as SkinAreas says.
QImage PaintSkin();
QImage PaintHair();
/// White where the hair is solid, black where it is not there.
QImage PaintHairOpacity();
/// A checked weave.
QImage PaintSkirt();
/// A bordered cloth with a pattern of rhombs.
QImage PaintCape();
/// A disc on a ground of two stripes.
QImage PaintFlag();

// Weight images, in 8-bit gray: black holds the cloth fast and white lets it move.

/// Of what hangs from above, as the skirt and the cape do: black at the top, lighter all the way down.
QImage PaintHangingWeights();
/// Of what is held at its left edge, as the flag is.
QImage PaintFlagWeights();
/// Nothing can move.
QImage PaintNoWeights();

} // namespace Demo
