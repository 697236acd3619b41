#include "preset/ProfileFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <optional>

namespace MV {

namespace {

constexpr const char* profileCodec = "UTF-8";

std::optional<QByteArray> ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::make_optional(file.readAll()) : std::nullopt;
}

/// Writes a file as a whole: whatever goes wrong, the file is the old one or the new one.
bool WriteAll(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    // Flushed by hand: what does not fit on a full disk at the commit only would go unnoticed.
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() && file.commit();
}

/// Whether \p content is all that a store has written of \p keys keys, each on a line of its own between the headers
/// and the blank lines of the groups. The store itself does not notice when its last block does not fit on the disk.
bool IsWhole(const QByteArray& content, int keys)
{
    const QList<QByteArray> lines = content.split('\n');
    for (const QByteArray& line : lines) {
        if (!line.trimmed().isEmpty() && !line.startsWith('[')) {
            --keys;
        }
    }
    return keys == 0 && content.endsWith('\n');
}

/// A copy of a profile for the store to work on, in a place that it does not know yet.
///
/// The store keeps what it has read of a file and takes it for the file's content as long as size and time are the
/// same. It also keeps what it failed to write and writes it the next time that anybody opens the file, be it only to
/// read.
class CWorkingCopy
{
public:
    CWorkingCopy(const QByteArray& content, const QString& folder)
        : m_folder(folder + QLatin1String("/profile-XXXXXX"))
        , m_isMade(m_folder.isValid() && WriteAll(Path(), content))
    {
    }

    bool IsMade() const { return m_isMade; }
    QString Path() const { return m_folder.filePath(QStringLiteral("profile.ini")); }

private:
    QTemporaryDir m_folder;
    bool m_isMade;
};

/// What a file that contains \p old is to contain: the same, with the groups saved over it.
/// \param folder  where the work is done
std::optional<QByteArray> MergedContent(const QByteArray& old, const QString& folder,
                                        const std::vector<ProfileGroup>& groups)
{
    const CWorkingCopy copy(old, folder);
    if (!copy.IsMade()) {
        return std::nullopt;
    }
    QSettings profile(copy.Path(), QSettings::IniFormat);
    profile.setIniCodec(profileCodec);
    for (const ProfileGroup& group : groups) {
        profile.beginGroup(group.name);
        group.save(profile);
        profile.endGroup();
    }
    profile.sync();
    const auto content = ReadAll(copy.Path());
    const bool isWritten = profile.status() != QSettings::AccessError;
    return isWritten && content && IsWhole(*content, profile.allKeys().size()) ? content : std::nullopt;
}

} // namespace

EProfileProblem LoadProfile(const QString& path, const std::vector<ProfileGroup>& groups, BF::Result& result)
{
    result = BF::Results::Success;
    if (!QFileInfo(path).isFile()) {
        return EProfileProblem::InvalidPath;
    }
    const auto content = ReadAll(path);
    if (!content) {
        return EProfileProblem::Unreadable;
    }
    const CWorkingCopy copy(*content, QDir::tempPath());
    QSettings profile(copy.IsMade() ? copy.Path() : path, QSettings::IniFormat);
    profile.setIniCodec(profileCodec);
    const QStringList present = profile.childGroups();
    for (const ProfileGroup& group : groups) {
        if (present.contains(group.name) && !result.IsFailure()) {
            profile.beginGroup(group.name);
            result = group.load(profile);
            profile.endGroup();
        }
    }
    return EProfileProblem::None;
}

EProfileProblem SaveProfile(const QString& path, const std::vector<ProfileGroup>& groups)
{
    if (!QSettings(path, QSettings::IniFormat).isWritable()) {
        return EProfileProblem::Unwritable;
    }
    const auto old = QFile::exists(path) ? ReadAll(path) : QByteArray();
    if (!old) {
        return EProfileProblem::Unwritable;
    }
    auto content = MergedContent(*old, QDir::tempPath(), groups);
    if (!content) {
        // No room for temporary files; the profile's own folder must have some anyway.
        content = MergedContent(*old, QFileInfo(path).absolutePath(), groups);
    }
    return content && WriteAll(path, *content) ? EProfileProblem::None : EProfileProblem::Unwritable;
}

} // namespace MV
