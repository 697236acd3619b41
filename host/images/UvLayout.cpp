#include "host/images/UvLayout.h"

#include "host/scene/Entities.h"

#include <QLineF>
#include <QPainter>
#include <QPointF>
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
/// So many times all lines together are continued in another tile. More would only be waited for: the picture is full.
constexpr std::size_t mostFurtherPieces = 10000;

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

/// Adds where, from 0 at its beginning to 1 at its end, a line from \p from to \p to crosses whole numbers.
void AddCrossings(std::vector<double>& crossings, double from, double to)
{
    const auto [low, high] = std::minmax(from, to);
    for (double border = std::floor(low) + 1.0; border < high; ++border) {
        crossings.push_back((border - from) / (to - from));
    }
}

/// The lines of a layout, each within the unit square.
class Lines
{
public:
    explicit Lines(const QSize& size)
        : m_size(size)
    {
    }

    /// Adds the line between two UVs in pieces, one for each tile that it passes through, where the repeated texture
    /// shows them. Once there are too many further pieces, lines only show in the tile in which they begin.
    void Add(const QVector2D& from, const QVector2D& to)
    {
        const QPointF begin = from.toPointF();
        const QPointF way = to.toPointF() - begin;
        m_ends.assign({0.0, 1.0});
        AddCrossings(m_ends, from.x(), to.x());
        AddCrossings(m_ends, from.y(), to.y());
        std::sort(m_ends.begin(), m_ends.end());
        const std::size_t pieces = std::min(m_ends.size() - 1, m_furtherPieces + 1);
        m_furtherPieces -= pieces - 1;
        for (std::size_t i = 0; i < pieces; ++i) {
            AddPiece(begin + way * m_ends[i], begin + way * m_ends[i + 1]);
        }
    }

    const QVector<QLineF>& All() const { return m_lines; }

private:
    void AddPiece(const QPointF& from, const QPointF& to)
    {
        const QPointF middle = (from + to) / 2.0;
        const QPointF tile(std::floor(middle.x()), std::floor(middle.y()));
        const auto place = [&](const QPointF& uv) {
            return QPointF((uv.x() - tile.x()) * m_size.width(), (1.0 - (uv.y() - tile.y())) * m_size.height());
        };
        m_lines.append({place(from), place(to)});
    }

    QSize m_size;
    QVector<QLineF> m_lines;
    std::vector<double> m_ends; ///< Of the pieces of one line.
    std::size_t m_furtherPieces = mostFurtherPieces;
};

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
    Lines lines(size);
    for (const SlotOfMesh& each : slotsOfMeshes) {
        const std::vector<QVector2D>& uvs = each.mesh->uvs;
        for (const Edge& edge : EdgesOf(*each.slot)) {
            if (edge.second < uvs.size() && IsNear(uvs[edge.first]) && IsNear(uvs[edge.second])) {
                lines.Add(uvs[edge.first], uvs[edge.second]);
            }
        }
    }
    QPainter painter(&layout);
    painter.setRenderHint(QPainter::Antialiasing);
    // Bright on a dark line: seen on light and dark textures alike.
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 2.5), QPen(QColor(0, 255, 200), 1.0)}) {
        painter.setPen(pen);
        painter.drawLines(lines.All());
    }
    return layout;
}

} // namespace Host
