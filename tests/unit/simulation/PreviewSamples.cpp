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
