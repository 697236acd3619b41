#include "tests/unit/scene/GeometryChecks.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace GeometryChecks {

namespace {

using Host::Mesh;
using Host::Object;

template <class Vector>
bool IsFinite(const Vector& vector)
{
    return std::isfinite(vector.lengthSquared());
}

template <class Action>
void ForEachTriangle(const Mesh& mesh, Action action)
{
    for (const auto& slot : mesh.materialSlots) {
        for (std::size_t i = 0; i + 2 < slot.indices.size(); i += 3) {
            action(slot.indices[i], slot.indices[i + 1], slot.indices[i + 2]);
        }
    }
}

QVector3D Cross(const Mesh& mesh, quint32 a, quint32 b, quint32 c)
{
    return QVector3D::crossProduct(mesh.positions[b] - mesh.positions[a], mesh.positions[c] - mesh.positions[a]);
}

double UvArea(const Mesh& mesh, quint32 a, quint32 b, quint32 c)
{
    const QVector2D u = mesh.uvs[b] - mesh.uvs[a];
    const QVector2D v = mesh.uvs[c] - mesh.uvs[a];
    return std::fabs(static_cast<double>(u.x()) * static_cast<double>(v.y()) -
                     static_cast<double>(u.y()) * static_cast<double>(v.x()));
}

QString MeshFaults(const Mesh& mesh, std::size_t materialCount)
{
    const std::size_t count = mesh.positions.size();
    if (mesh.name.isEmpty() || mesh.materialSlots.empty()) {
        return QStringLiteral("a mesh without a name or without a slot");
    }
    if ((!mesh.normals.empty() && mesh.normals.size() != count) || (!mesh.uvs.empty() && mesh.uvs.size() != count)) {
        return QStringLiteral("arrays of different lengths in ") + mesh.name;
    }
    if (!std::all_of(mesh.positions.begin(), mesh.positions.end(), IsFinite<QVector3D>) ||
        !std::all_of(mesh.normals.begin(), mesh.normals.end(), IsFinite<QVector3D>) ||
        !std::all_of(mesh.uvs.begin(), mesh.uvs.end(), IsFinite<QVector2D>)) {
        return QStringLiteral("infinite numbers in ") + mesh.name;
    }
    std::set<Host::Id> materials;
    for (const auto& slot : mesh.materialSlots) {
        if (slot.material < 1 || slot.material > materialCount || !materials.insert(slot.material).second) {
            return QStringLiteral("a wrong or repeated material in ") + mesh.name;
        }
        if (slot.indices.empty() || slot.indices.size() % 3 != 0 ||
            *std::max_element(slot.indices.begin(), slot.indices.end()) >= count) {
            return QStringLiteral("wrong indices in ") + mesh.name;
        }
    }
    return {};
}

} // namespace

QString Faults(const Object& object)
{
    std::set<Host::Id> used;
    for (const Mesh& mesh : object.meshes) {
        const QString faults = MeshFaults(mesh, object.materials.size());
        if (!faults.isEmpty()) {
            return faults;
        }
        for (const auto& slot : mesh.materialSlots) {
            used.insert(slot.material);
        }
    }
    const bool named = std::none_of(object.materials.begin(), object.materials.end(),
                                    [](const Host::Material& material) { return material.name.isEmpty(); });
    if (object.name.isEmpty() || !named) {
        return QStringLiteral("something has no name");
    }
    return used.size() == object.materials.size() ? QString() : QStringLiteral("a material that no mesh has");
}

double FacingShare(const Mesh& mesh)
{
    int facing = 0;
    ForEachTriangle(mesh, [&](quint32 a, quint32 b, quint32 c) {
        const QVector3D normal = mesh.normals[a] + mesh.normals[b] + mesh.normals[c];
        facing += QVector3D::dotProduct(Cross(mesh, a, b, c), normal) > 0.0F ? 1 : 0;
    });
    return facing / static_cast<double>(TriangleCount(mesh));
}

int DegenerateTriangles(const Mesh& mesh)
{
    int degenerate = 0;
    ForEachTriangle(mesh, [&](quint32 a, quint32 b, quint32 c) {
        const bool flat = Cross(mesh, a, b, c).length() < 1e-9F || UvArea(mesh, a, b, c) < 1e-9;
        degenerate += flat ? 1 : 0;
    });
    return degenerate;
}

std::size_t TriangleCount(const Mesh& mesh)
{
    std::size_t indices = 0;
    for (const auto& slot : mesh.materialSlots) {
        indices += slot.indices.size();
    }
    return indices / 3;
}

} // namespace GeometryChecks
