#pragma once

#include "host/simulation/Cloth.h"
#include "host/simulation/PreviewModel.h"

#include <memory>
#include <vector>

namespace Host {

class ModelPose;

/// A particle of a cloth and where it comes from.
struct ParticleSource
{
    std::size_t mesh = 0;
    quint32 vertex = 0;
    int leader = -1; ///< The piece of cloth whose particle leads this one; -1 for none.
    int leaderParticle = 0;
};

/// A material that simulates.
struct ClothPiece
{
    std::size_t mesh = 0;
    std::size_t slot = 0;
    std::vector<int> particle; ///< Of each vertex of the mesh; -1 for vertices of other materials.
    std::vector<ParticleSource> sources;
    std::unique_ptr<Cloth> cloth;
    Vectors followed;
};

/// The materials of \p model that simulate, in its order, at rest where \p pose has them. Where a material borders on
/// one that does not simulate it is held; where two that simulate meet, the first leads.
std::vector<ClothPiece> BuildPieces(const PreviewModel& model, const ModelPose& pose);

/// What does not simulate.
struct BodyShape
{
    struct Vertex
    {
        std::size_t mesh = 0;
        quint32 vertex = 0;
    };

    std::vector<Vertex> vertices; ///< Where the welded vertices come from.
    IndexTriangles triangles;

    /// Where \p pose has them now.
    Vectors Places(const ModelPose& pose) const;
};
BodyShape BuildBody(const PreviewModel& model);

} // namespace Host
