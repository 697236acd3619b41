#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

/// What includes what in the product's sources; files by their path from the top of the tree.
using Graph = QMap<QString, QSet<QString>>;

/// The tree's own files that each source and header of the product includes.
Graph IncludesOfFiles(const QString& sourceFolder);

/// The room that a file is in: its folder, at most two levels deep.
QString RoomOf(const QString& file);

/// The rooms that each room's files include, itself left out.
Graph IncludesOfRooms(const Graph& files);

/// One circle in \p graph as the names along it, the first one again at the end; empty when there is none.
QStringList FindCircle(const Graph& graph);
