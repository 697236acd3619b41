#pragma once

#include <QObject>
#include <QStringList>
#include <QTest>

/// The child of \p parent called \p name; fails the test and lists what there is when it is missing or of another
/// type.
template <class T>
T* Child(const QObject* parent, const char* name)
{
    if (T* found = parent->findChild<T*>(QLatin1String(name))) {
        return found;
    }
    QStringList names;
    const auto children = parent->findChildren<QObject*>();
    for (const QObject* child : children) {
        if (!child->objectName().isEmpty()) {
            names.append(QLatin1String(child->metaObject()->className()) + QLatin1Char(' ') + child->objectName());
        }
    }
    const QString message =
        QStringLiteral("no %1 called \"%2\"; there is: %3")
            .arg(QLatin1String(T::staticMetaObject.className()), QLatin1String(name), names.join(QLatin1String(", ")));
    qFatal("%s", qPrintable(message));
}
