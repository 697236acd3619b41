#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <type_traits>

/// Records and selectors that the panel exchanges with the host. Their layouts are the host's and are pinned below.
namespace MV {

/// Which field of SoftClothPropertyData a write applies to.
enum class ESoftClothPropertyType : int
{
    Mass = 0,
    SolverFrequency = 1,
    TetherStiffness = 2,
    TetherLimit = 3,
    Friction = 4,
    Damping = 5,
    Drag = 6,
    Stiffness = 7,
    Bending = 9,
    InertiaScale = 13, ///< The linear, angular and centrifugal scale together.
    All = 19,
};

/// Simulation properties of a soft cloth.
struct SoftClothPropertyData
{
    qint64 mass = 1;
    qint64 solverFrequency = 240; ///< Solver steps per second.
    float tetherStiffness = 1.0F;
    float tetherLimit = 1.0F;
    float friction = 0.5F;
    float damping = 0.5F;
    float drag = 0.0F;
    float stiffness = 1.0F;
    float stiffnessFrequency = 10.0F;
    float bending = 1.0F;
    float linearInertiaScale = 1.0F;
    float angularInertiaScale = 1.0F;
    float centrifugalInertiaScale = 1.0F;
    float collisionMassScale = 20.0F;
    float sleepLinearVelocity = 0.05F;
    float wakeCounterValue = 0.4F;
    std::array<unsigned char, 24> reserved{}; ///< All zero.
};

static_assert(std::is_standard_layout_v<SoftClothPropertyData> && std::is_trivially_copyable_v<SoftClothPropertyData>);
static_assert(sizeof(SoftClothPropertyData) == 96);
static_assert(offsetof(SoftClothPropertyData, mass) == 0);
static_assert(offsetof(SoftClothPropertyData, solverFrequency) == 8);
static_assert(offsetof(SoftClothPropertyData, tetherStiffness) == 16);
static_assert(offsetof(SoftClothPropertyData, tetherLimit) == 20);
static_assert(offsetof(SoftClothPropertyData, friction) == 24);
static_assert(offsetof(SoftClothPropertyData, damping) == 28);
static_assert(offsetof(SoftClothPropertyData, drag) == 32);
static_assert(offsetof(SoftClothPropertyData, stiffness) == 36);
static_assert(offsetof(SoftClothPropertyData, stiffnessFrequency) == 40);
static_assert(offsetof(SoftClothPropertyData, bending) == 44);
static_assert(offsetof(SoftClothPropertyData, linearInertiaScale) == 48);
static_assert(offsetof(SoftClothPropertyData, angularInertiaScale) == 52);
static_assert(offsetof(SoftClothPropertyData, centrifugalInertiaScale) == 56);
static_assert(offsetof(SoftClothPropertyData, collisionMassScale) == 60);
static_assert(offsetof(SoftClothPropertyData, sleepLinearVelocity) == 64);
static_assert(offsetof(SoftClothPropertyData, wakeCounterValue) == 68);
static_assert(offsetof(SoftClothPropertyData, reserved) == 72);

/// Which field of SoftClothCollisionData a write applies to.
enum class ESoftClothCollisionType : int
{
    CollideWithRigid = 0,
    SelfCollision = 1,
    RigidMargin = 2,
    SelfMargin = 3,
    All = 4,
};

/// Collision settings of a soft cloth; margins in scene units.
struct SoftClothCollisionData
{
    bool collideWithRigid = true;
    bool selfCollision = false;
    float rigidMargin = 0.0F;
    float selfMargin = 0.0F;
};

static_assert(std::is_standard_layout_v<SoftClothCollisionData> &&
              std::is_trivially_copyable_v<SoftClothCollisionData>);
static_assert(sizeof(SoftClothCollisionData) == 12);
static_assert(offsetof(SoftClothCollisionData, collideWithRigid) == 0);
static_assert(offsetof(SoftClothCollisionData, selfCollision) == 1);
static_assert(offsetof(SoftClothCollisionData, rigidMargin) == 4);
static_assert(offsetof(SoftClothCollisionData, selfMargin) == 8);

/// Which field of SoftClothWindData a write applies to.
enum class ESoftClothWindType : int
{
    ExternalAcceleration = 0,
    RandomAcceleration = 1,
    Frequency = 2,
    RandomFactor = 3,
    All = 4,
};

/// Wind that acts on a soft cloth.
struct SoftClothWindData
{
    std::array<float, 3> externalAcceleration{}; ///< X, Y, Z.
    std::array<float, 3> randomAcceleration{};   ///< X, Y, Z.
    float frequency = 1.0F;
    std::array<float, 2> randomFactor{1.0F, 2.0F};
};

static_assert(std::is_standard_layout_v<SoftClothWindData> && std::is_trivially_copyable_v<SoftClothWindData>);
static_assert(sizeof(SoftClothWindData) == 36);
static_assert(offsetof(SoftClothWindData, externalAcceleration) == 0);
static_assert(offsetof(SoftClothWindData, randomAcceleration) == 12);
static_assert(offsetof(SoftClothWindData, frequency) == 24);
static_assert(offsetof(SoftClothWindData, randomFactor) == 28);

/// Brightness and contrast of a weight image.
struct WeightImageAdjust
{
    qint32 zero = 0; ///< Always 0.
    qint32 brightness = 0;
    qint32 contrast = 0;
};

static_assert(sizeof(WeightImageAdjust) == 12);

/// How the host holds a weight image.
struct WeightImageState
{
    bool hasFile = false;  ///< Linked to an image file.
    bool embedded = false; ///< Kept inside the material.
    bool reload = false;   ///< Brightness and contrast are to be read again.
};

} // namespace MV
