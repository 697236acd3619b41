#pragma once

#include "host/images/ImageFormat.h"

#include <QImage>

namespace Host {

// Truevision TGA. The plug-in that Qt has for it knows neither gray nor run-length coded images nor those without the
// later footer, which is what weight maps mostly are.

/// What the header of a TGA says. The format has no signature, so a header that makes sense is taken for one; an image
/// whose data are packed counts as complete here.
ImageHeader ReadTgaHeader(const QByteArray& bytes);

/// Decodes an image of which ReadTgaHeader() found the header: gray, true colour or indexed, plain or packed.
/// \return a null image when the data end too early or there is no memory for it
QImage ReadTga(const QByteArray& bytes);

} // namespace Host
