#pragma once

#include "host/scene/Entities.h"

namespace Host {

/// A new id, unlike any that this process gave out before. Ids look like addresses but are never dereferenced.
Id NewId();

inline BF::CHandle* ToHandle(Id id)
{
    return reinterpret_cast<BF::CHandle*>(id); // NOLINT(performance-no-int-to-ptr): a handle is an opaque number
}

inline Id ToId(const BF::CHandle* handle)
{
    return reinterpret_cast<Id>(handle);
}

} // namespace Host
