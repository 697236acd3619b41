#pragma once

#include <QByteArray>
#include <QFile>
#include <QSettings>
#include <QString>

#include <memory>
#include <optional>

namespace MV {

/// The largest INI file that is read, in bytes.
inline constexpr qint64 largestIniFile = 32 * 1024 * 1024;

/// All of a file; none when it cannot be read or is too large for an INI file.
std::optional<QByteArray> ReadIniText(const QString& path);

/// An INI file in UTF-8, read afresh: QSettings itself takes a file of equal size and time for the one that it has read
/// before, and unpacks objects from it. Values come as texts and lists of texts only.
class CIniReader
{
public:
    /// Reads the file at \p path.
    explicit CIniReader(const QString& path);
    ~CIniReader();
    Q_DISABLE_COPY_MOVE(CIniReader)

    /// Whether the file could be read; if not, there is nothing in Settings().
    bool IsRead() const { return m_settings != nullptr; }
    /// Only while IsRead(). Writing to it changes nothing.
    QSettings& Settings() { return *m_settings; }

private:
    std::unique_ptr<QFile> m_copy; ///< What QSettings reads; its object name is the path.
    std::unique_ptr<QSettings> m_settings;
};

} // namespace MV
