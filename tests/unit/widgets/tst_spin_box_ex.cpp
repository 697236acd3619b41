#include "tests/unit/widgets/SpinBoxTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

using UserInput::Focus;

/// Typed edits, values set by the program, and the keys that the box shares with its application.
class TestSpinBoxEx : public SpinBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void returnCommitsTypedValueOnce_data();
    void returnCommitsTypedValueOnce();
    void valueIsInPlaceWhenItIsCommitted();
    void returnWithoutChangeCommitsNothing();
    void returnOnTheOldValueTypedAgainCommitsNothing_data();
    void returnOnTheOldValueTypedAgainCommitsNothing();
    void returnThenFocusLossCommitsOnce_data();
    void returnThenFocusLossCommitsOnce();
    void focusLossCommitsTypedValueOnce_data();
    void focusLossCommitsTypedValueOnce();
    void focusLossWithoutChangeCommitsNothing();
    void openMenuDoesNotEndTheEdit();
    void typingAloneCommitsNothing_data();
    void typingAloneCommitsNothing();
    void pastedValueIsCommittedOnFocusLoss_data();
    void pastedValueIsCommittedOnFocusLoss();
    void setValueNeverCommits_data();
    void setValueNeverCommits();
    void escapeTakesTypedTextBack();
    void escapeBringsTheSpecialValueTextBack();
    void escapeWithNothingToTakeBackReachesTheWindow();
    void undoReachesTheApplication_data();
    void undoReachesTheApplication();
    void undoTakesTypedTextBack_data();
    void undoTakesTypedTextBack();
    void destroyedByItsCommit_data();
    void destroyedByItsCommit();
    void commitThatMovesTheFocusHappensOnce();
};

namespace {

void KeyboardTrackingRows()
{
    QTest::addColumn<bool>("tracking");
    QTest::newRow("keyboard tracking") << true;
    QTest::newRow("no keyboard tracking") << false;
}

/// Counts the presses of one key that a widget gets, its children's unused ones included.
class KeyCounter : public QObject
{
public:
    KeyCounter(QObject* watched, Qt::Key key)
        : m_key(key)
    {
        watched->installEventFilter(this);
    }
    int Count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == m_key) {
            ++m_count;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Qt::Key m_key;
    int m_count = 0;
};

} // namespace

void TestSpinBoxEx::returnCommitsTypedValueOnce_data()
{
    QTest::addColumn<bool>("tracking");
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return, keyboard tracking") << true << Qt::Key_Return;
    QTest::newRow("Return, no keyboard tracking") << false << Qt::Key_Return;
    QTest::newRow("Enter, keyboard tracking") << true << Qt::Key_Enter;
    QTest::newRow("Enter, no keyboard tracking") << false << Qt::Key_Enter;
}

void TestSpinBoxEx::returnCommitsTypedValueOnce()
{
    QFETCH(bool, tracking);
    QFETCH(Qt::Key, key);
    m_box->setKeyboardTracking(tracking);

    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, key);
    QCOMPARE(Value(), 12.0);
    QCOMPARE(m_commits, 1);
    QTest::keyClick(m_box, key);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxEx::valueIsInPlaceWhenItIsCommitted()
{
    m_box->setKeyboardTracking(false);
    double committed = 0;
    OnCommit([this, &committed] { committed = Value(); });
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(committed, 12.0);
}

void TestSpinBoxEx::returnWithoutChangeCommitsNothing()
{
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxEx::returnOnTheOldValueTypedAgainCommitsNothing_data()
{
    KeyboardTrackingRows();
}

void TestSpinBoxEx::returnOnTheOldValueTypedAgainCommitsNothing()
{
    QFETCH(bool, tracking);
    m_box->setKeyboardTracking(tracking);
    Type(QStringLiteral("12"));
    Type(QStringLiteral("5"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxEx::returnThenFocusLossCommitsOnce_data()
{
    KeyboardTrackingRows();
}

void TestSpinBoxEx::returnThenFocusLossCommitsOnce()
{
    QFETCH(bool, tracking);
    m_box->setKeyboardTracking(tracking);
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Return);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxEx::focusLossCommitsTypedValueOnce_data()
{
    QTest::addColumn<bool>("tracking");
    QTest::addColumn<QString>("reason");
    for (const char* reason : {"tab", "click", "window", "disabled", "hidden"}) {
        QTest::addRow("%s, keyboard tracking", reason) << true << QString::fromLatin1(reason);
        QTest::addRow("%s, no keyboard tracking", reason) << false << QString::fromLatin1(reason);
    }
}

void TestSpinBoxEx::focusLossCommitsTypedValueOnce()
{
    QFETCH(bool, tracking);
    QFETCH(QString, reason);
    m_box->setKeyboardTracking(tracking);
    Type(QStringLiteral("12"));

    QWidget otherWindow;
    if (reason == QLatin1String("tab")) {
        QTest::keyClick(m_box, Qt::Key_Tab);
    } else if (reason == QLatin1String("click")) {
        QTest::mouseClick(m_window->Other(), Qt::LeftButton);
    } else if (reason == QLatin1String("window")) {
        otherWindow.show();
        otherWindow.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&otherWindow));
    } else if (reason == QLatin1String("disabled")) {
        m_window->setEnabled(false);
    } else {
        m_box->hide();
    }
    QVERIFY(!m_box->hasFocus());
    QCOMPARE(Value(), 12.0);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxEx::focusLossWithoutChangeCommitsNothing()
{
    m_window->FocusElsewhere();
    QVERIFY(!m_box->hasFocus());
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxEx::openMenuDoesNotEndTheEdit()
{
    Type(QStringLiteral("12"));
    QMenu menu;
    menu.addAction(QStringLiteral("Paste"));
    menu.popup(m_box->mapToGlobal(QPoint(0, 0)));
    QCOMPARE(m_commits, 0);
    menu.close();
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxEx::typingAloneCommitsNothing_data()
{
    KeyboardTrackingRows();
}

void TestSpinBoxEx::typingAloneCommitsNothing()
{
    QFETCH(bool, tracking);
    m_box->setKeyboardTracking(tracking);
    Type(QStringLiteral("12"));
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(Value(), tracking ? 12.0 : 5.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxEx::pastedValueIsCommittedOnFocusLoss_data()
{
    KeyboardTrackingRows();
}

void TestSpinBoxEx::pastedValueIsCommittedOnFocusLoss()
{
    QFETCH(bool, tracking);
    m_box->setKeyboardTracking(tracking);
    QApplication::clipboard()->setText(QStringLiteral("12"));
    m_box->selectAll();
    Edit()->paste();
    m_window->FocusElsewhere();
    QCOMPARE(Value(), 12.0);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxEx::setValueNeverCommits_data()
{
    QTest::addColumn<bool>("blocked");
    QTest::newRow("signals on") << false;
    QTest::newRow("signals blocked") << true;
}

void TestSpinBoxEx::setValueNeverCommits()
{
    QFETCH(bool, blocked);
    {
        const QSignalBlocker blocker(m_box);
        if (!blocked) {
            m_box->blockSignals(false);
        }
        SetValue(9);
    }
    QCOMPARE(m_commits, 0);
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(m_commits, 0);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxEx::escapeTakesTypedTextBack()
{
    m_box->setKeyboardTracking(false);
    const KeyCounter atWindow(m_window.get(), Qt::Key_Escape);
    const QString before = m_box->text();
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(m_box->text(), before);
    QCOMPARE(atWindow.Count(), 0);

    m_window->FocusElsewhere();
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxEx::escapeBringsTheSpecialValueTextBack()
{
    m_box->setKeyboardTracking(false);
    m_box->setSpecialValueText(QStringLiteral("automatic"));
    SetValue(0);
    QCOMPARE(m_box->text(), QStringLiteral("automatic"));
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(m_box->text(), QStringLiteral("automatic"));
}

void TestSpinBoxEx::escapeWithNothingToTakeBackReachesTheWindow()
{
    m_box->setKeyboardTracking(false);
    const KeyCounter atWindow(m_window.get(), Qt::Key_Escape);
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(atWindow.Count(), 1);

    Type(QStringLiteral("12"));
    Type(m_box->property("cleanText").toString());
    QTest::keyClick(m_box, Qt::Key_Escape);
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(atWindow.Count(), 2);
}

void TestSpinBoxEx::undoReachesTheApplication_data()
{
    QTest::addColumn<QKeySequence::StandardKey>("key");
    QTest::addColumn<QString>("before");
    for (const char* before : {"nothing", "step", "set", "Return", "focus away and back", "Escape"}) {
        QTest::addRow("undo after %s", before) << QKeySequence::Undo << QString::fromLatin1(before);
        QTest::addRow("redo after %s", before) << QKeySequence::Redo << QString::fromLatin1(before);
    }
}

void TestSpinBoxEx::undoReachesTheApplication()
{
    QFETCH(QKeySequence::StandardKey, key);
    QFETCH(QString, before);
    m_box->setKeyboardTracking(false);
    int triggered = 0;
    QAction action;
    action.setShortcut(QKeySequence(key));
    connect(&action, &QAction::triggered, this, [&triggered] { ++triggered; });
    m_window->addAction(&action);

    if (before == QLatin1String("step")) {
        QTest::keyClick(m_box, Qt::Key_Up);
    } else if (before == QLatin1String("set")) {
        SetValue(9);
    } else if (before != QLatin1String("nothing")) {
        Type(QStringLiteral("12"));
        if (before == QLatin1String("Return")) {
            QTest::keyClick(m_box, Qt::Key_Return);
        } else if (before == QLatin1String("Escape")) {
            QTest::keyClick(m_box, Qt::Key_Escape);
        } else {
            m_window->FocusElsewhere();
            QVERIFY(Focus(m_box));
        }
    }
    QTest::keySequence(m_box, QKeySequence(key));
    QCOMPARE(triggered, 1);
}

void TestSpinBoxEx::undoTakesTypedTextBack_data()
{
    KeyboardTrackingRows();
}

void TestSpinBoxEx::undoTakesTypedTextBack()
{
    QFETCH(bool, tracking);
    m_box->setKeyboardTracking(tracking);
    int triggered = 0;
    QAction action;
    action.setShortcut(QKeySequence::Undo);
    connect(&action, &QAction::triggered, this, [&triggered] { ++triggered; });
    m_window->addAction(&action);

    const QString before = m_box->text();
    Type(QStringLiteral("12"));
    QTest::keySequence(m_box, QKeySequence::Undo);
    QCOMPARE(triggered, 0);
    QCOMPARE(m_box->text(), before);
    QTest::keySequence(m_box, QKeySequence::Undo);
    QCOMPARE(triggered, 1);
    m_window->FocusElsewhere();
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxEx::destroyedByItsCommit_data()
{
    QTest::addColumn<bool>("byReturn");
    QTest::newRow("Return") << true;
    QTest::newRow("focus loss") << false;
}

void TestSpinBoxEx::destroyedByItsCommit()
{
    QFETCH(bool, byReturn);
    OnCommit([this] { delete m_box; });
    Type(QStringLiteral("12"));
    if (byReturn) {
        QTest::keyClick(m_box, Qt::Key_Return);
    } else {
        m_window->FocusElsewhere();
    }
    QCOMPARE(m_commits, 1);
    QVERIFY(!m_box);
}

void TestSpinBoxEx::commitThatMovesTheFocusHappensOnce()
{
    OnCommit([this] { m_window->FocusElsewhere(); });
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QVERIFY(!m_box->hasFocus());
    QCOMPARE(m_commits, 1);
}

QTEST_MAIN(TestSpinBoxEx)

#include "tst_spin_box_ex.moc"
