#include "host/services/RecordFields.h"

namespace Host {

bool TakeField(MV::SoftClothPropertyData& to, const MV::SoftClothPropertyData& from, MV::ESoftClothPropertyType type)
{
    using Type = MV::ESoftClothPropertyType;
    switch (type) {
    case Type::Mass:
        to.mass = from.mass;
        return true;
    case Type::SolverFrequency:
        to.solverFrequency = from.solverFrequency;
        return true;
    case Type::TetherStiffness:
        to.tetherStiffness = from.tetherStiffness;
        return true;
    case Type::TetherLimit:
        to.tetherLimit = from.tetherLimit;
        return true;
    case Type::Friction:
        to.friction = from.friction;
        return true;
    case Type::Damping:
        to.damping = from.damping;
        return true;
    case Type::Drag:
        to.drag = from.drag;
        return true;
    case Type::Stiffness:
        to.stiffness = from.stiffness;
        return true;
    case Type::Bending:
        to.bending = from.bending;
        return true;
    case Type::InertiaScale:
        to.linearInertiaScale = from.linearInertiaScale;
        to.angularInertiaScale = from.angularInertiaScale;
        to.centrifugalInertiaScale = from.centrifugalInertiaScale;
        return true;
    case Type::All:
        to = from;
        return true;
    }
    return false;
}

bool TakeField(MV::SoftClothCollisionData& to, const MV::SoftClothCollisionData& from, MV::ESoftClothCollisionType type)
{
    using Type = MV::ESoftClothCollisionType;
    switch (type) {
    case Type::CollideWithRigid:
        to.collideWithRigid = from.collideWithRigid;
        return true;
    case Type::SelfCollision:
        to.selfCollision = from.selfCollision;
        return true;
    case Type::RigidMargin:
        to.rigidMargin = from.rigidMargin;
        return true;
    case Type::SelfMargin:
        to.selfMargin = from.selfMargin;
        return true;
    case Type::All:
        to = from;
        return true;
    }
    return false;
}

bool TakeField(MV::SoftClothWindData& to, const MV::SoftClothWindData& from, MV::ESoftClothWindType type)
{
    using Type = MV::ESoftClothWindType;
    switch (type) {
    case Type::ExternalAcceleration:
        to.externalAcceleration = from.externalAcceleration;
        return true;
    case Type::RandomAcceleration:
        to.randomAcceleration = from.randomAcceleration;
        return true;
    case Type::Frequency:
        to.frequency = from.frequency;
        return true;
    case Type::RandomFactor:
        to.randomFactor = from.randomFactor;
        return true;
    case Type::All:
        to = from;
        return true;
    }
    return false;
}

} // namespace Host
