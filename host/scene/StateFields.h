#pragma once

#include "host/scene/Entities.h"
#include "host/scene/RecordFields.h"

/// What the scene's own records consist of. Images and lists of names are left out; they are treated by themselves.
namespace Host {

constexpr auto FieldsOf(const ClothState&)
{
    using Record = ClothState;
    return std::make_tuple(MakeField("active", &Record::active),
                           MakeField("useGlobalGravity", &Record::useGlobalGravity),
                           MakeField("property", &Record::property), MakeField("collision", &Record::collision),
                           MakeField("wind", &Record::wind));
}

constexpr auto FieldsOf(const MaterialState&)
{
    return std::make_tuple(MakeField("softClothEnabled", &MaterialState::softClothEnabled));
}

constexpr auto FieldsOf(const ObjectState&)
{
    using Record = ObjectState;
    return std::make_tuple(MakeField("exists", &Record::exists), MakeField("softCloth", &Record::softCloth),
                           MakeField("rigidBody", &Record::rigidBody));
}

constexpr auto FieldsOf(const ObjectTraits&)
{
    using Record = ObjectTraits;
    return std::make_tuple(MakeField("type", &Record::type), MakeField("kind", &Record::kind),
                           MakeField("convertState", &Record::convertState), MakeField("blocked", &Record::blocked),
                           MakeField("blockedEx", &Record::blockedEx));
}

static_assert(fieldCount<ClothState> + 1 == MemberCount<ClothState>()); // the weight image
static_assert(listsAllMembers<MaterialState>);
static_assert(fieldCount<ObjectState> + 1 == MemberCount<ObjectState>()); // the ignored materials
static_assert(listsAllMembers<ObjectTraits>);

} // namespace Host
