#pragma once

#include <QPoint>
#include <QStyle>
#include <QWidget>

class QAbstractSpinBox;
class QLineEdit;
class QSlider;

/// What a user does with mouse, wheel and keyboard, where Qt Test has no function of its own for it.
namespace UserInput {

/// Longer than a spin box or a slider waits for a further wheel step.
inline constexpr int longerThanWheelPause = 400;

/// A window with the widgets under test above a line edit that can take the focus away from them.
class Window : public QWidget
{
public:
    Window();

    /// Puts \p widget, which becomes a child, above the line edit.
    void Add(QWidget* widget);
    /// Shows the window and waits until it is the active one.
    bool Activate();
    /// Gives the focus to the line edit.
    void FocusElsewhere();

    QLineEdit* Other() const { return m_other; }

private:
    QLineEdit* m_other;
};

/// Gives the focus to \p widget and says whether it has arrived.
bool Focus(QWidget* widget);

/// Turns the wheel by \p notches over the middle of \p widget, forward when positive.
void Wheel(QWidget* widget, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// The press of \p key and, until it is let go, the repeats that the keyboard sends.
void PressKey(QWidget* widget, Qt::Key key);
void RepeatKey(QWidget* widget, Qt::Key key);
void ReleaseKey(QWidget* widget, Qt::Key key);

/// The middle of an arrow button: QStyle::SC_SpinBoxUp or QStyle::SC_SpinBoxDown.
QPoint ArrowOf(const QAbstractSpinBox* box, QStyle::SubControl arrow);

QRect HandleOf(const QSlider* slider);
/// The point of \p slider where the middle of its handle is at \p value.
QPoint PointOf(const QSlider* slider, int value);

/// Moves the mouse with the left button held.
void DragTo(QWidget* widget, const QPoint& position);

} // namespace UserInput
