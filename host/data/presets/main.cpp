#include "host/data/presets/Thumbnails.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

namespace {

/// Writes the thumbnails of all folders of presets. \return the path that could not be written, if any
QString WriteThumbnails(const QDir& root)
{
    const std::pair<const char*, std::vector<Presets::Thumbnail>> folders[] = {
        {"0", Presets::ClothThumbnails()}, {"1", Presets::HairThumbnails()}, {"2", Presets::WindThumbnails()}};
    for (const auto& [folder, thumbnails] : folders) {
        for (const Presets::Thumbnail& thumbnail : thumbnails) {
            const QString path =
                root.filePath(QStringLiteral("%1/%2.png").arg(QLatin1String(folder), QLatin1String(thumbnail.name)));
            const QImage reduced = thumbnail.paint().scaled(Presets::thumbnailSize, Presets::thumbnailSize,
                                                            Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            if (!root.mkpath(QLatin1String(folder)) || !reduced.save(path, "PNG")) {
                return path;
            }
        }
    }
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    QTextStream err(stderr);
    if (argc != 2) {
        err << QStringLiteral("usage: softcloth-make-thumbnails <folder>\n");
        return 2;
    }
    const QString failed = WriteThumbnails(QDir(QFile::decodeName(argv[1])));
    if (!failed.isEmpty()) {
        err << QStringLiteral("cannot write %1\n").arg(failed);
        return 1;
    }
    return 0;
}
