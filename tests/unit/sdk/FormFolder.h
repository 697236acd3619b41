#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A folder of forms and other files that a test writes.
class FormFolder
{
public:
    /// Writes a file, with the folders above it, and returns its path.
    QString Write(const QString& name, const QByteArray& content) const;
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// A form whose top widget is a \p rootClass called \p rootName. \p body is the inside of that widget.
    static QByteArray Form(const QByteArray& rootName, const QByteArray& body,
                           const QByteArray& rootClass = QByteArrayLiteral("QWidget"));
    /// A widget for the body of a form. \p body is its inside.
    static QByteArray Widget(const QByteArray& className, const QByteArray& name, const QByteArray& body = {});
    /// A property. \p value is an element, for example "<number>3</number>".
    static QByteArray Property(const QByteArray& name, const QByteArray& value);

private:
    QTemporaryDir m_folder;
};
