#pragma once

#include <MVPluginQt/Handle.h>

#include <cstddef>

namespace MV {

/// A mesh or a material id where the host takes a handle or an id.
inline BF::CHandle* IdAsHandle(std::size_t id)
{
    return reinterpret_cast<BF::CHandle*>(id); // NOLINT(performance-no-int-to-ptr): both are opaque numbers
}

/// The id that travels as \p handle.
inline std::size_t HandleAsId(BF::CHandle* handle)
{
    return reinterpret_cast<std::size_t>(handle);
}

} // namespace MV
