#pragma once

#include "host/simulation/Cloth.h"

#include <limits>

/// Pieces of cloth for tests, in centimetres.
namespace ClothSamples {

inline constexpr float freely = std::numeric_limits<float>::infinity();

/// A sheet of \p columns × \p rows squares in the plane z = 0, its upper left corner at the origin.
Host::ClothShape Sheet(int columns, int rows, float square);
/// The same with its upper row held.
Host::ClothShape HangingSheet(int columns, int rows, float square);
/// The same in the plane y = \p height, its middle at the origin.
Host::ClothShape LyingSheet(int squares, float square, float height);

/// A thread through \p places.
Host::ClothShape Thread(const Host::Vectors& places);

/// A ball with its middle at the origin.
struct Body
{
    Host::Vectors places;
    Host::IndexTriangles triangles;
};
Body Ball(float radius, int columns = 48, int rows = 24);

/// Nothing that slows down, rigid, at \p frequency substeps a second.
Host::SolverValues Ideal(float frequency);

/// Gravity alone.
Host::ClothFrame Falling();

/// Steps on for \p seconds with the held vertices where they are at rest.
void Run(Host::Cloth& cloth, double seconds, const Host::ClothFrame& frame = Falling(),
         Host::BodyCollider* body = nullptr);

/// The mean of |length / rest length - 1| of all links.
double MeanStrain(const Host::Cloth& cloth);

} // namespace ClothSamples
