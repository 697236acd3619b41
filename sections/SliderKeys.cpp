#include "sections/SliderKeys.h"

#include "sections/MultiLevelSlider.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <utility>

namespace MV {

namespace {

/// How far a key takes a handle; what it must not overrun is left to the caller.
std::optional<qint64> StepOf(int key, const CSliderKeys::Setup& setup)
{
    const qint64 wholeRange = qint64(setup.maximum) - setup.minimum;
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Left:
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return setup.pageStep;
    case Qt::Key_PageDown:
        return -setup.pageStep;
    case Qt::Key_End:
        return wholeRange;
    case Qt::Key_Home:
        return -wholeRange;
    default:
        return {};
    }
}

} // namespace

CSliderKeys::CSliderKeys(CMultiLevelSlider* slider, Setup setup)
    : QObject(slider)
    , m_slider(slider)
    , m_setup(std::move(setup))
{
    slider->installEventFilter(this);
}

bool CSliderKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (PressKey(*static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
            m_keyDown = false;
        }
        if (m_run && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
            event->accept();
            Commit();
            return true;
        }
        break;
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
            m_slider->SetSelectedIndex(reason == Qt::TabFocusReason ? 0 : m_setup.levels - 1);
        }
        break;
    }
    case QEvent::Hide:
    case QEvent::EnabledChange:
        m_mouseDown = false;
        Drop();
        break;
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress: {
        m_keyDown = false;
        m_mouseDown = event->type() == QEvent::MouseButtonPress;
        const QPointer<CSliderKeys> self(this);
        Commit();
        return !self || QObject::eventFilter(watched, event);
    }
    case QEvent::MouseButtonRelease:
        m_mouseDown = false;
        break;
    case QEvent::Paint:
        // The mark comes on top of what the slider paints.
        watched->event(event);
        PaintFocusMark();
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool CSliderKeys::PressKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
        const bool isBack = event.key() == Qt::Key_Backtab || event.modifiers().testFlag(Qt::ShiftModifier);
        return !event.modifiers().testFlag(Qt::ControlModifier) && GoToNextHandle(!isBack);
    }
    const std::optional<qint64> step = StepOf(event.key(), m_setup);
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!step || !isPlain || m_slider->SelectedIndex() >= m_setup.levels) {
        return false;
    }
    m_keyDown = m_keyDown || !event.isAutoRepeat();
    // A handle that is being dragged stays with the mouse.
    if (!m_mouseDown && m_keyDown) {
        const qint64 wanted = m_slider->LevelValue(m_slider->SelectedIndex()) + *step;
        MoveTo(int(qBound(qint64(m_setup.minimum), wanted, qint64(m_setup.maximum))));
    }
    return true;
}

/// \return false when there is no further handle on that side, and the focus is to leave the slider
bool CSliderKeys::GoToNextHandle(bool forwards)
{
    const std::size_t selected = m_slider->SelectedIndex();
    if (m_mouseDown || (forwards ? selected + 1 >= m_setup.levels : selected == 0)) {
        return false;
    }
    const QPointer<CSliderKeys> self(this);
    Commit();
    if (self) {
        m_slider->SetSelectedIndex(forwards ? selected + 1 : selected - 1);
    }
    return true;
}

void CSliderKeys::MoveTo(int value)
{
    const std::size_t level = m_slider->SelectedIndex();
    const int before = m_slider->LevelValue(level);
    value = KeptInOrder(value);
    if (value == before) {
        return;
    }
    if (!m_run || m_run->level != level) {
        m_run = Run{level, before};
    }
    m_slider->SetLevelValue(level, value);
    m_setup.moved();
}

/// \p value of the selected handle, kept between its neighbours' where there is room.
int CSliderKeys::KeptInOrder(int value) const
{
    const std::size_t level = m_slider->SelectedIndex();
    if (level > 0) {
        const int before = m_slider->LevelValue(level - 1);
        value = before >= value ? qMin(before, m_setup.maximum - 1) + 1 : value;
    }
    if (level + 1 < m_setup.levels) {
        const int after = m_slider->LevelValue(level + 1);
        value = after <= value ? qMax(after, m_setup.minimum + 1) - 1 : value;
    }
    return value;
}

void CSliderKeys::Drop()
{
    m_keyDown = false;
    if (const std::optional<Run> run = std::exchange(m_run, std::nullopt)) {
        m_slider->SetLevelValue(run->level, run->start);
        m_setup.moved();
    }
}

void CSliderKeys::Commit()
{
    const std::optional<Run> run = std::exchange(m_run, std::nullopt);
    if (run && m_slider->isEnabled() && m_slider->isVisible() && m_slider->LevelValue(run->level) != run->start) {
        // A copy: these keys end with the slider.
        const auto committed = m_setup.committed;
        committed();
    }
}

void CSliderKeys::PaintFocusMark() const
{
    if (!m_slider->hasFocus() || m_slider->SelectedIndex() >= m_setup.levels) {
        return;
    }
    // The style's own mark is too faint on a dark ground.
    const QRectF handle = m_slider->HandleRect(m_slider->SelectedIndex());
    const QRectF mark = handle.adjusted(-1.5, -1.5, 1.5, 1.5) & QRectF(m_slider->rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainter painter(m_slider);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(m_slider->palette().color(QPalette::Highlight));
    painter.drawRoundedRect(mark, 2, 2);
}

} // namespace MV
