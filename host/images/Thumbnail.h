#pragma once

#include <QImage>
#include <QSize>

namespace Host {

/// \p picture as large as fits into \p size, centred, with its aspect kept. The ground is a checker of two neutral
/// grays, which shows through what is transparent. Made of 32-bit pixels, of exactly \p size.
QImage RenderThumbnail(const QImage& picture, const QSize& size);

/// Stands in where there is no picture: the ground alone with a frame and a diagonal.
QImage RenderNoPicture(const QSize& size);

/// Stands in for a picture that should be there and cannot be read: a cross.
QImage RenderBrokenPicture(const QSize& size);

/// \p picture itself when it is small, else a copy of at most \p side pixels on a side.
QImage Reduced(const QImage& picture, int side);

} // namespace Host
