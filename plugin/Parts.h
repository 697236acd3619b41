#pragma once

#include <MVPluginQt/Result.h>

#include <QSharedPointer>

#include <type_traits>

namespace MV {

/// Whether the class of a part is known here. A part whose header is not included is one that this build lacks.
template <class Part, class = void>
inline constexpr bool IsPartBuilt = false;
template <class Part>
inline constexpr bool IsPartBuilt<Part, std::void_t<decltype(sizeof(Part))>> = true;

/// Runs \p call on the part; a missing part is passed over.
template <class Part, class Call>
void VisitPart(const QSharedPointer<Part>& part, Call call)
{
    if constexpr (IsPartBuilt<Part>) {
        if (part) {
            call(*part);
        }
    }
}

/// Runs \p call, which answers a BF::Result, on the part; a missing part answers 0.
template <class Part, class Call>
BF::Result AskPart(const QSharedPointer<Part>& part, Call call)
{
    BF::Result result;
    VisitPart(part, [&](auto& existing) { result = call(existing); });
    return result;
}

} // namespace MV
