#include "host/images/ImageDecode.h"
#include "host/scene/Limits.h"

#include "tests/support/FileRefusal.h"
#include "tests/support/Files.h"
#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using Host::DecodedImage;

class TestImageFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contentDecidesNotTheSuffix_data();
    void contentDecidesNotTheSuffix();
    void badFileIsRefusedWithTheReason_data();
    void badFileIsRefusedWithTheReason();
    void fileWithoutPermissionIsRefused();
    void anyPathWorks_data();
    void anyPathWorks();
    void messageNamesTheFileAndTheReason();

private:
    void SetUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }
    QString PathOf(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestImageFiles::contentDecidesNotTheSuffix_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("name");
    for (const char* content : {"jpg", "bmp", "gif", "png", "tga"}) {
        for (const char* suffix : {"jpg", "jpeg", "bmp", "gif", "png", "tga", "txt", "PNG", ""}) {
            const QString name = QStringLiteral("map.") + QString::fromLatin1(suffix);
            QTest::addRow("%s in %s", content, qPrintable(name)) << QString::fromLatin1(content) << name;
        }
    }
}

void TestImageFiles::contentDecidesNotTheSuffix()
{
    QFETCH(QString, content);
    QFETCH(QString, name);
    const QImage image = SampleImages::HalfBlack({8, 8});
    SampleImages::WriteFile(PathOf(name), SampleImages::Encoded(content, image));
    const DecodedImage decoded = Host::DecodeImageFile(PathOf(name));
    QCOMPARE(decoded.error, QString());
    QCOMPARE(decoded.image.size(), image.size());
}

void TestImageFiles::badFileIsRefusedWithTheReason_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");
    QTest::newRow("missing") << QStringLiteral("missing.png") << QStringLiteral("there is no such file");
    QTest::newRow("no name") << QString() << QStringLiteral("there is no such file");
    QTest::newRow("in a missing folder") << QStringLiteral("no/a.png") << QStringLiteral("there is no such file");
    QTest::newRow("directory") << QStringLiteral("folder.png") << QStringLiteral("it is not a file");
#ifdef Q_OS_UNIX // Elsewhere devices have names that no path leads to.
    QTest::newRow("device") << QStringLiteral("/dev/zero") << QStringLiteral("it is not a file");
#endif
    QTest::newRow("empty") << QStringLiteral("empty.png") << QStringLiteral("it is empty");
    QTest::newRow("truncated") << QStringLiteral("half.png") << QStringLiteral("it is truncated");
    QTest::newRow("text") << QStringLiteral("text.png") << QStringLiteral("it is no JPEG, BMP, GIF, PNG or TGA image");
    QTest::newRow("too many pixels") << QStringLiteral("huge.png")
                                     << QStringLiteral("it has 60000 x 60000 pixels, and more than 16384 on a side "
                                                       "are too many");
    QTest::newRow("too many bytes") << QStringLiteral("hole.png") << QStringLiteral("the file is too large");
}

void TestImageFiles::badFileIsRefusedWithTheReason()
{
    QFETCH(QString, name);
    QFETCH(QString, error);
    const QByteArray png = SampleImages::Encoded(QStringLiteral("png"), SampleImages::HalfBlack({64, 64}));
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.png")));
    SampleImages::WriteFile(PathOf(QStringLiteral("empty.png")), {});
    SampleImages::WriteFile(PathOf(QStringLiteral("half.png")), png.left(png.size() / 2));
    SampleImages::WriteFile(PathOf(QStringLiteral("text.png")), "not an image at all");
    SampleImages::WriteFile(PathOf(QStringLiteral("huge.png")),
                            SampleImages::HeaderOnly(QStringLiteral("png"), {60000, 60000}));
    QFile hole(PathOf(QStringLiteral("hole.png"))); // takes no room on the disk
    QVERIFY(hole.open(QIODevice::WriteOnly) && hole.resize(Host::Limits::imageFileSize + 1));
    hole.close();

    const QString path = name.isEmpty() || name.startsWith(u'/') ? name : PathOf(name);
    const DecodedImage decoded = Host::DecodeImageFile(path);
    QVERIFY(decoded.image.isNull());
    QCOMPARE(decoded.error, error);
}

void TestImageFiles::fileWithoutPermissionIsRefused()
{
    const QString path =
        SampleImages::WriteImage(PathOf(QStringLiteral("locked.png")), SampleImages::HalfBlack({4, 4}));
    Files::OpenToAll(m_folder->path());
    const FileRefusal refusal(path, FileRefusal::Of::ReadingAndWriting);
    const DecodedImage decoded = Host::DecodeImageFile(path);
    QVERIFY(decoded.image.isNull());
    // What the system says.
    QFile file(path);
    QVERIFY(!file.open(QIODevice::ReadOnly));
    QCOMPARE(decoded.error, file.errorString());
}

void TestImageFiles::anyPathWorks_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spaces") << QStringLiteral(" a  b .png");
    QTest::newRow("letters of all kinds") << QStringLiteral("Größe 東京 ✂.png");
    QTest::newRow("beyond 16 bits") << QStringLiteral("\U0001F9E5.png");
    QTest::newRow("marks") << QStringLiteral("100%25 & '#1'.png");
#ifdef Q_OS_UNIX // Windows keeps them for itself.
    QTest::newRow("quotation marks") << QStringLiteral("\"map\".png");
#endif
    QTest::newRow("no suffix") << QStringLiteral("map");
    QTest::newRow("long") << QString(200, QLatin1Char('x'));
}

void TestImageFiles::anyPathWorks()
{
    QFETCH(QString, name);
    SampleImages::WriteFile(PathOf(name),
                            SampleImages::Encoded(QStringLiteral("png"), SampleImages::HalfBlack({4, 4})));
    QCOMPARE(Host::DecodeImageFile(PathOf(name)).error, QString());
}

void TestImageFiles::messageNamesTheFileAndTheReason()
{
    QCOMPARE(Host::UnreadableImageText(QStringLiteral("/maps/flag.png"), QStringLiteral("it is truncated")),
             QStringLiteral("The image \"%1\" could not be read: it is truncated.")
                 .arg(QDir::toNativeSeparators(QStringLiteral("/maps/flag.png"))));
}

SOFTCLOTH_TEST_WITH(TestImageFiles, QCoreApplication)

#include "tst_image_files.moc"
