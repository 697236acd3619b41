#include "host/scene/Handles.h"
#include "host/services/Pictures.h"
#include "plugin/services/SceneService.h"
#include "tests/support/FullDisk.h"
#include "tests/support/SampleImages.h"
#include "tests/unit/services/ImageTestCase.h"

#include <QFile>

using MV::ETextureChannel;

/// The scene service's queries about textures, thumbnails and UV layouts.
class TestTextureQueries : public ImageTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void defaultThumbnailIsOnePictureForAll();
    void stateOfATexture_data();
    void stateOfATexture();
    void openingATexture_data();
    void openingATexture();
    void materialIsEmbeddedWhenATextureIs();
    void handlesStandForTheirPictures();
    void handleFollowsItsTexture();
    void thumbnailIsDrawnAtTheAskedSize_data();
    void thumbnailIsDrawnAtTheAskedSize();
    void thumbnailOfWhatCannotBeReadIsBroken_data();
    void thumbnailOfWhatCannotBeReadIsBroken();
    void thumbnailCannotBeDrawn_data();
    void thumbnailCannotBeDrawn();
    void handleOfADeletedWeightImageIsOfNoUse();
    void handlesAreUnknownInAnotherScene();
    void journalNamesHandles();
    void pathOfATexture();
    void pathOfTheWeightChannelIsThatOfTheWeightImage();
    void materialIndexIsTheSameForObjectAndMesh();
    void uvLayoutIsDrawnOverTheTexture();
    void uvLayoutOfAMeshLeavesTheOthersOut();
#ifdef Q_OS_UNIX // Elsewhere no limit makes a disk look full.
    void noUvLayoutIsLeftOnAFullDisk();
#endif
    void uvLayoutCannotBeExported_data();
    void uvLayoutCannotBeExported();

private:
    /// What GetMaterialTextureState and its companions return.
    struct Answers
    {
        BF::Result state;
        bool hasTexture = false;
        bool hasFile = false;
        BF::Result open;
        bool loads = false;
        BF::Result embedded;
        BF::Result thumbnailFound;
        BF::CHandle* thumbnail = nullptr;
        bool hasSource = false;
        BF::Result sourceFound;
        BF::CHandle* source = nullptr;
    };
    Answers Ask(Host::Id material, ETextureChannel channel) const;
    Host::Id Skin() const
    {
        return m_address.material;
    }
    Host::Texture& Diffuse() const
    {
        return m_hero->materials.at(0).textures[ETextureChannel::Diffuse];
    }
    BF::CHandle* Thumbnail(ETextureChannel channel = ETextureChannel::Diffuse) const
    {
        return Ask(Skin(), channel).thumbnail;
    }
    /// Lets the diffuse texture be one of several kinds, by name.
    void SetTexture(const QString& kind) const;
};

TestTextureQueries::Answers TestTextureQueries::Ask(Host::Id material, ETextureChannel channel) const
{
    Answers answers;
    MV::CSceneService& queries = Queries();
    bool unused1 = false;
    bool unused2 = false;
    answers.state =
        queries.GetMaterialTextureState(material, channel, answers.hasTexture, answers.hasFile, unused1, unused2);
    answers.open = queries.OpenTexture(material, channel, true);
    answers.loads = queries.LoadTextureSource(material, channel);
    answers.embedded = queries.GetEmbeddedTexture(material, channel);
    answers.thumbnailFound = queries.GetTextureThumbnail(material, channel, answers.thumbnail, answers.hasSource);
    answers.sourceFound = queries.GetThumbnailSource(material, channel, answers.source);
    return answers;
}

void TestTextureQueries::SetTexture(const QString& kind) const
{
    const QImage image = SampleImages::HalfBlack({20, 10});
    Diffuse() = {};
    if (kind == QLatin1String("linked")) {
        Diffuse().filePath = ImageFile(QStringLiteral("skin.png"), image);
    } else if (kind == QLatin1String("embedded")) {
        Diffuse().embedded = SampleImages::Encoded(QStringLiteral("jpg"), image);
    } else if (kind == QLatin1String("missing")) {
        Diffuse().filePath = PathOf(QStringLiteral("missing.png"));
    } else if (kind == QLatin1String("damaged")) {
        Diffuse().filePath = SampleImages::WriteFile(PathOf(QStringLiteral("damaged.png")), "no image");
    } else if (kind == QLatin1String("damaged embedded")) {
        Diffuse().embedded = "no image";
    } else {
        m_hero->materials.at(0).textures.clear();
    }
}

void TestTextureQueries::defaultThumbnailIsOnePictureForAll()
{
    BF::CHandle* first = nullptr;
    BF::CHandle* second = nullptr;
    QCOMPARE(Queries().GetDefaultThumbnail(first), BF::Results::Success);
    QCOMPARE(Queries().GetDefaultThumbnail(second), BF::Results::Success);
    QVERIFY(first);
    QCOMPARE(first, second);
    BF::CHandle* source = nullptr;
    QVERIFY(!Queries().GetThumbnailSourceImage(first, source));
    QVERIFY(!source);
    QCOMPARE(Render(first, {50, 30}).size(), QSize(50, 30));
}

void TestTextureQueries::stateOfATexture_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("hasTexture");
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<bool>("isReadable");
    QTest::newRow("none") << QStringLiteral("none") << false << false << false;
    QTest::newRow("linked") << QStringLiteral("linked") << true << true << true;
    QTest::newRow("embedded") << QStringLiteral("embedded") << true << true << true;
    QTest::newRow("missing") << QStringLiteral("missing") << true << false << false;
    QTest::newRow("damaged") << QStringLiteral("damaged") << true << true << false;
    QTest::newRow("damaged embedded") << QStringLiteral("damaged embedded") << true << true << false;
}

void TestTextureQueries::stateOfATexture()
{
    QFETCH(QString, kind);
    QFETCH(bool, hasTexture);
    QFETCH(bool, hasFile);
    QFETCH(bool, isReadable);
    SetTexture(kind);
    const Answers answers = Ask(Skin(), ETextureChannel::Diffuse);
    QCOMPARE(answers.state, BF::Results::Success);
    QCOMPARE(answers.hasTexture, hasTexture);
    QCOMPARE(answers.hasFile, hasFile);
    QCOMPARE(answers.loads, isReadable);
    QCOMPARE(answers.thumbnailFound, hasTexture ? BF::Results::Success : BF::Results::Refused);
    QCOMPARE(answers.hasSource, isReadable);
    QCOMPARE(answers.sourceFound, isReadable ? BF::Results::Success : BF::Results::Refused);
    // The other channels have nothing to do with it.
    QVERIFY(!Ask(Skin(), ETextureChannel::Opacity).hasTexture);
    QVERIFY(!Ask(Skin(), ETextureChannel::Weight).hasTexture);
    QVERIFY(!Ask(m_hero->materials.at(1).id, ETextureChannel::Diffuse).hasTexture);
}

void TestTextureQueries::openingATexture_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("result");
    QTest::newRow("none") << QStringLiteral("none") << BF::Results::Refused.Code();
    QTest::newRow("linked") << QStringLiteral("linked") << 0;
    QTest::newRow("embedded") << QStringLiteral("embedded") << 0;
    QTest::newRow("missing") << QStringLiteral("missing") << 1;
    QTest::newRow("damaged") << QStringLiteral("damaged") << 1;
    QTest::newRow("damaged embedded") << QStringLiteral("damaged embedded") << 1;
}

/// What cannot be read is no failure, which would keep the caller from showing anything else.
void TestTextureQueries::openingATexture()
{
    QFETCH(QString, kind);
    QFETCH(int, result);
    SetTexture(kind);
    const Answers answers = Ask(Skin(), ETextureChannel::Diffuse);
    QCOMPARE(answers.open.Code(), result);
    QCOMPARE(answers.embedded.Code(), result);
    const Answers unknown = Ask(4711, ETextureChannel::Diffuse);
    QCOMPARE(unknown.state, BF::Results::InvalidArgument);
    QCOMPARE(unknown.open, BF::Results::InvalidArgument);
    QCOMPARE(unknown.embedded, BF::Results::InvalidArgument);
    QCOMPARE(unknown.thumbnailFound, BF::Results::InvalidArgument);
    QCOMPARE(unknown.sourceFound, BF::Results::InvalidArgument);
    QVERIFY(!unknown.loads);
}

void TestTextureQueries::materialIsEmbeddedWhenATextureIs()
{
    QVERIFY(!Queries().IsTextureEmbedded(Skin()));
    SetTexture(QStringLiteral("linked"));
    QVERIFY(!Queries().IsTextureEmbedded(Skin()));
    m_hero->materials.at(0).textures[ETextureChannel::Opacity].embedded = "any";
    QVERIFY(Queries().IsTextureEmbedded(Skin()));
    QVERIFY(!Queries().IsTextureEmbedded(0));
}

void TestTextureQueries::handlesStandForTheirPictures()
{
    SetTexture(QStringLiteral("linked"));
    Load(ImageFile(QStringLiteral("map.png"), SampleImages::Filled({4, 4}, Qt::white)));
    const Answers answers = Ask(Skin(), ETextureChannel::Diffuse);
    QVERIFY(answers.thumbnail && answers.source && WeightTexture());
    QVERIFY(answers.thumbnail != answers.source);
    QVERIFY(answers.thumbnail != WeightTexture());
    QCOMPARE(Ask(Skin(), ETextureChannel::Diffuse).thumbnail, answers.thumbnail);
    BF::CHandle* source = nullptr;
    QVERIFY(Queries().GetThumbnailSourceImage(answers.thumbnail, source));
    QCOMPARE(source, answers.source);
    QVERIFY(Queries().GetThumbnailSourceImage(WeightTexture(), source));
    QVERIFY(source != answers.source);
    for (BF::CHandle* unknown : {static_cast<BF::CHandle*>(nullptr), Host::ToHandle(3), m_hero->handle}) {
        source = nullptr;
        QVERIFY(!Queries().GetThumbnailSourceImage(unknown, source));
        QVERIFY(!source);
    }
}

void TestTextureQueries::handleFollowsItsTexture()
{
    SetTexture(QStringLiteral("linked"));
    BF::CHandle* const thumbnail = Thumbnail();
    QCOMPARE(qGray(Render(thumbnail, {40, 20}).pixel(5, 10)), 0);
    // A file of another size: the time alone does not distinguish two writes within one tick of the file system.
    ImageFile(QStringLiteral("skin.png"), SampleImages::Filled({200, 100}, Qt::red));
    QCOMPARE(Render(thumbnail, {40, 20}).pixelColor(5, 10), QColor(Qt::red));
}

void TestTextureQueries::thumbnailIsDrawnAtTheAskedSize_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : {QSize(1, 1), QSize(64, 64), QSize(200, 80), QSize(80, 200), QSize(4096, 16)}) {
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
}

void TestTextureQueries::thumbnailIsDrawnAtTheAskedSize()
{
    QFETCH(QSize, size);
    SetTexture(QStringLiteral("linked"));
    Load(ImageFile(QStringLiteral("map.png"), SampleImages::Filled({600, 700}, Qt::white)));
    BF::CHandle* none = nullptr;
    Queries().GetDefaultThumbnail(none);
    const Answers answers = Ask(Skin(), ETextureChannel::Diffuse);
    BF::CHandle* weightSource = nullptr;
    QVERIFY(Queries().GetThumbnailSourceImage(WeightTexture(), weightSource));
    QCOMPARE(Render(answers.thumbnail, size).size(), size);
    QCOMPARE(Render(answers.thumbnail, size, answers.source).size(), size);
    QCOMPARE(Render(WeightTexture(), size).size(), size);
    QCOMPARE(Render(WeightTexture(), size, weightSource).size(), size);
    QCOMPARE(Render(none, size).size(), size);
}

void TestTextureQueries::thumbnailOfWhatCannotBeReadIsBroken_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("damaged") << QStringLiteral("damaged");
    QTest::newRow("damaged embedded") << QStringLiteral("damaged embedded");
}

void TestTextureQueries::thumbnailOfWhatCannotBeReadIsBroken()
{
    QFETCH(QString, kind);
    BF::CHandle* none = nullptr;
    Queries().GetDefaultThumbnail(none);
    SetTexture(kind);
    const QImage broken = Render(Thumbnail(), {60, 60});
    QVERIFY(broken != Render(none, {60, 60}));
    SetTexture(QStringLiteral("linked"));
    QVERIFY(broken != Render(Thumbnail(), {60, 60}));
}

void TestTextureQueries::thumbnailCannotBeDrawn_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("thumbnail"); // 0 a good one, 1 null, 2 unknown
    QTest::addColumn<int>("source");    // 0 a good one, 1 null, 2 unknown
    QTest::addColumn<bool>("isDrawn");
    QTest::newRow("all good") << 10 << 10 << 0 << 0 << true;
    QTest::newRow("without source") << 10 << 10 << 0 << 1 << true;
    QTest::newRow("no width") << 0 << 10 << 0 << 0 << false;
    QTest::newRow("no height") << 10 << 0 << 0 << 0 << false;
    QTest::newRow("less than nothing") << -5 << -5 << 0 << 0 << false;
    QTest::newRow("too wide") << 4097 << 10 << 0 << 0 << false;
    QTest::newRow("far too high") << 10 << 2147483647 << 0 << 0 << false;
    QTest::newRow("no thumbnail") << 10 << 10 << 1 << 0 << false;
    QTest::newRow("unknown thumbnail") << 10 << 10 << 2 << 0 << false;
    QTest::newRow("unknown source") << 10 << 10 << 0 << 2 << false;
    QTest::newRow("nothing") << 10 << 10 << 1 << 1 << false;
}

void TestTextureQueries::thumbnailCannotBeDrawn()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, thumbnail);
    QFETCH(int, source);
    QFETCH(bool, isDrawn);
    SetTexture(QStringLiteral("linked"));
    const Answers answers = Ask(Skin(), ETextureChannel::Diffuse);
    BF::CHandle* const unknown = Host::ToHandle(Host::NewId());
    BF::CHandle* const thumbnails[] = {answers.thumbnail, nullptr, unknown};
    BF::CHandle* const sources[] = {answers.source, nullptr, unknown};
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(Qt::green);
    QCOMPARE(Queries().RenderThumbnail(width, height, thumbnails[thumbnail], sources[source], image),
             isDrawn ? BF::Results::Success : BF::Results::InvalidArgument);
    QCOMPARE(image.size(), isDrawn ? QSize(width, height) : QSize(1, 1));
}

void TestTextureQueries::handleOfADeletedWeightImageIsOfNoUse()
{
    Load(ImageFile(QStringLiteral("map.png"), SampleImages::Filled({4, 4}, Qt::white)));
    BF::CHandle* const handle = WeightTexture();
    Delete();
    QImage image;
    QCOMPARE(Queries().RenderThumbnail(10, 10, handle, nullptr, image), BF::Results::InvalidArgument);
    m_host->Undo();
    QCOMPARE(Queries().RenderThumbnail(10, 10, handle, nullptr, image), BF::Results::Success);
}

void TestTextureQueries::handlesAreUnknownInAnotherScene()
{
    BF::CHandle* none = nullptr;
    Queries().GetDefaultThumbnail(none);
    m_host->ReplaceScene(std::make_unique<Host::Scene>(), MV::EFileType::Scene);
    QImage image;
    QCOMPARE(Queries().RenderThumbnail(10, 10, none, nullptr, image), BF::Results::InvalidArgument);
    BF::CHandle* again = nullptr;
    QCOMPARE(Queries().GetDefaultThumbnail(again), BF::Results::Success);
    QVERIFY(again != none);
}

void TestTextureQueries::journalNamesHandles()
{
    SetTexture(QStringLiteral("linked"));
    Load(ImageFile(QStringLiteral("map.png"), SampleImages::Filled({4, 4}, Qt::white)));
    BF::CHandle* none = nullptr;
    Queries().GetDefaultThumbnail(none);
    BF::CHandle* source = nullptr;
    Queries().GetThumbnailSourceImage(WeightTexture(), source);
    const Answers answers = Ask(Skin(), ETextureChannel::Diffuse);
    m_host->Journal().Clear();
    QImage image;
    Queries().RenderThumbnail(8, 8, none, nullptr, image);
    Queries().RenderThumbnail(8, 9, answers.thumbnail, answers.source, image);
    Queries().RenderThumbnail(9, 8, WeightTexture(), source, image);
    Queries().RenderThumbnail(9, 9, Host::ToHandle(0x5), nullptr, image);
    QStringList calls;
    for (const Host::JournalEntry& entry : m_host->Journal().Entries()) {
        calls.append(entry.ToString());
    }
    QCOMPARE(calls,
             (QStringList{
                 QStringLiteral("RenderThumbnail(8, 8, default thumbnail, null) -> 0"),
                 QStringLiteral("RenderThumbnail(8, 9, thumbnail of channel 0 of \"Skin\", image of channel 0 of "
                                "\"Skin\") -> 0"),
                 QStringLiteral("GetWeightTexture(\"Hero\", \"Body\", \"Skin\", weight thumbnail of \"Skin\" on "
                                "\"Body\") -> 0"),
                 QStringLiteral("RenderThumbnail(9, 8, weight thumbnail of \"Skin\" on \"Body\", weight image of "
                                "\"Skin\" on \"Body\") -> 0"),
                 QStringLiteral("RenderThumbnail(9, 9, unknown 0x5, null) -> 0x80000003"),
             }));
}

void TestTextureQueries::pathOfATexture()
{
    std::wstring path = L"unchanged";
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 0, ETextureChannel::Diffuse, path), BF::Results::Refused);
    SetTexture(QStringLiteral("embedded"));
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 0, ETextureChannel::Diffuse, path), BF::Results::Refused);
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 3, ETextureChannel::Diffuse, path), BF::Results::IndexOutOfRange);
    QCOMPARE(Queries().GetTexturePath(nullptr, 0, ETextureChannel::Diffuse, path), BF::Results::InvalidArgument);
    QVERIFY(path == L"unchanged");
    SetTexture(QStringLiteral("linked"));
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 0, ETextureChannel::Diffuse, path), BF::Results::Success);
    QCOMPARE(QString::fromStdWString(path), PathOf(QStringLiteral("skin.png")));
}

void TestTextureQueries::pathOfTheWeightChannelIsThatOfTheWeightImage()
{
    std::wstring path;
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 0, ETextureChannel::Weight, path), BF::Results::Refused);
    const QString map = ImageFile(QStringLiteral("map.png"), SampleImages::Filled({4, 4}, Qt::white));
    Load(map);
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 0, ETextureChannel::Weight, path), BF::Results::Success);
    QCOMPARE(QString::fromStdWString(path), map);
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 1, ETextureChannel::Weight, path), BF::Results::Refused);
    const Answers answers = Ask(Skin(), ETextureChannel::Weight);
    QVERIFY(answers.hasTexture && answers.hasFile && answers.loads && answers.hasSource);
    Embed();
    QCOMPARE(Queries().GetTexturePath(m_hero->handle, 0, ETextureChannel::Weight, path), BF::Results::Refused);
}

void TestTextureQueries::materialIndexIsTheSameForObjectAndMesh()
{
    const Host::Id skirt = m_hero->materials.at(2).id;
    std::size_t index = 0;
    QCOMPARE(Queries().GetMaterialIndex(m_hero->handle, skirt, index), BF::Results::Success);
    QCOMPARE(index, std::size_t{2});
    for (const Host::Mesh& mesh : m_hero->meshes) {
        index = 0;
        QCOMPARE(Queries().GetMaterialIndex(Host::ToHandle(mesh.id), skirt, index), BF::Results::Success);
        QCOMPARE(index, std::size_t{2});
    }
    QCOMPARE(Queries().GetMaterialIndex(Host::ToHandle(skirt), skirt, index), BF::Results::InvalidArgument);
    QCOMPARE(Queries().GetMaterialIndex(m_hero->handle, 5, index), BF::Results::InvalidArgument);
}

void TestTextureQueries::uvLayoutIsDrawnOverTheTexture()
{
    Diffuse().filePath = ImageFile(QStringLiteral("skin.png"), SampleImages::Filled({64, 64}, Qt::red));
    BF::CArrayList<std::wstring> files{L"former"};
    QCOMPARE(Queries().ExportUvTexture(Host::ToHandle(m_address.mesh), 0, ETextureChannel::Diffuse, files),
             BF::Results::Success);
    QCOMPARE(files.Size(), std::size_t{1});
    const QString file = QString::fromStdWString(files[0]);
    const QImage layout(file);
    QCOMPARE(layout.size(), QSize(1024, 1024));
    QCOMPARE(layout.pixelColor(300, 600), QColor(Qt::red));  // in a triangle
    QVERIFY(layout.pixelColor(512, 512) != QColor(Qt::red)); // on the diagonal
    m_host.reset();
    QVERIFY(!QFile::exists(file)); // with nobody to ask for a place it is kept for the session only
}

void TestTextureQueries::uvLayoutOfAMeshLeavesTheOthersOut()
{
    // Both meshes get "Skin", the second one in a corner.
    Host::Object twins;
    twins.name = QStringLiteral("Twins");
    twins.materials.resize(1);
    twins.materials[0].name = QStringLiteral("Skin/\\: 東");
    twins.materials[0].textures[ETextureChannel::Diffuse].embedded =
        SampleImages::Encoded(QStringLiteral("png"), SampleImages::Filled({1024, 1024}, Qt::red));
    Host::Mesh mesh;
    mesh.positions.resize(3);
    mesh.uvs = {{0.1F, 0.1F}, {0.4F, 0.1F}, {0.1F, 0.4F}};
    mesh.materialSlots = {{1, {0, 1, 2}, {}}};
    twins.meshes.push_back(mesh);
    mesh.uvs = {{0.9F, 0.9F}, {0.6F, 0.9F}, {0.9F, 0.6F}};
    twins.meshes.push_back(mesh);
    const Host::Object& object = CurrentScene().AddObject(twins);

    const auto layout = [&](BF::CHandle* handle) {
        BF::CArrayList<std::wstring> files;
        Queries().ExportUvTexture(handle, 0, ETextureChannel::Diffuse, files);
        return files.IsEmpty() ? QImage() : QImage(QString::fromStdWString(files[0]));
    };
    const auto hasLine = [](const QImage& image, const QPoint& at) {
        return image.copy(QRect(at, QSize(5, 5))) !=
               SampleImages::Filled({5, 5}, Qt::red).convertToFormat(image.format());
    };
    const QPoint firstLine(254, 1024 - 105);
    const QPoint secondLine(768, 1024 - 924);
    const QImage first = layout(Host::ToHandle(object.meshes[0].id));
    QVERIFY(hasLine(first, firstLine));
    QVERIFY(!hasLine(first, secondLine));
    const QImage second = layout(Host::ToHandle(object.meshes[1].id));
    QVERIFY(!hasLine(second, firstLine));
    QVERIFY(hasLine(second, secondLine));
    const QImage both = layout(object.handle);
    QVERIFY(hasLine(both, firstLine));
    QVERIFY(hasLine(both, secondLine));
}

#ifdef Q_OS_UNIX
void TestTextureQueries::noUvLayoutIsLeftOnAFullDisk()
{
    Diffuse().filePath = ImageFile(QStringLiteral("skin.png"), SampleImages::Filled({64, 64}, Qt::red));
    BF::CArrayList<std::wstring> files{L"former"};
    for (const rlim_t room : {0, 4096, 8000}) {
        const FullDisk full{room};
        QCOMPARE(Queries().ExportUvTexture(Host::ToHandle(m_address.mesh), 0, ETextureChannel::Diffuse, files),
                 BF::Results::ResourceFailure);
        QCOMPARE(files[0], std::wstring(L"former"));
        ShowBox();
    }
    QCOMPARE(m_problems.size(), 3);
    QCOMPARE(Queries().ExportUvTexture(Host::ToHandle(m_address.mesh), 0, ETextureChannel::Diffuse, files),
             BF::Results::Success);
}
#endif

void TestTextureQueries::uvLayoutCannotBeExported_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<BF::Result>("result");
    QTest::newRow("no texture") << QStringLiteral("none") << 0 << true << BF::Results::Refused;
    QTest::newRow("missing file") << QStringLiteral("missing") << 0 << true << BF::Results::ResourceFailure;
    QTest::newRow("damaged file") << QStringLiteral("damaged") << 0 << true << BF::Results::ResourceFailure;
    QTest::newRow("damaged bytes") << QStringLiteral("damaged embedded") << 0 << true << BF::Results::ResourceFailure;
    QTest::newRow("index beyond the end") << QStringLiteral("linked") << 3 << true << BF::Results::IndexOutOfRange;
    QTest::newRow("unknown handle") << QStringLiteral("linked") << 0 << false << BF::Results::InvalidArgument;
}

void TestTextureQueries::uvLayoutCannotBeExported()
{
    QFETCH(QString, kind);
    QFETCH(int, index);
    QFETCH(bool, isKnown);
    QFETCH(BF::Result, result);
    SetTexture(kind);
    BF::CArrayList<std::wstring> files{L"former"};
    QCOMPARE(Queries().ExportUvTexture(isKnown ? m_hero->handle : nullptr, std::size_t(index), ETextureChannel::Diffuse,
                                       files),
             result);
    QVERIFY(files == BF::CArrayList<std::wstring>{L"former"});
    QVERIFY(m_problems.isEmpty());
    ShowBox(); // with the reason in it
    QCOMPARE(m_problems.size(), result == BF::Results::ResourceFailure ? 1 : 0);
}

SOFTCLOTH_TEST(TestTextureQueries)

#include "tst_texture_queries.moc"
