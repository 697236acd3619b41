#pragma once

#include "BFQtCustomWidgetPluginU/HeldInput.h"

#include <QBasicTimer>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QTimerEvent>
#include <QWheelEvent>

#include <optional>
#include <utility>

/// Adds to QSpinBox or QDoubleSpinBox the notion of a committed edit, which both host spin boxes share.
///
/// An edit begins with the first user event that changes the value and is committed on Return, on loss of focus, when
/// a held arrow key or arrow button is let go, and a moment after the last wheel step. Committed() is called when the
/// value then differs from the one at the beginning. A value set by the program in between starts the edit again: it
/// was not the user's. Without keyboard tracking, Escape takes typed text back that has not become the value yet.
///
/// An edit is dropped by DropCurrentEdit(), and when the box is disabled or hidden: the user did not leave it, so what
/// was typed or stepped counts for nothing, and the box shows the value from before.
template <class SpinBox>
class SpinBoxCommit : public SpinBox
{
public:
    explicit SpinBoxCommit(QWidget* parent)
        : SpinBox(parent)
    {
        this->setFocusPolicy(Qt::StrongFocus);
        // Text that is pasted, dropped or composed passes no key event of the box. The box itself turns text into a
        // value at textChanged, before the second of these.
        const QLineEdit* edit = this->lineEdit();
        QObject::connect(edit, &QLineEdit::textEdited, this, [this] { BeginTextChange(); });
        QObject::connect(edit, &QLineEdit::textChanged, this, [this] { m_textChange.reset(); });
    }

    void stepBy(int steps) override
    {
        if (m_button.IsDropped() || m_key.IsDropped()) {
            return;
        }
        m_stepped = true;
        const UserChange change(*this);
        SpinBox::stepBy(steps);
    }

protected:
    using Value = decltype(std::declval<const SpinBox&>().value());

    /// The user has committed an edit that changed the value.
    virtual void Committed() = 0;
    /// What the user had not committed, if anything, was dropped.
    virtual void Dropped() = 0;

    /// Ends an edit without a commit. The value is silently what it was at the beginning of the edit, unless the
    /// program has set one since. A key or an arrow button that is still held does nothing more.
    void DropCurrentEdit()
    {
        ++m_drops;
        m_key.Drop();
        m_button.Drop();
        m_wheelPause.stop();
        m_stepped = false;
        m_textChange.reset();
        const bool isUsers = m_editing && this->value() == m_lastValue;
        m_editing = false;
        if (isUsers || this->lineEdit()->isModified()) {
            const QSignalBlocker silent(this);
            this->setValue(isUsers ? m_startValue : this->value());
            this->lineEdit()->setModified(false);
        }
        Dropped();
    }

    bool event(QEvent* event) override
    {
        // Undo and redo belong to the application unless there is typed text to take back.
        if (event->type() == QEvent::ShortcutOverride && !this->lineEdit()->isModified()) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
                event->ignore();
                return false;
            }
        }
        return SpinBox::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (IsStepKey(event->key()) && !m_key.TakePress(*event)) {
            event->accept();
            return;
        }
        if (event->key() == Qt::Key_Escape && RevertTypedText()) {
            event->accept();
            return;
        }
        {
            const UserChange change(*this);
            SpinBox::keyPressEvent(event);
        }
        if (isReturn) {
            Commit();
        }
    }

    void keyReleaseEvent(QKeyEvent* event) override
    {
        SpinBox::keyReleaseEvent(event);
        if (event->isAutoRepeat() || !IsStepKey(event->key())) {
            return;
        }
        m_key.Release();
        if (m_stepped) {
            Commit();
        }
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->buttons() == event->button()) {
            m_button.Press();
        }
        SpinBox::mousePressEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        SpinBox::mouseReleaseEvent(event);
        m_button.Release();
        if (m_stepped) {
            Commit();
        }
    }

    void wheelEvent(QWheelEvent* event) override
    {
        // A panel is scrolled with the wheel; a box under the cursor must not change by it.
        if (!this->hasFocus()) {
            event->ignore();
            return;
        }
        {
            const UserChange change(*this);
            SpinBox::wheelEvent(event);
        }
        m_wheelPause.start(wheelPauseMilliseconds, this);
    }

    void timerEvent(QTimerEvent* event) override
    {
        if (event->timerId() == m_wheelPause.timerId()) {
            Commit();
            return;
        }
        SpinBox::timerEvent(event);
    }

    void hideEvent(QHideEvent* event) override
    {
        if (!event->spontaneous()) {
            DropCurrentEdit();
        }
        // Of a window that is minimised: typed text becomes the value, which the loss of focus commits.
        const UserChange change(*this);
        SpinBox::hideEvent(event);
    }

    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::EnabledChange && !this->isEnabled()) {
            DropCurrentEdit();
        }
        SpinBox::changeEvent(event);
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        // A box without the focus may not be told that they are let go.
        m_key.Release();
        m_button.Release();
        if (IsTakenAway(*this)) {
            DropCurrentEdit();
        }
        {
            const UserChange change(*this);
            SpinBox::focusOutEvent(event);
        }
        // The box's own context menu takes the focus only for a while.
        if (event->reason() != Qt::PopupFocusReason) {
            Commit();
        }
    }

private:
    static constexpr int wheelPauseMilliseconds = 300;

    /// Around everything by which the user can change the value.
    class UserChange
    {
    public:
        explicit UserChange(SpinBoxCommit& box)
            : m_box(box)
            , m_drops(box.m_drops)
            , m_before(box.value())
        {
            // A value other than the user's last one was set by the program.
            if (m_box.m_editing && m_before != m_box.m_lastValue) {
                m_box.m_editing = false;
            }
        }
        ~UserChange()
        {
            // Whoever heard of the change may have dropped the edit.
            if (m_box.value() == m_before || m_box.m_drops != m_drops) {
                return;
            }
            if (!m_box.m_editing) {
                m_box.m_editing = true;
                m_box.m_startValue = m_before;
            }
            m_box.m_lastValue = m_box.value();
        }
        Q_DISABLE_COPY_MOVE(UserChange)

    private:
        SpinBoxCommit& m_box;
        int m_drops;
        Value m_before;
    };

    static bool IsStepKey(int key)
    {
        return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    }

    void BeginTextChange()
    {
        // Text typed right after a run of steps goes on with the same edit; the run's end must not commit half a text.
        m_wheelPause.stop();
        m_stepped = false;
        m_textChange.emplace(*this);
    }

    bool RevertTypedText()
    {
        if (!this->lineEdit()->isModified() || this->keyboardTracking()) {
            return false;
        }
        this->setValue(this->value());
        this->lineEdit()->setModified(false);
        this->selectAll();
        return true;
    }

    void Commit()
    {
        m_wheelPause.stop();
        m_stepped = false;
        this->lineEdit()->setModified(false);
        if (!m_editing) {
            return;
        }
        m_editing = false;
        const Value value = this->value();
        if (value == m_lastValue && value != m_startValue) {
            Committed();
        }
    }

    bool m_editing = false; ///< The user has changed the value since the last commit.
    bool m_stepped = false; ///< By an arrow or the wheel, since the last commit.
    Value m_startValue{};
    Value m_lastValue{};
    int m_drops = 0; ///< How many times an edit was dropped.
    HeldInput m_key; ///< One of those that step.
    HeldInput m_button;
    std::optional<UserChange> m_textChange;
    QBasicTimer m_wheelPause;
};
