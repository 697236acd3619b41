#pragma once

class QApplication;

namespace Host {

/// Gives the application the dark neutral look that 3D applications have.
void ApplyWorkbenchStyle(QApplication& application);

} // namespace Host
