#include "host/images/ImageDecode.h"
#include "host/images/ImageFormat.h"

#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

#include <QBuffer>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>
#include <limits>

using Host::DecodedImage;
using Host::ImageFormat;

class TestImageDecode : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formatIsDecoded_data();
    void formatIsDecoded();
    void headerTellsFormatAndSize_data() { formatIsDecoded_data(); }
    void headerTellsFormatAndSize();
    void tgaIsDecoded_data();
    void tgaIsDecoded();
    void transparencyComesAlong_data();
    void transparencyComesAlong();
    void grayStaysGray();
    void deepSamplesAreTakenOver();
    void firstPictureOfAnAnimationIsTaken();
    void progressiveJpegIsDecoded();
    void otherContentIsRefused_data();
    void otherContentIsRefused();
    void truncatedImageIsRefusedWhereverItEnds_data() { formatIsDecoded_data(); }
    void truncatedImageIsRefusedWhereverItEnds();
    void truncatedTgaIsRefusedWhereverItEnds_data() { tgaIsDecoded_data(); }
    void truncatedTgaIsRefusedWhereverItEnds();
    void hugeImageIsRefusedBeforeItIsDecoded_data();
    void hugeImageIsRefusedBeforeItIsDecoded();
    void tooManyPixelsInAllAreRefused_data();
    void tooManyPixelsInAllAreRefused();
    void gifScreenWithoutASideIsAsLargeAsItsOtherSide_data();
    void gifScreenWithoutASideIsAsLargeAsItsOtherSide();
    void impossibleBmpSizeIsRefused_data();
    void impossibleBmpSizeIsRefused();
    void emptySizeIsRefused_data() { formatIsDecoded_data(); }
    void emptySizeIsRefused();
    void anyHeaderIsSurvived_data() { formatIsDecoded_data(); }
    void anyHeaderIsSurvived();
    void damagedTgaIsSurvived_data() { tgaIsDecoded_data(); }
    void damagedTgaIsSurvived();
};

namespace {

/// Different grays in all pixels, so that both directions can be distinguished.
QImage Ramp()
{
    QImage image(24, 9, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int gray = x * 8 + y * 4;
            image.setPixel(x, y, qRgb(gray, gray, gray));
        }
    }
    return image;
}

/// The largest difference of a colour channel between two images of the same size.
int LargestDifference(const QImage& a, const QImage& b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (const int difference : {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)}) {
                largest = std::max(largest, std::abs(difference));
            }
        }
    }
    return largest;
}

} // namespace

void TestImageDecode::formatIsDecoded_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("tolerance");
    const auto add = [](const char* suffix, ImageFormat format, int tolerance) {
        QTest::newRow(suffix) << QString::fromLatin1(suffix) << int(format) << tolerance;
    };
    add("jpg", ImageFormat::Jpeg, 6);
    add("jpeg", ImageFormat::Jpeg, 6);
    add("bmp", ImageFormat::Bmp, 0);
    add("gif", ImageFormat::Gif, 2);
    add("png", ImageFormat::Png, 0);
    add("tga", ImageFormat::Tga, 0);
}

void TestImageDecode::formatIsDecoded()
{
    QFETCH(QString, suffix);
    QFETCH(int, tolerance);
    const DecodedImage decoded = Host::DecodeImage(SampleImages::Encoded(suffix, Ramp()));
    QCOMPARE(decoded.error, QString());
    QCOMPARE(decoded.image.size(), Ramp().size());
    QVERIFY(LargestDifference(decoded.image, Ramp()) <= tolerance);
}

void TestImageDecode::headerTellsFormatAndSize()
{
    QFETCH(QString, suffix);
    QFETCH(int, format);
    const auto header = Host::ReadImageHeader(SampleImages::Encoded(suffix, Ramp()));
    QCOMPARE(int(header.format), format);
    QCOMPARE(header.size, Ramp().size());
    QVERIFY(header.isComplete);
}

void TestImageDecode::tgaIsDecoded_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("descriptor");
    QTest::addColumn<int>("tolerance");
    const struct
    {
        const char* name;
        int type;
        int depth;
        int tolerance;
    } kinds[] = {
        {"indexed", 1, 24, 0},
        {"true colour", 2, 24, 0},
        {"gray", 3, 8, 0},
        {"packed indexed", 9, 32, 0},
        {"packed true colour", 10, 24, 0},
        {"packed gray", 11, 8, 0},
        {"32 bits", 2, 32, 0},
        {"16 bits", 2, 16, 8},
        {"15 bits", 10, 15, 8},
        {"indexed of 16 bits", 1, 16, 8},
    };
    for (const auto& kind : kinds) {
        for (const int descriptor : {0, 0x20, 0x10, 0x30}) {
            QTest::addRow("%s, origin 0x%x", kind.name, descriptor)
                << kind.type << kind.depth << descriptor << kind.tolerance;
        }
    }
}

void TestImageDecode::tgaIsDecoded()
{
    QFETCH(int, type);
    QFETCH(int, depth);
    QFETCH(int, descriptor);
    QFETCH(int, tolerance);
    const DecodedImage decoded = Host::DecodeImage(SampleImages::Tga(Ramp(), {type, depth, descriptor}));
    QCOMPARE(decoded.error, QString());
    QCOMPARE(decoded.image.size(), Ramp().size());
    QVERIFY(!decoded.image.hasAlphaChannel() || qAlpha(decoded.image.pixel(3, 3)) == 255);
    QVERIFY(LargestDifference(decoded.image, Ramp()) <= tolerance);
}

void TestImageDecode::transparencyComesAlong_data()
{
    const QImage image = SampleImages::Filled({5, 4}, QColor(200, 100, 50, 80));
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("png") << SampleImages::Encoded(QStringLiteral("png"), image);
    QTest::newRow("tga") << SampleImages::Tga(image, {2, 32, 8});
    QTest::newRow("packed tga") << SampleImages::Tga(image, {10, 32, 8});
}

void TestImageDecode::transparencyComesAlong()
{
    QFETCH(QByteArray, bytes);
    const DecodedImage decoded = Host::DecodeImage(bytes);
    QCOMPARE(decoded.image.pixelColor(2, 2), QColor(200, 100, 50, 80));
}

void TestImageDecode::grayStaysGray()
{
    const QImage gray = Ramp().convertToFormat(QImage::Format_Grayscale8);
    for (const char* suffix : {"png", "jpg"}) {
        const QImage decoded = Host::DecodeImage(SampleImages::Encoded(QString::fromLatin1(suffix), gray)).image;
        QCOMPARE(decoded.format(), QImage::Format_Grayscale8);
    }
    QCOMPARE(Host::DecodeImage(SampleImages::Tga(gray, {3, 8, 0})).image.format(), QImage::Format_Grayscale8);
}

void TestImageDecode::deepSamplesAreTakenOver()
{
    QImage deep(3, 1, QImage::Format_Grayscale16);
    auto* line = reinterpret_cast<quint16*>(deep.scanLine(0));
    line[0] = 0;
    line[1] = 0x8080;
    line[2] = 0xffff;
    const QImage decoded = Host::DecodeImage(SampleImages::Encoded(QStringLiteral("png"), deep)).image;
    QCOMPARE(decoded.size(), QSize(3, 1));
    QCOMPARE(qGray(decoded.pixel(0, 0)), 0);
    QCOMPARE(qGray(decoded.pixel(1, 0)), 0x80);
    QCOMPARE(qGray(decoded.pixel(2, 0)), 255);
}

void TestImageDecode::firstPictureOfAnAnimationIsTaken()
{
    const QByteArray white = SampleImages::Encoded(QStringLiteral("gif"), SampleImages::Filled({6, 6}, Qt::white));
    const QByteArray black = SampleImages::Encoded(QStringLiteral("gif"), SampleImages::Filled({6, 6}, Qt::black));
    const int picture = 13 + 3 * 128;
    const QByteArray comment("\x21\xfe\x02hi\0", 6);
    const QByteArray both = white.left(picture) + comment + white.mid(picture).chopped(1) + black.mid(picture);
    const DecodedImage decoded = Host::DecodeImage(both);
    QCOMPARE(decoded.error, QString());
    QCOMPARE(qGray(decoded.image.pixel(3, 3)), 255);
}

void TestImageDecode::progressiveJpegIsDecoded()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpg");
    writer.setProgressiveScanWrite(true);
    QVERIFY(writer.write(Ramp()));
    QVERIFY(buffer.data().contains("\xff\xc2"));
    QCOMPARE(Host::DecodeImage(buffer.data()).error, QString());
    QCOMPARE(Host::DecodeImage(buffer.data().chopped(10)).error, QStringLiteral("it is truncated"));
}

void TestImageDecode::otherContentIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    const QString noImage = QStringLiteral("it is no JPEG, BMP, GIF, PNG or TGA image");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("it is empty");
    QTest::newRow("text") << QByteArray("This is the weight map, honestly.") << noImage;
    QTest::newRow("zeros") << QByteArray(1000, '\0') << noImage;
    QTest::newRow("document") << QByteArray("%PDF-1.4 and so on and so forth") << noImage;
    QTest::newRow("another format that Qt reads") << SampleImages::Encoded(QStringLiteral("ppm"), Ramp()) << noImage;
    QTest::newRow("icon") << QByteArray("\0\0\1\0\1\0\x10\x10\0\0\1\0\x18\0\x68\3\0\0\x16\0\0\0", 22) << noImage;
    QTest::newRow("signature alone") << QByteArray("\x89PNG\r\n\x1a\n") << QStringLiteral("it is truncated");
    QTest::newRow("start marker alone") << QByteArray("\xff\xd8\xff\xe0") << QStringLiteral("it is truncated");
    QTest::newRow("bare BM") << QByteArray("BM") << QStringLiteral("it is truncated");
    QTest::newRow("bare GIF") << QByteArray("GIF89a") << QStringLiteral("it is truncated");
}

void TestImageDecode::otherContentIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const DecodedImage decoded = Host::DecodeImage(bytes);
    QVERIFY(decoded.image.isNull());
    QCOMPARE(decoded.error, error);
}

void TestImageDecode::truncatedImageIsRefusedWhereverItEnds()
{
    QFETCH(QString, suffix);
    QFETCH(int, format);
    QByteArray whole = SampleImages::Encoded(suffix, Ramp());
    if (format == int(ImageFormat::Gif)) {
        whole.chop(1); // the trailer, without which the picture is there all the same
    }
    if (format == int(ImageFormat::Tga)) {
        whole.chop(26); // the footer, likewise
    }
    QVERIFY(!Host::DecodeImage(whole).image.isNull() || format == int(ImageFormat::Png));
    // What is behind the name of the last chunk of a PNG is its check sum, which says nothing.
    const int last = format == int(ImageFormat::Png) ? whole.size() - 5 : whole.size() - 1;
    for (int size = 1; size <= last; ++size) {
        const DecodedImage decoded = Host::DecodeImage(whole.left(size));
        QVERIFY2(decoded.image.isNull() && !decoded.error.isEmpty(), qPrintable(QString::number(size)));
    }
}

void TestImageDecode::truncatedTgaIsRefusedWhereverItEnds()
{
    QFETCH(int, type);
    QFETCH(int, depth);
    QFETCH(int, descriptor);
    const QByteArray whole = SampleImages::Tga(Ramp(), {type, depth, descriptor});
    for (int size = 1; size < whole.size(); ++size) {
        QVERIFY2(Host::DecodeImage(whole.left(size)).image.isNull(), qPrintable(QString::number(size)));
    }
}

void TestImageDecode::hugeImageIsRefusedBeforeItIsDecoded_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QSize>("size");
    for (const char* suffix : {"jpg", "bmp", "gif", "png", "tga"}) {
        for (const QSize& size : {QSize(60000, 60000), QSize(16385, 1), QSize(1, 16385)}) {
            QTest::addRow("%s %d x %d", suffix, size.width(), size.height()) << QString::fromLatin1(suffix) << size;
        }
    }
    QTest::newRow("png 2147483647 x 2147483647") << QStringLiteral("png") << QSize(0x7fffffff, 0x7fffffff);
    QTest::newRow("bmp 2147483647 x 2147483647") << QStringLiteral("bmp") << QSize(0x7fffffff, 0x7fffffff);
}

void TestImageDecode::hugeImageIsRefusedBeforeItIsDecoded()
{
    QFETCH(QString, suffix);
    QFETCH(QSize, size);
    const DecodedImage decoded = Host::DecodeImage(SampleImages::HeaderOnly(suffix, size));
    QVERIFY(decoded.image.isNull());
    QCOMPARE(decoded.error, QStringLiteral("it has %1 x %2 pixels, and more than 16384 on a side are too many")
                                .arg(size.width())
                                .arg(size.height()));
}

void TestImageDecode::tooManyPixelsInAllAreRefused_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QSize>("size");
    for (const char* suffix : {"jpg", "bmp", "gif", "png", "tga"}) {
        for (const QSize& size : {QSize(16384, 16384), QSize(16384, 8193), QSize(8193, 16384)}) {
            QTest::addRow("%s %d x %d", suffix, size.width(), size.height()) << QString::fromLatin1(suffix) << size;
        }
    }
}

void TestImageDecode::tooManyPixelsInAllAreRefused()
{
    QFETCH(QString, suffix);
    QFETCH(QSize, size);
    const DecodedImage decoded = Host::DecodeImage(SampleImages::HeaderOnly(suffix, size));
    QVERIFY(decoded.image.isNull());
    QCOMPARE(decoded.error, QStringLiteral("it has %1 x %2 pixels, and more than 134217728 in all are too many")
                                .arg(size.width())
                                .arg(size.height()));
}

void TestImageDecode::gifScreenWithoutASideIsAsLargeAsItsOtherSide_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::newRow("no width") << QSize(0, 65535);
    QTest::newRow("no height") << QSize(65535, 0);
}

void TestImageDecode::gifScreenWithoutASideIsAsLargeAsItsOtherSide()
{
    QFETCH(QSize, screen);
    QByteArray gif = SampleImages::Encoded(QStringLiteral("gif"), SampleImages::Filled({4, 4}, Qt::white));
    qToLittleEndian(quint16(screen.width()), gif.data() + 6);
    qToLittleEndian(quint16(screen.height()), gif.data() + 8);
    QCOMPARE(Host::ReadImageHeader(gif).size, screen.expandedTo({4, 4}));
    QVERIFY(Host::DecodeImage(gif).error.contains(QStringLiteral("too many")));
}

void TestImageDecode::impossibleBmpSizeIsRefused_data()
{
    QTest::addColumn<qint32>("width");
    QTest::addColumn<qint32>("height");
    constexpr qint32 most = std::numeric_limits<qint32>::max();
    constexpr qint32 least = std::numeric_limits<qint32>::min();
    QTest::newRow("negative width") << -4 << 4;
    QTest::newRow("least width") << least << most;
    QTest::newRow("least width and height") << least << least;
    QTest::newRow("no width") << 0 << 4;
    QTest::newRow("no height") << 4 << 0;
}

void TestImageDecode::impossibleBmpSizeIsRefused()
{
    QFETCH(qint32, width);
    QFETCH(qint32, height);
    QByteArray bmp = SampleImages::Encoded(QStringLiteral("bmp"), SampleImages::Filled({4, 4}, Qt::white));
    qToLittleEndian(width, bmp.data() + 18);
    qToLittleEndian(height, bmp.data() + 22);
    qToLittleEndian(quint16(0xffff), bmp.data() + 28); // bits of a pixel
    bmp.append(QByteArray(1 << 20, '\0'));             // enough for large products
    const auto header = Host::ReadImageHeader(bmp);
    QVERIFY(header.size.isEmpty());
    QVERIFY(!header.isComplete);
    QVERIFY(Host::DecodeImage(bmp).image.isNull());
}

void TestImageDecode::emptySizeIsRefused()
{
    QFETCH(QString, suffix);
    const DecodedImage decoded = Host::DecodeImage(SampleImages::HeaderOnly(suffix, {0, 0}));
    QVERIFY(suffix == QLatin1String("gif") || decoded.image.isNull()); // a GIF's screen may be smaller than its picture
    QVERIFY(suffix == QLatin1String("gif") || !decoded.error.isEmpty());
}

void TestImageDecode::anyHeaderIsSurvived()
{
    QFETCH(QString, suffix);
    const QByteArray whole = SampleImages::Encoded(suffix, Ramp());
    QRandomGenerator random(7);
    for (int i = 0; i < 20000; ++i) {
        QByteArray damaged = whole.left(1 + random.bounded(whole.size()));
        for (int flips = random.bounded(8); flips > 0; --flips) {
            damaged[random.bounded(damaged.size())] = char(random.bounded(256));
        }
        const auto header = Host::ReadImageHeader(damaged);
        QVERIFY(header.size.width() <= 0x7fffffff); // the sanitizers see the rest
    }
}

void TestImageDecode::damagedTgaIsSurvived()
{
    QFETCH(int, type);
    QFETCH(int, depth);
    QFETCH(int, descriptor);
    const QByteArray whole = SampleImages::Tga(Ramp(), {type, depth, descriptor});
    QRandomGenerator random(8);
    for (int i = 0; i < 1000; ++i) {
        QByteArray damaged = whole;
        for (int flips = 1 + random.bounded(6); flips > 0; --flips) {
            // Not the upper bytes of the size, which would only make the image large.
            const int at = random.bounded(damaged.size());
            damaged[at] = at == 13 || at == 15 ? '\0' : char(random.bounded(256));
        }
        const DecodedImage decoded = Host::DecodeImage(damaged);
        QCOMPARE(decoded.image.isNull(), !decoded.error.isEmpty());
    }
}

SOFTCLOTH_TEST_WITH(TestImageDecode, QCoreApplication)

#include "tst_image_decode.moc"
