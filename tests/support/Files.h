#pragma once

#include <QByteArray>
#include <QString>

/// Files of tests; what cannot be read or written ends the test program.
namespace Files {

/// Writes \p content to \p path, whose folders are made. \return \p path
QString Write(const QString& path, const QByteArray& content);

QByteArray Read(const QString& path);

/// What Read() returns, with all lines ending in a line feed alone, whatever this system's programs end them in.
QByteArray ReadText(const QString& path);

/// Lets everybody use the folder of a QTemporaryDir, whose own user alone may enter it.
void OpenToAll(const QString& folder);

} // namespace Files
