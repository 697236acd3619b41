#include "tests/unit/widgets/SpinBoxTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QSignalBlocker>

/// Typed edits and values set by the program.
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
    void destroyedByItsCommit_data();
    void destroyedByItsCommit();
    void commitThatMovesTheFocusHappensOnce();
};

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
    for (const char* reason : {"tab", "click", "window"}) {
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
    } else {
        otherWindow.show();
        otherWindow.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&otherWindow));
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

SOFTCLOTH_TEST(TestSpinBoxEx)

#include "tst_spin_box_ex.moc"
