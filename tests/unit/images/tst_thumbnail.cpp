#include "host/images/Thumbnail.h"

#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

class TestThumbnail : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pictureKeepsItsAspectInTheMiddle_data();
    void pictureKeepsItsAspectInTheMiddle();
    void groundIsNeutralAndShowsThroughTransparency();
    void anySizeIsDrawn_data();
    void anySizeIsDrawn();
    void placeholdersDiffer();
    void reducedKeepsWhatIsSmall();
};

namespace {

bool IsNeutral(const QColor& color)
{
    return color.red() == color.green() && color.green() == color.blue() && color.alpha() == 255;
}

} // namespace

void TestThumbnail::pictureKeepsItsAspectInTheMiddle_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place");
    QTest::newRow("square in square") << QSize(64, 64) << QSize(100, 100) << QRect(0, 0, 100, 100);
    QTest::newRow("wide in square") << QSize(200, 100) << QSize(100, 100) << QRect(0, 25, 100, 50);
    QTest::newRow("high in square") << QSize(100, 200) << QSize(100, 100) << QRect(25, 0, 50, 100);
    QTest::newRow("square in wide") << QSize(16, 16) << QSize(120, 60) << QRect(30, 0, 60, 60);
    QTest::newRow("enlarged") << QSize(2, 1) << QSize(80, 80) << QRect(0, 20, 80, 40);
    QTest::newRow("much reduced") << QSize(4000, 2000) << QSize(40, 40) << QRect(0, 10, 40, 20);
}

void TestThumbnail::pictureKeepsItsAspectInTheMiddle()
{
    QFETCH(QSize, picture);
    QFETCH(QSize, size);
    QFETCH(QRect, place);
    const QImage thumbnail = Host::RenderThumbnail(SampleImages::Filled(picture, Qt::red), size);
    QCOMPARE(thumbnail.size(), size);
    QCOMPARE(thumbnail.depth(), 32);
    for (const QPoint& inside : {place.center(), place.topLeft() + QPoint(1, 1), place.bottomRight() - QPoint(1, 1)}) {
        QCOMPARE(thumbnail.pixelColor(inside), QColor(Qt::red));
    }
    for (const QPoint& outside :
         {QPoint(size.width() / 2, place.top() - 2), QPoint(place.left() - 2, size.height() / 2),
          QPoint(size.width() / 2, place.bottom() + 2), QPoint(place.right() + 2, size.height() / 2)}) {
        if (thumbnail.rect().contains(outside)) {
            QVERIFY(IsNeutral(thumbnail.pixelColor(outside)));
        }
    }
}

void TestThumbnail::groundIsNeutralAndShowsThroughTransparency()
{
    const QImage thumbnail = Host::RenderThumbnail(SampleImages::Filled({10, 10}, QColor(0, 0, 255, 0)), {64, 64});
    QVERIFY(IsNeutral(thumbnail.pixelColor(4, 4)));
    QVERIFY(IsNeutral(thumbnail.pixelColor(12, 4)));
    QVERIFY(thumbnail.pixelColor(4, 4) != thumbnail.pixelColor(12, 4));
    QCOMPARE(thumbnail.pixelColor(4, 4), thumbnail.pixelColor(12, 12));
}

void TestThumbnail::anySizeIsDrawn_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel of one") << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("a line") << QSize(5000, 1) << QSize(100, 100);
    QTest::newRow("a standing line") << QSize(1, 5000) << QSize(100, 100);
    QTest::newRow("onto one pixel") << QSize(300, 200) << QSize(1, 1);
    QTest::newRow("onto a line") << QSize(300, 200) << QSize(200, 1);
}

void TestThumbnail::anySizeIsDrawn()
{
    QFETCH(QSize, picture);
    QFETCH(QSize, size);
    const QImage thumbnail = Host::RenderThumbnail(SampleImages::Filled(picture, Qt::red), size);
    QCOMPARE(thumbnail.size(), size);
    QCOMPARE(thumbnail.pixelColor((size.width() - 1) / 2, (size.height() - 1) / 2), QColor(Qt::red));
}

void TestThumbnail::placeholdersDiffer()
{
    const QImage none = Host::RenderNoPicture({60, 40});
    const QImage broken = Host::RenderBrokenPicture({60, 40});
    QCOMPARE(none.size(), QSize(60, 40));
    QCOMPARE(broken.size(), QSize(60, 40));
    QVERIFY(none != broken);
    QVERIFY(none != Host::RenderThumbnail(SampleImages::Filled({6, 4}, QColor(0, 0, 0, 0)), {60, 40}));
    QCOMPARE(Host::RenderNoPicture({1, 1}).size(), QSize(1, 1));
}

void TestThumbnail::reducedKeepsWhatIsSmall()
{
    const QImage image = SampleImages::HalfBlack({30, 20});
    QCOMPARE(Host::Reduced(image, 30).cacheKey(), image.cacheKey());
    QCOMPARE(Host::Reduced(image, 15).size(), QSize(15, 10));
    const QImage large = Host::Reduced(SampleImages::HalfBlack({2000, 1000}), 100);
    QCOMPARE(large.size(), QSize(100, 50));
    QCOMPARE(qGray(large.pixel(20, 25)), 0);
    QCOMPARE(qGray(large.pixel(80, 25)), 255);
}

SOFTCLOTH_TEST(TestThumbnail)

#include "tst_thumbnail.moc"
