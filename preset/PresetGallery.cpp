#include "preset/PresetGallery.h"

#include "ui/SignalBlocker.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QListWidget>
#include <QPixmap>
#include <QStyle>
#include <QTabWidget>

#include <optional>

namespace MV {

namespace {

constexpr int profileRole = Qt::UserRole;

std::optional<int> ToNumber(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber, 10);
    return isNumber ? std::make_optional(number) : std::nullopt;
}

/// Reads an image no larger than it will be shown on the sharpest screen, and as it is when \p shown is no size; null
/// when the file is no image.
QPixmap ReadThumbnail(const QString& path, const QSize& shown)
{
    const qreal pixelRatio = qGuiApp->devicePixelRatio();
    QImageReader reader(path);
    const QSize stored = reader.size();
    const QSize wanted = shown * pixelRatio;
    if (shown.isValid() && (stored.width() > wanted.width() || stored.height() > wanted.height())) {
        reader.setScaledSize(stored.scaled(wanted, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    QPixmap thumbnail = QPixmap::fromImage(reader.read());
    thumbnail.setDevicePixelRatio(pixelRatio);
    return thumbnail;
}

/// The item that a thumbnail decorates by its name; null when it names none.
QListWidgetItem* ItemFor(const QString& baseName, const QListWidget& list)
{
    const auto position = ToNumber(baseName.section(QLatin1Char('_'), 0, 0));
    return position && *position > 0 ? list.item(*position - 1) : nullptr;
}

void FillList(const QString& folder, QListWidget& list)
{
    QDirIterator files(folder, {QStringLiteral("*.png"), QStringLiteral("*.bmp"), QStringLiteral("*.jpg")},
                       QDir::Files);
    while (files.hasNext()) {
        files.next();
        const QFileInfo file = files.fileInfo();
        QListWidgetItem* item = ItemFor(file.completeBaseName(), list);
        if (!item) {
            continue;
        }
        const QPixmap thumbnail = ReadThumbnail(file.filePath(), list.iconSize());
        if (!thumbnail.isNull()) {
            item->setIcon(QIcon(thumbnail));
            item->setData(profileRole, QString(file.absolutePath() + QDir::separator() + file.completeBaseName() +
                                               QLatin1String(".ini")));
        }
    }
}

QListWidget* ListOfPage(const QTabWidget& tabs, int page)
{
    const QWidget* content = tabs.widget(page);
    return content ? content->findChild<QListWidget*>() : nullptr;
}

/// Makes the cells of a list wide enough for its longest name, which is longer in some languages than in others.
void FitNames(QListWidget& list)
{
    if (!list.gridSize().isValid()) {
        return;
    }
    int width = 0;
    for (int row = 0; row < list.count(); ++row) {
        width = qMax(width, list.fontMetrics().horizontalAdvance(list.item(row)->text()));
    }
    // The list leaves this much on either side of a name.
    const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
    list.setGridSize(list.gridSize().expandedTo({width + 2 * margin, 0}));
}

} // namespace

BF::Result FillPresetGallery(const QString& root, QTabWidget& tabs)
{
    if (root.isEmpty()) {
        return BF::Results::InvalidArgument;
    }
    const CSignalBlocker silent{&tabs};
    QDirIterator folders(root, QDir::Dirs | QDir::NoDotAndDotDot);
    while (folders.hasNext()) {
        folders.next();
        const auto page = ToNumber(folders.fileInfo().baseName());
        if (QListWidget* list = page ? ListOfPage(tabs, *page) : nullptr) {
            FillList(folders.filePath(), *list);
        }
    }
    const auto lists = tabs.findChildren<QListWidget*>();
    for (QListWidget* list : lists) {
        FitNames(*list);
    }
    if (tabs.count() > 0) {
        tabs.setCurrentIndex(0);
    }
    return BF::Results::Success;
}

QString ProfileOf(const QListWidgetItem* item)
{
    return item ? item->data(profileRole).toString() : QString();
}

} // namespace MV
