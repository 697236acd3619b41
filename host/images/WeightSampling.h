#pragma once

#include "host/images/WeightAdjust.h"

#include <QImage>
#include <QVector2D>

namespace Host {

struct MaterialSlot;
struct Mesh;

/// The gray of a pixel of a decoded image, 0 to 255; transparency makes it darker by its share.
inline quint8 GrayOfPixel(const QImage& image, int x, int y)
{
    const uchar* const line = image.constScanLine(y);
    if (image.format() == QImage::Format_Grayscale8) {
        return line[x];
    }
    const QRgb pixel = reinterpret_cast<const QRgb*>(line)[x];
    const int alpha = image.hasAlphaChannel() ? qAlpha(pixel) : 255;
    return quint8(qGray(pixel) * alpha / 255);
}

/// The pixel that \p uv lies in. (0, 0) is the lower left corner and (1, 1) the upper right one, both inside the image;
/// outside of them the image repeats. What is not a number counts as 0.
QPoint PixelAt(const QVector2D& uv, const QSize& size);

/// The gray, after \p table, that \p image has at a vertex of \p mesh: that of the pixel that its UV lies in, without
/// blending. A mesh without UVs has (0, 0) everywhere. The image is not null.
quint8 GrayAtVertex(const Mesh& mesh, quint32 vertex, const QImage& image, const GrayTable& table);

/// How many vertices of \p slot, each counted once, move under a weight image: those whose gray is above 0.
int CountMovingVertices(const Mesh& mesh, const MaterialSlot& slot, const QImage& image, const GrayTable& table);

} // namespace Host
