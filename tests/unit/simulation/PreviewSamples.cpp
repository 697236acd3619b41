#include "tests/unit/simulation/PreviewSamples.h"

#include <cmath>

namespace PreviewSamples {

namespace {

Host::PreviewMesh MeshOf(const Host::Vectors& places, const Host::IndexTriangles& triangles, Host::Id id)
{
    Host::PreviewMesh mesh;
    mesh.id = id;
    for (const Host::Vector& place : places) {
        mesh.positions.push_back(Host::ToQt(place));
    }
    Host::PreviewSlot slot;
    slot.material = id + 100;
    for (const auto& triangle : triangles) {
        for (const int vertex : triangle) {
            slot.indices.push_back(quint32(vertex));
        }
    }
    mesh.materialSlots.push_back(slot);
    return mesh;
}

} // namespace

Host::PreviewModel Of(const Host::ClothShape& shape, const Host::ClothValues& values)
{
    Host::PreviewModel model;
    model.object = reinterpret_cast<BF::CHandle*>(std::uintptr_t{16});
    model.meshes.push_back(MeshOf(shape.rest, shape.triangles, 1));
    Host::PreviewSlot& slot = model.meshes[0].materialSlots[0];
    slot.simulates = true;
    slot.freedom = shape.freedom;
    slot.values = values;
    return model;
}

Host::PreviewModel WithBody(const Host::ClothShape& shape, const ClothSamples::Body& body,
                            const Host::ClothValues& values)
{
    Host::PreviewModel model = Of(shape, values);
    model.meshes.push_back(MeshOf(body.places, body.triangles, 2));
    return model;
}

Host::ClothValues Plain()
{
    Host::ClothValues values;
    values.property.damping = 0.0F;
    values.property.bending = 0.0F;
    values.property.tetherLimit = 0.0F;
    values.collision.collideWithRigid = false;
    return values;
}

Host::Object TwoSquares()
{
    Host::Object object;
    object.name = QStringLiteral("Squares");
    Host::Mesh mesh;
    mesh.name = QStringLiteral("Sheet");
    for (int side = 0; side < 2; ++side) {
        Host::ClothShape shape = ClothSamples::Sheet(8, 8, 2.5F);
        const auto base = quint32(mesh.positions.size());
        Host::MaterialSlot slot;
        slot.material = Host::Id(side) + 1;
        for (const Host::Vector& place : shape.rest) {
            mesh.positions.emplace_back(place.x() + 20.0F * float(side), place.y(), 0.0F);
            mesh.uvs.emplace_back(place.x() / 20.0F, 1.0F + place.y() / 20.0F);
        }
        for (const auto& triangle : shape.triangles) {
            for (const int vertex : triangle) {
                slot.indices.push_back(base + quint32(vertex));
            }
        }
        mesh.materialSlots.push_back(slot);
        Host::Material material;
        material.name = side == 0 ? QStringLiteral("Left") : QStringLiteral("Right");
        object.materials.push_back(material);
    }
    object.meshes.push_back(mesh);
    object.state.softCloth = true;
    return object;
}

void Run(Host::ClothPreview& preview, double seconds)
{
    const auto frames = int(std::lround(seconds / Host::ClothPreview::frameDuration));
    for (int i = 0; i < frames; ++i) {
        preview.Step();
    }
}

std::vector<QVector3D> Positions(const Host::ClothPreview& preview)
{
    Host::PreviewFrame frame;
    preview.Read(frame);
    return frame.meshes[0].positions;
}

} // namespace PreviewSamples
