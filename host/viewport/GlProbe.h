#pragma once

#include <QSurfaceFormat>

namespace Host {

/// What the view needs: OpenGL 3.3, core profile.
QSurfaceFormat ViewportFormat();

/// Whether this display offers that. Where it does not, a widget with OpenGL in it would break its whole window.
bool HasViewportGl();

} // namespace Host
