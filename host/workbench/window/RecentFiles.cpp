#include "host/workbench/window/RecentFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>
#include <QVariant>

#include <iterator>

namespace Host {

namespace {

const QString filesKey = QStringLiteral("recentFiles");
const QString unitsKey = QStringLiteral("recentFileUnits");

QVariantMap Units()
{
    return QSettings().value(unitsKey).toMap();
}

/// \param units  of files that may be in the list no more
void Store(const QStringList& files, QVariantMap units = Units())
{
    for (auto unit = units.begin(); unit != units.end();) {
        unit = files.contains(unit.key()) ? std::next(unit) : units.erase(unit);
    }
    QSettings settings;
    settings.setValue(filesKey, files);
    settings.setValue(unitsKey, units);
}

QString NativePath(const QString& path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

} // namespace

RecentFiles::RecentFiles(QObject* parent)
    : QObject(parent)
{
}

void RecentFiles::ShowIn(QMenu* menu)
{
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { Fill(menu); });
}

QStringList RecentFiles::Files()
{
    return QSettings().value(filesKey).toStringList();
}

QString RecentFiles::UnitOf(const QString& path)
{
    return Units().value(QFileInfo(path).absoluteFilePath()).toString();
}

void RecentFiles::Add(const QString& path, const QString& unit)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = Files();
    files.removeAll(absolute);
    files.prepend(absolute);
    QVariantMap units = Units();
    units.insert(absolute, unit);
    Store(files.mid(0, most), units);
}

void RecentFiles::Remove(const QString& path)
{
    QStringList files = Files();
    files.removeAll(QFileInfo(path).absoluteFilePath());
    Store(files);
}

void RecentFiles::Clear()
{
    Store({});
}

void RecentFiles::Fill(QMenu* menu)
{
    menu->clear();
    menu->setToolTipsVisible(true);
    const QStringList files = Files();
    int number = 0;
    for (const QString& path : files) {
        // An ampersand in a name is no mnemonic.
        const QString name = QFileInfo(path).fileName().replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* action = menu->addAction(QStringLiteral("&%1 %2").arg(++number).arg(name), this,
                                          [this, path] { Q_EMIT Chosen(path); });
        action->setToolTip(NativePath(path));
    }
    if (files.isEmpty()) {
        menu->addAction(tr("None"))->setEnabled(false);
        return;
    }
    menu->addSeparator();
    menu->addAction(tr("&Clear List"), this, &RecentFiles::Clear);
}

} // namespace Host
