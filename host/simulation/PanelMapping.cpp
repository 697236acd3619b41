#include "host/simulation/PanelMapping.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Host {

namespace {

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr float gravity = 981.0F;      // cm/s²
constexpr float stretchReach = 100.0F; // cm
constexpr float bendReach = 7.0F;      // cm
constexpr float dragAtFull = 5.0F;     // 1/s
constexpr float lightest = 0.1F;       // the mass that 0 counts as
constexpr float mostLost = 0.999F;     // damping of 1 leaves this little short of everything
constexpr float farAway = 1e6F;        // beyond any margin or acceleration that makes sense
constexpr float halfFreedom = 10.0F;   // cm, for the gray in the middle
constexpr double windBuildUp = 1.0;    // s

float InRange(float value, float low, float high)
{
    return std::clamp(std::isfinite(value) ? value : 0.0F, low, high);
}

/// How fast an error decays of which \p share disappears within \p time; infinite for all of it.
float DecayRate(float share, float time)
{
    const float lost = InRange(share, 0.0F, 1.0F);
    return lost < 1.0F ? -std::log1p(-lost) / time : infinite;
}

/// Equally distributed in [0, 1); the same numbers give the same result.
double Drawn(quint32 seed, quint64 draw, quint64 axis)
{
    quint64 bits = (quint64{seed} << 32) ^ (draw * 4 + axis) * 0x9e3779b97f4a7c15U;
    bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9U;
    bits = (bits ^ (bits >> 27)) * 0x94d049bb133111ebU;
    bits ^= bits >> 31;
    return double(bits >> 11) / double(quint64{1} << 53);
}

} // namespace

SolverValues ToSolverValues(const ClothValues& values)
{
    const MV::SoftClothPropertyData& property = values.property;
    const MV::SoftClothCollisionData& collision = values.collision;
    SolverValues solver;
    solver.frequency = float(std::clamp<qint64>(property.solverFrequency, 60, 1000));
    solver.gravity = values.useGlobalGravity ? gravity : 0.0F;

    const float period = 1.0F / InRange(property.stiffnessFrequency, 0.01F, 1000.0F);
    const float stretchSpeed = DecayRate(property.stiffness, period) * stretchReach;
    solver.stretchModulus = stretchSpeed * stretchSpeed;
    const float bendSpeed = DecayRate(property.bending, period) * bendReach * bendReach;
    solver.bendModulus = bendSpeed * bendSpeed;
    solver.tetherLimit = InRange(property.tetherLimit, 0.0F, 100.0F);
    solver.tetherRate = DecayRate(property.tetherStiffness, period);

    const float mass = std::max(float(std::clamp<qint64>(property.mass, 0, 1'000'000)), lightest);
    solver.dampingRate = DecayRate(InRange(property.damping, 0.0F, mostLost), 1.0F);
    solver.dragRate = InRange(property.drag, 0.0F, 100.0F) * dragAtFull / mass;
    solver.friction = InRange(property.friction, 0.0F, 100.0F);
    solver.linearInertia = InRange(property.linearInertiaScale, 0.0F, 10.0F);
    solver.angularInertia = InRange(property.angularInertiaScale, 0.0F, 10.0F);
    solver.centrifugalInertia = InRange(property.centrifugalInertiaScale, 0.0F, 10.0F);

    solver.collidesWithBody = collision.collideWithRigid;
    solver.collidesWithItself = collision.selfCollision;
    solver.bodyMargin = InRange(collision.rigidMargin, 0.0F, farAway);
    solver.selfMargin = InRange(collision.selfMargin, 0.0F, farAway);
    return solver;
}

float AllowedDistance(int gray)
{
    const int known = std::clamp(gray, 0, 255);
    return known < 255 ? halfFreedom * float(known) / float(255 - known) : infinite;
}

Vector Wind::Acceleration(const MV::SoftClothWindData& wind, double time) const
{
    const double frequency = double(InRange(wind.frequency, 0.0F, 1000.0F));
    const auto draw = quint64(std::max(0.0, std::floor(time * frequency)));
    const double low = double(InRange(wind.randomFactor[0], -farAway, farAway));
    const double high = double(InRange(wind.randomFactor[1], -farAway, farAway));
    const double factor = low + (high - low) * Drawn(m_seed, draw, 3);
    Vector acceleration = Vector::Zero();
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double share = 2.0 * Drawn(m_seed, draw, axis) - 1.0;
        const double random = double(InRange(wind.randomAcceleration[axis], -farAway, farAway));
        acceleration[Eigen::Index(axis)] =
            InRange(wind.externalAcceleration[axis], -farAway, farAway) + float(random * factor * share);
    }
    return acceleration;
}

Vector Wind::Velocity(const MV::SoftClothWindData& wind, double time) const
{
    return Acceleration(wind, time) * float(windBuildUp);
}

} // namespace Host
