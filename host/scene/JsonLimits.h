#pragma once

#include <QByteArray>
#include <QString>

namespace Host {

/// Why \p text, a JSON document or something that claims to be one, is not to be parsed, as a clause that ends a
/// sentence; a null string when it is within Limits. Looks at the marks outside of texts only.
QString ReasonToRefuseJson(const QByteArray& text);

} // namespace Host
