#include "host/scene/SaveFile.h"

#include <QSaveFile>

namespace Host {

QString SaveFile(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    // Flushed by hand: what does not fit on a full disk at the commit only would go unnoticed.
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() && file.commit();
    return isSaved ? QString() : file.errorString();
}

} // namespace Host
