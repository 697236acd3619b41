#include "tests/support/TestCase.h"
#include "tests/unit/sections/SliderWindow.h"

#include <QMouseEvent>

using MV::CMultiLevelSlider;

Q_DECLARE_METATYPE(std::vector<int>)

/// The slider's mouse rules but for dragging. Handles are 8 pixels wide on a slider of 100: value 0 is at 0, 5 at
/// 46, 10 at 91.
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
    void selectedHandleIsNotSelectedAgain();
    void pressSelectsWhateverTheOwnerDoesMeanwhile();
    void hoverTakesTheLastHandleUnderTheCursor_data();
    void hoverTakesTheLastHandleUnderTheCursor();
    void hoverFollowsDuringADrag();
    void hoverStaysWhenTheCursorLeaves();
    void moveThatReportsAButtonLeavesTheHover();
    void eventsGoOnToTheParent_data();
    void eventsGoOnToTheParent();
    void sliderWithoutSetupIgnoresTheMouse_data();
    void sliderWithoutSetupIgnoresTheMouse();
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

void TestMultiLevelSliderMouse::selectedHandleIsNotSelectedAgain()
{
    SliderWindow window;
    window.Press(3);
    QCOMPARE(window.Take(), QStringList());
    window.Release(3);
    QCOMPARE(window.Take(), QStringList(QStringLiteral("changed 0")));
}

void TestMultiLevelSliderMouse::pressSelectsWhateverTheOwnerDoesMeanwhile()
{
    SliderWindow window;
    window.slider.selectionChanged = [&window](std::size_t /*index*/) { window.slider.SetSelectedIndex(0); };
    window.Press(95);
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(1));
    window.Release(95);
    QCOMPARE(window.Take(), QStringList(QStringLiteral("changed 1")));
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
        // Both are at one place; drawn apart, the second is the hovered one.
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

SOFTCLOTH_TEST(TestMultiLevelSliderMouse)
#include "tst_multi_level_slider_mouse.moc"
