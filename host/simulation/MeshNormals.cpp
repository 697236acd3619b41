#include "host/simulation/MeshNormals.h"

#include <algorithm>

namespace Host {

namespace {

const QVector3D upwards(0.0F, 1.0F, 0.0F);

std::vector<quint32> IndicesOf(const PreviewMesh& mesh)
{
    std::vector<quint32> indices;
    for (const PreviewSlot& slot : mesh.materialSlots) {
        indices.insert(indices.end(), slot.indices.begin(), slot.indices.end());
    }
    return indices;
}

} // namespace

MeshNormals::MeshNormals(const PreviewMesh& mesh)
    : m_indices(IndicesOf(mesh))
    , m_weld(Weld(mesh.positions, m_indices))
    , m_sums(m_weld.vertex.size())
{
}

void MeshNormals::Find(const std::vector<QVector3D>& positions, std::vector<QVector3D>& normals)
{
    std::fill(m_sums.begin(), m_sums.end(), QVector3D());
    for (std::size_t i = 0; i + 2 < m_indices.size(); i += 3) {
        // A cross product is as long as its triangle is large, so large triangles count more.
        const QVector3D& corner = positions[m_indices[i]];
        const QVector3D area =
            QVector3D::crossProduct(positions[m_indices[i + 1]] - corner, positions[m_indices[i + 2]] - corner);
        for (std::size_t k = i; k < i + 3; ++k) {
            m_sums[std::size_t(m_weld.particle[m_indices[k]])] += area;
        }
    }
    for (QVector3D& sum : m_sums) {
        const float length = sum.length();
        sum = length > 0.0F ? sum / length : upwards;
    }
    normals.resize(positions.size());
    for (std::size_t i = 0; i < normals.size(); ++i) {
        const int particle = m_weld.particle[i];
        normals[i] = particle >= 0 ? m_sums[std::size_t(particle)] : upwards;
    }
}

} // namespace Host
