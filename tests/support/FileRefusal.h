#pragma once

#include "tests/support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <optional>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

/// While it lives, the system refuses to let the test program read, or write, one file. Takes a folder too where
/// permissions belong to owners, so not on Windows.
class FileRefusal
{
public:
    enum class Of
    {
        ReadingAndWriting,
        Writing
    };

#ifdef Q_OS_WIN
    /// Files have no owner's permissions here; one that another has opened for itself is refused.
    FileRefusal(const QString& path, Of what)
        : m_file(CreateFileW(reinterpret_cast<const wchar_t*>(QDir::toNativeSeparators(path).utf16()), GENERIC_READ,
                             what == Of::Writing ? FILE_SHARE_READ : 0, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        if (m_file == INVALID_HANDLE_VALUE) {
            qFatal("%s cannot be kept from the test", qPrintable(path));
        }
    }
    ~FileRefusal()
    {
        CloseHandle(m_file);
    }
#else
    FileRefusal(const QString& path, Of what)
        : m_path(path)
        , m_permissions(QFile::permissions(path))
    {
        const int readable = QFileInfo(path).isDir() ? 0x5555 : 0x4444;
        if (!QFile::setPermissions(path, QFileDevice::Permissions(what == Of::Writing ? readable : 0))) {
            qFatal("%s cannot be kept from the test", qPrintable(path));
        }
        m_user.emplace();
    }
    ~FileRefusal()
    {
        m_user.reset();
        QFile::setPermissions(m_path, m_permissions);
    }
#endif
    Q_DISABLE_COPY_MOVE(FileRefusal)

private:
#ifdef Q_OS_WIN
    HANDLE m_file;
#else
    QString m_path;
    QFileDevice::Permissions m_permissions;
    std::optional<OrdinaryUser> m_user;
#endif
};
