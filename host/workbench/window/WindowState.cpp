#include "host/workbench/window/WindowState.h"

#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QStyle>

namespace Host {

namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString docksKey = QStringLiteral("window/docks");
/// Docks of another layout would end up anywhere.
constexpr int layoutVersion = 2;

constexpr QSize comfortable(1440, 860);
/// What a window manager puts around a window.
constexpr QSize frame(16, 48);

} // namespace

QSize FirstWindowSize(const QRect& available)
{
    return comfortable.boundedTo(available.size() - frame);
}

void KeepWindowState(const QMainWindow& window)
{
    QSettings settings;
    settings.setValue(geometryKey, window.saveGeometry());
    settings.setValue(docksKey, window.saveState(layoutVersion));
}

void RestoreWindowState(QMainWindow& window)
{
    const QSettings settings;
    const QRect available = window.screen()->availableGeometry();
    // Qt moves a window of a larger screen into this one.
    if (!window.restoreGeometry(settings.value(geometryKey).toByteArray())) {
        window.setGeometry(
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, FirstWindowSize(available), available));
    }
    window.restoreState(settings.value(docksKey).toByteArray(), layoutVersion);
}

} // namespace Host
