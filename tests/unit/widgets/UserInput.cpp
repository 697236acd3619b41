#include "tests/unit/widgets/UserInput.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace UserInput {

namespace {

QStyleOptionSlider OptionOf(const QSlider* slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.subControls = QStyle::SC_All;
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    return option;
}

} // namespace

Window::Window()
    : m_other(new QLineEdit(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_other);
}

void Window::Add(QWidget* widget)
{
    static_cast<QVBoxLayout*>(layout())->insertWidget(layout()->count() - 1, widget);
}

bool Window::Activate()
{
    show();
    activateWindow();
    return QTest::qWaitForWindowActive(this);
}

void Window::FocusElsewhere()
{
    m_other->setFocus(Qt::TabFocusReason);
}

bool Focus(QWidget* widget)
{
    widget->setFocus(Qt::TabFocusReason);
    return widget->hasFocus();
}

void Wheel(QWidget* widget, int notches, Qt::KeyboardModifiers modifiers)
{
    const QPoint middle = widget->rect().center();
    QWidget* child = widget->childAt(middle);
    QWidget* target = child ? child : widget;
    const QPoint position = target->mapFrom(widget, middle);
    QWheelEvent event(position, target->mapToGlobal(position), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    // As from the window system, so that the wheel also gives the focus where it would.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(target, &event);
}

void PressKey(QWidget* widget, Qt::Key key)
{
    QTest::simulateEvent(widget, true, key, Qt::NoModifier, QString(), false);
}

void RepeatKey(QWidget* widget, Qt::Key key)
{
    QTest::simulateEvent(widget, false, key, Qt::NoModifier, QString(), true);
    QTest::simulateEvent(widget, true, key, Qt::NoModifier, QString(), true);
}

void ReleaseKey(QWidget* widget, Qt::Key key)
{
    QTest::simulateEvent(widget, false, key, Qt::NoModifier, QString(), false);
}

QPoint ArrowOf(const QAbstractSpinBox* box, QStyle::SubControl arrow)
{
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.frame = box->hasFrame();
    option.buttonSymbols = box->buttonSymbols();
    option.subControls = QStyle::SC_All;
    return box->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, box).center();
}

QRect HandleOf(const QSlider* slider)
{
    const QStyleOptionSlider option = OptionOf(slider);
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
}

QPoint PointOf(const QSlider* slider, int value)
{
    QStyleOptionSlider option = OptionOf(slider);
    option.sliderPosition = value;
    option.sliderValue = value;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
}

void DragTo(QWidget* widget, const QPoint& position)
{
    QMouseEvent move(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    qApp->notify(widget, &move);
}

} // namespace UserInput
