#pragma once

#include <QByteArray>
#include <QVector>

/// INI files that come from anywhere, made safe for QSettings.
///
/// QSettings takes a value that begins with "@" for an object and unpacks it with sizes from the file, which a damaged
/// or hostile file can use to crash the application. No value of ours is such an object. Here such values become plain
/// texts before QSettings reads the file.
namespace MV {

/// The text of an INI file with every value being a text: "@" at the beginning of an element is doubled, which
/// QSettings reads as the text "@". A value whose beginning depends on escape sequences becomes empty.
QByteArray HarmlessForReading(const QByteArray& ini);

/// An INI file in which each value that HarmlessForReading() would change is replaced by a word of its own, so that
/// QSettings can write the file again. Restored() puts the original texts back, byte for byte.
class CShelteredIni
{
public:
    explicit CShelteredIni(const QByteArray& ini);

    /// What QSettings may read and write.
    const QByteArray& Content() const { return m_content; }
    /// \p written with the original texts in place of the words that are still there.
    QByteArray Restored(QByteArray written) const;

private:
    struct Kept
    {
        QByteArray word;
        QByteArray text;
    };

    QByteArray m_content;
    QVector<Kept> m_kept;
};

} // namespace MV
