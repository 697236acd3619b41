#pragma once

#include <QJsonValue>
#include <QString>

/// Changing single places of a JSON document, as damage would.
namespace JsonEdit {

/// \p root with \p value at \p path, which is like "objects.0.meshes.1.name". An undefined value removes the place.
QJsonValue With(const QJsonValue& root, const QString& path, const QJsonValue& value);

/// What is at \p path.
QJsonValue At(const QJsonValue& root, const QString& path);

} // namespace JsonEdit
