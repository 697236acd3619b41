#pragma once

#include <Eigen/Geometry>

namespace Host {

/// How the object moves in the preview.
enum class MotionKind
{
    Still,
    Sway, ///< From side to side, leaning a little.
    Turn, ///< About its upright axis, left and right.
    Jump, ///< Up and down.
    Walk, ///< In place: legs and arms swing. For upright characters whose limbs are pieces of their own.
    Clip, ///< An animation of the model file.
};

struct MotionChoice
{
    MotionKind kind = MotionKind::Still;
    int clip = 0;     ///< Of Clip: which one, from 0. A clip that does not exist is no motion.
    bool loop = true; ///< Otherwise the motion ends at rest after four turns, a clip at its end.

    friend bool operator==(const MotionChoice& a, const MotionChoice& b)
    {
        return a.kind == b.kind && a.clip == b.clip && a.loop == b.loop;
    }
};

/// How far into its turns a motion is.
struct MotionPhase
{
    double turns = 0.0;    ///< Since the start.
    double strength = 0.0; ///< From 0 to 1: every motion begins at rest, and one that does not repeat ends at rest.
};

/// \param time since the motion began, in seconds
MotionPhase PhaseAt(const MotionChoice& motion, double time);

/// Where the object as a whole is \p time seconds after the motion began, relative to where the scene has it. Walk and
/// Clip move its parts and leave it where it is.
/// \param height of the object in cm, which the size of the motion follows
Eigen::Isometry3d PlaceAt(const MotionChoice& motion, double time, double height);

/// How the motion of an object is felt inside it.
struct ObjectAcceleration
{
    Eigen::Matrix3d rotation = Eigen::Matrix3d::Identity(); ///< From the object to the scene.
    Eigen::Vector3d velocity = Eigen::Vector3d::Zero();     ///< Of the origin; all as seen from the object.
    Eigen::Vector3d linear = Eigen::Vector3d::Zero();
    Eigen::Vector3d angularVelocity = Eigen::Vector3d::Zero();
    Eigen::Vector3d angular = Eigen::Vector3d::Zero();
};

/// In the middle of the frame that begins at \p time and takes \p duration.
ObjectAcceleration AccelerationDuring(const MotionChoice& motion, double time, double duration, double height);

} // namespace Host
