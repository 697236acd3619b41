#pragma once

#include "host/simulation/BodyContacts.h"
#include "host/simulation/ClothParticles.h"
#include "host/simulation/ClothShape.h"
#include "host/simulation/PanelMapping.h"
#include "host/simulation/SelfCollision.h"

#include <optional>

namespace Host {

class BodyCollider;

/// What a piece of cloth meets during one frame. Everything is seen from the object, which may itself be moving: then
/// the cloth feels the object's acceleration as forces.
struct ClothFrame
{
    double duration = 1.0 / 60.0;               ///< Seconds.
    Vector acceleration = Vector::Zero();       ///< Of gravity and wind, cm/s².
    Vector airVelocity = Vector::Zero();        ///< At the object's origin, cm/s.
    Vector linearAcceleration = Vector::Zero(); ///< Of the object's origin, cm/s².
    Vector angularVelocity = Vector::Zero();    ///< Of the object, 1/s.
    Vector angularAcceleration = Vector::Zero();
};

/// A piece of cloth: particles that fall, links that hold them together, contacts that keep them apart.
///
/// Extended position-based dynamics in many small substeps, through the links in a fixed order: the
/// same input gives the same motion, bit by bit.
class Cloth
{
public:
    /// At rest in its shape. \p shape has as many freedoms as places, and names no vertex that it does not have.
    explicit Cloth(ClothShape shape);

    /// For the steps from now on.
    void SetValues(const SolverValues& values) { m_values = values; }
    const SolverValues& Values() const { return m_values; }
    /// Holds and frees vertices; those that are free now go on from where they are.
    void SetFreedom(std::vector<float> freedom);

    /// Moves on by \p frame.
    /// \param followed where the model has the vertices at the end of the frame, as many as there are
    /// \param body what to stay out of; null for nothing. It is moved through the frame with the substeps.
    void Step(const ClothFrame& frame, const Vectors& followed, BodyCollider* body);

    /// Puts all vertices to \p places, at rest.
    void Reset(const Vectors& places);

    /// As many as there are vertices, cm/s.
    void SetVelocities(const Vectors& velocities) { m_particles.velocities = velocities; }
    /// Takes over the motion of \p other, which has the same vertices.
    void GoOnFrom(const Cloth& other);

    const ClothShape& Shape() const { return m_shape; }
    const Vectors& Positions() const { return m_particles.places; }
    const Vectors& Velocities() const { return m_particles.velocities; }
    const std::vector<float>& Masses() const { return m_masses; }
    const std::vector<StretchLink>& Links() const { return m_stretch; }
    const std::vector<Tether>& TetherList() const { return m_tethers; }

    /// Of motion and height together, in the middle of the last substep; with the masses of ClothShape,
    /// cm²/s².
    double Energy(const Vector& acceleration) const;

    /// False when a vertex has gone where no cloth can be, or nowhere at all.
    bool IsSound() const;

private:
    void Predict(const ClothFrame& frame, float dt);
    void FindAir(const ClothFrame& frame, float dt);
    void MoveHeld(float share);
    void SolveLinks(float dt);
    void SolveStretch(float dt, bool backwards);
    void SolveBend(float dt);
    void SolveTethers(float dt);
    void SolveFreedom();
    void UpdateVelocities(float dt);
    void FindHeld();

    ClothShape m_shape;
    SolverValues m_values;
    std::vector<float> m_masses;
    std::vector<StretchLink> m_stretch;
    std::vector<float> m_stretchDone; ///< What each link has been given in the current substep.
    std::vector<BendLink> m_bend;
    std::vector<Tether> m_tethers;
    IndexTriangles m_sails; ///< All triangles, for the air.
    std::vector<int> m_held;
    std::vector<int> m_tied; ///< Vertices with a freedom that is neither 0 nor infinite.

    ClothParticles m_particles;
    Vectors m_predicted;
    Vectors m_accelerations; ///< Of the current substep.
    Vectors m_air;           ///< The share of the air in the accelerations.
    float m_sinceAir = 0.0F;
    Vectors m_followStart;
    Vectors m_followEnd;
    Vectors m_followed; ///< At the current substep.
    double m_substepsOwed = 0.0;
    float m_lastSubstep = 0.0F; ///< Its duration.
    float m_noise = 0.0F;       ///< Errors of links smaller than this are rounding.

    SelfCollision m_selfCollision;
    BodyContacts m_bodyContacts;
};

} // namespace Host
