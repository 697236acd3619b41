#include "host/images/ImageStore.h"

#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

#include <QDateTime>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using Host::ImageStore;
using Host::Texture;

class TestImageStore : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imageIsDecodedOnce();
    void embeddedImageIsDecodedOnce();
    void equalEmbeddedImagesAreDecodedOnce();
    void unreadableImageIsTriedOnce();
    void changedFileIsDecodedAgain();
    void missingFileIsFoundWhenItComes();
    void forgottenFileIsDecodedAgain();
    void embeddingNeedsNoSecondDecode();
    void embeddingAnUnreadableFileTellsWhy();
    void previewIsAtMost512OnASide_data();
    void previewIsAtMost512OnASide();
    void heldImageOutlivesTheStore();

    void backgroundLoadingTellsOfStartAndEnd();
    void askingWhileLoadingWaitsForTheOneDecode();
    void nothingToLoadTellsNothing();
    void loadedImagesAreNotLoadedAgain();
    void moreImagesJoinALoadThatRuns();
    void unreadableImagesEndTheLoadToo();
    void storeMayGoWhileLoading();

private:
    void SetUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = std::make_unique<ImageStore>();
    }
    void TearDown() override { m_store.reset(); }

    Texture Linked(const QString& name, const QImage& image) const
    {
        return {SampleImages::WriteImage(m_folder->filePath(name), image), {}};
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ImageStore> m_store;
};

namespace {

QByteArray Png(const QImage& image)
{
    return SampleImages::Encoded(QStringLiteral("png"), image);
}

const QSize small(8, 4);

} // namespace

void TestImageStore::imageIsDecodedOnce()
{
    const Texture texture = Linked(QStringLiteral("a.png"), SampleImages::HalfBlack(small));
    const ImageStore::Image first = m_store->Get(texture);
    QCOMPARE(first->image.size(), small);
    QCOMPARE(first->error, QString());
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(m_store->Get(texture), first);
    }
    QCOMPARE(m_store->DecodeCount(), 1);
}

void TestImageStore::embeddedImageIsDecodedOnce()
{
    const Texture texture{{}, Png(SampleImages::HalfBlack(small))};
    QCOMPARE(m_store->Get(texture), m_store->Get(texture));
    QCOMPARE(m_store->DecodeCount(), 1);
}

void TestImageStore::equalEmbeddedImagesAreDecodedOnce()
{
    const QByteArray png = Png(SampleImages::HalfBlack(small));
    const QByteArray same(png.constData(), png.size());
    QCOMPARE(m_store->Get({{}, png}), m_store->Get({{}, same}));
    QVERIFY(m_store->Get({{}, png}) != m_store->Get({{}, Png(SampleImages::Filled(small, Qt::red))}));
    QCOMPARE(m_store->DecodeCount(), 2);
}

void TestImageStore::unreadableImageIsTriedOnce()
{
    const Texture texture{SampleImages::WriteFile(m_folder->filePath(QStringLiteral("a.png")), "nothing"), {}};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(m_store->Get(texture)->image.isNull());
        QVERIFY(m_store->Get(texture)->preview.isNull());
        QVERIFY(!m_store->Get(texture)->error.isEmpty());
    }
    QCOMPARE(m_store->DecodeCount(), 1);
}

void TestImageStore::changedFileIsDecodedAgain()
{
    const Texture texture = Linked(QStringLiteral("a.png"), SampleImages::Filled(small, Qt::red));
    const ImageStore::Image before = m_store->Get(texture);
    Linked(QStringLiteral("a.png"), SampleImages::HalfBlack({16, 16}));
    QCOMPARE(m_store->Get(texture)->image.size(), QSize(16, 16));
    QCOMPARE(before->image.size(), small);

    // As many bytes as before, but at another time.
    QFile file(texture.filePath);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime));
    file.close();
    m_store->Get(texture);
    QCOMPARE(m_store->DecodeCount(), 3);
}

void TestImageStore::missingFileIsFoundWhenItComes()
{
    const Texture texture{m_folder->filePath(QStringLiteral("a.png")), {}};
    QCOMPARE(m_store->Get(texture)->error, QStringLiteral("there is no such file"));
    Linked(QStringLiteral("a.png"), SampleImages::Filled(small, Qt::red));
    QCOMPARE(m_store->Get(texture)->error, QString());
    QVERIFY(QFile::remove(texture.filePath));
    QCOMPARE(m_store->Get(texture)->error, QStringLiteral("there is no such file"));
}

void TestImageStore::forgottenFileIsDecodedAgain()
{
    const Texture texture = Linked(QStringLiteral("a.png"), SampleImages::Filled(small, Qt::red));
    const Texture other = Linked(QStringLiteral("b.png"), SampleImages::Filled(small, Qt::red));
    m_store->Get(texture);
    m_store->Get(other);
    m_store->ForgetFile(texture.filePath);
    m_store->Get(other);
    QCOMPARE(m_store->DecodeCount(), 2);
    m_store->Get(texture);
    QCOMPARE(m_store->DecodeCount(), 3);
}

void TestImageStore::embeddingNeedsNoSecondDecode()
{
    const Texture texture = Linked(QStringLiteral("a.png"), SampleImages::HalfBlack(small));
    const ImageStore::Image linked = m_store->Get(texture);
    QString error;
    const QByteArray bytes = m_store->ReadForEmbedding(texture.filePath, error);
    QCOMPARE(error, QString());
    QCOMPARE(bytes, Png(SampleImages::HalfBlack(small)));
    QCOMPARE(m_store->Get({{}, bytes}), linked);
    QCOMPARE(m_store->DecodeCount(), 1);
}

void TestImageStore::embeddingAnUnreadableFileTellsWhy()
{
    QString error;
    QVERIFY(m_store->ReadForEmbedding(m_folder->filePath(QStringLiteral("a.png")), error).isEmpty());
    QCOMPARE(error, QStringLiteral("there is no such file"));
}

void TestImageStore::previewIsAtMost512OnASide_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("preview");
    QTest::newRow("small") << QSize(100, 20) << QSize(100, 20);
    QTest::newRow("as large") << QSize(512, 512) << QSize(512, 512);
    QTest::newRow("wide") << QSize(1024, 256) << QSize(512, 128);
    QTest::newRow("high") << QSize(300, 3000) << QSize(51, 512);
    QTest::newRow("a line") << QSize(4000, 1) << QSize(512, 1);
}

void TestImageStore::previewIsAtMost512OnASide()
{
    QFETCH(QSize, size);
    QFETCH(QSize, preview);
    const ImageStore::Image stored = m_store->Get({{}, Png(SampleImages::Filled(size, Qt::blue))});
    QCOMPARE(stored->preview.size(), preview);
    QCOMPARE(stored->preview.pixelColor(preview.width() / 2, preview.height() / 2), QColor(Qt::blue));
    QCOMPARE(stored->image.size(), size);
}

void TestImageStore::heldImageOutlivesTheStore()
{
    const ImageStore::Image stored = m_store->Get({{}, Png(SampleImages::Filled(small, Qt::blue))});
    m_store.reset();
    QCOMPARE(stored->image.pixelColor(1, 1), QColor(Qt::blue));
}

void TestImageStore::backgroundLoadingTellsOfStartAndEnd()
{
    QSignalSpy started(m_store.get(), &ImageStore::LoadingStarted);
    QSignalSpy done(m_store.get(), &ImageStore::LoadingDone);
    const Texture a = Linked(QStringLiteral("a.png"), SampleImages::HalfBlack({300, 300}));
    const Texture b{{}, Png(SampleImages::Filled(small, Qt::red))};
    bool wasLoadingAtTheEnd = true;
    connect(m_store.get(), &ImageStore::LoadingDone, this,
            [&] { wasLoadingAtTheEnd = m_store->IsLoading(a) || m_store->IsLoading(b); });
    m_store->LoadInBackground({a, b});
    QCOMPARE(started.count(), 1);
    QVERIFY(m_store->IsLoading(a));
    QVERIFY(m_store->IsLoading(b));
    QCOMPARE(done.count(), 0); // it comes through the event loop, never from inside the call
    QVERIFY(done.wait());
    QCOMPARE(started.count(), 1);
    QCOMPARE(done.count(), 1);
    QVERIFY(!wasLoadingAtTheEnd);
    QCOMPARE(m_store->DecodeCount(), 2);
    QCOMPARE(m_store->Get(a)->image.size(), QSize(300, 300));
    QCOMPARE(m_store->Get(b)->image.size(), small);
    QCOMPARE(m_store->DecodeCount(), 2);
}

void TestImageStore::askingWhileLoadingWaitsForTheOneDecode()
{
    QSignalSpy done(m_store.get(), &ImageStore::LoadingDone);
    const Texture texture = Linked(QStringLiteral("a.png"), SampleImages::HalfBlack({1000, 1000}));
    m_store->LoadInBackground({texture});
    QCOMPARE(m_store->Get(texture)->image.size(), QSize(1000, 1000));
    QCOMPARE(done.count(), 0);
    QVERIFY(!m_store->IsLoading(texture));
    QVERIFY(done.wait());
    QCOMPARE(m_store->DecodeCount(), 1);
}

void TestImageStore::nothingToLoadTellsNothing()
{
    QSignalSpy started(m_store.get(), &ImageStore::LoadingStarted);
    m_store->LoadInBackground({});
    QCOMPARE(started.count(), 0);
}

void TestImageStore::loadedImagesAreNotLoadedAgain()
{
    QSignalSpy started(m_store.get(), &ImageStore::LoadingStarted);
    const Texture texture = Linked(QStringLiteral("a.png"), SampleImages::HalfBlack(small));
    m_store->Get(texture);
    m_store->LoadInBackground({texture, texture});
    QCOMPARE(started.count(), 0);
    QCOMPARE(m_store->DecodeCount(), 1);
}

void TestImageStore::moreImagesJoinALoadThatRuns()
{
    QSignalSpy started(m_store.get(), &ImageStore::LoadingStarted);
    QSignalSpy done(m_store.get(), &ImageStore::LoadingDone);
    const Texture a = Linked(QStringLiteral("a.png"), SampleImages::HalfBlack(small));
    const Texture b = Linked(QStringLiteral("b.png"), SampleImages::HalfBlack(small));
    m_store->LoadInBackground({a, a});
    m_store->LoadInBackground({a, b});
    QVERIFY(done.wait());
    QCOMPARE(started.count(), 1);
    QCOMPARE(done.count(), 1);
    QCOMPARE(m_store->DecodeCount(), 2);
}

void TestImageStore::unreadableImagesEndTheLoadToo()
{
    QSignalSpy done(m_store.get(), &ImageStore::LoadingDone);
    m_store->LoadInBackground({{m_folder->filePath(QStringLiteral("missing.png")), {}}, {{}, "nonsense"}});
    QVERIFY(done.wait());
    QCOMPARE(m_store->Get({{}, "nonsense"})->image.isNull(), true);
    QCOMPARE(m_store->DecodeCount(), 2);
}

void TestImageStore::storeMayGoWhileLoading()
{
    constexpr int count = 50;
    std::vector<Texture> textures;
    textures.reserve(count);
    for (int i = 0; i < count; ++i) {
        textures.push_back({{}, Png(SampleImages::Filled({200 + i, 200}, Qt::red))});
    }
    QSignalSpy done(m_store.get(), &ImageStore::LoadingDone);
    m_store->LoadInBackground(textures);
    m_store.reset();
    QCoreApplication::processEvents();
    QCOMPARE(done.count(), 0);
}

SOFTCLOTH_TEST_WITH(TestImageStore, QCoreApplication)

#include "tst_image_store.moc"
