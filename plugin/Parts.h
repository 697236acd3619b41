#pragma once

#include <MVPluginQt/Result.h>

#include <QSharedPointer>

namespace MV {

/// Runs \p call on the part; one that does not exist is skipped. The part's header is to be included.
template <class Part, class Call>
void VisitPart(const QSharedPointer<Part>& part, Call call)
{
    if (part) {
        call(*part);
    }
}

/// Runs \p call on the part and returns its result; 0 when the part does not exist.
template <class Part, class Call>
BF::Result AskPart(const QSharedPointer<Part>& part, Call call)
{
    return part ? call(*part) : BF::Result();
}

} // namespace MV
