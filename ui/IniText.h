#pragma once

#include <QByteArray>
#include <QVector>

namespace MV {

/// An INI file that comes from anywhere, made safe for QSettings to write it again.
///
/// QSettings takes a value that begins with "@" for an object and unpacks it with sizes from the file, which a damaged
/// or hostile file can use to crash the application. No value of ours is such an object. Here each value that might be
/// one is replaced by a word of its own; Restored() puts the original texts back, byte for byte.
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
