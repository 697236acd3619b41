#include "host/workbench/window/DroppedFiles.h"

#include "host/import/ModelImport.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace Host {

QStringList DroppedModels(const QMimeData& data)
{
    static const QStringList suffixes = ImportableSuffixes() << QStringLiteral("clothscene");
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        const QString file = url.toLocalFile();
        if (!suffixes.contains(QFileInfo(file).suffix(), Qt::CaseInsensitive)) {
            return {};
        }
        files.append(file);
    }
    return files;
}

} // namespace Host
