#pragma once

#include "host/simulation/MeshPieces.h"
#include "host/simulation/ObjectMotion.h"
#include "host/simulation/Vector.h"

namespace Host {

/// Walking in place, for an upright character that looks along +z and whose limbs are pieces of their own: pieces
/// beside the middle that end below the hips are legs and feet, those that hang from the shoulders are arms.
class WalkPose
{
public:
    /// \param places of the character's vertices, its soles at y = 0
    WalkPose(const Vectors& places, const IndexTriangles& triangles, float height);

    /// Moves vertices from where they are at rest. \param places as many as there are
    void Apply(const MotionPhase& phase, Vectors& places) const;

    /// How much the whole character rises.
    float Rise(const MotionPhase& phase) const;

private:
    enum class Limb
    {
        None,
        LeftLeg, ///< On the side of +x.
        RightLeg,
        LeftArm,
        RightArm,
    };

    void Sort(const Vectors& places, const IndexTriangles& triangles);

    float m_height;
    std::vector<Limb> m_limbs; ///< Of each vertex.
};

} // namespace Host
