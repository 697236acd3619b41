#pragma once

#include <QKeyEvent>
#include <QWidget>

/// A key or a mouse button that the user holds on a widget. When the edit is dropped meanwhile, it is to have no effect
/// until it is pressed anew: what the user holds it for is no longer shown.
class HeldInput
{
public:
    void Press() { m_state = State::Held; }
    void Release() { m_state = State::Free; }
    /// The edit that the user makes with it is dropped.
    void Drop()
    {
        if (m_state == State::Held) {
            m_state = State::Dropped;
        }
    }

    /// Whether it is still held after its edit was dropped.
    bool IsDropped() const { return m_state == State::Dropped; }

    /// Takes note of a key press. \return false for the repetition of one that was not made on this widget, or that
    ///         is dropped: it is to be ignored
    bool TakePress(const QKeyEvent& press)
    {
        if (!press.isAutoRepeat()) {
            Press();
        }
        return m_state == State::Held;
    }

private:
    enum class State
    {
        Free,
        Held,
        Dropped,
    };

    State m_state = State::Free;
};

/// Whether \p widget, which loses the focus, is being disabled or hidden: it was not the user who left it.
inline bool IsTakenAway(const QWidget& widget)
{
    const QWidget* window = widget.window();
    return !widget.isEnabled() || window->isHidden() || !widget.isVisibleTo(window);
}
