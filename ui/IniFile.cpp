#include "ui/IniFile.h"

#include "ui/IniText.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#endif

namespace MV {

std::optional<QByteArray> ReadIniText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestIniFile) {
        return std::nullopt;
    }
    return file.readAll();
}

namespace {

bool WriteOut(QFile& file, const QByteArray& text)
{
    return file.write(text) == text.size() && file.flush();
}

/// A file in memory that holds \p text; none where the system has no such thing.
std::unique_ptr<QFile> MemoryFile(const QByteArray& text)
{
#ifdef Q_OS_LINUX
    const int descriptor = memfd_create("ini", MFD_CLOEXEC);
    auto file = std::make_unique<QFile>();
    if (descriptor < 0 || !file->open(descriptor, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle) ||
        !WriteOut(*file, text)) {
        return nullptr;
    }
    // QSettings may know another file under this name, of equal size. No two have the same time.
    static qint64 second = 0;
    const QDateTime time = QDateTime::fromSecsSinceEpoch(++second, Qt::UTC);
    const QString name = QStringLiteral("/proc/self/fd/%1").arg(descriptor);
    if (!file->setFileTime(time, QFileDevice::FileModificationTime) || !QFileInfo::exists(name)) {
        return nullptr;
    }
    file->setObjectName(name);
    return file;
#else
    Q_UNUSED(text)
    return nullptr;
#endif
}

/// A file with \p text in \p folder, which is removed with the object; none when there is no place or no room.
std::unique_ptr<QFile> TemporaryFile(const QByteArray& text, const QString& folder)
{
    auto file = std::make_unique<QTemporaryFile>(folder + QLatin1String("/softcloth-profile-XXXXXX.ini"));
    if (!file->open() || !WriteOut(*file, text)) {
        return nullptr;
    }
    file->setObjectName(file->fileName());
    return file;
}

} // namespace

CIniReader::CIniReader(const QString& path)
{
    const auto text = ReadIniText(path);
    if (!text) {
        return;
    }
    const QByteArray harmless = HarmlessForReading(*text);
    m_copy = MemoryFile(harmless);
    // The file's own folder serves where there is no other place, or no room in it.
    for (const QString& folder : {QDir::tempPath(), QFileInfo(path).absolutePath()}) {
        if (!m_copy) {
            m_copy = TemporaryFile(harmless, folder);
        }
    }
    if (m_copy) {
        m_settings = std::make_unique<QSettings>(m_copy->objectName(), QSettings::IniFormat);
        m_settings->setIniCodec("UTF-8");
    }
}

CIniReader::~CIniReader() = default;

} // namespace MV
