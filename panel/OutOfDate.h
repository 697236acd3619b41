#pragma once

#include <MVPluginQt/Result.h>

namespace MV {

/// What a step of an operation returns when a host call in it has overtaken it: the panel shows something else by now,
/// or is gone. It is no failure; to the host such an operation has done nothing.
inline constexpr BF::Result outOfDate = BF::Results::NothingDone;

} // namespace MV
