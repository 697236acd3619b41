#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace MV {

/// The largest INI file that is read, in bytes.
inline constexpr qint64 largestIniFile = 32 * 1024 * 1024;

/// All of a file; none when it cannot be read or is too large for an INI file.
std::optional<QByteArray> ReadIniText(const QString& path);

/// The keys of a group of an INI file with their values, each a text, a list of texts, or invalid.
class CIniGroup
{
public:
    /// The value of a key; invalid when there is no such key. Names count as they are spelled.
    QVariant Value(const QString& key) const { return m_values.value(key); }
    bool Contains(const QString& key) const { return m_values.contains(key); }
    /// In the order of their names.
    QStringList Keys() const { return m_values.keys(); }
    bool IsEmpty() const { return m_values.isEmpty(); }

    void Insert(const QString& key, const QVariant& value) { m_values.insert(key, value); }

private:
    QMap<QString, QVariant> m_values;
};

/// What an INI file in UTF-8 holds, read at one go. The format is that of QSettings, which itself will not do for
/// reading: it takes a file of equal size and time for the one that it has read before, and it unpacks objects, with
/// sizes from the file, which a damaged or hostile file can use to crash the application.
class CIniFile
{
public:
    explicit CIniFile(const QByteArray& ini);

    /// Reads the file at \p path; none when it cannot be read or is too large.
    static std::optional<CIniFile> Read(const QString& path);

    /// The keys of the group of that name; without any when there is no such group. The empty name stands for the keys
    /// that are in no group.
    const CIniGroup& Group(const QString& name) const;

private:
    void Insert(const QString& path, const QVariant& value);

    QMap<QString, CIniGroup> m_groups;
};

} // namespace MV
