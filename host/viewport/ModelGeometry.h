#pragma once

#include "host/scene/Entities.h"
#include "host/viewport/Bounds.h"

#include <cstddef>
#include <vector>

namespace Host {

/// The triangles of one material in a geometry.
struct GeometryPart
{
    std::size_t slot = 0; ///< Of the mesh.
    Id material = 0;
    std::size_t firstIndex = 0;
    std::size_t indexCount = 0;
    std::size_t firstVertex = 0;
    std::size_t vertexCount = 0;
};

/// A mesh as it is drawn: its vertices material by material, so that none belongs to two, without the triangles that
/// cannot be drawn.
struct MeshGeometry
{
    std::vector<quint32> sources;     ///< For each vertex the one of the mesh that it is.
    std::vector<QVector3D> positions; ///< Of each vertex, all of them places.
    std::vector<QVector3D> normals;   ///< Of each vertex, of length 1.
    std::vector<QVector2D> uvs;       ///< Of each vertex; (0, 0) where the mesh has none.
    std::vector<quint32> indices;     ///< Three per triangle, into the lists above.
    std::vector<GeometryPart> parts;  ///< Those with triangles, in the order of the mesh's slots.
    Bounds bounds;
    std::size_t lostTriangles = 0; ///< Left out because a corner of theirs is nowhere.
};

/// What can be drawn of \p mesh. Triangles without area, and with corners that do not exist or are nowhere, are left
/// out. Vertices without a normal get one from the triangles at their place.
MeshGeometry BuildGeometry(const Mesh& mesh);

/// Smooth normals for \p positions and their triangles. Vertices in one place have one normal; one without triangles
/// has one that points upwards.
std::vector<QVector3D> SmoothNormals(const std::vector<QVector3D>& positions, const std::vector<quint32>& indices);

} // namespace Host
