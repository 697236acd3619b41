#pragma once

/// Numbers whose meaning is the host's.
namespace MV {

/// The physics kind that stands for soft cloth.
inline constexpr int softClothPhysics = 3;

} // namespace MV
