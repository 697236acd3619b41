#include "BFQtCustomWidgetPluginU/ComboSlider.h"

#include <QHideEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTimerEvent>
#include <QWheelEvent>

namespace {

constexpr int wheelPauseMilliseconds = 300;

} // namespace

ComboSlider::ComboSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setFocusPolicy(Qt::ClickFocus);
}

QRect ComboSlider::HandleRect() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

void ComboSlider::TakeHandleTo(int x)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int handleWidth = HandleRect().width();
    setSliderPosition(QStyle::sliderValueFromPosition(minimum(), maximum(), x - groove.x() - handleWidth / 2,
                                                      groove.width() - handleWidth, option.upsideDown));
}

void ComboSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->buttons() == event->button()) {
        m_button.Press();
    }
    if (event->buttons() != Qt::LeftButton || HandleRect().contains(event->pos())) {
        QSlider::mousePressEvent(event);
        return;
    }
    // A press beside the handle takes it there, and a drag goes on from it.
    TakeHandleTo(event->pos().x());
    QMouseEvent onHandle(event->type(), HandleRect().center(), event->windowPos(), event->screenPos(), event->button(),
                         event->buttons(), event->modifiers());
    QSlider::mousePressEvent(&onHandle);
    event->setAccepted(onHandle.isAccepted());
}

void ComboSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_button.IsDropped()) {
        QSlider::mouseMoveEvent(event);
    }
}

void ComboSlider::mouseReleaseEvent(QMouseEvent* event)
{
    QSlider::mouseReleaseEvent(event);
    if (event->buttons() == Qt::NoButton) {
        m_button.Release();
    }
    EndRun();
}

void ComboSlider::keyPressEvent(QKeyEvent* event)
{
    if (m_key.TakePress(*event)) {
        QSlider::keyPressEvent(event);
    }
}

void ComboSlider::keyReleaseEvent(QKeyEvent* event)
{
    QSlider::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) {
        m_key.Release();
        EndRun();
    }
}

void ComboSlider::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        DropEdit();
    }
    QSlider::changeEvent(event);
}

void ComboSlider::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) {
        DropEdit();
    }
    QSlider::hideEvent(event);
}

void ComboSlider::wheelEvent(QWheelEvent* event)
{
    // A panel is scrolled with the wheel; a slider under the cursor must not change by it.
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    QSlider::wheelEvent(event);
    m_wheelPause.start(wheelPauseMilliseconds, this);
}

void ComboSlider::focusOutEvent(QFocusEvent* event)
{
    QSlider::focusOutEvent(event);
    m_key.Release();
    if (IsTakenAway(*this)) {
        DropEdit();
    } else {
        EndEdit();
    }
}

void ComboSlider::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_wheelPause.timerId()) {
        m_wheelPause.stop();
        EndRun();
        return;
    }
    QSlider::timerEvent(event);
}

void ComboSlider::EndRun()
{
    // A drag goes on until the handle is let go, whatever other buttons and keys do.
    if (!isSliderDown()) {
        EndEdit();
    }
}

void ComboSlider::EndEdit()
{
    m_wheelPause.stop();
    Q_EMIT EditEnded();
}

void ComboSlider::DropEdit()
{
    m_key.Drop();
    m_button.Drop();
    m_wheelPause.stop();
    setSliderDown(false);
    Q_EMIT EditDropped();
}
