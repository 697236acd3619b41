#pragma once

#include "host/scene/Entities.h"

#include <array>
#include <tuple>
#include <type_traits>

namespace Host {

/// One member of a record and its name in a scene file.
template <class Record, class Value>
struct Field
{
    const char* name;
    Value Record::*member;
};

template <class Record, class Value>
Field(const char*, Value Record::*) -> Field<Record, Value>;

// What each record consists of, for everything that treats all its members alike: comparing, saving and loading.
// Images and lists of names are left out; they are treated by themselves. The argument only selects the record.

constexpr auto FieldsOf(const MV::SoftClothPropertyData&)
{
    using Record = MV::SoftClothPropertyData;
    return std::make_tuple(
        Field{"mass", &Record::mass}, Field{"solverFrequency", &Record::solverFrequency},
        Field{"tetherStiffness", &Record::tetherStiffness}, Field{"tetherLimit", &Record::tetherLimit},
        Field{"friction", &Record::friction}, Field{"damping", &Record::damping}, Field{"drag", &Record::drag},
        Field{"stiffness", &Record::stiffness}, Field{"stiffnessFrequency", &Record::stiffnessFrequency},
        Field{"bending", &Record::bending}, Field{"linearInertiaScale", &Record::linearInertiaScale},
        Field{"angularInertiaScale", &Record::angularInertiaScale},
        Field{"centrifugalInertiaScale", &Record::centrifugalInertiaScale},
        Field{"collisionMassScale", &Record::collisionMassScale},
        Field{"sleepLinearVelocity", &Record::sleepLinearVelocity},
        Field{"wakeCounterValue", &Record::wakeCounterValue}, Field{"reserved", &Record::reserved});
}

constexpr auto FieldsOf(const MV::SoftClothCollisionData&)
{
    using Record = MV::SoftClothCollisionData;
    return std::make_tuple(Field{"collideWithRigid", &Record::collideWithRigid},
                           Field{"selfCollision", &Record::selfCollision}, Field{"rigidMargin", &Record::rigidMargin},
                           Field{"selfMargin", &Record::selfMargin});
}

constexpr auto FieldsOf(const MV::SoftClothWindData&)
{
    using Record = MV::SoftClothWindData;
    return std::make_tuple(Field{"externalAcceleration", &Record::externalAcceleration},
                           Field{"randomAcceleration", &Record::randomAcceleration},
                           Field{"frequency", &Record::frequency}, Field{"randomFactor", &Record::randomFactor});
}

constexpr auto FieldsOf(const ClothState&)
{
    using Record = ClothState;
    return std::make_tuple(Field{"active", &Record::active}, Field{"useGlobalGravity", &Record::useGlobalGravity},
                           Field{"property", &Record::property}, Field{"collision", &Record::collision},
                           Field{"wind", &Record::wind});
}

constexpr auto FieldsOf(const MaterialState&)
{
    return std::make_tuple(Field{"softClothEnabled", &MaterialState::softClothEnabled});
}

constexpr auto FieldsOf(const ObjectState&)
{
    using Record = ObjectState;
    return std::make_tuple(Field{"exists", &Record::exists}, Field{"softCloth", &Record::softCloth},
                           Field{"rigidBody", &Record::rigidBody});
}

constexpr auto FieldsOf(const ObjectTraits&)
{
    using Record = ObjectTraits;
    return std::make_tuple(Field{"type", &Record::type}, Field{"kind", &Record::kind},
                           Field{"convertState", &Record::convertState}, Field{"blocked", &Record::blocked},
                           Field{"blockedEx", &Record::blockedEx});
}

} // namespace Host
