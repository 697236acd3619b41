#include "BFQtCustomWidgetPluginU/ComboSlider.h"

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

void ComboSlider::mousePressEvent(QMouseEvent* event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (event->button() == Qt::LeftButton && !handle.contains(event->pos())) {
        // A press on the groove takes the handle there, and a drag goes on from it.
        const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
        const int span = groove.width() - handle.width();
        const int x = event->pos().x() - groove.x() - handle.width() / 2;
        setSliderPosition(QStyle::sliderValueFromPosition(minimum(), maximum(), x, span, option.upsideDown));
    }
    QSlider::mousePressEvent(event);
}

void ComboSlider::mouseReleaseEvent(QMouseEvent* event)
{
    QSlider::mouseReleaseEvent(event);
    EndEdit();
}

void ComboSlider::keyReleaseEvent(QKeyEvent* event)
{
    QSlider::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) {
        EndEdit();
    }
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
    EndEdit();
}

void ComboSlider::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_wheelPause.timerId()) {
        EndEdit();
        return;
    }
    QSlider::timerEvent(event);
}

void ComboSlider::EndEdit()
{
    m_wheelPause.stop();
    Q_EMIT EditEnded();
}
