#include "sections/MultiLevelSlider.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/Children.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QPointer>

using Section = MV::CSoftClothWindSection;
using Slider = MV::CMultiLevelSlider;
using Record = MV::SoftClothWindData;

/// The random factor's two handles, moved by the keyboard.
class TestSliderKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keyMovesTheSelectedHandle_data();
    void keyMovesTheSelectedHandle();
    void runOfKeysWritesOnceAtTheRelease();
    void runThatEndsWhereItBeganWritesNothing();
    void textsFollowTheKeys();
    void otherKeysAreLeftToThePanel_data();
    void otherKeysAreLeftToThePanel();
    void tabGoesFromHandleToHandle();
    void lossOfFocusCommits();
    void whatIsNotCommittedIsDropped_data();
    void whatIsNotCommittedIsDropped();
    void keysDoNothingDuringADrag();
    void pressOfTheMouseCommitsFirst();
    void sliderMayEndInACommit();
    void focusHasAMark();
};

namespace {

/// A shown wind section whose slider has the focus on a handle.
struct WithFocus
{
    explicit WithFocus(std::array<float, 2> factor = {3, 7}, std::size_t selected = 0)
    {
        fixture.Cloth().wind = Record();
        fixture.Cloth().wind.randomFactor = factor;
        section = &fixture.Make<Section>();
        slider = Child<QWidget>(section, "qtRandomFactorWidget")->findChild<Slider*>();
        isReady = section->UpdateUi().IsSuccess() && fixture.Show(*section);
        slider->setFocus(Qt::OtherFocusReason);
        slider->SetSelectedIndex(selected);
        isReady = isReady && slider->hasFocus();
        fixture.TakeCalls();
    }

    QPoint Values() const { return {slider->LevelValue(0), slider->LevelValue(1)}; }
    QPoint Middle(std::size_t index) const { return slider->HandleRect(index).center(); }
    /// The write of these two numbers.
    QStringList Write(float first, float second) const
    {
        Record sent;
        sent.randomFactor = {first, second};
        return {fixture.Call("Edit.SetSoftClothWind", {QStringLiteral("3"), fixture.Text(sent), fixture.Text(false)})};
    }

    SectionFixture fixture;
    Section* section = nullptr;
    QPointer<Slider> slider;
    bool isReady = false;
};

void HoldKey(QWidget* widget, int key)
{
    QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(widget, &again);
}

} // namespace

void TestSliderKeys::keyMovesTheSelectedHandle_data()
{
    QTest::addColumn<QPoint>("before");
    QTest::addColumn<int>("handle");
    QTest::addColumn<int>("key");
    QTest::addColumn<QPoint>("after");
    QTest::newRow("right") << QPoint(3, 7) << 0 << int(Qt::Key_Right) << QPoint(4, 7);
    QTest::newRow("up") << QPoint(3, 7) << 0 << int(Qt::Key_Up) << QPoint(4, 7);
    QTest::newRow("left") << QPoint(3, 7) << 1 << int(Qt::Key_Left) << QPoint(3, 6);
    QTest::newRow("down") << QPoint(3, 7) << 1 << int(Qt::Key_Down) << QPoint(3, 6);
    QTest::newRow("page up") << QPoint(3, 7) << 1 << int(Qt::Key_PageUp) << QPoint(3, 9);
    QTest::newRow("page down") << QPoint(3, 7) << 0 << int(Qt::Key_PageDown) << QPoint(1, 7);
    QTest::newRow("page over the end") << QPoint(3, 9) << 1 << int(Qt::Key_PageUp) << QPoint(3, 10);
    QTest::newRow("page up to the other") << QPoint(6, 7) << 0 << int(Qt::Key_PageUp) << QPoint(6, 7);
    QTest::newRow("home") << QPoint(3, 7) << 0 << int(Qt::Key_Home) << QPoint(0, 7);
    QTest::newRow("home up to the other") << QPoint(3, 7) << 1 << int(Qt::Key_Home) << QPoint(3, 4);
    QTest::newRow("end") << QPoint(3, 7) << 1 << int(Qt::Key_End) << QPoint(3, 10);
    QTest::newRow("end up to the other") << QPoint(3, 7) << 0 << int(Qt::Key_End) << QPoint(6, 7);
    QTest::newRow("equal at the minimum, first") << QPoint(0, 0) << 0 << int(Qt::Key_Right) << QPoint(0, 0);
    QTest::newRow("equal at the minimum, second") << QPoint(0, 0) << 1 << int(Qt::Key_Right) << QPoint(0, 1);
    QTest::newRow("equal at the maximum, second") << QPoint(10, 10) << 1 << int(Qt::Key_Left) << QPoint(10, 10);
    QTest::newRow("in reverse order") << QPoint(8, 3) << 0 << int(Qt::Key_Right) << QPoint(2, 3);
}

void TestSliderKeys::keyMovesTheSelectedHandle()
{
    QFETCH(const QPoint, before);
    QFETCH(const int, handle);
    QFETCH(const int, key);
    QFETCH(const QPoint, after);
    WithFocus shown({float(before.x()), float(before.y())}, std::size_t(handle));
    QVERIFY(shown.isReady);
    QTest::keyClick(shown.slider, Qt::Key(key));
    QCOMPARE(shown.Values(), after);
    QCOMPARE(shown.fixture.TakeCalls(),
             after == before ? QStringList() : shown.Write(float(after.x()), float(after.y())));
}

void TestSliderKeys::runOfKeysWritesOnceAtTheRelease()
{
    WithFocus shown({3, 9});
    QVERIFY(shown.isReady);
    QTest::keyPress(shown.slider, Qt::Key_Right);
    for (int i = 0; i < 3; ++i) {
        HoldKey(shown.slider, Qt::Key_Right);
    }
    QKeyEvent heldOn(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(shown.slider, &heldOn);
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
    QCOMPARE(shown.Values(), QPoint(7, 9));
    QTest::keyRelease(shown.slider, Qt::Key_Right);
    QCOMPARE(shown.fixture.TakeCalls(), shown.Write(7, 9));
    // Nothing is left for later.
    shown.slider->clearFocus();
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
}

void TestSliderKeys::runThatEndsWhereItBeganWritesNothing()
{
    WithFocus shown;
    QVERIFY(shown.isReady);
    QTest::keyPress(shown.slider, Qt::Key_Right);
    QTest::keyPress(shown.slider, Qt::Key_Left);
    QTest::keyRelease(shown.slider, Qt::Key_Left);
    QTest::keyRelease(shown.slider, Qt::Key_Right);
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
}

void TestSliderKeys::textsFollowTheKeys()
{
    WithFocus shown;
    QVERIFY(shown.isReady);
    QTest::keyPress(shown.slider, Qt::Key_Home);
    QCOMPARE(Child<QLabel>(shown.section, "label_12")->text(), QStringLiteral("from 0"));
    QTest::keyRelease(shown.slider, Qt::Key_Home);
}

void TestSliderKeys::otherKeysAreLeftToThePanel_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("undo") << int(Qt::Key_Z) << int(Qt::ControlModifier);
    QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::NoModifier);
    QTest::newRow("Alt and an arrow") << int(Qt::Key_Right) << int(Qt::AltModifier);
    QTest::newRow("Control and Home") << int(Qt::Key_Home) << int(Qt::ControlModifier);
}

void TestSliderKeys::otherKeysAreLeftToThePanel()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    WithFocus shown;
    QVERIFY(shown.isReady);
    QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    press.ignore();
    QVERIFY(!QApplication::sendEvent(shown.slider, &press) || !press.isAccepted());
    QCOMPARE(shown.Values(), QPoint(3, 7));
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
}

void TestSliderKeys::tabGoesFromHandleToHandle()
{
    WithFocus shown;
    QVERIFY(shown.isReady);
    shown.slider->setFocus(Qt::TabFocusReason);
    shown.slider->clearFocus();
    shown.slider->SetSelectedIndex(1);
    shown.slider->setFocus(Qt::TabFocusReason);
    QCOMPARE(shown.slider->SelectedIndex(), std::size_t(0));
    QTest::keyClick(shown.slider, Qt::Key_Tab);
    QCOMPARE(shown.slider->SelectedIndex(), std::size_t(1));
    QVERIFY(shown.slider->hasFocus());
    QTest::keyClick(shown.slider, Qt::Key_Tab);
    QVERIFY(!shown.slider->hasFocus());

    shown.slider->setFocus(Qt::BacktabFocusReason);
    QCOMPARE(shown.slider->SelectedIndex(), std::size_t(1));
    QTest::keyClick(shown.slider, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(shown.slider->SelectedIndex(), std::size_t(0));
    QVERIFY(shown.slider->hasFocus());
    QTest::keyClick(shown.slider, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(!shown.slider->hasFocus());
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
}

void TestSliderKeys::lossOfFocusCommits()
{
    WithFocus shown;
    QVERIFY(shown.isReady);
    QTest::keyPress(shown.slider, Qt::Key_Right);
    shown.slider->clearFocus();
    QCOMPARE(shown.fixture.TakeCalls(), shown.Write(4, 7));
    QTest::keyRelease(shown.slider, Qt::Key_Right);
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
}

void TestSliderKeys::whatIsNotCommittedIsDropped_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("at a refresh with other values") << QStringLiteral("other");
    QTest::newRow("at a refresh with the same values") << QStringLiteral("same");
    QTest::newRow("when the section is disabled") << QStringLiteral("disabled");
    QTest::newRow("when the section is hidden") << QStringLiteral("hidden");
}

void TestSliderKeys::whatIsNotCommittedIsDropped()
{
    QFETCH(const QString, what);
    WithFocus shown;
    QVERIFY(shown.isReady);
    QTest::keyPress(shown.slider, Qt::Key_Right);
    if (what == QLatin1String("disabled")) {
        Child<QGroupBox>(shown.section, "qtSectionGroupBox")->setEnabled(false);
    } else if (what == QLatin1String("hidden")) {
        shown.section->hide();
    } else {
        // The next material may have what the keys have come to.
        shown.fixture.Select(1);
        shown.fixture.Cloth(1).wind.randomFactor = {what == QLatin1String("same") ? 4.0F : 2.0F, 7};
        QVERIFY(shown.section->UpdateUi().IsSuccess());
        shown.fixture.TakeCalls();
    }
    shown.slider->clearFocus();
    QTest::keyRelease(shown.slider, Qt::Key_Right);
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
}

void TestSliderKeys::keysDoNothingDuringADrag()
{
    WithFocus shown;
    QVERIFY(shown.isReady);
    QTest::mousePress(shown.slider, Qt::LeftButton, Qt::NoModifier, shown.Middle(1));
    QTest::keyClick(shown.slider, Qt::Key_Right);
    QTest::keyClick(shown.slider, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(shown.Values(), QPoint(3, 7));
    QCOMPARE(shown.slider->SelectedIndex(), std::size_t(1));
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
    QTest::mouseRelease(shown.slider, Qt::LeftButton, Qt::NoModifier, shown.Middle(1));
    QCOMPARE(shown.fixture.TakeCalls(), shown.Write(3, 7));
}

void TestSliderKeys::pressOfTheMouseCommitsFirst()
{
    WithFocus shown;
    QVERIFY(shown.isReady);
    QTest::keyPress(shown.slider, Qt::Key_Right);
    QTest::mousePress(shown.slider, Qt::LeftButton, Qt::NoModifier, shown.Middle(1));
    QCOMPARE(shown.fixture.TakeCalls(), shown.Write(4, 7));
    QTest::keyRelease(shown.slider, Qt::Key_Right);
    QCOMPARE(shown.fixture.TakeCalls(), QStringList());
    QTest::mouseRelease(shown.slider, Qt::LeftButton, Qt::NoModifier, shown.Middle(1));
}

void TestSliderKeys::sliderMayEndInACommit()
{
    WithFocus shown;
    QVERIFY(shown.isReady);
    During(shown.fixture.host, "SetSoftClothWind", [&] { delete shown.slider; });
    QTest::keyPress(shown.slider, Qt::Key_Right);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier);
    QApplication::sendEvent(shown.slider, &release);
    QVERIFY(!shown.slider);
}

void TestSliderKeys::focusHasAMark()
{
    WithFocus shown({3, 7}, 1);
    QVERIFY(shown.isReady);
    const QImage onSecond = shown.slider->grab().toImage();
    shown.slider->clearFocus();
    const QImage without = shown.slider->grab().toImage();
    const auto differsAt = [&](std::size_t index) {
        const qreal ratio = without.devicePixelRatio();
        const QRect logical = shown.slider->HandleRect(index).adjusted(-3, -3, 3, 3) & shown.slider->rect();
        const QRect area(logical.topLeft() * ratio, logical.size() * ratio);
        return onSecond.copy(area) != without.copy(area);
    };
    QVERIFY(differsAt(1));
    QVERIFY(!differsAt(0));
}

SOFTCLOTH_TEST(TestSliderKeys)
#include "tst_slider_keys.moc"
