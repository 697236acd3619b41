#include "host/viewport/ModelGeometry.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <tuple>

namespace Host {

namespace {

constexpr quint32 notUsed = std::numeric_limits<quint32>::max();

/// Twice the area of a triangle as a vector upon it. In double precision nothing of what IsPlace() lets through
/// overflows.
std::array<double, 3> AreaOf(const QVector3D& a, const QVector3D& b, const QVector3D& c)
{
    const auto side = [&a](const QVector3D& to, int axis) { return double(to[axis]) - double(a[axis]); };
    return {side(b, 1) * side(c, 2) - side(b, 2) * side(c, 1), side(b, 2) * side(c, 0) - side(b, 0) * side(c, 2),
            side(b, 0) * side(c, 1) - side(b, 1) * side(c, 0)};
}

bool HasArea(const QVector3D& a, const QVector3D& b, const QVector3D& c)
{
    const std::array<double, 3> area = AreaOf(a, b, c);
    return area[0] != 0.0 || area[1] != 0.0 || area[2] != 0.0;
}

/// Adds the triangles of one slot to a geometry.
class PartBuilder
{
public:
    PartBuilder(const Mesh& mesh, MeshGeometry& geometry)
        : m_mesh(mesh)
        , m_geometry(geometry)
        , m_vertices(mesh.positions.size(), notUsed)
    {
    }

    void Add(std::size_t slotNumber)
    {
        const MaterialSlot& slot = m_mesh.materialSlots[slotNumber];
        GeometryPart part;
        part.slot = slotNumber;
        part.material = slot.material;
        part.firstIndex = m_geometry.indices.size();
        part.firstVertex = m_geometry.positions.size();
        for (std::size_t i = 0; i + 2 < slot.indices.size(); i += 3) {
            AddTriangle(slot.indices[i], slot.indices[i + 1], slot.indices[i + 2]);
        }
        part.indexCount = m_geometry.indices.size() - part.firstIndex;
        part.vertexCount = m_geometry.positions.size() - part.firstVertex;
        for (std::size_t i = part.firstVertex; i < m_geometry.sources.size(); ++i) {
            m_vertices[m_geometry.sources[i]] = notUsed;
        }
        if (part.indexCount > 0) {
            m_geometry.parts.push_back(part);
        }
    }

private:
    void AddTriangle(quint32 a, quint32 b, quint32 c)
    {
        const std::vector<QVector3D>& positions = m_mesh.positions;
        if (std::max({a, b, c}) >= positions.size() || !IsPlace(positions[a]) || !IsPlace(positions[b]) ||
            !IsPlace(positions[c])) {
            ++m_geometry.lostTriangles;
        } else if (HasArea(positions[a], positions[b], positions[c])) {
            for (const quint32 corner : {a, b, c}) {
                m_geometry.indices.push_back(VertexOf(corner));
            }
        }
    }

    quint32 VertexOf(quint32 source)
    {
        quint32& vertex = m_vertices[source];
        if (vertex == notUsed) {
            vertex = quint32(m_geometry.positions.size());
            m_geometry.sources.push_back(source);
            m_geometry.positions.push_back(m_mesh.positions[source]);
            m_geometry.uvs.push_back(source < m_mesh.uvs.size() ? m_mesh.uvs[source] : QVector2D());
            m_geometry.bounds.Add(m_mesh.positions[source]);
        }
        return vertex;
    }

    const Mesh& m_mesh;
    MeshGeometry& m_geometry;
    std::vector<quint32> m_vertices; ///< For each vertex of the mesh the one of the geometry in the current part.
};

/// The mesh's own normals, and smooth ones where it has none that can be used.
std::vector<QVector3D> NormalsOf(const Mesh& mesh, const MeshGeometry& geometry)
{
    std::vector<QVector3D> normals;
    normals.reserve(geometry.sources.size());
    std::vector<QVector3D> smooth;
    for (std::size_t i = 0; i < geometry.sources.size(); ++i) {
        const quint32 source = geometry.sources[i];
        const QVector3D given = source < mesh.normals.size() ? mesh.normals[source] : QVector3D();
        if (IsPlace(given) && !given.normalized().isNull()) {
            normals.push_back(given.normalized());
            continue;
        }
        if (smooth.empty()) {
            smooth = SmoothNormals(geometry.positions, geometry.indices);
        }
        normals.push_back(smooth[i]);
    }
    return normals;
}

/// The positions' numbers in an order in which equal positions follow each other.
std::vector<quint32> SortedByPlace(const std::vector<QVector3D>& positions)
{
    std::vector<quint32> order(positions.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&positions](quint32 a, quint32 b) {
        const QVector3D& p = positions[a];
        const QVector3D& q = positions[b];
        return std::make_tuple(p.x(), p.y(), p.z()) < std::make_tuple(q.x(), q.y(), q.z());
    });
    return order;
}

} // namespace

MeshGeometry BuildGeometry(const Mesh& mesh)
{
    MeshGeometry geometry;
    PartBuilder builder(mesh, geometry);
    for (std::size_t slot = 0; slot < mesh.materialSlots.size(); ++slot) {
        builder.Add(slot);
    }
    geometry.normals = NormalsOf(mesh, geometry);
    return geometry;
}

std::vector<QVector3D> SmoothNormals(const std::vector<QVector3D>& positions, const std::vector<quint32>& indices)
{
    std::vector<std::array<double, 3>> sums(positions.size());
    for (std::size_t i = 0; i + 2 < indices.size(); i += 3) {
        // As long as the triangle is large, so large triangles count more.
        const std::array<double, 3> area =
            AreaOf(positions[indices[i]], positions[indices[i + 1]], positions[indices[i + 2]]);
        for (std::size_t corner = i; corner < i + 3; ++corner) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                sums[indices[corner]][axis] += area[axis];
            }
        }
    }
    std::vector<QVector3D> normals(positions.size());
    const std::vector<quint32> order = SortedByPlace(positions);
    for (std::size_t first = 0, end = 0; first < order.size(); first = end) {
        std::array<double, 3> sum{};
        for (end = first; end < order.size() && positions[order[end]] == positions[order[first]]; ++end) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                sum[axis] += sums[order[end]][axis];
            }
        }
        const double length = std::sqrt(sum[0] * sum[0] + sum[1] * sum[1] + sum[2] * sum[2]);
        const QVector3D normal = length > 0.0
                                     ? QVector3D(float(sum[0] / length), float(sum[1] / length), float(sum[2] / length))
                                     : QVector3D(0.0F, 1.0F, 0.0F);
        std::for_each(order.begin() + std::ptrdiff_t(first), order.begin() + std::ptrdiff_t(end),
                      [&](quint32 vertex) { normals[vertex] = normal; });
    }
    return normals;
}

} // namespace Host
