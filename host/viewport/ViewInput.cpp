#include "host/viewport/ViewInput.h"

#include "host/viewport/Camera.h"

#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>
#include <QWidget>

#include <cmath>

namespace Host {

namespace {

constexpr double pixelsPerStep = 40.0; ///< Of a drag that zooms.
constexpr double stepsPerDoubling = 5.4;

QPointF Middle(const Camera& camera)
{
    return {camera.Size().width() / 2.0, camera.Size().height() / 2.0};
}

/// Zooms by how many times as far apart the fingers are.
void Spread(Camera& camera, double factor, const QPointF& pixel)
{
    if (factor > 0.0) {
        camera.Zoom(std::log2(factor) * stepsPerDoubling, pixel);
    }
}

} // namespace

Drag DragOf(Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::AltModifier)) {
        return button == Qt::LeftButton     ? Drag::Orbit
               : button == Qt::MiddleButton ? Drag::Pan
               : button == Qt::RightButton  ? Drag::Zoom
                                            : Drag::None;
    }
    if (button != Qt::MiddleButton) {
        return Drag::None;
    }
    return modifiers.testFlag(Qt::ShiftModifier)     ? Drag::Pan
           : modifiers.testFlag(Qt::ControlModifier) ? Drag::Zoom
                                                     : Drag::Orbit;
}

void DragCamera(Camera& camera, Drag drag, const QPointF& moved)
{
    switch (drag) {
    case Drag::Orbit:
        camera.Orbit(moved);
        break;
    case Drag::Pan:
        camera.Pan(moved);
        break;
    case Drag::Zoom:
        camera.Zoom((moved.x() - moved.y()) / pixelsPerStep, Middle(camera));
        break;
    case Drag::None:
        break;
    }
}

void WheelCamera(Camera& camera, const QWheelEvent& event)
{
    constexpr double notch = 120.0;
    const bool isTouchPad = !event.pixelDelta().isNull();
    const QPointF moved = isTouchPad ? event.pixelDelta() : event.angleDelta();
    if (!isTouchPad) {
        camera.Zoom(moved.y() / notch, event.position());
    } else if (event.modifiers().testFlag(Qt::ControlModifier)) {
        camera.Zoom(moved.y() / pixelsPerStep, event.position());
    } else {
        DragCamera(camera, event.modifiers().testFlag(Qt::ShiftModifier) ? Drag::Pan : Drag::Orbit, moved);
    }
}

bool TurnCameraByKey(Camera& camera, int key, Qt::KeyboardModifiers modifiers)
{
    constexpr double stride = 25.0; // pixels of a drag
    QPointF moved;
    switch (key) {
    case Qt::Key_Left:
        moved = {-stride, 0.0};
        break;
    case Qt::Key_Right:
        moved = {stride, 0.0};
        break;
    case Qt::Key_Up:
        moved = {0.0, -stride};
        break;
    case Qt::Key_Down:
        moved = {0.0, stride};
        break;
    default:
        return false;
    }
    const Drag drag = modifiers.testFlag(Qt::ShiftModifier)     ? Drag::Pan
                      : modifiers.testFlag(Qt::ControlModifier) ? Drag::Zoom
                                                                : Drag::Orbit;
    DragCamera(camera, drag, moved);
    return true;
}

bool PinchCamera(Camera& camera, QEvent& event)
{
    if (event.type() == QEvent::NativeGesture) {
        const auto& gesture = static_cast<QNativeGestureEvent&>(event);
        if (gesture.gestureType() != Qt::ZoomNativeGesture) {
            return false;
        }
        Spread(camera, 1.0 + gesture.value(), gesture.localPos());
        return true;
    }
    if (event.type() == QEvent::Gesture) {
        auto& gestures = static_cast<QGestureEvent&>(event);
        const auto* pinch = static_cast<const QPinchGesture*>(gestures.gesture(Qt::PinchGesture));
        if (!pinch) {
            return false;
        }
        const QPointF pixel =
            gestures.widget() ? gestures.widget()->mapFromGlobal(pinch->centerPoint().toPoint()) : Middle(camera);
        Spread(camera, pinch->scaleFactor(), pixel);
        gestures.accept(Qt::PinchGesture);
        return true;
    }
    return false;
}

} // namespace Host
