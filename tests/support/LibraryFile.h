#pragma once

#include <QByteArray>
#include <QStringList>

/// What a library file of this platform's kind holds, read from the file itself.
class LibraryFile
{
public:
    explicit LibraryFile(const QString& path);

    /// The contents of the section called \p name; empty when there is none.
    QByteArray Section(const QByteArray& name) const;
    /// The names that the library offers to others, sorted.
    QStringList ExportedNames() const;
    /// The file names of the libraries that it needs, sorted.
    QStringList NeededLibraries() const;

private:
    QString m_path;
    QByteArray m_bytes;
};
