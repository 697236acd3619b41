#pragma once

#include "host/simulation/ClothShape.h"
#include "host/simulation/PreviewModel.h"

namespace Host {

/// Smooth normals of a mesh whose vertices move.
class MeshNormals
{
public:
    explicit MeshNormals(const PreviewMesh& mesh);

    /// \param positions one per vertex of the mesh
    /// \param normals   becomes as many, each of length 1; a vertex without triangles has one that points upwards
    void Find(const std::vector<QVector3D>& positions, std::vector<QVector3D>& normals);

private:
    std::vector<quint32> m_indices; ///< Three per triangle.
    WeldedVertices m_weld;          ///< Vertices in one place have one normal.
    std::vector<QVector3D> m_sums;
};

} // namespace Host
