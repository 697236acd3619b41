#pragma once

#include <QObject>

#include <cstddef>
#include <functional>
#include <optional>

class QKeyEvent;

namespace MV {

class CMultiLevelSlider;

/// Moves the handles of a multi-level slider, which takes no keys itself, by the keyboard: arrow and page keys step the
/// selected handle, Home and End take it as far as it goes, Tab goes from handle to handle before it leaves the slider.
/// The handles keep their order. While the slider has the focus, the selected handle has a mark.
///
/// An edit is committed when the key is let go, at the loss of the focus and before a drag. One that was not, when the
/// slider is hidden or disabled or when the owner calls Drop(), is dropped: the handle is back where it was, and a key
/// that is still held does nothing more.
class CSliderKeys : public QObject
{
    Q_OBJECT

public:
    /// What the slider does not say of itself.
    struct Setup
    {
        std::size_t levels = 0;
        int minimum = 0;
        int maximum = 0;
        int pageStep = 1;
        std::function<void()> moved;     ///< A key has moved a handle.
        std::function<void()> committed; ///< An edit that changed a value has ended; may end the slider.
    };

    /// \param slider  set up already; owns the keys
    CSliderKeys(CMultiLevelSlider* slider, Setup setup);

    /// Drops an edit that was not committed.
    void Drop();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// An edit under way.
    struct Run
    {
        std::size_t level = 0;
        int start = 0;
    };

    /// \return whether the key was one of the slider's
    bool PressKey(const QKeyEvent& event);
    bool GoToNextHandle(bool forwards);
    void MoveTo(int value);
    int KeptInOrder(int value) const;
    void Commit();
    void PaintFocusMark() const;

    CMultiLevelSlider* m_slider;
    Setup m_setup;
    std::optional<Run> m_run;
    bool m_keyDown = false; ///< One of the keys that step was pressed here, and the edit with it not dropped.
    bool m_mouseDown = false;
};

} // namespace MV
