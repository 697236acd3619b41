#include "host/images/UvLayout.h"

#include "host/scene/Entities.h"

#include <QLineF>
#include <QPainter>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Host {

namespace {

constexpr int smallestSide = 1024;
constexpr int largestSide = 4096;
/// UVs further out than this are a mistake of the model; they are left out.
constexpr float farthest = 64.0F;

using Edge = std::pair<quint32, quint32>;

/// Each edge of the slot's triangles once.
std::vector<Edge> EdgesOf(const MaterialSlot& slot)
{
    std::vector<Edge> edges;
    edges.reserve(slot.indices.size());
    for (std::size_t i = 0; i + 2 < slot.indices.size(); i += 3) {
        const std::array<quint32, 3> corners{slot.indices[i], slot.indices[i + 1], slot.indices[i + 2]};
        for (std::size_t k = 0; k < corners.size(); ++k) {
            edges.push_back(std::minmax(corners.at(k), corners.at((k + 1) % corners.size())));
        }
    }
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    return edges;
}

bool IsNear(const QVector2D& uv)
{
    return std::abs(uv.x()) <= farthest && std::abs(uv.y()) <= farthest;
}

/// Adds the line between two UVs, and its repetitions that show in the unit square.
void AddLines(QVector<QLineF>& lines, const QVector2D& from, const QVector2D& to, const QSize& size)
{
    const auto tile = [](float coordinate) { return int(std::floor(coordinate)); };
    // What ends on the border of a tile does not reach into the next one.
    const auto lastTile = [](float low, float high) {
        return std::max(int(std::floor(low)), int(std::ceil(high)) - 1);
    };
    const auto [left, right] = std::minmax({from.x(), to.x()});
    const auto [low, high] = std::minmax({from.y(), to.y()});
    for (int column = tile(left); column <= lastTile(left, right); ++column) {
        for (int row = tile(low); row <= lastTile(low, high); ++row) {
            const auto place = [&](const QVector2D& uv) {
                return QPointF(double(uv.x() - float(column)) * size.width(),
                               (1.0 - double(uv.y() - float(row))) * size.height());
            };
            lines.append({place(from), place(to)});
        }
    }
}

/// The size at which a layout over a texture of \p size is drawn.
QSize LayoutSize(const QSize& size)
{
    const int side = std::max(size.width(), size.height());
    const int wanted = qBound(smallestSide, side, largestSide);
    return wanted == side ? size : size.scaled(wanted, wanted, Qt::KeepAspectRatio).expandedTo({1, 1});
}

} // namespace

QImage DrawUvLayout(const QImage& texture, const std::vector<SlotOfMesh>& slotsOfMeshes)
{
    const QSize size = LayoutSize(texture.size());
    QImage layout = texture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QVector<QLineF> lines;
    for (const SlotOfMesh& each : slotsOfMeshes) {
        const std::vector<QVector2D>& uvs = each.mesh->uvs;
        for (const Edge& edge : EdgesOf(*each.slot)) {
            if (edge.second < uvs.size() && IsNear(uvs[edge.first]) && IsNear(uvs[edge.second])) {
                AddLines(lines, uvs[edge.first], uvs[edge.second], size);
            }
        }
    }
    QPainter painter(&layout);
    painter.setRenderHint(QPainter::Antialiasing);
    // Bright on a dark line: seen on light and dark textures alike.
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 2.5), QPen(QColor(0, 255, 200), 1.0)}) {
        painter.setPen(pen);
        painter.drawLines(lines);
    }
    return layout;
}

} // namespace Host
