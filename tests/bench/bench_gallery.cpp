// Filling the gallery of presets.
#include "preset/PresetGallery.h"
#include "tests/bench/Report.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QListWidget>
#include <QTabWidget>
#include <QTemporaryDir>

namespace {

constexpr int pages = 3;
constexpr int itemsPerPage = 100;
constexpr QSize iconSize(52, 52); // as the panel's lists have it
constexpr QSize storedSize(512, 512);

/// Thumbnails that differ, and that do not compress away.
QStringList WriteThumbnails(const QString& root)
{
    QStringList paths;
    for (int page = 0; page < pages; ++page) {
        const QString folder = QStringLiteral("%1/%2").arg(root).arg(page);
        QDir().mkpath(folder);
        for (int i = 1; i <= itemsPerPage; ++i) {
            QImage image(storedSize, QImage::Format_RGB32);
            for (int y = 0; y < image.height(); ++y) {
                auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
                for (int x = 0; x < image.width(); ++x) {
                    line[x] = qRgb(x * i & 0xFF, (y + x / 4) & 0xFF, (x * y / 64 + page) & 0xFF);
                }
            }
            paths.append(QStringLiteral("%1/%2_Preset.png").arg(folder).arg(i));
            if (!image.save(paths.last())) {
                qFatal("the thumbnails cannot be written");
            }
        }
    }
    return paths;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    const QTemporaryDir folder;
    const QStringList paths = WriteThumbnails(folder.path());
    QTabWidget tabs;
    for (int page = 0; page < pages; ++page) {
        auto* content = new QWidget;
        auto* list = new QListWidget(content);
        list->setIconSize(iconSize);
        for (int i = 0; i < itemsPerPage; ++i) {
            list->addItem(QStringLiteral("Preset"));
        }
        tabs.addTab(content, QString());
    }
    const Bench::Work product{[&] { MV::FillPresetGallery(folder.path(), tabs); }};
    const Bench::Work bare{[&] {
        for (const QString& path : paths) {
            QImageReader reader(path);
            reader.setScaledSize(iconSize);
            if (reader.read().isNull()) {
                qFatal("a thumbnail cannot be read");
            }
        }
    }};

    Bench::Report report(QStringLiteral("Gallery, %1 thumbnails of %2 x %3")
                             .arg(paths.size())
                             .arg(storedSize.width())
                             .arg(storedSize.height()));
    report.Compare(QStringLiteral("filled, against decoding at icon size"), product, bare, 1.2, 5);
    const auto lists = tabs.findChildren<QListWidget*>();
    for (const QListWidget* list : lists) {
        if (list->item(itemsPerPage - 1)->icon().isNull()) {
            qFatal("the gallery is not complete");
        }
    }
    return report.Print();
}
