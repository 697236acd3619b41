#pragma once

#include "host/services/Pictures.h"
#include "host/services/SceneService.h"

/// How the scene service's operations look things up; shared by the files that implement it.
namespace Host {

template <class Read>
BF::Result SceneService::ReadObject(const char* operation, const std::vector<JournalArgument>& arguments,
                                    BF::CHandle* object, Read read) const
{
    return Record(operation, arguments, [&] {
        const Object* found = CurrentScene().FindObject(object);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        read(*found);
        return BF::Results::Success;
    });
}

template <class Read>
BF::Result SceneService::ReadSlot(const char* operation, BF::CHandle* object, Id mesh, Id material,
                                  std::vector<JournalArgument> furtherArguments, Read read) const
{
    std::vector<JournalArgument> arguments{In(object), InId(mesh), InId(material)};
    for (JournalArgument& argument : furtherArguments) {
        arguments.push_back(std::move(argument));
    }
    return Record(operation, arguments, [&] {
        const MaterialSlot* slot = CurrentScene().FindSlot({object, mesh, material});
        if (!slot) {
            return BF::Results::InvalidArgument;
        }
        read(*slot);
        return BF::Results::Success;
    });
}

template <class Use>
BF::Result SceneService::UseTexture(const char* operation, Id material, MV::ETextureChannel channel,
                                    std::vector<JournalArgument> furtherArguments, Use use) const
{
    std::vector<JournalArgument> arguments{InId(material), In(channel)};
    for (JournalArgument& argument : furtherArguments) {
        arguments.push_back(std::move(argument));
    }
    return Record(operation, arguments, [&] {
        return CurrentScene().FindMaterial(material) ? use(App().Images().TextureOf(material, channel))
                                                     : BF::Results::InvalidArgument;
    });
}

} // namespace Host
