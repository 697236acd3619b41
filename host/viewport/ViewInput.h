#pragma once

#include <Qt>

class QEvent;
class QPointF;
class QWheelEvent;

namespace Host {

class Camera;

/// What a drag in the view does.
enum class Drag
{
    None,
    Orbit,
    Pan,
    Zoom
};

/// The drag that begins when \p button is pressed. Those of 3D applications, with Alt; the middle button alone does the
/// same where the desktop keeps Alt to itself.
Drag DragOf(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
/// Goes on with a drag, by \p moved pixels.
void DragCamera(Camera& camera, Drag drag, const QPointF& moved);

/// A wheel zooms to the pointer. Two fingers on a touch pad turn, move with Shift, and zoom with Ctrl.
void WheelCamera(Camera& camera, const QWheelEvent& event);
/// The arrow keys turn; with Shift they move, with Ctrl the vertical ones zoom. \return false for other keys
bool TurnCameraByKey(Camera& camera, int key, Qt::KeyboardModifiers modifiers);
/// Two fingers that move apart zoom, on a touch pad or a screen. \return false for what is no such gesture
bool PinchCamera(Camera& camera, QEvent& event);

} // namespace Host
