#pragma once

#include "plugin/services/SoftClothRecords.h"

#include <tuple>
#include <type_traits>
#include <utility>

/// What each record of the host consists of: the one list for everything that treats all its members alike, which is
/// taking fields over, comparing, the call journal, scene files and soft.ini.
namespace Host {

/// For a record whose fields are not written one by one.
struct NoSelector
{
};

/// One member of a record: its name in the journal and in files, and what a write calls it that is to change it only.
template <class Record, class Value, class Selector>
struct Field
{
    const char* name;
    Value Record::*member;
    Selector selector;
};

template <class Record, class Value>
constexpr auto MakeField(const char* name, Value Record::*member)
{
    return Field<Record, Value, NoSelector>{name, member, {}};
}

template <class Record, class Value, class Selector>
constexpr auto MakeField(const char* name, Value Record::*member, Selector selector)
{
    return Field<Record, Value, Selector>{name, member, selector};
}

// The argument only selects the record.

constexpr auto FieldsOf(const MV::SoftClothPropertyData&)
{
    using Record = MV::SoftClothPropertyData;
    using Type = MV::ESoftClothPropertyType;
    return std::make_tuple(MakeField("mass", &Record::mass, Type::Mass),
                           MakeField("solverFrequency", &Record::solverFrequency, Type::SolverFrequency),
                           MakeField("tetherStiffness", &Record::tetherStiffness, Type::TetherStiffness),
                           MakeField("tetherLimit", &Record::tetherLimit, Type::TetherLimit),
                           MakeField("friction", &Record::friction, Type::Friction),
                           MakeField("damping", &Record::damping, Type::Damping), //
                           MakeField("drag", &Record::drag, Type::Drag),
                           MakeField("stiffness", &Record::stiffness, Type::Stiffness),
                           MakeField("stiffnessFrequency", &Record::stiffnessFrequency, Type::All),
                           MakeField("bending", &Record::bending, Type::Bending),
                           MakeField("linearInertiaScale", &Record::linearInertiaScale, Type::InertiaScale),
                           MakeField("angularInertiaScale", &Record::angularInertiaScale, Type::InertiaScale),
                           MakeField("centrifugalInertiaScale", &Record::centrifugalInertiaScale, Type::InertiaScale),
                           MakeField("collisionMassScale", &Record::collisionMassScale, Type::All),
                           MakeField("sleepLinearVelocity", &Record::sleepLinearVelocity, Type::All),
                           MakeField("wakeCounterValue", &Record::wakeCounterValue, Type::All),
                           MakeField("reserved", &Record::reserved, Type::All));
}

constexpr auto FieldsOf(const MV::SoftClothCollisionData&)
{
    using Record = MV::SoftClothCollisionData;
    using Type = MV::ESoftClothCollisionType;
    return std::make_tuple(MakeField("collideWithRigid", &Record::collideWithRigid, Type::CollideWithRigid),
                           MakeField("selfCollision", &Record::selfCollision, Type::SelfCollision),
                           MakeField("rigidMargin", &Record::rigidMargin, Type::RigidMargin),
                           MakeField("selfMargin", &Record::selfMargin, Type::SelfMargin));
}

constexpr auto FieldsOf(const MV::SoftClothWindData&)
{
    using Record = MV::SoftClothWindData;
    using Type = MV::ESoftClothWindType;
    return std::make_tuple(MakeField("externalAcceleration", &Record::externalAcceleration, Type::ExternalAcceleration),
                           MakeField("randomAcceleration", &Record::randomAcceleration, Type::RandomAcceleration),
                           MakeField("frequency", &Record::frequency, Type::Frequency),
                           MakeField("randomFactor", &Record::randomFactor, Type::RandomFactor));
}

constexpr auto FieldsOf(const MV::WeightImageAdjust&)
{
    using Record = MV::WeightImageAdjust;
    return std::make_tuple(MakeField("zero", &Record::zero), MakeField("brightness", &Record::brightness),
                           MakeField("contrast", &Record::contrast));
}

constexpr auto FieldsOf(const MV::WeightImageState&)
{
    using Record = MV::WeightImageState;
    return std::make_tuple(MakeField("hasFile", &Record::hasFile), MakeField("embedded", &Record::embedded),
                           MakeField("reload", &Record::reload));
}

/// Calls \p visit with each field of a record, in order.
template <class Record, class Visit>
constexpr void ForEachField(const Record& record, Visit visit)
{
    std::apply([&](const auto&... field) { (visit(field), ...); }, FieldsOf(record));
}

/// Copies into \p to what \p selector names of \p from: each field that has it, or with All the whole record.
/// \return false for a selector that names nothing
template <class Record, class Selector>
bool TakeField(Record& to, const Record& from, Selector selector)
{
    if (selector == Selector::All) {
        to = from;
        return true;
    }
    bool wasTaken = false;
    ForEachField(from, [&](const auto& field) {
        if (field.selector == selector) {
            to.*field.member = from.*field.member;
            wasTaken = true;
        }
    });
    return wasTaken;
}

/// Stands for a value of any member while members are counted.
struct AnyMember
{
    template <class Value>
    operator Value() const;
};

template <class Record, std::size_t... i>
constexpr auto HasMembers(std::index_sequence<i...>) -> decltype(Record{(static_cast<void>(i), AnyMember())...}, true)
{
    return true;
}

template <class Record>
constexpr bool HasMembers(...)
{
    return false;
}

/// How many members a record has, counted by the compiler.
template <class Record, std::size_t count = 1>
constexpr std::size_t MemberCount()
{
    if constexpr (HasMembers<Record>(std::make_index_sequence<count + 1>())) {
        return MemberCount<Record, count + 1>();
    } else {
        return count;
    }
}

/// How many fields are listed for a record.
template <class Record>
constexpr std::size_t fieldCount = std::tuple_size_v<decltype(FieldsOf(std::declval<Record>()))>;

template <class Record>
constexpr bool listsAllMembers = fieldCount<Record> == MemberCount<Record>();

static_assert(listsAllMembers<MV::SoftClothPropertyData>);
static_assert(listsAllMembers<MV::SoftClothCollisionData>);
static_assert(listsAllMembers<MV::SoftClothWindData>);
static_assert(listsAllMembers<MV::WeightImageAdjust>);
static_assert(listsAllMembers<MV::WeightImageState>);

} // namespace Host
