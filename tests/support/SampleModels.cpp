#include "tests/support/SampleModels.h"

namespace SampleModels {

namespace {

/// Adds a unit square in the plane z = \p z to \p mesh. \return the indices of its two triangles
std::vector<quint32> AddSquare(Host::Mesh& mesh, float z)
{
    const quint32 first = quint32(mesh.positions.size());
    for (const QVector2D& corner : {QVector2D(0, 0), QVector2D(1, 0), QVector2D(1, 1), QVector2D(0, 1)}) {
        mesh.positions.emplace_back(corner.x(), corner.y(), z);
        mesh.normals.emplace_back(0.0F, 0.0F, 1.0F);
        mesh.uvs.push_back(corner);
    }
    return {first, first + 1, first + 2, first, first + 2, first + 3};
}

/// Position of the material called \p name in \p object, counted from 1 as Scene::AddObject() wants it; added when
/// the object has none of that name.
Host::Id MaterialNumber(Host::Object& object, const QString& name)
{
    for (std::size_t i = 0; i < object.materials.size(); ++i) {
        if (object.materials[i].name == name) {
            return i + 1;
        }
    }
    object.materials.emplace_back();
    object.materials.back().name = name;
    return object.materials.size();
}

} // namespace

Host::Object Make(const QString& name, const MeshList& meshes)
{
    Host::Object object;
    object.name = name;
    for (const auto& [meshName, materials] : meshes) {
        Host::Mesh mesh;
        mesh.name = meshName;
        float z = 0.0F;
        for (const QString& material : materials) {
            Host::MaterialSlot slot;
            slot.material = MaterialNumber(object, material);
            slot.indices = AddSquare(mesh, z);
            z += 1.0F;
            mesh.materialSlots.push_back(std::move(slot));
        }
        object.meshes.push_back(std::move(mesh));
    }
    return object;
}

Host::Object Hero()
{
    return Make(QStringLiteral("Hero"), {{QStringLiteral("Body"), {QStringLiteral("Skin"), QStringLiteral("Hair")}},
                                         {QStringLiteral("Clothes"), {QStringLiteral("Skirt")}}});
}

Host::Object Flag()
{
    return Make(QStringLiteral("Flag"), {{QStringLiteral("Sheet"), {QStringLiteral("Silk")}}});
}

QString RealModel(const QString& relativePath)
{
    return QStringLiteral(SOFTCLOTH_TEST_MODELS "/") + relativePath;
}

} // namespace SampleModels
