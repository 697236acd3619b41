#pragma once

#include <QStringList>

class QMimeData;

namespace Host {

/// The files that were dropped, if each of them is a model that can be imported or a saved scene; none otherwise.
QStringList DroppedModels(const QMimeData& data);

} // namespace Host
