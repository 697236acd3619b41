#pragma once

#include "host/simulation/Vector.h"

#include <vector>

namespace Host {

/// The moving state of a piece of cloth.
struct ClothParticles
{
    Vectors places;
    Vectors previous; ///< Places before the current substep.
    Vectors velocities;
    std::vector<float> inverseMasses; ///< 0 for what is held.
};

} // namespace Host
