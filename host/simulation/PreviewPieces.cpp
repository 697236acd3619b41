#include "host/simulation/PreviewPieces.h"

#include "host/simulation/ModelPose.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>

namespace Host {

namespace {

/// The particles at the places of a mesh that are spoken for.
class TakenPlaces
{
public:
    enum class Owner
    {
        Nobody,
        Model, ///< A material that does not simulate: what is there follows the model.
        Cloth,
    };
    struct Taken
    {
        Owner owner = Owner::Nobody;
        int piece = -1;
        int particle = -1;
    };

    Taken& At(const QVector3D& place) { return m_taken[{place.x(), place.y(), place.z()}]; }

private:
    std::map<std::array<float, 3>, Taken> m_taken;
};

IndexTriangles TrianglesOf(const PreviewSlot& slot, const std::vector<int>& numbers)
{
    IndexTriangles triangles;
    for (std::size_t i = 0; i + 2 < slot.indices.size(); i += 3) {
        const std::array<int, 3> triangle{numbers[slot.indices[i]], numbers[slot.indices[i + 1]],
                                          numbers[slot.indices[i + 2]]};
        if (triangle[0] != triangle[1] && triangle[1] != triangle[2] && triangle[2] != triangle[0]) {
            triangles.push_back(triangle);
        }
    }
    return triangles;
}

ClothPiece BuildPiece(const PreviewModel& model, const ModelPose& pose, std::size_t meshNumber, std::size_t slotNumber,
                      int number, TakenPlaces& taken)
{
    const PreviewMesh& mesh = model.meshes[meshNumber];
    const PreviewSlot& slot = mesh.materialSlots[slotNumber];
    const WeldedVertices welded = Weld(mesh.positions, slot.indices);
    ClothPiece piece{meshNumber, slotNumber, welded.particle, {}, {}, {}};
    ClothShape shape;
    shape.freedom.assign(welded.vertex.size(), std::numeric_limits<float>::infinity());
    for (const quint32 vertex : slot.indices) {
        float& freedom = shape.freedom[std::size_t(welded.particle[vertex])];
        freedom = std::min(freedom, slot.freedom[vertex]);
    }
    for (std::size_t i = 0; i < welded.vertex.size(); ++i) {
        const quint32 vertex = welded.vertex[i];
        shape.rest.push_back(pose.Places()[meshNumber][vertex]);
        ParticleSource source{meshNumber, vertex, -1, 0};
        TakenPlaces::Taken& place = taken.At(mesh.positions[vertex]);
        if (place.owner == TakenPlaces::Owner::Nobody) {
            place = {TakenPlaces::Owner::Cloth, number, int(i)};
        } else {
            shape.freedom[i] = 0.0F;
            source.leader = place.piece;
            source.leaderParticle = place.particle;
        }
        piece.sources.push_back(source);
    }
    shape.triangles = TrianglesOf(slot, welded.particle);
    piece.cloth = std::make_unique<Cloth>(std::move(shape));
    piece.followed.resize(piece.sources.size());
    return piece;
}

/// The vertices of materials that do not simulate.
TakenPlaces PlacesOfModel(const PreviewMesh& mesh)
{
    TakenPlaces taken;
    for (const PreviewSlot& slot : mesh.materialSlots) {
        for (std::size_t i = 0; !slot.simulates && i < slot.indices.size(); ++i) {
            taken.At(mesh.positions[slot.indices[i]]).owner = TakenPlaces::Owner::Model;
        }
    }
    return taken;
}

} // namespace

std::vector<ClothPiece> BuildPieces(const PreviewModel& model, const ModelPose& pose)
{
    std::vector<ClothPiece> pieces;
    for (std::size_t i = 0; i < model.meshes.size(); ++i) {
        TakenPlaces taken = PlacesOfModel(model.meshes[i]);
        for (std::size_t k = 0; k < model.meshes[i].materialSlots.size(); ++k) {
            if (model.meshes[i].materialSlots[k].simulates) {
                pieces.push_back(BuildPiece(model, pose, i, k, int(pieces.size()), taken));
            }
        }
    }
    return pieces;
}

BodyShape BuildBody(const PreviewModel& model)
{
    std::vector<QVector3D> positions;
    std::vector<BodyShape::Vertex> sources;
    PreviewSlot whole;
    for (std::size_t i = 0; i < model.meshes.size(); ++i) {
        const PreviewMesh& mesh = model.meshes[i];
        const auto base = quint32(positions.size());
        for (std::size_t k = 0; k < mesh.positions.size(); ++k) {
            positions.push_back(mesh.positions[k]);
            sources.push_back({i, quint32(k)});
        }
        for (const PreviewSlot& slot : mesh.materialSlots) {
            for (std::size_t k = 0; !slot.simulates && k < slot.indices.size(); ++k) {
                whole.indices.push_back(base + slot.indices[k]);
            }
        }
    }
    const WeldedVertices welded = Weld(positions, whole.indices);
    BodyShape body;
    for (const quint32 vertex : welded.vertex) {
        body.vertices.push_back(sources[vertex]);
    }
    body.triangles = TrianglesOf(whole, welded.particle);
    return body;
}

Vectors BodyShape::Places(const ModelPose& pose) const
{
    Vectors places;
    places.reserve(vertices.size());
    for (const Vertex& vertex : vertices) {
        places.push_back(pose.Places()[vertex.mesh][vertex.vertex]);
    }
    return places;
}

} // namespace Host
