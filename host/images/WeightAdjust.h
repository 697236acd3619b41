#pragma once

#include <array>

#include <QtGlobal>

class QImage;

namespace Host {

/// New gray for each gray of a weight image.
using GrayTable = std::array<quint8, 256>;

/// Brightness and contrast as image editors have them, both from -100 to 100 (values beyond are taken as these).
///
/// Contrast spreads the grays about the middle: -100 makes all of them middle gray, 100 leaves only black and white.
/// Brightness then moves them all: by -100 or 100 everything becomes black or white. Two zeros change nothing.
GrayTable AdjustTable(int brightness, int contrast);

/// The gray picture of \p image after \p table. What is transparent weighs nothing: it is black before the table.
QImage AdjustedGray(const QImage& image, const GrayTable& table);

} // namespace Host
