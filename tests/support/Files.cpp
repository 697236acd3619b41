#include "tests/support/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Files {

QString Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!QFileInfo(path).dir().mkpath(QStringLiteral(".")) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    return path;
}

QByteArray Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    return file.readAll();
}

QByteArray ReadText(const QString& path)
{
    return Read(path).replace("\r\n", "\n");
}

void OpenToAll(const QString& folder)
{
    if (!QFile::setPermissions(folder, QFileDevice::Permissions(0x7777))) {
        qFatal("%s cannot be opened to all", qPrintable(folder));
    }
}

} // namespace Files
