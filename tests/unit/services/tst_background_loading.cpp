#include "host/images/ImageStore.h"
#include "host/services/Pictures.h"
#include "plugin/services/SceneService.h"
#include "tests/support/SampleImages.h"
#include "tests/unit/services/ImageTestCase.h"

#include <QThread>

using MV::ETextureChannel;

/// Textures that are decoded in the background, and what callers get meanwhile.
class TestBackgroundLoading : public ImageTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eventsTellOfStartAndEnd();
    void objectWithoutTexturesTellsNothing();
    void texturesAreNotReadyWhileLoading();
    void callersAreNotKeptWaiting();
    void weightImagesAreLoadedToo();
    void unknownObjectIsPassedOver();
    void hostMayGoWhileLoading();

private:
    /// Gives every material a texture of its own.
    void AddTextures() const
    {
        for (Host::Material& material : m_hero->materials) {
            material.textures[ETextureChannel::Diffuse].filePath =
                ImageFile(material.name + QStringLiteral(".png"), SampleImages::Filled({700, 700}, Qt::red));
        }
    }
    /// The texts of the journal's events.
    QStringList Events() const
    {
        QStringList events;
        for (const Host::JournalEntry& entry : m_host->Journal().Entries()) {
            if (entry.kind == Host::JournalEntry::Kind::Event) {
                events.append(entry.ToString());
            }
        }
        return events;
    }
    bool WaitForTheEnd() const
    {
        return QTest::qWaitFor([this] { return Events().contains(QStringLiteral("ImageAsyncLoadAllDone()")); });
    }
};

void TestBackgroundLoading::eventsTellOfStartAndEnd()
{
    AddTextures();
    QThread* thread = nullptr;
    connect(m_host->GetEventSender(), &MV::CEventSender::ImageAsyncLoadAllDone, m_host->GetEventSender(),
            [&thread] { thread = QThread::currentThread(); });
    m_host->LoadImages(m_hero->handle);
    QCOMPARE(Events(), QStringList{QStringLiteral("ImageAsyncLoadStart()")});
    QVERIFY(WaitForTheEnd());
    QCOMPARE(Events(),
             (QStringList{QStringLiteral("ImageAsyncLoadStart()"), QStringLiteral("ImageAsyncLoadAllDone()")}));
    QCOMPARE(thread, QCoreApplication::instance()->thread());
    QCOMPARE(m_host->Images().Store().DecodeCount(), 3);
    m_host->LoadImages(m_hero->handle); // all there already
    QCOMPARE(Events().size(), 2);
}

void TestBackgroundLoading::objectWithoutTexturesTellsNothing()
{
    m_host->LoadImages(m_hero->handle);
    QCoreApplication::processEvents();
    QVERIFY(Events().isEmpty());
}

void TestBackgroundLoading::texturesAreNotReadyWhileLoading()
{
    AddTextures();
    m_host->LoadImages(m_hero->handle);
    const auto hasSource = [this] {
        BF::CHandle* thumbnail = nullptr;
        bool has = false;
        const BF::Result found =
            Queries().GetTextureThumbnail(m_address.material, ETextureChannel::Diffuse, thumbnail, has);
        return found.IsSuccess() && thumbnail && has;
    };
    QCOMPARE(Queries().OpenTexture(m_address.material, ETextureChannel::Diffuse, true), BF::Results::NothingDone);
    QVERIFY(!Queries().LoadTextureSource(m_address.material, ETextureChannel::Diffuse));
    QVERIFY(!hasSource());
    QVERIFY(WaitForTheEnd());
    QCOMPARE(Queries().OpenTexture(m_address.material, ETextureChannel::Diffuse, true), BF::Results::Success);
    QVERIFY(Queries().LoadTextureSource(m_address.material, ETextureChannel::Diffuse));
    QVERIFY(hasSource());
}

void TestBackgroundLoading::callersAreNotKeptWaiting()
{
    AddTextures();
    m_host->LoadImages(m_hero->handle);
    BF::CHandle* thumbnail = nullptr;
    bool hasSource = false;
    Queries().GetTextureThumbnail(m_address.material, ETextureChannel::Diffuse, thumbnail, hasSource);
    BF::CHandle* none = nullptr;
    Queries().GetDefaultThumbnail(none);
    QCOMPARE(Render(thumbnail, {40, 40}), Render(none, {40, 40}));
    QVERIFY(WaitForTheEnd());
    QCOMPARE(Render(thumbnail, {40, 40}).pixelColor(20, 20), QColor(Qt::red));
}

void TestBackgroundLoading::weightImagesAreLoadedToo()
{
    Weight().image.filePath = ImageFile(QStringLiteral("map.png"), SampleImages::HalfBlack({20, 20}));
    m_host->LoadImages(m_hero->handle);
    QVERIFY(WaitForTheEnd());
    QCOMPARE(m_host->Images().Store().DecodeCount(), 1);
    QCOMPARE(qGray(Render(WeightTexture(), {40, 40}).pixel(30, 20)), 255);
    QCOMPARE(m_host->Images().Store().DecodeCount(), 1);
}

void TestBackgroundLoading::unknownObjectIsPassedOver()
{
    m_host->LoadImages(nullptr);
    QVERIFY(Events().isEmpty());
}

void TestBackgroundLoading::hostMayGoWhileLoading()
{
    AddTextures();
    m_host->LoadImages(m_hero->handle);
    m_host.reset();
    QCoreApplication::processEvents();
    QVERIFY(m_problems.isEmpty());
}

SOFTCLOTH_TEST(TestBackgroundLoading)

#include "tst_background_loading.moc"
