#include "preset/ProfileFile.h"

#include "ui/IniFile.h"
#include "ui/IniText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>

namespace MV {

namespace {

constexpr const char* profileCodec = "UTF-8";
const QString workFolders = QStringLiteral("softcloth-profile-");
const QString lockSuffix = QStringLiteral(".lock");

/// Writes a file as a whole: whatever goes wrong, the file is the old one or the new one.
bool WriteAll(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    // Flushed by hand: what does not fit on a full disk at the commit only would go unnoticed.
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() && file.commit();
}

/// Removes the working folders of saves that were killed. The lock beside the folder of a save that is going on is held
/// until the folder is gone.
void RemoveAbandonedFolders(const QString& folder)
{
    const QDir place(folder);
    const QStringList locks = place.entryList({workFolders + QLatin1Char('*') + lockSuffix}, QDir::Files);
    for (const QString& name : locks) {
        QLockFile lock(place.filePath(name));
        if (lock.tryLock()) {
            QDir(place.filePath(name.chopped(lockSuffix.size()))).removeRecursively();
        }
    }
}

/// A copy of a profile for QSettings to work on, in a folder of its own.
class CWorkingCopy
{
public:
    /// \param folder  where the working folder is made
    CWorkingCopy(const QByteArray& content, const QString& folder)
        : m_folder(folder + QLatin1Char('/') + workFolders + QLatin1String("XXXXXX"))
        , m_lock(m_folder.path() + lockSuffix)
    {
        if (m_folder.isValid() && m_lock.tryLock() && WriteAll(Path(), content)) {
            m_settings = std::make_unique<QSettings>(Path(), QSettings::IniFormat);
            m_settings->setIniCodec(profileCodec);
        }
    }
    ~CWorkingCopy()
    {
        m_settings.reset();
        m_folder.remove();
        m_lock.unlock();
    }
    Q_DISABLE_COPY_MOVE(CWorkingCopy)

    bool IsMade() const { return m_settings != nullptr; }
    QSettings& Settings() { return *m_settings; }

    /// Lets QSettings write. \return the whole file, or none when it could not be written whole
    std::optional<QByteArray> Written()
    {
        m_settings->sync();
        const auto content = ReadIniText(Path());
        return m_settings->status() != QSettings::AccessError && content && IsWhole(*content) ? content : std::nullopt;
    }

private:
    QString Path() const { return m_folder.filePath(QStringLiteral("profile.ini")); }

    /// QSettings does not notice when its last block does not fit on the disk.
    bool IsWhole(const QByteArray& content)
    {
        const QStringList keys = m_settings->allKeys();
        if (keys.isEmpty()) {
            return true;
        }
        // Under another name, which QSettings reads.
        const QString other = m_folder.filePath(QStringLiteral("written.ini"));
        if (!content.endsWith('\n') || !QFile::rename(Path(), other)) {
            return false;
        }
        const QSettings written(other, QSettings::IniFormat);
        return std::all_of(keys.cbegin(), keys.cend(),
                           [&](const QString& key) { return key.isEmpty() || written.contains(key); });
    }

    QTemporaryDir m_folder;
    QLockFile m_lock;
    std::unique_ptr<QSettings> m_settings;
};

void SaveGroups(QSettings& profile, const std::vector<ProfileGroup>& groups)
{
    for (const ProfileGroup& group : groups) {
        profile.beginGroup(group.name);
        group.save(profile);
        profile.endGroup();
    }
}

void CopyValues(const QSettings& from, QSettings& to)
{
    const QStringList keys = from.allKeys();
    for (const QString& key : keys) {
        if (!key.isEmpty()) {
            to.setValue(key, from.value(key));
        }
    }
}

/// What a file that contains \p old is to contain: the same, with the groups saved over it.
/// \param ownFolder  where the work is done when there is no place or no room for temporary files
std::optional<QByteArray> MergedContent(const QByteArray& old, const QString& ownFolder,
                                        const std::vector<ProfileGroup>& groups)
{
    CWorkingCopy first(old, QDir::tempPath());
    if (first.IsMade()) {
        SaveGroups(first.Settings(), groups);
        if (const auto content = first.Written()) {
            return content;
        }
    }
    CWorkingCopy second(old, ownFolder);
    if (!second.IsMade()) {
        return std::nullopt;
    }
    // Saved once only: a group may ask its host for values.
    if (first.IsMade()) {
        CopyValues(first.Settings(), second.Settings());
    } else {
        SaveGroups(second.Settings(), groups);
    }
    return second.Written();
}

} // namespace

EProfileProblem LoadProfile(const QString& path, const std::vector<ProfileGroup>& groups, BF::Result& result)
{
    result = BF::Results::Success;
    if (!QFileInfo(path).isFile()) {
        return EProfileProblem::InvalidPath;
    }
    const auto profile = CIniFile::Read(path);
    if (!profile) {
        return EProfileProblem::Unreadable;
    }
    for (const ProfileGroup& group : groups) {
        const CIniGroup& values = profile->Group(group.name);
        if (!values.IsEmpty() && !result.IsFailure()) {
            result = group.load(values);
        }
    }
    return EProfileProblem::None;
}

EProfileProblem SaveProfile(const QString& path, const std::vector<ProfileGroup>& groups)
{
    if (!QSettings(path, QSettings::IniFormat).isWritable()) {
        return EProfileProblem::Unwritable;
    }
    const auto old = QFile::exists(path) ? ReadIniText(path) : QByteArray();
    if (!old) {
        return EProfileProblem::Unwritable;
    }
    RemoveAbandonedFolders(QDir::tempPath());
    const CShelteredIni sheltered(*old);
    const auto merged = MergedContent(sheltered.Content(), QFileInfo(path).absolutePath(), groups);
    return merged && WriteAll(path, sheltered.Restored(*merged)) ? EProfileProblem::None : EProfileProblem::Unwritable;
}

} // namespace MV
