#include "host/simulation/ObjectMotion.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Host {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double usualHeight = 170.0; // cm, of which the sizes below are meant
constexpr double turnsWithoutLoop = 4.0;

constexpr double swayWidth = 15.0;            // cm to each side
constexpr double swayLean = 4.0 * pi / 180.0; // to each side
constexpr double turnAngle = 60.0 * pi / 180.0;
constexpr double jumpHeight = 20.0; // cm

/// The duration of one turn in seconds.
double PeriodOf(MotionKind kind)
{
    switch (kind) {
    case MotionKind::Sway:
        return 1.6;
    case MotionKind::Turn:
        return 2.4;
    case MotionKind::Jump:
        return 0.9;
    case MotionKind::Walk:
        return 1.1;
    case MotionKind::Still:
    case MotionKind::Clip:
        break;
    }
    return 0.0;
}

/// From 0 to 1, smooth at both ends up to the acceleration.
double Smooth(double share)
{
    const double s = std::clamp(share, 0.0, 1.0);
    return s * s * s * (s * (6.0 * s - 15.0) + 10.0);
}

/// The turn that leads from \p a to \p b, as a velocity.
Eigen::Vector3d AngularVelocity(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b, double duration)
{
    const Eigen::AngleAxisd turn(b * a.transpose());
    return turn.axis() * (turn.angle() / duration);
}

} // namespace

MotionPhase PhaseAt(const MotionChoice& motion, double time)
{
    const double period = PeriodOf(motion.kind);
    if (period <= 0.0 || time <= 0.0) {
        return {};
    }
    MotionPhase phase{time / period, Smooth(time / period)};
    if (!motion.loop) {
        phase.strength = std::min(phase.strength, Smooth(turnsWithoutLoop - phase.turns));
    }
    return phase;
}

Eigen::Isometry3d PlaceAt(const MotionChoice& motion, double time, double height)
{
    Eigen::Isometry3d place = Eigen::Isometry3d::Identity();
    const MotionPhase phase = PhaseAt(motion, time);
    const double size = phase.strength * height / usualHeight;
    const double angle = 2.0 * pi * phase.turns;
    switch (motion.kind) {
    case MotionKind::Sway:
        place.translation().x() = swayWidth * size * std::sin(angle);
        place.linear() =
            Eigen::AngleAxisd(-swayLean * phase.strength * std::sin(angle), Eigen::Vector3d::UnitZ()).matrix();
        break;
    case MotionKind::Turn:
        place.linear() =
            Eigen::AngleAxisd(turnAngle * phase.strength * std::sin(angle), Eigen::Vector3d::UnitY()).matrix();
        break;
    case MotionKind::Jump:
        place.translation().y() = jumpHeight * size * 0.5 * (1.0 - std::cos(angle));
        break;
    case MotionKind::Still:
    case MotionKind::Walk:
    case MotionKind::Clip:
        break;
    }
    return place;
}

ObjectAcceleration AccelerationDuring(const MotionChoice& motion, double time, double duration, double height)
{
    const double half = 0.5 * duration;
    const Eigen::Isometry3d before = PlaceAt(motion, time, height);
    const Eigen::Isometry3d middle = PlaceAt(motion, time + half, height);
    const Eigen::Isometry3d after = PlaceAt(motion, time + duration, height);
    const Eigen::Vector3d spinBefore = AngularVelocity(before.linear(), middle.linear(), half);
    const Eigen::Vector3d spinAfter = AngularVelocity(middle.linear(), after.linear(), half);
    const Eigen::Matrix3d toObject = middle.linear().transpose();
    ObjectAcceleration felt;
    felt.rotation = middle.linear();
    felt.velocity = toObject * (after.translation() - before.translation()) / duration;
    felt.linear = toObject * (after.translation() - 2.0 * middle.translation() + before.translation()) / (half * half);
    felt.angularVelocity = toObject * (0.5 * (spinBefore + spinAfter));
    felt.angular = toObject * ((spinAfter - spinBefore) / half);
    return felt;
}

} // namespace Host
