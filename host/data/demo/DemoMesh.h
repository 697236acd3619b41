#pragma once

#include <QByteArray>
#include <QRectF>
#include <QVector2D>
#include <QVector3D>

#include <array>
#include <functional>
#include <vector>

namespace Demo {

struct Vertex
{
    QVector3D position;
    QVector3D normal;
    QVector2D uv;
};

/// The part of a mesh that carries one material.
struct Part
{
    QByteArray material;
    std::vector<Vertex> vertices;
    std::vector<std::array<std::size_t, 3>> triangles; ///< Counter-clockwise seen from outside.
};

struct Mesh
{
    QByteArray name;
    std::vector<Part> parts;
};

/// A surface over the unit square: u runs to the right and v upwards for somebody who looks at it from outside.
using Surface = std::function<QVector3D(float u, float v)>;

/// Adds \p surface to \p part as a grid of triangles; a row that is a single point becomes a fan.
/// \param uvArea the part of the texture that the surface takes, v growing upwards
void AddSurface(Part& part, const Surface& surface, int columns, int rows, const QRectF& uvArea);

/// Makes \p part \p factor times as large, about the origin.
void Enlarge(Part& part, float factor);

/// Gives all vertices smooth normals, also across the seams of closed surfaces.
void SmoothNormals(Part& part);

/// The angle of u on a surface that closes: both ends give the very same number.
float TurnOf(float u);

/// One ring around an axis: its height, and its radii along x and z.
struct Ring
{
    float height;
    float radiusX;
    float radiusZ;
};

/// A surface through \p rings, smooth in between, around the y axis. The seam is at the back (-z).
Surface Lathe(const std::vector<Ring>& rings);

/// A surface through \p rings, whose heights run from 0 to 1, around the line from \p bottom to \p top.
Surface Limb(const std::vector<Ring>& rings, const QVector3D& bottom, const QVector3D& top);

Surface Ellipsoid(const QVector3D& center, const QVector3D& radii);

} // namespace Demo
