#pragma once

#include <QCoreApplication>

namespace Host {

/// Where the sentences about scene files and their limits are translated: SceneText::tr("it is too large").
class SceneText
{
    Q_DECLARE_TR_FUNCTIONS(SceneText)
};

} // namespace Host
