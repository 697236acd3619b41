#pragma once

#include <QByteArray>
#include <QString>

namespace Host {

/// Writes \p content as the whole of the file \p path: whatever goes wrong, be it that the disk is full or that the
/// program is killed, the file is the old one or the new one and never a part. All of the host's saves go through here.
/// \return a null string, or why it could not be written, as a clause that ends a sentence
QString SaveFile(const QString& path, const QByteArray& content);

} // namespace Host
