#pragma once

#include <MVPluginQt/Result.h>

#include <QString>

class CUiComponent;
class QWidget;

namespace MV {

class CMoviraInterface;
class CPluginDialog;

/// Path of \p file inside the panel's resource file.
QString PanelResource(const QString& file);

/// Builds the form \p formName into a section, applies the panel's layout file and sets up \p component.
/// \return 0, 0x80000003 for a null host, or the host SDK's failure
BF::Result BuildPanelForm(const QString& formName, QWidget* target, CUiComponent& component,
                          const QString& resourceBase, CMoviraInterface* host);

/// The same for a dialog, which takes over the form's title.
BF::Result BuildPanelForm(const QString& formName, CPluginDialog* target, CUiComponent& component,
                          const QString& resourceBase, CMoviraInterface* host);

} // namespace MV
