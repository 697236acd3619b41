#include "preset/ProfileFile.h"

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

/// What the file at \p path is to contain: what it contains now, with the groups saved over it.
///
/// The store works on a copy. On the file itself it would keep what it failed to write and write it the next time that
/// anybody opens the file, be it only to read.
std::optional<QByteArray> MergedContent(const QString& path, const std::vector<ProfileGroup>& groups)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("profile.ini"));
    const auto old = QFile::exists(path) ? ReadAll(path) : QByteArray();
    if (!folder.isValid() || !old || !WriteAll(copy, *old)) {
        return std::nullopt;
    }
    QSettings profile(copy, QSettings::IniFormat);
    profile.setIniCodec(profileCodec);
    for (const ProfileGroup& group : groups) {
        profile.beginGroup(group.name);
        group.save(profile);
        profile.endGroup();
    }
    profile.sync();
    const auto content = ReadAll(copy);
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
    if (!QFile(path).open(QIODevice::ReadOnly)) {
        return EProfileProblem::Unreadable;
    }
    QSettings profile(path, QSettings::IniFormat);
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
    const auto content = MergedContent(path, groups);
    return content && WriteAll(path, *content) ? EProfileProblem::None : EProfileProblem::Unwritable;
}

} // namespace MV
