#pragma once

#include "host/simulation/MeshPieces.h"
#include "host/simulation/Vector.h"

#include <array>
#include <vector>

namespace Host {

/// A piece of cloth at rest, in centimetres. A square centimetre of it has the mass 1, and so has a centimetre of a
/// thread.
struct ClothShape
{
    Vectors rest; ///< Where the vertices are at rest.
    IndexTriangles triangles;
    std::vector<std::array<int, 2>> threads; ///< Edges of their own, for what is no surface.
    /// How far each vertex may be from where the model has it: 0 holds it, infinity leaves it free.
    std::vector<float> freedom;
};

/// Keeps two vertices at a distance.
struct StretchLink
{
    int a = 0;
    int b = 0;
    float length = 0.0F;
    float compliance = 0.0F; ///< To be divided by the modulus.
};

/// Keeps the fold between two triangles: |Σ factor × place| is to stay what it is at rest.
struct BendLink
{
    std::array<int, 4> vertices{}; ///< The common edge, then the two tips.
    std::array<float, 4> factors{};
    float length = 0.0F;
    float compliance = 0.0F; ///< To be divided by the modulus.
};

/// Keeps a vertex within reach of the nearest held one.
struct Tether
{
    int vertex = 0;
    int anchor = 0;
    float length = 0.0F; ///< Along the surface at rest.
};

/// The masses of the vertices: a third of the area around each, and half the length of its threads. Vertices that would
/// come out much lighter than the average are made heavier, as no solver holds them still.
std::vector<float> VertexMasses(const ClothShape& shape);

/// Spreads neighbours out: the processor waits for what it has just written, so things one after the other should not
/// have a vertex in common.
template <class Thing>
std::vector<Thing> Interleaved(const std::vector<Thing>& things)
{
    constexpr std::size_t strands = 8;
    const std::size_t length = (things.size() + strands - 1) / strands;
    std::vector<Thing> result;
    result.reserve(things.size());
    for (std::size_t i = 0; i < length; ++i) {
        for (std::size_t k = i; k < things.size(); k += length) {
            result.push_back(things[k]);
        }
    }
    return result;
}

/// In the order in which they are to be gone through.
std::vector<StretchLink> StretchLinks(const ClothShape& shape);
std::vector<BendLink> BendLinks(const ClothShape& shape);
/// Of every vertex that is not held and from which a held one can be reached.
std::vector<Tether> Tethers(const ClothShape& shape);

/// Vertices in the same place become one: how the seams of textures are closed. Only vertices that \p indices name are
/// taken over.
struct WeldedVertices
{
    std::vector<int> particle;   ///< Of each vertex; -1 for those that no index names.
    std::vector<quint32> vertex; ///< Of each particle: one that it stands for.
};
WeldedVertices Weld(const std::vector<QVector3D>& positions, const std::vector<quint32>& indices);

} // namespace Host
