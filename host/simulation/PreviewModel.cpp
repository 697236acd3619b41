#include "host/simulation/PreviewModel.h"

#include "host/images/WeightSampling.h"

#include <algorithm>
#include <limits>

namespace Host {

namespace {

bool IsIgnored(const Object& object, const Material& material)
{
    const auto& ignored = object.state.ignoredMaterials;
    return std::any_of(object.meshes.begin(), object.meshes.end(), [&](const Mesh& mesh) {
        return ignored.value(mesh.name).contains(material.name) &&
               std::any_of(mesh.materialSlots.begin(), mesh.materialSlots.end(),
                           [&](const MaterialSlot& slot) { return slot.material == material.id; });
    });
}

bool Simulates(const Object& object, const MaterialSlot& slot)
{
    const auto material = std::find_if(object.materials.begin(), object.materials.end(),
                                       [&](const Material& known) { return known.id == slot.material; });
    return object.state.softCloth && slot.cloth.active && material != object.materials.end() &&
           material->state.softClothEnabled && !IsIgnored(object, *material);
}

std::vector<float> FreedomOf(const Mesh& mesh, const MaterialSlot& slot, const WeightImageSource& images)
{
    std::vector<float> freedom(mesh.positions.size(), std::numeric_limits<float>::infinity());
    const WeightImage& weight = slot.cloth.weight;
    const QImage image = weight.IsNone() ? QImage() : images(weight.image);
    if (image.isNull()) {
        return freedom;
    }
    const GrayTable table = AdjustTable(weight.brightness, weight.contrast);
    for (const quint32 vertex : slot.indices) {
        freedom[vertex] = AllowedDistance(GrayAtVertex(mesh, vertex, image, table));
    }
    return freedom;
}

bool SameSlot(const PreviewSlot& a, const PreviewSlot& b)
{
    return a.material == b.material && a.simulates == b.simulates && a.freedom == b.freedom && a.indices == b.indices;
}

bool SameMesh(const PreviewMesh& a, const PreviewMesh& b)
{
    return a.id == b.id && a.positions == b.positions &&
           std::equal(a.materialSlots.begin(), a.materialSlots.end(), b.materialSlots.begin(), b.materialSlots.end(),
                      SameSlot);
}

} // namespace

bool PreviewModel::HasCloth() const
{
    return std::any_of(meshes.begin(), meshes.end(), [](const PreviewMesh& mesh) {
        return std::any_of(mesh.materialSlots.begin(), mesh.materialSlots.end(),
                           [](const PreviewSlot& slot) { return slot.simulates; });
    });
}

PreviewModel MakePreviewModel(const Object& object, const WeightImageSource& images)
{
    PreviewModel model;
    model.object = object.handle;
    for (const Mesh& mesh : object.meshes) {
        PreviewMesh copy{mesh.id, mesh.positions, {}};
        for (const MaterialSlot& slot : mesh.materialSlots) {
            PreviewSlot part{slot.material, Simulates(object, slot), slot.indices, {}, {}};
            if (part.simulates) {
                part.freedom = FreedomOf(mesh, slot, images);
                part.values = {slot.cloth.property, slot.cloth.collision, slot.cloth.wind, slot.cloth.useGlobalGravity};
            }
            copy.materialSlots.push_back(std::move(part));
        }
        model.meshes.push_back(std::move(copy));
    }
    return model;
}

bool SameStructure(const PreviewModel& a, const PreviewModel& b)
{
    return a.object == b.object &&
           std::equal(a.meshes.begin(), a.meshes.end(), b.meshes.begin(), b.meshes.end(), SameMesh);
}

} // namespace Host
