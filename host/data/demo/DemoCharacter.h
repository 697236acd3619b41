#pragma once

#include "host/data/demo/DemoMesh.h"

#include <vector>

namespace Demo {

/// The demo character, 170 cm tall, standing at the origin and looking along +z: the mesh "Body" with the materials
/// "Body skin" and "Hair", and the mesh "Clothes" with "Skirt" and "Cape".
std::vector<Mesh> MakeCharacter();

/// A flag of 150 by 100 cm that hangs from its left edge, with the one material "Flag", whose texture it shows whole.
std::vector<Mesh> MakeFlag();

/// Where the pieces of the body are in the texture "Body skin", v growing upwards.
namespace SkinAreas {
inline constexpr QRectF torso(0.0, 0.0, 0.5, 0.5);
inline constexpr QRectF head(0.5, 0.5, 0.5, 0.5);
inline constexpr QRectF arms(0.0, 0.5, 0.5, 0.5);
inline constexpr QRectF legs(0.5, 0.0, 0.5, 0.4);
inline constexpr QRectF feet(0.5, 0.4, 0.5, 0.1);
} // namespace SkinAreas

/// The texture "Hair": the cap is above this v, the strands hang below it with their tips at v = 0.
inline constexpr double hairTextureSplit = 0.5;

} // namespace Demo
