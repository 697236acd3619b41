#pragma once

#include <QVector3D>

#include <Eigen/Geometry>

#include <vector>

namespace Host {

/// A place, a velocity or a direction of the simulation. The fourth number is always 0: four fit a register, three do
/// not.
using Vector = Eigen::Vector4f;
using Vectors = std::vector<Vector>;

inline Vector ToVector(const QVector3D& v)
{
    return {v.x(), v.y(), v.z(), 0.0F};
}

inline QVector3D ToQt(const Vector& v)
{
    return {v.x(), v.y(), v.z()};
}

inline Vector Cross(const Vector& a, const Vector& b)
{
    return a.cross3(b);
}

} // namespace Host
