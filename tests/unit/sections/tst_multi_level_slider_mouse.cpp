#include "tests/support/TestCase.h"
#include "tests/unit/sections/SliderWindow.h"

#include <QMouseEvent>

using MV::CMultiLevelSlider;
using MV::SliderLevel;

Q_DECLARE_METATYPE(std::vector<int>)
Q_DECLARE_METATYPE(std::vector<MV::SliderLevel>)

/// The slider's mouse rules. Handles are 8 pixels wide on a slider of 100: value 0 stands at 0, 5 at 46, 10 at 91.
class TestMultiLevelSliderMouse : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pressSelectsTheHandleUnderIt_data();
    void pressSelectsTheHandleUnderIt();
    void pressTakesTheLastSelectableOfSeveral_data();
    void pressTakesTheLastSelectableOfSeveral();
    void otherButtonsPressNothing_data();
    void otherButtonsPressNothing();
    void otherButtonLeavesADragAlone();
    void selectedHandleIsNotSelectedAgain();
    void dragFollowsTheCursor_data();
    void dragFollowsTheCursor();
    void dragKeepsTheGripOnTheHandle();
    void dragKeepsItsDistance_data();
    void dragKeepsItsDistance();
    void narrowSliderKeepsAWiderDistance_data();
    void narrowSliderKeepsAWiderDistance();
    void dragCountsFromZeroWhateverTheMinimum_data();
    void dragCountsFromZeroWhateverTheMinimum();
    void everyMoveIsTold();
    void anyReleaseEndsADrag_data();
    void anyReleaseEndsADrag();
    void pressAndReleaseWithoutAMoveIsADrag();
    void releaseWithoutADragTellsNothing();
    void fixedHandleIsSelectedButNotDragged();
    void selectionIsToldBeforeTheDragBegins();
    void hoverTakesTheLastHandleUnderTheCursor_data();
    void hoverTakesTheLastHandleUnderTheCursor();
    void hoverFollowsDuringADrag();
    void hoverStaysWhenTheCursorLeaves();
    void moveThatReportsAButtonLeavesTheHover();
    void eventsGoOnToTheParent_data();
    void eventsGoOnToTheParent();
    void sliderWithoutSetupIgnoresTheMouse_data();
    void sliderWithoutSetupIgnoresTheMouse();
    void dragWithoutRoomKeepsTheValue();
    void disablingEndsADrag();
    void hidingEndsADrag();
    void ownerMayExchangeACallbackInsideIt();
    void ownerMaySetUpAnewInsideACallback();
    void emptyCallbacksArePassedOver();
};

namespace {

/// Which of two handles is drawn as hovered; -1 for neither. The slider must not show its selection.
int Hovered(SliderWindow& window)
{
    const QImage picture = window.Picture();
    for (int i = 0; i < 2; ++i) {
        if (picture.pixelColor(window.slider.LevelPosition(std::size_t(i)) + 7, 15) == QColor(Qt::cyan)) {
            return i;
        }
    }
    return -1;
}

SliderSetup WithoutSelectedImage()
{
    SliderSetup setup;
    setup.useSelected = false;
    return setup;
}

} // namespace

void TestMultiLevelSliderMouse::pressSelectsTheHandleUnderIt_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("hit");
    QTest::newRow("middle") << 95 << 12 << true;
    QTest::newRow("left column") << 91 << 12 << true;
    QTest::newRow("left of it") << 90 << 12 << false;
    QTest::newRow("right column") << 98 << 12 << true;
    QTest::newRow("right of it") << 99 << 12 << false;
    QTest::newRow("top row") << 95 << 8 << true;
    QTest::newRow("above it") << 95 << 7 << false;
    QTest::newRow("bottom row") << 95 << 15 << true;
    QTest::newRow("below it") << 95 << 16 << false;
    QTest::newRow("on the line") << 50 << 5 << false;
}

void TestMultiLevelSliderMouse::pressSelectsTheHandleUnderIt()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(bool, hit);
    SliderWindow window;
    window.Press(x, y);
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(hit ? 1 : 0));
    QCOMPARE(window.Take(), hit ? QStringList(QStringLiteral("selected 1")) : QStringList());
    window.Release(x, y);
    QCOMPARE(window.Take(), hit ? QStringList(QStringLiteral("changed 1")) : QStringList());
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
}

void TestMultiLevelSliderMouse::pressTakesTheLastSelectableOfSeveral_data()
{
    QTest::addColumn<std::vector<int>>("selectable");
    QTest::addColumn<int>("selected");
    QTest::newRow("all") << std::vector<int>{1, 1, 1} << 2;
    QTest::newRow("last not") << std::vector<int>{1, 1, 0} << 1;
    QTest::newRow("only the first") << std::vector<int>{1, 0, 0} << 0;
    QTest::newRow("none") << std::vector<int>{0, 0, 0} << 9;
}

void TestMultiLevelSliderMouse::pressTakesTheLastSelectableOfSeveral()
{
    QFETCH(std::vector<int>, selectable);
    SliderSetup setup;
    setup.allowCross = true;
    setup.levels = Levels({5, 5, 5});
    for (std::size_t i = 0; i < 3; ++i) {
        setup.levels[i].selectable = selectable[i] != 0;
    }
    SliderWindow window(setup);
    window.slider.SetSelectedIndex(9);
    window.Press(50);
    QTEST(int(window.slider.SelectedIndex()), "selected");
    window.Release(50);
}

void TestMultiLevelSliderMouse::otherButtonsPressNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void TestMultiLevelSliderMouse::otherButtonsPressNothing()
{
    QFETCH(int, button);
    SliderWindow window;
    window.Press(95, 12, Qt::MouseButton(button));
    window.Move(50);
    window.Release(50, 12, Qt::MouseButton(button));
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(0));
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSliderMouse::otherButtonLeavesADragAlone()
{
    SliderWindow window;
    window.Press(95);
    window.Press(95, 12, Qt::RightButton);
    window.Move(50);
    QCOMPARE(window.Values(), std::vector<int>({0, 5}));
    window.Release(50);
    window.Release(50, 12, Qt::RightButton);
}

void TestMultiLevelSliderMouse::selectedHandleIsNotSelectedAgain()
{
    SliderWindow window;
    window.Press(3);
    QCOMPARE(window.Take(), QStringList());
    window.Release(3);
    QCOMPARE(window.Take(), QStringList(QStringLiteral("changed 0")));
}

void TestMultiLevelSliderMouse::dragFollowsTheCursor_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("right end") << 95 << 10;
    QTest::newRow("beyond the right end") << 180 << 10;
    QTest::newRow("middle") << 50 << 5;
    QTest::newRow("just below a half") << 44 << 4;
    QTest::newRow("just above a half") << 45 << 5;
    QTest::newRow("left end") << 4 << 0;
    QTest::newRow("beyond the left end") << -80 << 0;
}

void TestMultiLevelSliderMouse::dragFollowsTheCursor()
{
    QFETCH(int, x);
    SliderSetup setup;
    setup.allowCross = true;
    SliderWindow window(setup);
    window.Press(95);
    window.Move(20);
    window.Move(x);
    QTEST(window.slider.LevelValue(1), "value");
    window.Release(x);
    QTEST(window.slider.LevelValue(1), "value");
    QCOMPARE(window.slider.LevelValue(0), 0);
}

void TestMultiLevelSliderMouse::dragKeepsTheGripOnTheHandle()
{
    SliderWindow window;
    // Held by its left column, 4 pixels left of its middle.
    window.Press(91);
    window.Move(91);
    QCOMPARE(window.slider.LevelValue(1), 10);
    window.Move(41);
    QCOMPARE(window.slider.LevelValue(1), 5);
    window.Release(41);
}

void TestMultiLevelSliderMouse::dragKeepsItsDistance_data()
{
    QTest::addColumn<std::vector<MV::SliderLevel>>("levels");
    QTest::addColumn<std::vector<int>>("set");
    QTest::addColumn<int>("dragged");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    const auto row = [](const char* name, const std::vector<MV::SliderLevel>& levels, const std::vector<int>& set,
                        int dragged, int x,
                        int value) { QTest::newRow(name) << levels << set << dragged << x << value; };
    const std::vector<MV::SliderLevel> two = Levels({0, 10});
    const std::vector<MV::SliderLevel> three = Levels({0, 5, 10});
    const std::vector<MV::SliderLevel> four = Levels({0, 3, 6, 10});
    const auto withFree = [](std::vector<MV::SliderLevel> levels, std::size_t index) {
        levels[index].free = true;
        return levels;
    };
    row("down onto the one before", two, {0, 10}, 1, 4, 1);
    row("up onto the one after", two, {0, 10}, 0, 95, 9);
    row("beside it there is no distance to keep", two, {2, 10}, 1, 34, 3);
    row("onto its value", two, {2, 10}, 1, 22, 3);
    row("between two, down", three, {0, 5, 10}, 1, 4, 1);
    row("between two, up", three, {0, 5, 10}, 1, 95, 9);
    row("past two before", four, {0, 3, 6, 10}, 3, 4, 7);
    row("past two after", four, {0, 3, 6, 10}, 0, 95, 2);
    row("free one before is passed", withFree(two, 0), {4, 10}, 1, 4, 0);
    row("free one after is passed", withFree(two, 1), {0, 6}, 0, 95, 10);
    row("behind a free one stands another", withFree(three, 1), {2, 5, 10}, 2, 4, 3);
    row("the dragged one's own freedom does not help", withFree(two, 1), {4, 10}, 1, 4, 5);
    row("out of the range above", two, {10, 10}, 1, 50, 11);
    row("out of the range below", two, {0, 0}, 0, 50, -1);
    row("nearest before has moved, the first still holds", three, {8, 2, 10}, 2, 4, 9);
    row("squeezed: the one after has the last word", three, {7, 5, 4}, 1, 49, 3);
}

void TestMultiLevelSliderMouse::dragKeepsItsDistance()
{
    QFETCH(std::vector<MV::SliderLevel>, levels);
    QFETCH(std::vector<int>, set);
    QFETCH(int, dragged);
    QFETCH(int, x);
    SliderSetup setup;
    setup.levels = levels;
    for (std::size_t i = 0; i < setup.levels.size(); ++i) {
        setup.levels[i].selectable = i == std::size_t(dragged);
    }
    SliderWindow window(setup);
    for (std::size_t i = 0; i < set.size(); ++i) {
        window.slider.SetLevelValue(i, set[i]);
    }
    const int middle = window.slider.LevelPosition(std::size_t(dragged)) + 4;
    window.Press(middle);
    window.Move(x);
    window.Release(x);
    QTEST(window.slider.LevelValue(std::size_t(dragged)), "value");
    for (std::size_t i = 0; i < set.size(); ++i) {
        if (i != std::size_t(dragged)) {
            QCOMPARE(window.slider.LevelValue(i), set[i]);
        }
    }
}

void TestMultiLevelSliderMouse::narrowSliderKeepsAWiderDistance_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("value");
    // The distance of half a handle and a pixel, in values: 5 of the pixels that a handle can move.
    QTest::newRow("1.6 of a value") << 40 << 2;
    QTest::newRow("2.5 of a value") << 29 << 3;
    QTest::newRow("0.1 of a value") << 500 << 1;
    QTest::newRow("five times the range") << 10 << 50;
}

void TestMultiLevelSliderMouse::narrowSliderKeepsAWiderDistance()
{
    QFETCH(int, width);
    SliderWindow window(SliderSetup(), width);
    window.Press(width - 9 + 4);
    window.Move(4);
    window.Release(4);
    QTEST(window.slider.LevelValue(1), "value");
}

void TestMultiLevelSliderMouse::dragCountsFromZeroWhateverTheMinimum_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("right end") << 95 << 10;
    QTest::newRow("middle") << 50 << 5;
    QTest::newRow("left end") << 4 << 0;
}

void TestMultiLevelSliderMouse::dragCountsFromZeroWhateverTheMinimum()
{
    QFETCH(int, x);
    SliderSetup setup;
    setup.minimum = 20;
    setup.maximum = 30;
    setup.levels = Levels({30});
    SliderWindow window(setup);
    window.Press(95);
    window.Move(20);
    window.Move(x);
    window.Release(x);
    QTEST(window.slider.LevelValue(0), "value");
}

void TestMultiLevelSliderMouse::everyMoveIsTold()
{
    SliderWindow window;
    window.Press(95);
    window.Take();
    window.Move(60);
    // Told though the value stays.
    window.Move(61);
    window.Move(50);
    QCOMPARE(window.Take(),
             QStringList({QStringLiteral("changing 1"), QStringLiteral("changing 1"), QStringLiteral("changing 1")}));
    window.Release(50);
    QCOMPARE(window.Take(), QStringList(QStringLiteral("changed 1")));
    window.Move(20);
    QCOMPARE(window.Take(), QStringList());
    QCOMPARE(window.Values(), std::vector<int>({0, 5}));
}

void TestMultiLevelSliderMouse::anyReleaseEndsADrag_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TestMultiLevelSliderMouse::anyReleaseEndsADrag()
{
    QFETCH(int, button);
    SliderWindow window;
    window.Press(95);
    if (button != Qt::LeftButton) {
        window.Press(95, 12, Qt::MouseButton(button));
    }
    window.Move(50);
    window.Take();
    window.Release(50, 12, Qt::MouseButton(button));
    QCOMPARE(window.Take(), QStringList(QStringLiteral("changed 1")));
    window.Move(70);
    QCOMPARE(window.Values(), std::vector<int>({0, 5}));
    window.Release(70);
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSliderMouse::pressAndReleaseWithoutAMoveIsADrag()
{
    SliderWindow window;
    window.Press(95);
    window.Release(95);
    QCOMPARE(window.Take(), QStringList({QStringLiteral("selected 1"), QStringLiteral("changed 1")}));
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
}

void TestMultiLevelSliderMouse::releaseWithoutADragTellsNothing()
{
    SliderWindow window;
    window.Press(50);
    window.Move(60);
    window.Release(60);
    QCOMPARE(window.Take(), QStringList());
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
}

void TestMultiLevelSliderMouse::fixedHandleIsSelectedButNotDragged()
{
    SliderSetup setup;
    setup.levels[1].fixed = true;
    SliderWindow window(setup);
    window.Press(95);
    window.Move(50);
    window.Release(50);
    QCOMPARE(window.Take(), QStringList(QStringLiteral("selected 1")));
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
}

void TestMultiLevelSliderMouse::selectionIsToldBeforeTheDragBegins()
{
    SliderWindow window;
    window.slider.selectionChanged = [&window](std::size_t index) { window.slider.SetLevelValue(index, 5); };
    // The grip is taken where the handle stands then: 49 pixels left of the cursor.
    window.Press(95);
    window.Move(86);
    QCOMPARE(window.slider.LevelValue(1), 4);
    window.Release(86);
}

void TestMultiLevelSliderMouse::hoverTakesTheLastHandleUnderTheCursor_data()
{
    QTest::addColumn<std::vector<int>>("values");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("hovered");
    QTest::newRow("first") << std::vector<int>{0, 10} << 3 << 12 << 0;
    QTest::newRow("second") << std::vector<int>{0, 10} << 95 << 12 << 1;
    QTest::newRow("between") << std::vector<int>{0, 10} << 50 << 12 << -1;
    QTest::newRow("above") << std::vector<int>{0, 10} << 95 << 7 << -1;
    QTest::newRow("both") << std::vector<int>{5, 5} << 50 << 12 << 1;
}

void TestMultiLevelSliderMouse::hoverTakesTheLastHandleUnderTheCursor()
{
    QFETCH(std::vector<int>, values);
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(int, hovered);
    SliderSetup setup = WithoutSelectedImage();
    setup.allowCross = true;
    setup.levels = Levels(values);
    // Hovering does not ask whether a handle can be selected.
    setup.levels[1].selectable = false;
    SliderWindow window(setup);
    window.Move(x, y);
    const bool overlap = values[0] == values[1];
    QCOMPARE(Hovered(window), overlap ? 0 : hovered);
    if (overlap) {
        // Both stand at one place; drawn apart, the second is the hovered one.
        window.slider.SetLevelValue(0, 0);
        QCOMPARE(Hovered(window), hovered);
    }
}

void TestMultiLevelSliderMouse::hoverFollowsDuringADrag()
{
    SliderWindow window(WithoutSelectedImage());
    window.Press(95);
    window.Move(50);
    QCOMPARE(Hovered(window), 1);
    window.Move(-20);
    QCOMPARE(Hovered(window), -1);
    window.Release(-20);
}

void TestMultiLevelSliderMouse::hoverStaysWhenTheCursorLeaves()
{
    SliderWindow window(WithoutSelectedImage());
    window.Move(95);
    window.Move(95, 60);
    QCOMPARE(Hovered(window), 1);
}

void TestMultiLevelSliderMouse::moveThatReportsAButtonLeavesTheHover()
{
    SliderWindow window(WithoutSelectedImage());
    window.Move(95);
    const QPoint between(50, 12);
    QMouseEvent move(QEvent::MouseMove, between, window.slider.mapToGlobal(between), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&window.slider, &move);
    QCOMPARE(Hovered(window), 1);
}

void TestMultiLevelSliderMouse::eventsGoOnToTheParent_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("button");
    QTest::newRow("press") << int(QEvent::MouseButtonPress) << int(Qt::LeftButton);
    QTest::newRow("press of another button") << int(QEvent::MouseButtonPress) << int(Qt::RightButton);
    QTest::newRow("move") << int(QEvent::MouseMove) << int(Qt::NoButton);
    QTest::newRow("release") << int(QEvent::MouseButtonRelease) << int(Qt::LeftButton);
}

void TestMultiLevelSliderMouse::eventsGoOnToTheParent()
{
    QFETCH(int, type);
    QFETCH(int, button);
    for (const QPoint& position : {QPoint(95, 12), QPoint(50, 12)}) {
        SliderWindow window;
        QMouseEvent event(QEvent::Type(type), position, window.slider.mapToGlobal(position), Qt::MouseButton(button),
                          Qt::MouseButton(button), Qt::NoModifier);
        // The base class lets an event pass by not accepting it.
        static_cast<QObject&>(window.slider).event(&event);
        QVERIFY(!event.isAccepted());
    }
}

void TestMultiLevelSliderMouse::sliderWithoutSetupIgnoresTheMouse_data()
{
    QTest::addColumn<bool>("tried");
    QTest::newRow("before a set-up") << false;
    QTest::newRow("after a failed one") << true;
}

void TestMultiLevelSliderMouse::sliderWithoutSetupIgnoresTheMouse()
{
    QFETCH(bool, tried);
    CMultiLevelSlider slider;
    if (tried) {
        SliderSetup setup;
        setup.disabled.clear();
        QCOMPARE(setup.Apply(slider), BF::Results::MissingDisabledPixmap);
    }
    int told = 0;
    slider.valueChanged = slider.valueChanging = slider.selectionChanged = [&told](std::size_t /*index*/) { ++told; };
    slider.resize(100, 30);
    slider.show();
    QTest::mouseMove(slider.windowHandle(), QPoint(3, 12));
    QTest::mousePress(slider.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 12));
    QTest::mouseMove(slider.windowHandle(), QPoint(50, 12));
    QTest::mouseRelease(slider.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 12));
    QCOMPARE(told, 0);
    QCOMPARE(slider.SetLevelValue(0, 1), BF::Results::IndexOutOfRange);
}

void TestMultiLevelSliderMouse::dragWithoutRoomKeepsTheValue()
{
    for (const int width : {9, 4}) {
        SliderWindow window(SliderSetup(), width);
        window.Press(2);
        window.Move(-30);
        window.Move(60);
        window.Release(60);
        QCOMPARE(window.Values(), std::vector<int>({0, 10}));
        QCOMPARE(window.Take(), QStringList({QStringLiteral("selected 1"), QStringLiteral("changed 1")}));
    }
}

void TestMultiLevelSliderMouse::disablingEndsADrag()
{
    SliderWindow window;
    window.Press(95);
    window.setEnabled(false);
    window.Release(95);
    window.setEnabled(true);
    window.Take();
    window.Move(50);
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSliderMouse::hidingEndsADrag()
{
    SliderWindow window;
    window.Press(95);
    window.slider.hide();
    window.Release(95);
    window.slider.show();
    window.Take();
    window.Move(50);
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSliderMouse::ownerMayExchangeACallbackInsideIt()
{
    SliderWindow window;
    int first = 0;
    int second = 0;
    window.slider.valueChanged = [&, large = std::vector<int>(100, 7)](std::size_t /*index*/) {
        window.slider.valueChanged = [&second](std::size_t /*index*/) { ++second; };
        first += large.back();
    };
    window.Press(95);
    window.Release(95);
    window.Press(95);
    window.Release(95);
    QCOMPARE(first, 7);
    QCOMPARE(second, 1);
}

void TestMultiLevelSliderMouse::ownerMaySetUpAnewInsideACallback()
{
    SliderWindow window;
    window.slider.selectionChanged = [&window](std::size_t /*index*/) {
        SliderSetup setup;
        setup.levels = Levels({3});
        QCOMPARE(setup.Apply(window.slider), BF::Results::Success);
    };
    window.Press(95);
    window.Move(50);
    window.Release(50);
    QCOMPARE(window.Values(1), std::vector<int>({3}));
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSliderMouse::emptyCallbacksArePassedOver()
{
    SliderWindow window;
    window.slider.valueChanged = nullptr;
    window.slider.valueChanging = nullptr;
    window.slider.selectionChanged = nullptr;
    window.Press(95);
    window.Move(50);
    window.Release(50);
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(1));
    QCOMPARE(window.Values(), std::vector<int>({0, 5}));
}

QTEST_MAIN(TestMultiLevelSliderMouse)
#include "tst_multi_level_slider_mouse.moc"
