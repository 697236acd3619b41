#include "tests/support/TestCase.h"
#include "tests/unit/sections/SliderWindow.h"

#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>

#include <functional>

using MV::CMultiLevelSlider;

/// What a user or the slider's owner does.
using Change = std::function<void(SliderWindow&)>;
Q_DECLARE_METATYPE(Change)

/// What the slider draws, pixel by pixel.
class TestMultiLevelSliderPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stateChoosesTheImages_data();
    void stateChoosesTheImages();
    void ownImageReplacesAllStates_data();
    void ownImageReplacesAllStates();
    void missingHoverImageShowsTheNormalOne();
    void laterHandleLiesOnTop();
    void ownHeightMovesTheImageOnly();
    void missingRoomPutsHandlesToTheLeft_data();
    void missingRoomPutsHandlesToTheLeft();
    void nothingIsDrawnBeforeInit();
    void nothingIsDrawnAfterAFailedInit();
    void doubleResolutionIsDrawnPixelByPixel();
    void labelStandsBesideItsHandle();
    void paintingALabelComesToAnEnd();
    void everyChangeIsPainted_data();
    void everyChangeIsPainted();
};

namespace {

const QColor lineColor(10, 200, 30);
const QColor disabledLineColor(70, 70, 70);

/// The expected picture, built without a painter.
class Canvas
{
public:
    explicit Canvas(int width, int height = 30)
        : m_image(width, height, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.fill(Qt::transparent);
    }

    Canvas& Row(int left, int right, int y, const QColor& color)
    {
        for (int x = qMax(left, 0); x <= qMin(right, m_image.width() - 1); ++x) {
            m_image.setPixelColor(x, y, color);
        }
        return *this;
    }

    Canvas& Image(int left, int top, const QPixmap& pixmap)
    {
        const QImage image = pixmap.toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (m_image.rect().contains(left + x, top + y)) {
                    m_image.setPixelColor(left + x, top + y, image.pixelColor(x, y));
                }
            }
        }
        return *this;
    }

    const QImage& Result() const { return m_image; }

private:
    QImage m_image;
};

/// Compares pixel by pixel and names the first that differs.
void Compare(const QImage& actual, const QImage& expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            QVERIFY2(actual.pixel(x, y) == expected.pixel(x, y),
                     qPrintable(QStringLiteral("pixel %1, %2 is %3 instead of %4")
                                    .arg(x)
                                    .arg(y)
                                    .arg(actual.pixelColor(x, y).name(QColor::HexArgb),
                                         expected.pixelColor(x, y).name(QColor::HexArgb))));
        }
    }
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& widget)
        : m_widget(widget)
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    /// Waits until the window is shown and nothing is painted any more, and counts from there.
    bool CameToRest()
    {
        if (!QTest::qWaitForWindowExposed(m_widget.window())) {
            return false;
        }
        for (int i = 0; i < 60; ++i) {
            Forget();
            QTest::qWait(50);
            if (m_count == 0) {
                return true;
            }
        }
        return false;
    }

    int Count() const { return m_count; }
    void Forget() { m_count = 0; }

private:
    QWidget& m_widget;
    int m_count = 0;
};

/// Sends the slider a mouse event of its own at \p x, in the middle of the handles.
void Send(SliderWindow& window, QEvent::Type type, int x, Qt::MouseButton button)
{
    const QPoint position(x, 12);
    QMouseEvent event(type, position, window.slider.mapToGlobal(position), button, button, Qt::NoModifier);
    QApplication::sendEvent(&window.slider, &event);
}

const QColor normal = Qt::blue;
const QColor selected = Qt::red;
const QColor hover = Qt::cyan;
const QColor disabled = Qt::darkGray;

} // namespace

void TestMultiLevelSliderPainting::stateChoosesTheImages_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("useSelected");
    QTest::addColumn<int>("selectedIndex");
    QTest::addColumn<int>("hoverAt");
    QTest::addColumn<QColor>("first");
    QTest::addColumn<QColor>("second");
    QTest::newRow("first selected") << true << true << 0 << 50 << selected << normal;
    QTest::newRow("second selected") << true << true << 1 << 50 << normal << selected;
    QTest::newRow("none selected") << true << true << 7 << 50 << normal << normal;
    QTest::newRow("selection not shown") << true << false << 0 << 50 << normal << normal;
    QTest::newRow("hover") << true << true << 0 << 95 << selected << hover;
    QTest::newRow("selected wins over hover") << true << true << 1 << 95 << normal << selected;
    QTest::newRow("hover where the selection is not shown") << true << false << 0 << 3 << hover << normal;
    QTest::newRow("disabled") << false << true << 0 << 50 << disabled << disabled;
    QTest::newRow("disabled wins over hover") << false << true << 0 << 95 << disabled << disabled;
}

void TestMultiLevelSliderPainting::stateChoosesTheImages()
{
    QFETCH(bool, enabled);
    QFETCH(bool, useSelected);
    QFETCH(int, selectedIndex);
    QFETCH(int, hoverAt);
    QFETCH(QColor, first);
    QFETCH(QColor, second);
    SliderSetup setup;
    setup.useSelected = useSelected;
    SliderWindow window(setup);
    window.slider.SetSelectedIndex(std::size_t(selectedIndex));
    window.Move(hoverAt);
    window.slider.setEnabled(enabled);

    Canvas expected(100);
    expected.Row(4, 95, 5, enabled ? lineColor : disabledLineColor);
    expected.Image(0, 8, MakePixmap(first)).Image(91, 8, MakePixmap(second));
    Compare(window.Picture(), expected.Result());
}

void TestMultiLevelSliderPainting::ownImageReplacesAllStates_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("selectedIndex");
    QTest::addColumn<int>("hoverAt");
    QTest::newRow("normal") << true << 0 << 50;
    QTest::newRow("selected") << true << 1 << 50;
    QTest::newRow("hover") << true << 0 << 95;
    QTest::newRow("disabled") << false << 0 << 50;
}

void TestMultiLevelSliderPainting::ownImageReplacesAllStates()
{
    QFETCH(bool, enabled);
    QFETCH(int, selectedIndex);
    QFETCH(int, hoverAt);
    const QPixmap own = MakePixmap(Qt::yellow, {5, 12});
    SliderSetup setup;
    setup.useSelected = false;
    setup.levels[1].pixmap = &own;
    SliderWindow window(setup);
    window.slider.SetSelectedIndex(std::size_t(selectedIndex));
    window.Move(hoverAt);
    window.slider.setEnabled(enabled);

    Canvas expected(100);
    expected.Row(4, 95, 5, enabled ? lineColor : disabledLineColor);
    expected.Image(0, 8, MakePixmap(enabled ? normal : disabled)).Image(91, 8, own);
    Compare(window.Picture(), expected.Result());
}

void TestMultiLevelSliderPainting::missingHoverImageShowsTheNormalOne()
{
    SliderSetup setup;
    setup.hover.clear();
    SliderWindow window(setup);
    window.Move(95);
    Canvas expected(100);
    expected.Row(4, 95, 5, lineColor);
    expected.Image(0, 8, MakePixmap(selected)).Image(91, 8, MakePixmap(normal));
    Compare(window.Picture(), expected.Result());
}

void TestMultiLevelSliderPainting::laterHandleLiesOnTop()
{
    SliderSetup setup;
    setup.allowCross = true;
    setup.levels = Levels({5, 5, 4});
    SliderWindow window(setup);
    Canvas expected(100);
    expected.Row(4, 95, 5, lineColor);
    expected.Image(46, 8, MakePixmap(selected)).Image(46, 8, MakePixmap(normal)).Image(36, 8, MakePixmap(normal));
    Compare(window.Picture(), expected.Result());
}

void TestMultiLevelSliderPainting::ownHeightMovesTheImageOnly()
{
    SliderSetup setup;
    setup.levels[1].customY = true;
    setup.levels[1].yOffset = 14;
    setup.levels[0].yOffset = 14;
    SliderWindow window(setup);
    Canvas expected(100);
    expected.Row(4, 95, 5, lineColor);
    expected.Image(0, 8, MakePixmap(selected)).Image(91, 16, MakePixmap(normal));
    Compare(window.Picture(), expected.Result());

    // The mouse still finds it where all handles are.
    window.Press(95, 9);
    QCOMPARE(window.slider.SelectedIndex(), std::size_t(1));
    window.Release(95, 9);
}

void TestMultiLevelSliderPainting::missingRoomPutsHandlesToTheLeft_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("lineFrom");
    QTest::addColumn<int>("lineTo");
    QTest::addColumn<int>("second");
    QTest::newRow("as wide as a handle needs") << 9 << 4 << 4 << 0;
    QTest::newRow("narrower, the line runs backwards") << 6 << 1 << 4 << -3;
}

void TestMultiLevelSliderPainting::missingRoomPutsHandlesToTheLeft()
{
    QFETCH(int, width);
    QFETCH(int, lineFrom);
    QFETCH(int, lineTo);
    QFETCH(int, second);
    SliderWindow window(SliderSetup(), width);
    Canvas expected(width);
    expected.Row(lineFrom, lineTo, 5, lineColor);
    expected.Image(0, 8, MakePixmap(selected)).Image(second, 8, MakePixmap(normal));
    Compare(window.Picture(), expected.Result());
}

void TestMultiLevelSliderPainting::nothingIsDrawnBeforeInit()
{
    CMultiLevelSlider slider;
    slider.resize(100, 30);
    QImage picture(100, 30, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    slider.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    Compare(picture, Canvas(100).Result());
}

void TestMultiLevelSliderPainting::nothingIsDrawnAfterAFailedInit()
{
    SliderSetup setup;
    setup.disabled.clear();
    SliderWindow window(setup);
    Compare(window.Picture(), Canvas(100).Result());
}

void TestMultiLevelSliderPainting::doubleResolutionIsDrawnPixelByPixel()
{
    SliderSetup setup;
    setup.normal = MakeImage(normal, {8, 8}, 2);
    setup.selected = MakeImage(selected, {8, 8}, 2);
    setup.hover.clear();
    SliderWindow window(setup);
    const QImage picture = window.Picture(2);
    Canvas expected(200, 60);
    expected.Image(0, 16, MakePixmap(selected, {8, 8}, 2)).Image(182, 16, MakePixmap(normal, {8, 8}, 2));
    // The line stays a hair line: of a logical pixel it takes one row.
    Compare(picture.copy(0, 14, 200, 46), expected.Result().copy(0, 14, 200, 46));
}

void TestMultiLevelSliderPainting::labelStandsBesideItsHandle()
{
    SliderSetup setup;
    auto* label = new QLabel(QStringLiteral("7"));
    setup.levels[1].label = label;
    setup.levels[1].yOffset = 3;
    setup.levels[1].labelXOffset = -20;
    setup.levels[1].labelYOffset = 4;
    setup.levels[1].labelWidth = 15;
    setup.levels[1].labelHeight = 12;
    SliderWindow window(setup);
    window.Picture();
    window.Picture();
    QCOMPARE(label->parentWidget(), &window.slider);
    QCOMPARE(label->geometry(), QRect(91 - 20, 3 + 2 + 4, 15, 12));
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QCOMPARE(window.slider.layout()->count(), 1);
    QCOMPARE(window.slider.layout()->itemAt(0)->widget(), label);

    delete label;
    window.Picture();
}

void TestMultiLevelSliderPainting::paintingALabelComesToAnEnd()
{
    SliderSetup setup;
    setup.levels[1].label = new QLabel(QStringLiteral("7"));
    setup.levels[1].labelWidth = 15;
    setup.levels[1].labelHeight = 12;
    SliderWindow window(setup);
    PaintCounter paints(window.slider);
    QVERIFY(paints.CameToRest());
    window.slider.update();
    QTest::qWait(100);
    QVERIFY(paints.Count() >= 1 && paints.Count() <= 2);
}

void TestMultiLevelSliderPainting::everyChangeIsPainted_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("value set by the owner", [](SliderWindow& window) { window.slider.SetLevelValue(1, 5); });
    row("selection set by the owner", [](SliderWindow& window) { window.slider.SetSelectedIndex(1); });
    row("set up anew", [](SliderWindow& window) { SliderSetup().Apply(window.slider); });
    // Each event alone: the window system would send a move along with a press, and a hover with a drag.
    row("press", [](SliderWindow& window) { Send(window, QEvent::MouseButtonPress, 95, Qt::LeftButton); });
    row("step of a drag", [](SliderWindow& window) {
        Send(window, QEvent::MouseButtonPress, 95, Qt::LeftButton);
        QVERIFY(PaintCounter(window.slider).CameToRest());
        Send(window, QEvent::MouseMove, 50, Qt::LeftButton);
    });
    row("hover", [](SliderWindow& window) { Send(window, QEvent::MouseMove, 95, Qt::NoButton); });
}

void TestMultiLevelSliderPainting::everyChangeIsPainted()
{
    QFETCH(Change, change);
    SliderWindow window;
    PaintCounter paints(window.slider);
    QVERIFY(paints.CameToRest());
    change(window);
    paints.Forget();
    QTRY_VERIFY(paints.Count() >= 1);
}

SOFTCLOTH_TEST(TestMultiLevelSliderPainting)
#include "tst_multi_level_slider_painting.moc"
