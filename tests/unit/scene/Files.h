#pragma once

#include <QByteArray>
#include <QFile>

/// Short cuts for tests.
namespace Files {

/// Empty when it cannot be read.
inline QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

} // namespace Files
