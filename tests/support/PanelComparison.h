#pragma once

#include <MVPluginQt/Enumerations.h>

#include <QStringList>

namespace Host {
class HostApplication;
}

/// Whether the panel shows what the host holds: every widget of the four sections and of the two dialogs with its value
/// and its enabled state, worked out from the host's scene alone.
namespace PanelComparison {

/// Brings everything to rest that a panel is compared in: nothing plays, nothing is picked, no images are loading; then
/// the selection is announced again, at which the panel reads everything anew, and the material dialog is opened.
void Settle(Host::HostApplication& host);

/// Differences between the panel of an application of kind \p app and the host, a line for each. Parts that were
/// destroyed are not compared. The panel is to be settled.
QStringList Differences(Host::HostApplication& host, MV::ECompatibleApp app);

} // namespace PanelComparison
