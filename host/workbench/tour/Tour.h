#pragma once

#include <QString>

namespace Host {

class MainWindow;

/// Runs the main job in \p window as a user would and writes a numbered picture of the window after each step and the
/// call journal into \p folder, which is made when it does not exist.
/// \return true when every step held; what did not is reported on the standard error output
bool RunTour(MainWindow& window, const QString& folder);

} // namespace Host
