#include "tests/support/TestCase.h"
#include "tests/unit/sections/SliderWindow.h"

#include <QHBoxLayout>

#include <limits>

using MV::CMultiLevelSlider;

Q_DECLARE_METATYPE(SliderSetup)
Q_DECLARE_METATYPE(std::vector<int>)

/// The slider's set-up, its values and where they are.
class TestMultiLevelSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void classDeclaresNoSignalsOrSlots();
    void newSliderTracksTheMouseAndTakesTheFocus();
    void initChecksInOrder_data();
    void initChecksInOrder();
    void failedInitChangesNothing();
    void initInstallsOneHorizontalLayout();
    void setValueStaysInTheRange_data();
    void setValueStaysInTheRange();
    void setValueTellsNobodyAndKeepsNoDistance();
    void valueOfAMissingLevelIsTheMinimum();
    void positionFollowsTheValue_data();
    void positionFollowsTheValue();
    void imagesOfTwiceTheResolutionKeepTheirSize();
    void ownerSetsTheSelectedIndex();
};

void TestMultiLevelSlider::classDeclaresNoSignalsOrSlots()
{
    const QMetaObject& meta = CMultiLevelSlider::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("MV::CMultiLevelSlider"));
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void TestMultiLevelSlider::newSliderTracksTheMouseAndTakesTheFocus()
{
    const CMultiLevelSlider slider;
    QVERIFY(slider.hasMouseTracking());
    QCOMPARE(slider.focusPolicy(), Qt::StrongFocus);
    QVERIFY(!slider.layout());
    QCOMPARE(slider.LevelValue(0), 0);
    QCOMPARE(slider.LevelPosition(0), 0);
    QCOMPARE(slider.SelectedIndex(), std::size_t(0));
}

void TestMultiLevelSlider::initChecksInOrder_data()
{
    QTest::addColumn<SliderSetup>("setup");
    QTest::addColumn<quint32>("code");
    const auto row = [](const char* name, quint32 code, auto change) {
        SliderSetup setup;
        change(setup);
        QTest::newRow(name) << setup << code;
    };
    constexpr quint32 invalid = 0x80000003;
    constexpr quint32 noDisabled = 0x80000005;
    using Setup = SliderSetup&;
    row("all given", 0, [](Setup /*unchanged*/) {});
    row("minimum is maximum", invalid, [](Setup s) {
        s.minimum = s.maximum = 0;
        s.levels.clear();
    });
    row("maximum below minimum", invalid, [](Setup s) {
        s.minimum = 11;
        s.levels.clear();
    });
    row("value below the range", invalid, [](Setup s) { s.levels = Levels({-1, 10}); });
    row("value above the range", invalid, [](Setup s) { s.levels = Levels({0, 11}); });
    row("value out of the range, crossing allowed", invalid, [](Setup s) {
        s.allowCross = true;
        s.levels = Levels({11, 0});
    });
    row("equal values", invalid, [](Setup s) { s.levels = Levels({3, 3}); });
    row("equal values, crossing allowed", 0, [](Setup s) {
        s.allowCross = true;
        s.levels = Levels({3, 3});
    });
    row("falling values", invalid, [](Setup s) { s.levels = Levels({1, 5, 4}); });
    row("falling values, crossing allowed", 0, [](Setup s) {
        s.allowCross = true;
        s.levels = Levels({1, 5, 4});
    });
    row("no levels", 0, [](Setup s) { s.levels.clear(); });
    row("no normal image", invalid, [](Setup s) { s.normal.clear(); });
    row("empty normal image", invalid, [](Setup s) { s.normal.reset(new QPixmap); });
    row("empty selected image", invalid, [](Setup s) { s.selected.reset(new QPixmap); });
    row("no selected image", invalid, [](Setup s) { s.selected.clear(); });
    row("selected image not needed", 0, [](Setup s) {
        s.useSelected = false;
        s.selected.clear();
    });
    row("no disabled image", noDisabled, [](Setup s) { s.disabled.clear(); });
    row("empty disabled image", noDisabled, [](Setup s) { s.disabled.reset(new QPixmap); });
    row("no hover image", 0, [](Setup s) { s.hover.clear(); });
    row("disabled image of another size", 0, [](Setup s) { s.disabled = MakeImage(Qt::gray, {9, 9}); });
    row("wider selected image", invalid, [](Setup s) { s.selected = MakeImage(Qt::red, {9, 8}); });
    row("wider selected image, not used", invalid, [](Setup s) {
        s.useSelected = false;
        s.selected = MakeImage(Qt::red, {9, 8});
    });
    row("hover image one pixel taller", invalid, [](Setup s) { s.hover = MakeImage(Qt::cyan, {8, 9}); });
    row("the same size in more pixels", 0, [](Setup s) { s.hover = MakeImage(Qt::cyan, {8, 8}, 2); });
    row("the same pixels in another size", invalid, [](Setup s) { s.hover = MakeImage(Qt::cyan, {4, 4}, 2); });
    row("range before disabled image", invalid, [](Setup s) {
        s.maximum = s.minimum;
        s.disabled.clear();
    });
    row("values before disabled image", invalid, [](Setup s) {
        s.levels = Levels({0, 11});
        s.disabled.clear();
    });
    row("order of values before disabled image", invalid, [](Setup s) {
        s.levels = Levels({3, 3});
        s.disabled.clear();
    });
    row("normal before disabled image", invalid, [](Setup s) {
        s.normal.clear();
        s.disabled.clear();
    });
    row("selected before disabled image", invalid, [](Setup s) {
        s.selected.clear();
        s.disabled.clear();
    });
    row("disabled image before sizes", noDisabled, [](Setup s) {
        s.disabled.clear();
        s.selected = MakeImage(Qt::red, {9, 8});
        s.hover = MakeImage(Qt::cyan, {8, 9});
    });
}

void TestMultiLevelSlider::initChecksInOrder()
{
    QFETCH(SliderSetup, setup);
    QFETCH(quint32, code);
    CMultiLevelSlider slider;
    QCOMPARE(setup.Apply(slider), BF::Result(code));
    QCOMPARE(slider.layout() != nullptr, code == 0);
}

void TestMultiLevelSlider::failedInitChangesNothing()
{
    SliderWindow window;
    const QImage before = window.Picture();
    SliderSetup setup;
    setup.minimum = 2;
    setup.maximum = 4;
    setup.levels = Levels({2, 3, 4});
    setup.normal = MakeImage(Qt::yellow);
    setup.lineColor = Qt::magenta;
    setup.hover = MakeImage(Qt::cyan, {8, 9});
    QCOMPARE(setup.Apply(window.slider), BF::Results::InvalidArgument);
    QCOMPARE(window.Values(3), std::vector<int>({0, 10, 0}));
    QCOMPARE(window.Picture(), before);
}

void TestMultiLevelSlider::initInstallsOneHorizontalLayout()
{
    CMultiLevelSlider slider;
    QCOMPARE(SliderSetup().Apply(slider), BF::Results::Success);
    const auto* layout = qobject_cast<QHBoxLayout*>(slider.layout());
    QVERIFY(layout);
    SliderSetup again;
    again.levels = Levels({4});
    QCOMPARE(again.Apply(slider), BF::Results::Success);
    QCOMPARE(slider.layout(), layout);
    QCOMPARE(slider.LevelValue(0), 4);
}

void TestMultiLevelSlider::setValueStaysInTheRange_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("value");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<std::vector<int>>("values");
    QTest::newRow("inside") << 1 << 7 << 0U << std::vector<int>{0, 7};
    QTest::newRow("above") << 0 << 15 << 0U << std::vector<int>{10, 10};
    QTest::newRow("below") << 1 << -3 << 0U << std::vector<int>{0, 0};
    QTest::newRow("past the end") << 2 << 5 << 0x80000004U << std::vector<int>{0, 10};
}

void TestMultiLevelSlider::setValueStaysInTheRange()
{
    QFETCH(int, index);
    QFETCH(int, value);
    QFETCH(quint32, code);
    SliderWindow window;
    QCOMPARE(window.slider.SetLevelValue(std::size_t(index), value), BF::Result(code));
    QTEST(window.Values(), "values");
}

void TestMultiLevelSlider::setValueTellsNobodyAndKeepsNoDistance()
{
    SliderWindow window;
    QCOMPARE(window.slider.SetLevelValue(0, 10), BF::Results::Success);
    QCOMPARE(window.slider.SetLevelValue(1, 0), BF::Results::Success);
    QCOMPARE(window.Values(), std::vector<int>({10, 0}));
    QCOMPARE(window.Take(), QStringList());
}

void TestMultiLevelSlider::valueOfAMissingLevelIsTheMinimum()
{
    CMultiLevelSlider slider;
    SliderSetup setup;
    setup.minimum = -5;
    QCOMPARE(setup.Apply(slider), BF::Results::Success);
    QCOMPARE(slider.LevelValue(1), 10);
    QCOMPARE(slider.LevelValue(2), -5);
}

void TestMultiLevelSlider::positionFollowsTheValue_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("imageWidth");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("position");
    const auto row = [](const char* name, int width, int imageWidth, int minimum, int maximum, int value,
                        int position) {
        QTest::newRow(name) << width << imageWidth << minimum << maximum << value << position;
    };
    row("left end", 100, 8, 0, 10, 0, 0);
    row("right end", 100, 8, 0, 10, 10, 91);
    row("rounded down", 100, 8, 0, 10, 1, 9);
    row("half rounded up", 100, 8, 0, 10, 5, 46);
    row("rounded up", 100, 8, 0, 10, 9, 82);
    row("odd image", 100, 9, 0, 10, 10, 91);
    row("image of one pixel", 100, 1, 0, 10, 10, 99);
    row("from the minimum on", 100, 8, 10, 20, 20, 91);
    row("negative minimum", 100, 8, -10, 10, 0, 46);
    row("whole range of int", 100, 8, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
        std::numeric_limits<int>::max(), 91);
    row("large numbers stay exact", 100, 8, 100000000, 100000010, 100000005, 46);
    row("room for one pixel", 10, 8, 0, 10, 10, 1);
    row("no room", 9, 8, 0, 10, 10, 0);
    row("narrower than a handle, left end", 4, 8, 0, 10, 0, 0);
    row("narrower than a handle, middle", 4, 8, 0, 10, 5, -3);
    row("narrower than a handle, right end", 4, 8, 0, 10, 10, -5);
    row("one pixel too narrow", 8, 8, 0, 10, 10, -1);
    row("less than half a pixel to the left", 8, 8, 0, 10, 4, 0);
    row("half a pixel to the left", 8, 8, 0, 10, 5, -1);
}

void TestMultiLevelSlider::positionFollowsTheValue()
{
    QFETCH(int, width);
    QFETCH(int, imageWidth);
    SliderSetup setup;
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    setup.minimum = minimum;
    setup.maximum = maximum;
    setup.levels = Levels({value});
    setup.normal = setup.selected = setup.hover = MakeImage(Qt::blue, {imageWidth, 8});
    CMultiLevelSlider slider;
    QCOMPARE(setup.Apply(slider), BF::Results::Success);
    slider.resize(width, 30);
    QTEST(slider.LevelPosition(0), "position");
}

void TestMultiLevelSlider::imagesOfTwiceTheResolutionKeepTheirSize()
{
    SliderSetup setup;
    setup.normal = setup.selected = setup.hover = MakeImage(Qt::blue, {8, 8}, 2);
    CMultiLevelSlider slider;
    QCOMPARE(setup.Apply(slider), BF::Results::Success);
    slider.resize(100, 30);
    QCOMPARE(slider.LevelPosition(1), 91);
}

void TestMultiLevelSlider::ownerSetsTheSelectedIndex()
{
    SliderWindow window;
    window.slider.SetSelectedIndex(1);
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(1));
    QCOMPARE(window.Take(), QStringList());
}

SOFTCLOTH_TEST(TestMultiLevelSlider)
#include "tst_multi_level_slider.moc"
