#include "host/images/WeightAdjust.h"

#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

#include <algorithm>
#include <functional>

using Host::AdjustTable;
using Host::GrayTable;

class TestWeightAdjust : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void grayBecomes_data();
    void grayBecomes();
    void zerosChangeNothing();
    void brighterGraysStayBrighter();
    void moreBrightnessNeverDarkens();
    void valuesBeyondTheRangeCountAsItsEnds();
    void pictureIsAdjustedPixelByPixel();
    void transparentPixelsAreBlack();
};

void TestWeightAdjust::grayBecomes_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("contrast");
    QTest::addColumn<int>("gray");
    QTest::addColumn<int>("result");
    const struct
    {
        int brightness;
        int contrast;
        int gray;
        int result;
    } rows[] = {
        // brightness moves all grays
        {100, 0, 0, 255},
        {100, 0, 255, 255},
        {-100, 0, 255, 0},
        {-100, 0, 0, 0},
        {20, 0, 0, 51},
        {20, 0, 100, 151},
        {20, 0, 204, 255},
        {20, 0, 230, 255},
        {-20, 0, 51, 0},
        {-20, 0, 52, 1},
        {-20, 0, 255, 204},
        {1, 0, 0, 3},
        // contrast spreads them about the middle
        {0, -100, 0, 128},
        {0, -100, 255, 128},
        {0, -50, 0, 64},
        {0, -50, 255, 191},
        {0, 50, 0, 0},
        {0, 50, 63, 0},
        {0, 50, 64, 1},
        {0, 50, 128, 129},
        {0, 50, 192, 255},
        {0, 100, 127, 0},
        {0, 100, 128, 255},
        {0, 100, 0, 0},
        {0, 100, 255, 255},
        // contrast comes first
        {100, 100, 0, 255},
        {-100, 100, 255, 0},
        {100, -100, 0, 255},
        {-100, -100, 255, 0},
        {20, 100, 0, 51},
        {-20, 100, 255, 204},
        {10, -100, 77, 153},
    };
    for (const auto& row : rows) {
        QTest::addRow("%d, %d: %d", row.brightness, row.contrast, row.gray)
            << row.brightness << row.contrast << row.gray << row.result;
    }
}

void TestWeightAdjust::grayBecomes()
{
    QFETCH(int, brightness);
    QFETCH(int, contrast);
    QFETCH(int, gray);
    QFETCH(int, result);
    QCOMPARE(int(AdjustTable(brightness, contrast)[std::size_t(gray)]), result);
}

void TestWeightAdjust::zerosChangeNothing()
{
    const GrayTable table = AdjustTable(0, 0);
    for (std::size_t gray = 0; gray < table.size(); ++gray) {
        QCOMPARE(std::size_t(table[gray]), gray);
    }
}

void TestWeightAdjust::brighterGraysStayBrighter()
{
    for (int brightness = -100; brightness <= 100; brightness += 5) {
        for (int contrast = -100; contrast <= 100; ++contrast) {
            const GrayTable table = AdjustTable(brightness, contrast);
            QVERIFY(std::is_sorted(table.begin(), table.end()));
        }
    }
}

void TestWeightAdjust::moreBrightnessNeverDarkens()
{
    for (int contrast = -100; contrast <= 100; contrast += 5) {
        for (int brightness = -100; brightness < 100; ++brightness) {
            const GrayTable darker = AdjustTable(brightness, contrast);
            const GrayTable brighter = AdjustTable(brightness + 1, contrast);
            QVERIFY(std::equal(darker.begin(), darker.end(), brighter.begin(), std::less_equal<>()));
        }
    }
}

void TestWeightAdjust::valuesBeyondTheRangeCountAsItsEnds()
{
    QVERIFY(AdjustTable(1000, 0) == AdjustTable(100, 0));
    QVERIFY(AdjustTable(-1000, 0) == AdjustTable(-100, 0));
    QVERIFY(AdjustTable(0, 2147483647) == AdjustTable(0, 100));
    QVERIFY(AdjustTable(0, -2147483647) == AdjustTable(0, -100));
}

void TestWeightAdjust::pictureIsAdjustedPixelByPixel()
{
    QImage image = SampleImages::Filled({3, 2}, QColor(100, 100, 100));
    image.setPixelColor(2, 1, QColor(200, 200, 200));
    const QImage adjusted = Host::AdjustedGray(image, AdjustTable(20, 0));
    QCOMPARE(adjusted.size(), image.size());
    QCOMPARE(adjusted.format(), QImage::Format_Grayscale8);
    QCOMPARE(qGray(adjusted.pixel(0, 0)), 151);
    QCOMPARE(qGray(adjusted.pixel(2, 1)), 251);
}

void TestWeightAdjust::transparentPixelsAreBlack()
{
    const GrayTable unchanged = AdjustTable(0, 0);
    QCOMPARE(qGray(Host::AdjustedGray(SampleImages::Filled({1, 1}, QColor(255, 255, 255, 0)), unchanged).pixel(0, 0)),
             0);
    QCOMPARE(qGray(Host::AdjustedGray(SampleImages::Filled({1, 1}, QColor(255, 255, 255, 51)), unchanged).pixel(0, 0)),
             51);
    QCOMPARE(qGray(Host::AdjustedGray(SampleImages::Filled({1, 1}, QColor(255, 255, 255)), unchanged).pixel(0, 0)),
             255);
}

SOFTCLOTH_TEST_WITH(TestWeightAdjust, QCoreApplication)

#include "tst_weight_adjust.moc"
