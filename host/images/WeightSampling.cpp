#include "host/images/WeightSampling.h"

#include "host/scene/Entities.h"

#include <cmath>
#include <vector>

namespace Host {

namespace {

/// \p coordinate as a place from 0 to 1 in the image.
double InImage(float coordinate)
{
    if (!std::isfinite(coordinate)) {
        return 0.0;
    }
    const auto exact = double(coordinate);
    return exact >= 0.0 && exact <= 1.0 ? exact : exact - std::floor(exact);
}

int PixelOf(double place, int count)
{
    return qBound(0, int(place * count), count - 1);
}

} // namespace

QPoint PixelAt(const QVector2D& uv, const QSize& size)
{
    return {PixelOf(InImage(uv.x()), size.width()), size.height() - 1 - PixelOf(InImage(uv.y()), size.height())};
}

quint8 GrayAtVertex(const Mesh& mesh, quint32 vertex, const QImage& image, const GrayTable& table)
{
    const QPoint pixel = PixelAt(vertex < mesh.uvs.size() ? mesh.uvs[vertex] : QVector2D(), image.size());
    return table[GrayOfPixel(image, pixel.x(), pixel.y())];
}

int CountMovingVertices(const Mesh& mesh, const MaterialSlot& slot, const QImage& image, const GrayTable& table)
{
    if (image.isNull()) {
        return 0;
    }
    std::vector<bool> seen(mesh.positions.size(), false);
    int moving = 0;
    for (const quint32 vertex : slot.indices) {
        if (vertex >= seen.size() || seen[vertex]) {
            continue;
        }
        seen[vertex] = true;
        moving += GrayAtVertex(mesh, vertex, image, table) > 0 ? 1 : 0;
    }
    return moving;
}

} // namespace Host
