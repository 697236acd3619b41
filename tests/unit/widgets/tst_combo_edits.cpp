#include "tests/unit/widgets/ComboTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>

using UserInput::DragTo;
using UserInput::Focus;
using UserInput::HandleOf;
using UserInput::PointOf;
using UserInput::PressKey;
using UserInput::ReleaseKey;
using UserInput::RepeatKey;
using UserInput::Wheel;

/// What the user does with the two halves of a combo spin box.
class TestComboEdits : public ComboTest
{
    Q_OBJECT

private Q_SLOTS:
    void dragTellsEveryChangeAndFinishesOnce();
    void dragForthAndBackFinishesNothing();
    void dragToTheEndsReachesTheRange();
    void pressOnTheHandleAloneChangesNothing();
    void pressBesideTheHandleTakesItThere_data();
    void pressBesideTheHandleTakesItThere();
    void otherMouseButtonsDoNotMoveTheSlider();
    void keyReleasedDuringADragDoesNotFinish();
    void otherButtonReleasedDuringADragDoesNotFinish();

    void heldKeyOnTheSliderFinishesOnce_data();
    void heldKeyOnTheSliderFinishesOnce();
    void wheelRunFinishesOnceAfterThePause_data();
    void wheelRunFinishesOnceAfterThePause();
    void wheelRunFinishesOnceAtFocusLoss_data();
    void wheelRunFinishesOnceAtFocusLoss();
    void wheelWithoutFocusScrollsThePanel_data();
    void wheelWithoutFocusScrollsThePanel();

    void typedValueIsTakenAtReturn();
    void typedValueIsTakenAtFocusLoss();
    void heldKeyInTheSpinBoxFinishesOnce();
    void editThatGoesOnInTheOtherHalfFinishesTwice();

    void destroyedInTheMiddleOfAWheelRun_data();
    void destroyedInTheMiddleOfAWheelRun();
    void destroyedByItsFinish_data();
    void destroyedByItsFinish();
    void windowOfItsOwnIsDestroyedDuringAnEdit();

private:
    QWidget* Half(bool isSlider) const { return isSlider ? static_cast<QWidget*>(Slider()) : Box(); }
};

namespace {

void HalfRows()
{
    QTest::addColumn<bool>("isSlider");
    QTest::newRow("slider") << true;
    QTest::newRow("spin box") << false;
}

} // namespace

void TestComboEdits::dragTellsEveryChangeAndFinishesOnce()
{
    PressHandle();
    for (const int part : {5, 4, 3, 2}) {
        DragTo(Slider(), PointOf(Slider(), Slider()->maximum() / part));
        QCOMPARE(m_changes.last(), Value());
        QCOMPARE(BoxValue(), Value());
    }
    QCOMPARE(m_changes.size(), 4);
    QVERIFY(qAbs(Value() - 50) < 2);
    QCOMPARE(m_finished, 0);

    Release(Away());
    QCOMPARE(m_changes.size(), 4);
    QCOMPARE(m_finished, 1);
    m_window->FocusElsewhere();
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::dragForthAndBackFinishesNothing()
{
    const QPoint start = PointOf(Slider(), Slider()->maximum() / 4);
    QTest::mouseClick(Slider(), Qt::LeftButton, Qt::NoModifier, start);
    const double before = Value();
    QCOMPARE(m_finished, 1);

    PressHandle();
    DragTo(Slider(), Away());
    QVERIFY(Value() > before);
    DragTo(Slider(), HandleOf(Slider()).center() + start - Away());
    Release(start);
    QCOMPARE(Value(), before);
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::dragToTheEndsReachesTheRange()
{
    PressHandle();
    DragTo(Slider(), QPoint(Slider()->width() + 50, 0));
    QCOMPARE(Value(), 100.0);
    DragTo(Slider(), QPoint(-50, 0));
    QCOMPARE(Value(), 0.0);
    Release(QPoint(0, 0));
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::pressOnTheHandleAloneChangesNothing()
{
    PressHandle();
    Release(HandleOf(Slider()).center());
    QVERIFY(m_changes.isEmpty());
    QCOMPARE(m_finished, 0);
}

void TestComboEdits::pressBesideTheHandleTakesItThere_data()
{
    QTest::addColumn<int>("offset");
    QTest::newRow("on the groove") << 0;
    QTest::newRow("above the groove") << -1;
    QTest::newRow("below the groove") << 1;
}

void TestComboEdits::pressBesideTheHandleTakesItThere()
{
    QFETCH(int, offset);
    m_combo->setFixedHeight(60);
    Slider()->setFixedHeight(60);
    QTRY_COMPARE(Slider()->height(), 60);
    const QPoint press = Away() + QPoint(0, 25 * offset);
    QTest::mousePress(Slider(), Qt::LeftButton, Qt::NoModifier, press);
    QVERIFY(qAbs(Value() - 50) < 2);
    QCOMPARE(m_changes.size(), 1);
    QCOMPARE(m_finished, 0);

    const QPoint further = PointOf(Slider(), Slider()->maximum() * 3 / 4);
    DragTo(Slider(), further);
    QVERIFY(qAbs(Value() - 75) < 2);
    Release(further);
    QCOMPARE(m_changes.size(), 2);
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::otherMouseButtonsDoNotMoveTheSlider()
{
    QTest::mouseClick(Slider(), Qt::RightButton, Qt::NoModifier, Away());
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_finished, 0);
}

void TestComboEdits::keyReleasedDuringADragDoesNotFinish()
{
    PressHandle();
    DragTo(Slider(), Away());
    QTest::keyClick(Slider(), Qt::Key_Shift);
    QCOMPARE(m_finished, 0);
    Release(Away());
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::otherButtonReleasedDuringADragDoesNotFinish()
{
    PressHandle();
    DragTo(Slider(), Away());
    QMouseEvent rightRelease(QEvent::MouseButtonRelease, Away(), Qt::RightButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Slider(), &rightRelease);
    QCOMPARE(m_finished, 0);
    Release(Away());
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::heldKeyOnTheSliderFinishesOnce_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<double>("direction");
    QTest::newRow("Right") << Qt::Key_Right << 1.0;
    QTest::newRow("Left") << Qt::Key_Left << -1.0;
    QTest::newRow("Up") << Qt::Key_Up << 1.0;
    QTest::newRow("Down") << Qt::Key_Down << -1.0;
    QTest::newRow("PageUp") << Qt::Key_PageUp << 10.0;
    QTest::newRow("PageDown") << Qt::Key_PageDown << -10.0;
}

void TestComboEdits::heldKeyOnTheSliderFinishesOnce()
{
    QFETCH(Qt::Key, key);
    QFETCH(double, direction);
    SetValue(50);
    m_changes.clear();
    QVERIFY(Focus(Slider()));
    PressKey(Slider(), key);
    RepeatKey(Slider(), key);
    RepeatKey(Slider(), key);
    QCOMPARE(Value(), 50 + 3 * direction);
    QCOMPARE(m_changes, QVector<double>({50 + direction, 50 + 2 * direction, 50 + 3 * direction}));
    QCOMPARE(m_finished, 0);
    ReleaseKey(Slider(), key);
    QCOMPARE(m_finished, 1);
    m_window->FocusElsewhere();
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::wheelRunFinishesOnceAfterThePause_data()
{
    HalfRows();
}

void TestComboEdits::wheelRunFinishesOnceAfterThePause()
{
    QFETCH(bool, isSlider);
    QWidget* half = Half(isSlider);
    QVERIFY(Focus(half));
    // Together longer than the pause that ends a run.
    for (int i = 1; i <= 4; ++i) {
        Wheel(half, 1);
        QCOMPARE(m_changes.size(), i);
        QTest::qWait(UserInput::longerThanWheelPause / 4);
    }
    QVERIFY(Value() > 5);
    QCOMPARE(m_finished, 0);
    QTRY_COMPARE(m_finished, 1);
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::wheelRunFinishesOnceAtFocusLoss_data()
{
    HalfRows();
}

void TestComboEdits::wheelRunFinishesOnceAtFocusLoss()
{
    QFETCH(bool, isSlider);
    QWidget* half = Half(isSlider);
    QVERIFY(Focus(half));
    Wheel(half, 1);
    Wheel(half, 1);
    m_window->FocusElsewhere();
    QCOMPARE(m_finished, 1);
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::wheelWithoutFocusScrollsThePanel_data()
{
    HalfRows();
}

void TestComboEdits::wheelWithoutFocusScrollsThePanel()
{
    QFETCH(bool, isSlider);
    auto* area = new QScrollArea;
    auto* panel = new QWidget;
    panel->setFixedSize(200, 2000);
    m_combo->setParent(panel);
    m_combo->setGeometry(10, 10, 180, 30);
    area->setWidget(panel);
    m_window->Add(area);
    m_combo->show();
    QVERIFY(Focus(m_window->Other()));

    Wheel(Half(isSlider), -1);
    QVERIFY(area->verticalScrollBar()->value() > 0);
    QVERIFY(m_window->Other()->hasFocus());
    QVERIFY(m_changes.isEmpty());
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_finished, 0);
}

void TestComboEdits::typedValueIsTakenAtReturn()
{
    QVERIFY(Focus(Box()));
    Type(QStringLiteral("12"));
    QVERIFY(m_changes.isEmpty());
    QTest::keyClick(Box(), Qt::Key_Return);
    QCOMPARE(m_changes, QVector<double>({12.0}));
    QCOMPARE(m_finished, 1);
    QTest::keyClick(Box(), Qt::Key_Return);
    m_window->FocusElsewhere();
    QCOMPARE(m_changes.size(), 1);
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::typedValueIsTakenAtFocusLoss()
{
    QVERIFY(Focus(Box()));
    Type(QStringLiteral("12"));
    m_window->FocusElsewhere();
    QCOMPARE(m_changes, QVector<double>({12.0}));
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::heldKeyInTheSpinBoxFinishesOnce()
{
    QVERIFY(Focus(Box()));
    PressKey(Box(), Qt::Key_PageUp);
    RepeatKey(Box(), Qt::Key_PageUp);
    QCOMPARE(m_changes, QVector<double>({15.0, 25.0}));
    QCOMPARE(m_finished, 0);
    ReleaseKey(Box(), Qt::Key_PageUp);
    QCOMPARE(m_finished, 1);
}

void TestComboEdits::editThatGoesOnInTheOtherHalfFinishesTwice()
{
    QVERIFY(Focus(Box()));
    Type(QStringLiteral("12"));
    QTest::mousePress(Slider(), Qt::LeftButton, Qt::NoModifier, Away());
    QCOMPARE(m_finished, 1);
    QCOMPARE(m_changes.size(), 2);
    QCOMPARE(m_changes.first(), 12.0);
    Release(Away());
    QCOMPARE(m_finished, 2);
}

void TestComboEdits::destroyedInTheMiddleOfAWheelRun_data()
{
    HalfRows();
}

void TestComboEdits::destroyedInTheMiddleOfAWheelRun()
{
    QFETCH(bool, isSlider);
    QVERIFY(Focus(Half(isSlider)));
    Wheel(Half(isSlider), 1);
    QCOMPARE(m_changes.size(), 1);
    delete m_combo;
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(m_finished, 0);
}

void TestComboEdits::destroyedByItsFinish_data()
{
    QTest::addColumn<QString>("edit");
    for (const char* edit : {"drag", "slider key", "slider wheel", "focus loss", "Return", "spin box wheel"}) {
        QTest::newRow(edit) << QString::fromLatin1(edit);
    }
}

void TestComboEdits::destroyedByItsFinish()
{
    QFETCH(QString, edit);
    OnFinish([this] { delete m_combo; });
    if (edit == QLatin1String("drag")) {
        PressHandle();
        DragTo(Slider(), Away());
        Release(Away());
    } else if (edit == QLatin1String("slider key")) {
        QVERIFY(Focus(Slider()));
        QTest::keyClick(Slider(), Qt::Key_Right);
    } else if (edit.endsWith(QLatin1String("wheel"))) {
        QWidget* half = Half(edit.startsWith(QLatin1String("slider")));
        QVERIFY(Focus(half));
        Wheel(half, 1);
        QTRY_COMPARE(m_finished, 1);
    } else {
        QVERIFY(Focus(Box()));
        Type(QStringLiteral("12"));
        if (edit == QLatin1String("Return")) {
            QTest::keyClick(Box(), Qt::Key_Return);
        } else {
            m_window->FocusElsewhere();
        }
    }
    QCOMPARE(m_finished, 1);
    QVERIFY(!m_combo);
}

void TestComboEdits::windowOfItsOwnIsDestroyedDuringAnEdit()
{
    m_combo->setParent(nullptr);
    m_combo->show();
    m_combo->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_combo));
    QVERIFY(Focus(Box()));
    Type(QStringLiteral("12"));
    delete m_combo;
    QCOMPARE(m_finished, 0);
}

SOFTCLOTH_TEST(TestComboEdits)

#include "tst_combo_edits.moc"
