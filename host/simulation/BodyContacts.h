#pragma once

#include "host/simulation/BodyCollider.h"
#include "host/simulation/ClothParticles.h"

namespace Host {

struct SolverValues;

/// Keeps the particles of a cloth out of a body. Each particle remembers how far it is from the body, or the planes
/// that it touches, and looks again only when it or the body has moved so far that this may be wrong.
class BodyContacts
{
public:
    /// Forgets everything; there are \p count particles.
    void Clear(std::size_t count);

    /// Pushes what is nearer than the margin out, and holds it by friction. Held particles stay where they are.
    void Solve(ClothParticles& particles, const BodyCollider& body, const SolverValues& values, float dt);

    /// Takes from what was pushed out the velocity that this gave it, so that nothing is thrown off.
    void CalmVelocities(ClothParticles& particles, float dt) const;

private:
    struct Contact
    {
        BodyCollider::SurfacePoint at;
        Vector normal = Vector::Zero();
        Vector place = Vector::Zero(); ///< Of the point on the body when the particle looked.
        float clear = 0.0F;            ///< How far the two may move against each other.
    };
    struct Known
    {
        Vector place = Vector::Zero(); ///< Of the particle when it looked.
        float clear = -1.0F;           ///< How far it is to anything that is not among the contacts; below 0: unknown.
        float bodyTravel = 0.0F;
        int count = 0;
        std::array<Contact, BodyCollider::mostPieces> contacts;
    };
    struct Pushed
    {
        std::size_t particle = 0;
        Vector normal = Vector::Zero();
        Vector bodyVelocity = Vector::Zero();
        float distance = 0.0F; ///< How far.
    };

    bool IsStillKnown(const Known& known, const Vector& place, const BodyCollider& body, float margin) const;
    void Look(Known& known, Vector& place, const Vector& previous, const BodyCollider& body, float margin) const;
    void Resolve(std::size_t i, const Known& known, ClothParticles& particles, const BodyCollider& body,
                 const SolverValues& values);
    void AddFriction(ClothParticles& particles, float friction, float dt) const;

    std::vector<Known> m_known;
    std::vector<Pushed> m_pushed;
};

} // namespace Host
