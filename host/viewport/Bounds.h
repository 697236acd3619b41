#pragma once

#include <QVector3D>

#include <algorithm>
#include <array>
#include <cmath>

namespace Host {

/// Whether something can be drawn at \p position. What lies further away than light travels in half a minute, in
/// centimetres, comes from a damaged file and would only make the arithmetic overflow.
inline bool IsPlace(const QVector3D& position)
{
    constexpr float furthest = 1e12F;
    return std::abs(position.x()) < furthest && std::abs(position.y()) < furthest && std::abs(position.z()) < furthest;
}

/// The smallest box, along the axes, around a number of places.
struct Bounds
{
    QVector3D low;
    QVector3D high;
    bool isEmpty = true;

    void Add(const QVector3D& place)
    {
        if (isEmpty) {
            low = high = place;
            isEmpty = false;
            return;
        }
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = std::min(low[axis], place[axis]);
            high[axis] = std::max(high[axis], place[axis]);
        }
    }

    void Add(const Bounds& other)
    {
        if (!other.isEmpty) {
            Add(other.low);
            Add(other.high);
        }
    }

    QVector3D Center() const { return (low + high) / 2.0F; }
    /// From one corner to the opposite one; 0 for a single place.
    float Diagonal() const { return (high - low).length(); }

    std::array<QVector3D, 8> Corners() const
    {
        std::array<QVector3D, 8> corners;
        for (unsigned i = 0; i < corners.size(); ++i) {
            corners[i] = {(i & 1U) != 0 ? high.x() : low.x(), (i & 2U) != 0 ? high.y() : low.y(),
                          (i & 4U) != 0 ? high.z() : low.z()};
        }
        return corners;
    }
};

} // namespace Host
