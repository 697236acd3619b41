#include "tests/unit/widgets/SpinBoxTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

using UserInput::ArrowOf;
using UserInput::Focus;
using UserInput::PressKey;
using UserInput::ReleaseKey;
using UserInput::RepeatKey;
using UserInput::Wheel;

/// Runs of steps with the arrow keys, the arrow buttons and the wheel.
class TestSpinBoxRuns : public SpinBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void arrowThatCannotStepDoesNotCommitTypedValue_data();
    void arrowThatCannotStepDoesNotCommitTypedValue();
    void heldKeyCommitsOnceAtRelease_data();
    void heldKeyCommitsOnceAtRelease();
    void everyTapOfAnArrowKeyIsCommitted();
    void heldArrowButtonCommitsOnceAtRelease_data();
    void heldArrowButtonCommitsOnceAtRelease();
    void stepsThatCannotStepCommitNothing();
    void wheelRunCommitsOnceAfterThePause();
    void wheelRunCommitsOnceAtFocusLoss();
    void wheelForthAndBackCommitsNothing();
    void textTypedDuringAWheelRunGoesOnWithTheEdit();
    void wheelWithoutFocusScrollsThePanel();
    void valueSetDuringARunIsNotCommitted_data();
    void valueSetDuringARunIsNotCommitted();
    void stepAfterAValueSetDuringARunIsCommitted_data();
    void stepAfterAValueSetDuringARunIsCommitted();
    void settingTheUsersOwnValueKeepsTheEdit();
    void destroyedInTheMiddleOfAWheelRun();
    void destroyedByItsCommit_data();
    void destroyedByItsCommit();
};

namespace {

/// The ways in which a run of steps up is made and ended.
enum class Run
{
    Key,
    Button,
    Wheel,
};

void BeginRun(QAbstractSpinBox* box, Run run)
{
    switch (run) {
    case Run::Key:
        PressKey(box, Qt::Key_Up);
        break;
    case Run::Button:
        QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, ArrowOf(box, QStyle::SC_SpinBoxUp));
        break;
    case Run::Wheel:
        Wheel(box, 1);
        break;
    }
}

void EndRun(QAbstractSpinBox* box, Run run)
{
    switch (run) {
    case Run::Key:
        ReleaseKey(box, Qt::Key_Up);
        break;
    case Run::Button:
        QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, ArrowOf(box, QStyle::SC_SpinBoxUp));
        break;
    case Run::Wheel:
        QTest::qWait(UserInput::longerThanWheelPause);
        break;
    }
}

} // namespace

Q_DECLARE_METATYPE(Run)

void TestSpinBoxRuns::arrowThatCannotStepDoesNotCommitTypedValue_data()
{
    QTest::addColumn<Run>("run");
    QTest::newRow("arrow key") << Run::Key;
    QTest::newRow("arrow button") << Run::Button;
}

void TestSpinBoxRuns::arrowThatCannotStepDoesNotCommitTypedValue()
{
    QFETCH(Run, run);
    Type(QStringLiteral("99"));
    QCOMPARE(Value(), 99.0);
    BeginRun(m_box, run);
    EndRun(m_box, run);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxRuns::heldKeyCommitsOnceAtRelease_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<double>("firstStep");
    QTest::newRow("Up") << Qt::Key_Up << 1.0;
    QTest::newRow("Down") << Qt::Key_Down << -1.0;
    QTest::newRow("PageUp") << Qt::Key_PageUp << 10.0;
    QTest::newRow("PageDown") << Qt::Key_PageDown << -10.0;
}

void TestSpinBoxRuns::heldKeyCommitsOnceAtRelease()
{
    QFETCH(Qt::Key, key);
    QFETCH(double, firstStep);
    SetValue(50);
    PressKey(m_box, key);
    QCOMPARE(Value(), 50 + firstStep);
    for (int i = 0; i < 3; ++i) {
        RepeatKey(m_box, key);
    }
    QTRY_VERIFY(qAbs(Value() - 50) > qAbs(firstStep));
    QCOMPARE(m_commits, 0);

    ReleaseKey(m_box, key);
    QCOMPARE(m_commits, 1);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxRuns::everyTapOfAnArrowKeyIsCommitted()
{
    QTest::keyClick(m_box, Qt::Key_Up);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(Value(), 7.0);
    QCOMPARE(m_commits, 2);
}

void TestSpinBoxRuns::heldArrowButtonCommitsOnceAtRelease_data()
{
    QTest::addColumn<int>("arrow");
    QTest::addColumn<double>("firstStep");
    QTest::newRow("up") << int(QStyle::SC_SpinBoxUp) << 1.0;
    QTest::newRow("down") << int(QStyle::SC_SpinBoxDown) << -1.0;
}

void TestSpinBoxRuns::heldArrowButtonCommitsOnceAtRelease()
{
    QFETCH(int, arrow);
    QFETCH(double, firstStep);
    SetValue(50);
    const QPoint position = ArrowOf(m_box, static_cast<QStyle::SubControl>(arrow));
    QTest::mousePress(m_box, Qt::LeftButton, Qt::NoModifier, position);
    QCOMPARE(Value(), 50 + firstStep);
    QTRY_VERIFY(qAbs(Value() - 50) > qAbs(firstStep));
    QCOMPARE(m_commits, 0);

    QTest::mouseRelease(m_box, Qt::LeftButton, Qt::NoModifier, position);
    QCOMPARE(m_commits, 1);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxRuns::stepsThatCannotStepCommitNothing()
{
    SetValue(99);
    for (const Run run : {Run::Key, Run::Button, Run::Wheel}) {
        BeginRun(m_box, run);
        EndRun(m_box, run);
    }
    QCOMPARE(Value(), 99.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxRuns::wheelRunCommitsOnceAfterThePause()
{
    // Together longer than the pause that ends a run.
    for (int i = 0; i < 4; ++i) {
        Wheel(m_box, 1);
        QTest::qWait(UserInput::longerThanWheelPause / 4);
    }
    QCOMPARE(Value(), 9.0);
    QCOMPARE(m_commits, 0);
    QTRY_COMPARE(m_commits, 1);
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxRuns::wheelRunCommitsOnceAtFocusLoss()
{
    Wheel(m_box, 1);
    Wheel(m_box, 1);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 1);
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxRuns::wheelForthAndBackCommitsNothing()
{
    Wheel(m_box, 1);
    Wheel(m_box, -1);
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxRuns::textTypedDuringAWheelRunGoesOnWithTheEdit()
{
    Wheel(m_box, 1);
    Type(QStringLiteral("1"));
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_commits, 0);
    QTest::keyClicks(m_box, QStringLiteral("2"));
    m_window->FocusElsewhere();
    QCOMPARE(Value(), 12.0);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxRuns::wheelWithoutFocusScrollsThePanel()
{
    auto* area = new QScrollArea;
    auto* panel = new QWidget;
    panel->setFixedSize(200, 2000);
    m_box->setParent(panel);
    m_box->setGeometry(10, 10, 100, 30);
    area->setWidget(panel);
    m_window->Add(area);
    m_box->show();
    QVERIFY(Focus(m_window->Other()));

    Wheel(m_box, -1);
    QVERIFY(area->verticalScrollBar()->value() > 0);
    QVERIFY(m_window->Other()->hasFocus());
    QCOMPARE(Value(), 5.0);
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxRuns::valueSetDuringARunIsNotCommitted_data()
{
    QTest::addColumn<Run>("run");
    QTest::addColumn<bool>("blocked");
    QTest::newRow("arrow key") << Run::Key << false;
    QTest::newRow("arrow key, signals blocked") << Run::Key << true;
    QTest::newRow("arrow button") << Run::Button << false;
    QTest::newRow("arrow button, signals blocked") << Run::Button << true;
    QTest::newRow("wheel") << Run::Wheel << false;
    QTest::newRow("wheel, signals blocked") << Run::Wheel << true;
}

void TestSpinBoxRuns::valueSetDuringARunIsNotCommitted()
{
    QFETCH(Run, run);
    QFETCH(bool, blocked);
    BeginRun(m_box, run);
    QCOMPARE(Value(), 6.0);
    m_box->blockSignals(blocked);
    SetValue(9);
    m_box->blockSignals(false);
    EndRun(m_box, run);
    QCOMPARE(Value(), 9.0);
    QCOMPARE(m_commits, 0);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxRuns::stepAfterAValueSetDuringARunIsCommitted_data()
{
    QTest::addColumn<double>("set");
    QTest::newRow("to another value") << 9.0;
    QTest::newRow("back to where the run began") << 4.0;
}

void TestSpinBoxRuns::stepAfterAValueSetDuringARunIsCommitted()
{
    QFETCH(double, set);
    Wheel(m_box, 1);
    SetValue(set);
    Wheel(m_box, 1);
    m_window->FocusElsewhere();
    QCOMPARE(Value(), set + 1);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxRuns::settingTheUsersOwnValueKeepsTheEdit()
{
    Wheel(m_box, 1);
    SetValue(6);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxRuns::destroyedInTheMiddleOfAWheelRun()
{
    Wheel(m_box, 1);
    delete m_box;
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxRuns::destroyedByItsCommit_data()
{
    QTest::addColumn<Run>("run");
    QTest::newRow("arrow key") << Run::Key;
    QTest::newRow("arrow button") << Run::Button;
    QTest::newRow("wheel") << Run::Wheel;
}

void TestSpinBoxRuns::destroyedByItsCommit()
{
    QFETCH(Run, run);
    OnCommit([this] { delete m_box; });
    BeginRun(m_box, run);
    EndRun(m_box, run);
    QCOMPARE(m_commits, 1);
    QVERIFY(!m_box);
}

SOFTCLOTH_TEST(TestSpinBoxRuns)

#include "tst_spin_box_runs.moc"
