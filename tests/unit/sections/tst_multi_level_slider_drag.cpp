#include "tests/support/TestCase.h"
#include "tests/unit/sections/SliderWindow.h"

#include <limits>

Q_DECLARE_METATYPE(std::vector<int>)
Q_DECLARE_METATYPE(std::vector<MV::SliderLevel>)

/// How the slider's handles are dragged. They are 8 pixels wide on a slider of 100: value 0 is at 0, 5 at 46, 10 at
/// 91.
class TestMultiLevelSliderDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void otherButtonLeavesADragAlone();
    void dragFollowsTheCursor_data();
    void dragFollowsTheCursor();
    void dragKeepsTheGripOnTheHandle();
    void dragKeepsItsDistance_data();
    void dragKeepsItsDistance();
    void nearestNeighbourIsAskedFirst_data();
    void nearestNeighbourIsAskedFirst();
    void distanceEndsWhereIntDoes_data();
    void distanceEndsWhereIntDoes();
    void narrowSliderKeepsAWiderDistance_data();
    void narrowSliderKeepsAWiderDistance();
    void dragCountsFromZeroWhateverTheMinimum_data();
    void dragCountsFromZeroWhateverTheMinimum();
    void everyMoveIsTold();
    void dragGoesOnUntilItsEndIsTold();
    void anyReleaseEndsADrag_data();
    void anyReleaseEndsADrag();
    void pressAndReleaseWithoutAMoveIsADrag();
    void releaseWithoutADragTellsNothing();
    void fixedHandleIsSelectedButNotDragged();
    void selectionIsToldBeforeTheDragBegins();
    void dragWithoutRoomKeepsTheValue();
    void disablingEndsADrag();
    void hidingEndsADrag();
};

void TestMultiLevelSliderDrag::otherButtonLeavesADragAlone()
{
    SliderWindow window;
    window.Press(95);
    window.Press(95, 12, Qt::RightButton);
    window.Move(50);
    QCOMPARE(window.Values(), std::vector<int>({0, 5}));
    window.Release(50);
    window.Release(50, 12, Qt::RightButton);
}

void TestMultiLevelSliderDrag::dragFollowsTheCursor_data()
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

void TestMultiLevelSliderDrag::dragFollowsTheCursor()
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

void TestMultiLevelSliderDrag::dragKeepsTheGripOnTheHandle()
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

void TestMultiLevelSliderDrag::dragKeepsItsDistance_data()
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

void TestMultiLevelSliderDrag::dragKeepsItsDistance()
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

void TestMultiLevelSliderDrag::nearestNeighbourIsAskedFirst_data()
{
    QTest::addColumn<std::vector<int>>("set");
    QTest::addColumn<int>("dragged");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    // The distance is 2. Kept to the nearest first, the farther one is no longer overrun.
    QTest::newRow("before") << std::vector<int>{8, 7, 10} << 2 << 4 << 9;
    QTest::newRow("after") << std::vector<int>{0, 3, 2} << 0 << 35 << 1;
}

void TestMultiLevelSliderDrag::nearestNeighbourIsAskedFirst()
{
    QFETCH(std::vector<int>, set);
    QFETCH(int, dragged);
    QFETCH(int, x);
    SliderSetup setup;
    setup.levels = Levels({0, 5, 10});
    SliderWindow window(setup, 40);
    for (std::size_t i = 0; i < set.size(); ++i) {
        window.slider.SetLevelValue(i, set[i]);
    }
    window.Press(window.slider.LevelPosition(std::size_t(dragged)) + 4);
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(dragged));
    window.Move(x);
    window.Release(x);
    QTEST(window.slider.LevelValue(std::size_t(dragged)), "value");
}

void TestMultiLevelSliderDrag::distanceEndsWhereIntDoes_data()
{
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("dragged");
    QTest::addColumn<int>("value");
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    QTest::newRow("above the highest") << highest << 1 << highest;
    QTest::newRow("below the lowest") << lowest << 0 << lowest;
}

void TestMultiLevelSliderDrag::distanceEndsWhereIntDoes()
{
    QFETCH(int, other);
    QFETCH(int, dragged);
    SliderSetup setup;
    setup.minimum = std::numeric_limits<int>::min();
    setup.maximum = std::numeric_limits<int>::max();
    const std::size_t neighbour = dragged == 0 ? 1 : 0;
    setup.levels[neighbour].selectable = false;
    SliderWindow window(setup);
    window.slider.SetLevelValue(neighbour, other);
    window.Press(50);
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(dragged));
    window.Move(60);
    window.Release(60);
    QTEST(window.slider.LevelValue(std::size_t(dragged)), "value");
}

void TestMultiLevelSliderDrag::narrowSliderKeepsAWiderDistance_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("value");
    // The distance of half a handle and a pixel, in values: 5 of the pixels that a handle can move.
    QTest::newRow("1.6 of a value") << 40 << 2;
    QTest::newRow("2.5 of a value") << 29 << 3;
    QTest::newRow("0.1 of a value") << 500 << 1;
    QTest::newRow("five times the range") << 10 << 50;
}

void TestMultiLevelSliderDrag::narrowSliderKeepsAWiderDistance()
{
    QFETCH(int, width);
    SliderWindow window(SliderSetup(), width);
    window.Press(width - 9 + 4);
    window.Move(4);
    window.Release(4);
    QTEST(window.slider.LevelValue(1), "value");
}

void TestMultiLevelSliderDrag::dragCountsFromZeroWhateverTheMinimum_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("right end") << 95 << 10;
    QTest::newRow("middle") << 50 << 5;
    QTest::newRow("left end") << 4 << 0;
}

void TestMultiLevelSliderDrag::dragCountsFromZeroWhateverTheMinimum()
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

void TestMultiLevelSliderDrag::everyMoveIsTold()
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

void TestMultiLevelSliderDrag::dragGoesOnUntilItsEndIsTold()
{
    SliderWindow window;
    window.slider.valueChanged = [&window](std::size_t /*index*/) {
        const QPoint middle(50, 12);
        QMouseEvent move(QEvent::MouseMove, middle, window.slider.mapToGlobal(middle), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&window.slider, &move);
    };
    window.Press(95);
    window.Take();
    window.Release(95);
    QCOMPARE(window.Values(), std::vector<int>({0, 5}));
    QCOMPARE(window.Take(), QStringList(QStringLiteral("changing 1")));
    window.Move(70);
    QCOMPARE(window.Values(), std::vector<int>({0, 5}));
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSliderDrag::anyReleaseEndsADrag_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TestMultiLevelSliderDrag::anyReleaseEndsADrag()
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

void TestMultiLevelSliderDrag::pressAndReleaseWithoutAMoveIsADrag()
{
    SliderWindow window;
    window.Press(95);
    window.Release(95);
    QCOMPARE(window.Take(), QStringList({QStringLiteral("selected 1"), QStringLiteral("changed 1")}));
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
}

void TestMultiLevelSliderDrag::releaseWithoutADragTellsNothing()
{
    SliderWindow window;
    window.Press(50);
    window.Move(60);
    window.Release(60);
    QCOMPARE(window.Take(), QStringList());
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
}

void TestMultiLevelSliderDrag::fixedHandleIsSelectedButNotDragged()
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

void TestMultiLevelSliderDrag::selectionIsToldBeforeTheDragBegins()
{
    SliderWindow window;
    window.slider.selectionChanged = [&window](std::size_t index) { window.slider.SetLevelValue(index, 5); };
    // The grip is taken where the handle is then: 49 pixels left of the cursor.
    window.Press(95);
    window.Move(86);
    QCOMPARE(window.slider.LevelValue(1), 4);
    window.Release(86);
}

void TestMultiLevelSliderDrag::dragWithoutRoomKeepsTheValue()
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

void TestMultiLevelSliderDrag::disablingEndsADrag()
{
    SliderWindow window;
    window.Press(95);
    window.Move(70);
    QVERIFY(window.Values() != std::vector<int>({0, 10}));
    window.setEnabled(false);
    window.Release(95);
    window.setEnabled(true);
    window.Take();
    window.Move(50);
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSliderDrag::hidingEndsADrag()
{
    SliderWindow window;
    window.Press(95);
    window.Move(70);
    QVERIFY(window.Values() != std::vector<int>({0, 10}));
    window.slider.hide();
    window.Release(95);
    window.slider.show();
    window.Take();
    window.Move(50);
    QCOMPARE(window.Values(), std::vector<int>({0, 10}));
    QCOMPARE(window.Take(), QStringList());
}

SOFTCLOTH_TEST(TestMultiLevelSliderDrag)
#include "tst_multi_level_slider_drag.moc"
