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

} // namespace Demo
