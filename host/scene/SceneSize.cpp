#include "host/scene/SceneSize.h"

#include "host/scene/Entities.h"
#include "host/scene/Limits.h"
#include "host/scene/SceneText.h"

namespace Host {

SceneSize SceneSize::Of(const Object& object)
{
    SceneSize size;
    size.meshes = object.meshes.size();
    size.materials = object.materials.size();
    for (const Mesh& mesh : object.meshes) {
        size.vertices += mesh.positions.size();
        for (const MaterialSlot& slot : mesh.materialSlots) {
            size.triangles += slot.indices.size() / 3;
        }
    }
    return size;
}

SceneSize& SceneSize::operator+=(const SceneSize& other)
{
    meshes += other.meshes;
    materials += other.materials;
    vertices += other.vertices;
    triangles += other.triangles;
    return *this;
}

QString SceneSize::ReasonToRefuse() const
{
    const struct
    {
        std::size_t count;
        std::size_t limit;
        const char* sentence;
    } rows[] = {
        {meshes, Limits::meshes, QT_TRANSLATE_NOOP("SceneText", "it has %1 meshes, and more than %2 are too many")},
        {materials, Limits::materials,
         QT_TRANSLATE_NOOP("SceneText", "it has %1 materials, and more than %2 are too many")},
        {vertices, Limits::vertices,
         QT_TRANSLATE_NOOP("SceneText", "it has %1 vertices, and more than %2 are too many")},
        {triangles, Limits::triangles,
         QT_TRANSLATE_NOOP("SceneText", "it has %1 triangles, and more than %2 are too many")}};
    for (const auto& row : rows) {
        if (row.count > row.limit) {
            return SceneText::tr(row.sentence).arg(row.count).arg(row.limit);
        }
    }
    return {};
}

} // namespace Host
