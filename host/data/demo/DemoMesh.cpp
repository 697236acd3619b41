#include "host/data/demo/DemoMesh.h"

#include <QQuaternion>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace Demo {

namespace {

constexpr float pi = 3.14159265F;

using PositionKey = std::tuple<float, float, float>;

PositionKey KeyOf(const QVector3D& position)
{
    return {position.x(), position.y(), position.z()};
}

/// The number between \p b and \p c, at \p t from 0 to 1, on the smooth curve through all four.
float CatmullRom(float a, float b, float c, float d, float t)
{
    return b + 0.5F * t * (c - a + t * (2.0F * a - 5.0F * b + 4.0F * c - d + t * (3.0F * (b - c) + d - a)));
}

Ring RingAt(const std::vector<Ring>& rings, float v)
{
    const auto last = static_cast<int>(rings.size()) - 1;
    const float place = v * static_cast<float>(last);
    const int below = std::min(static_cast<int>(place), last - 1);
    const float t = place - static_cast<float>(below);
    const auto ring = [&](int offset) { return rings[static_cast<std::size_t>(std::clamp(below + offset, 0, last))]; };
    const auto smooth = [&](float Ring::*value) {
        return CatmullRom(ring(-1).*value, ring(0).*value, ring(1).*value, ring(2).*value, t);
    };
    return {smooth(&Ring::height), std::max(0.0F, smooth(&Ring::radiusX)), std::max(0.0F, smooth(&Ring::radiusZ))};
}

QVector3D OnRing(const Ring& ring, float u)
{
    const float turn = TurnOf(u);
    return {-std::sin(turn) * ring.radiusX, ring.height, -std::cos(turn) * ring.radiusZ};
}

bool SamePlace(const Vertex& a, const Vertex& b)
{
    return (a.position - b.position).lengthSquared() < 1e-12F;
}

} // namespace

float TurnOf(float u)
{
    return u >= 1.0F ? 0.0F : 2.0F * pi * u;
}

void AddSurface(Part& part, const Surface& surface, int columns, int rows, const QRectF& uvArea)
{
    const std::size_t base = part.vertices.size();
    const auto indexOf = [&](int column, int row) {
        return base + static_cast<std::size_t>(row) * static_cast<std::size_t>(columns + 1) +
               static_cast<std::size_t>(column);
    };
    const auto isPoint = [&](int row) {
        return SamePlace(part.vertices[indexOf(0, row)], part.vertices[indexOf(1, row)]);
    };
    for (int row = 0; row <= rows; ++row) {
        const float v = static_cast<float>(row) / static_cast<float>(rows);
        for (int column = 0; column <= columns; ++column) {
            const float u = static_cast<float>(column) / static_cast<float>(columns);
            part.vertices.push_back({surface(u, v), {}, {u, v}});
        }
        // The tip of each triangle of a fan is over the middle of its base.
        for (int column = 0; column <= columns && isPoint(row); ++column) {
            part.vertices[indexOf(column, row)].uv.setX(
                std::min(1.0F, (static_cast<float>(column) + 0.5F) / static_cast<float>(columns)));
        }
    }
    const auto place = [&](QVector2D uv) {
        return QVector2D(QPointF(uvArea.x() + uvArea.width() * static_cast<double>(uv.x()),
                                 uvArea.y() + uvArea.height() * static_cast<double>(uv.y())));
    };
    std::for_each(part.vertices.begin() + static_cast<std::ptrdiff_t>(base), part.vertices.end(),
                  [&](Vertex& vertex) { vertex.uv = place(vertex.uv); });
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (!isPoint(row)) {
                part.triangles.push_back({indexOf(column, row), indexOf(column + 1, row),
                                          indexOf(isPoint(row + 1) ? column : column + 1, row + 1)});
            }
            if (!isPoint(row + 1)) {
                part.triangles.push_back(
                    {indexOf(column, row), indexOf(column + 1, row + 1), indexOf(column, row + 1)});
            }
        }
    }
}

void Enlarge(Part& part, float factor)
{
    for (Vertex& vertex : part.vertices) {
        vertex.position *= factor;
    }
}

void SmoothNormals(Part& part)
{
    // The cross products are as long as the triangles are large, so large triangles count more.
    std::map<PositionKey, QVector3D> sums;
    for (const auto& [a, b, c] : part.triangles) {
        const QVector3D& corner = part.vertices[a].position;
        const QVector3D normal =
            QVector3D::crossProduct(part.vertices[b].position - corner, part.vertices[c].position - corner);
        for (const std::size_t index : {a, b, c}) {
            sums[KeyOf(part.vertices[index].position)] += normal;
        }
    }
    for (Vertex& vertex : part.vertices) {
        vertex.normal = sums[KeyOf(vertex.position)].normalized();
    }
}

Surface Lathe(const std::vector<Ring>& rings)
{
    return [rings](float u, float v) { return OnRing(RingAt(rings, v), u); };
}

Surface Limb(const std::vector<Ring>& rings, const QVector3D& bottom, const QVector3D& top)
{
    const QVector3D axis = top - bottom;
    const QQuaternion turn = QQuaternion::rotationTo(QVector3D(0.0F, 1.0F, 0.0F), axis);
    return [=](float u, float v) {
        Ring ring = RingAt(rings, v);
        ring.height *= axis.length();
        return bottom + turn.rotatedVector(OnRing(ring, u));
    };
}

Surface Ellipsoid(const QVector3D& center, const QVector3D& radii)
{
    return [=](float u, float v) {
        const float height = -std::cos(pi * v);
        // From the height and not from the sine, so that the poles are points.
        const float radius = std::sqrt(std::max(0.0F, 1.0F - height * height));
        return center + QVector3D(0.0F, height * radii.y(), 0.0F) +
               OnRing({0.0F, radius * radii.x(), radius * radii.z()}, u);
    };
}

} // namespace Demo
