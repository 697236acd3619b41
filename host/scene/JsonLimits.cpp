#include "host/scene/JsonLimits.h"

#include "host/scene/Limits.h"
#include "host/scene/SceneText.h"

#include <algorithm>

namespace Host {

namespace {

/// The place of the quotation mark that ends a text which begins before \p at.
const char* EndOfText(const char* at, const char* end)
{
    while (at != end && *at != '"') {
        at += *at == '\\' && end - at > 1 ? 2 : 1;
    }
    return at;
}

} // namespace

QString ReasonToRefuseJson(const QByteArray& text)
{
    int depth = 0;
    int deepest = 0;
    qint64 values = 0; // all but one stand behind one of these marks
    const char* const end = text.constData() + text.size();
    for (const char* at = text.constData(); at != end; ++at) {
        switch (*at) {
        case '"':
            at = EndOfText(at + 1, end);
            break;
        case '[':
        case '{':
            deepest = std::max(deepest, ++depth);
            ++values;
            break;
        case ']':
        case '}':
            --depth;
            break;
        case ',':
        case ':':
            ++values;
            break;
        default:
            break;
        }
        if (at == end) {
            break;
        }
    }
    if (deepest > Limits::jsonDepth) {
        return SceneText::tr("its values are nested more than %1 levels deep").arg(Limits::jsonDepth);
    }
    if (values > Limits::jsonValues) {
        return SceneText::tr("it has more than %1 values").arg(Limits::jsonValues);
    }
    return {};
}

} // namespace Host
