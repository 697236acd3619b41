#include "tests/house/Includes.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

const char* const topFolders[] = {"ui", "sdk", "panel", "plugin", "sections", "material", "preset", "host"};

QSet<QString> IncludesIn(const QDir& top, const QString& file)
{
    QFile source(top.filePath(file));
    if (!source.open(QIODevice::ReadOnly)) {
        return {};
    }
    static const QRegularExpression include(QStringLiteral("^#include [<\"]([^>\"]+/[^>\"]+)[>\"]"),
                                            QRegularExpression::MultilineOption);
    QSet<QString> found;
    QRegularExpressionMatchIterator matches = include.globalMatch(QString::fromUtf8(source.readAll()));
    while (matches.hasNext()) {
        const QString name = matches.next().captured(1);
        // The SDK's headers are included as a vendor's are, without the folder that they are in here.
        for (const QString& candidate : {name, QStringLiteral("sdk/") + name}) {
            if (top.exists(candidate)) {
                found.insert(candidate);
            }
        }
    }
    return found;
}

/// Goes on from \p node; \p path is how it was reached.
QStringList Follow(const Graph& graph, const QString& node, QStringList path, QSet<QString>& done)
{
    const int before = path.indexOf(node);
    path.append(node);
    if (before >= 0) {
        return path.mid(before);
    }
    if (done.contains(node)) {
        return {};
    }
    for (const QString& next : graph.value(node)) {
        const QStringList circle = Follow(graph, next, path, done);
        if (!circle.isEmpty()) {
            return circle;
        }
    }
    done.insert(node);
    return {};
}

} // namespace

Graph IncludesOfFiles(const QString& sourceFolder)
{
    const QDir top(sourceFolder);
    Graph graph;
    for (const char* folder : topFolders) {
        QDirIterator files(top.filePath(QLatin1String(folder)), {QStringLiteral("*.h"), QStringLiteral("*.cpp")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = top.relativeFilePath(files.next());
            graph.insert(file, IncludesIn(top, file));
        }
    }
    return graph;
}

QString RoomOf(const QString& file)
{
    const QStringList folders = file.split(QLatin1Char('/')).mid(0, file.count(QLatin1Char('/')));
    return QStringList(folders.mid(0, 2)).join(QLatin1Char('/'));
}

Graph IncludesOfRooms(const Graph& files)
{
    Graph rooms;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        const QString room = RoomOf(file.key());
        QSet<QString>& known = rooms[room];
        for (const QString& included : file.value()) {
            known.insert(RoomOf(included));
        }
        known.remove(room);
    }
    return rooms;
}

QStringList FindCircle(const Graph& graph)
{
    QSet<QString> done;
    for (auto node = graph.cbegin(); node != graph.cend(); ++node) {
        const QStringList circle = Follow(graph, node.key(), {}, done);
        if (!circle.isEmpty()) {
            return circle;
        }
    }
    return {};
}
