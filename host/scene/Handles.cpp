#include "host/scene/Handles.h"

#include <atomic>

namespace Host {

Id NewId()
{
    // Starts and steps like addresses of allocated objects, so that nobody mistakes an index for an id.
    constexpr Id step = 0x10;
    static std::atomic<Id> next{0x10000};
    return next.fetch_add(step);
}

} // namespace Host
