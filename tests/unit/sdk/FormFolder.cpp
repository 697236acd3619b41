#include "tests/unit/sdk/FormFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString FormFolder::Write(const QString& name, const QByteArray& content) const
{
    const QString path = Path(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

QByteArray FormFolder::Form(const QByteArray& rootName, const QByteArray& body, const QByteArray& rootClass)
{
    return "<ui version=\"4.0\"><class>" + rootName + "</class>" + Widget(rootClass, rootName, body) + "</ui>";
}

QByteArray FormFolder::Widget(const QByteArray& className, const QByteArray& name, const QByteArray& body)
{
    return "<widget class=\"" + className + "\" name=\"" + name + "\">" + body + "</widget>";
}

QByteArray FormFolder::Property(const QByteArray& name, const QByteArray& value)
{
    return "<property name=\"" + name + "\">" + value + "</property>";
}
