#include "host/images/ImageStore.h"
#include "host/scene/Handles.h"
#include "host/services/Pictures.h"
#include "plugin/services/EditService.h"
#include "plugin/services/FileService.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"
#include "tests/unit/services/ImageTestCase.h"

#include <QDir>
#include <QFileInfo>

/// LoadWeightImage: what it accepts, what it refuses, and what is left to take back.
class TestWeightImageLoading : public ImageTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imageIsLinked_data();
    void imageIsLinked();
    void loadMakesSoftCloth();
    void loadIsOneStep();
    void loadResetsTheAdjustment();
    void relativePathIsMadeAbsolute();
    void imageIsDecodedOnce();
    void otherMaterialsKeepTheirImages();
    void blackImageIsRefusedAndTakenBack();
    void imageThatIsBlackAtTheVerticesIsRefused();
    void refusedLoadKeepsTheFormerImage();
    void badFileIsRefusedWithAMessage_data();
    void badFileIsRefusedWithAMessage();
    void reasonIsForTheNextBoxOnly();
    void meshWithoutUvsSaysSo();
    void unknownPlaceIsInvalid_data();
    void unknownPlaceIsInvalid();
    void failureByPlanLeavesAStepToTakeBack();
    void tooManyMovingVerticesAreForTheUserToDecide_data();
    void tooManyMovingVerticesAreForTheUserToDecide();
    void sameLargeImageAgainCanBeTakenBack();
    void sameImageAgainIsNoStep();
};

namespace {

/// A sheet of \p columns x \p rows vertices whose UVs fill the unit square.
Host::Object Sheet(int columns, int rows)
{
    Host::Object object = SampleModels::Flag();
    Host::Mesh& mesh = object.meshes[0];
    mesh.positions.clear();
    mesh.normals.clear();
    mesh.uvs.clear();
    std::vector<quint32>& indices = mesh.materialSlots[0].indices;
    indices.clear();
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < columns; ++x) {
            mesh.positions.emplace_back(float(x), float(y), 0.0F);
            mesh.uvs.emplace_back(float(x) / float(columns - 1), float(y) / float(rows - 1));
            if (x > 0 && y > 0) {
                const auto here = quint32(y * columns + x);
                const auto below = here - quint32(columns);
                indices.insert(indices.end(), {here, here - 1, below, below, here - 1, below - 1});
            }
        }
    }
    return object;
}

const QImage white = SampleImages::Filled({8, 8}, Qt::white);
const QImage black = SampleImages::Filled({8, 8}, Qt::black);

} // namespace

void TestWeightImageLoading::imageIsLinked_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"map.jpg", "map.jpeg", "map.bmp", "map.gif", "map.png", "map.tga", "Größe 東京.png"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void TestWeightImageLoading::imageIsLinked()
{
    QFETCH(QString, name);
    const QString path = ImageFile(name, SampleImages::HalfBlack({32, 32}));
    QCOMPARE(Load(path), BF::Results::Success);
    QVERIFY(State().hasFile);
    QVERIFY(!State().embedded);
    QVERIFY(State().reload);
    std::wstring told;
    QCOMPARE(Queries().GetWeightImagePath(m_address.object, m_address.mesh, m_address.material, told),
             BF::Results::Success);
    QCOMPARE(QString::fromStdWString(told), path);
    QVERIFY(WeightTexture());
    QVERIFY(m_problems.isEmpty());
}

void TestWeightImageLoading::loadMakesSoftCloth()
{
    m_hero->state.rigidBody = true;
    QCOMPARE(Load(ImageFile(QStringLiteral("map.png"), white)), BF::Results::Success);
    bool active = false;
    QCOMPARE(Queries().IsPhysicsActive(m_hero->handle, 3, active), BF::Results::Success);
    QVERIFY(active);
    active = false;
    Queries().IsSoftClothActive(m_address.object, m_address.mesh, m_address.material, active);
    QVERIFY(active);
    QVERIFY(!m_hero->state.rigidBody);
    const Host::ClothAddress other = Host::Scene::SlotsOf(*m_hero).at(1);
    Queries().IsSoftClothActive(other.object, other.mesh, other.material, active);
    QVERIFY(!active);
}

void TestWeightImageLoading::loadIsOneStep()
{
    const Host::ClothState cloth = CurrentScene().FindSlot(m_address)->cloth;
    const Host::ObjectState object = m_hero->state;
    Load(ImageFile(QStringLiteral("map.png"), white));
    const Host::ClothState loaded = CurrentScene().FindSlot(m_address)->cloth;
    QCOMPARE(CurrentScene().UndoStack().count(), 1);
    m_host->Undo();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == cloth);
    QVERIFY(m_hero->state == object);
    m_host->Redo();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == loaded);
    QVERIFY(m_hero->state.softCloth);
}

void TestWeightImageLoading::loadResetsTheAdjustment()
{
    Load(ImageFile(QStringLiteral("a.png"), white));
    QCOMPARE(Adjust(-20, 30), BF::Results::Success);
    Load(ImageFile(QStringLiteral("b.png"), white));
    MV::WeightImageAdjust adjust{1, 1, 1};
    QCOMPARE(Queries().GetWeightImageAdjust(m_address.object, m_address.mesh, m_address.material, adjust),
             BF::Results::Success);
    QCOMPARE(adjust.zero, 0);
    QCOMPARE(adjust.brightness, 0);
    QCOMPARE(adjust.contrast, 0);
    m_host->Undo();
    QCOMPARE(Weight().brightness, -20);
    QCOMPARE(Weight().contrast, 30);
}

void TestWeightImageLoading::relativePathIsMadeAbsolute()
{
    const QString path = ImageFile(QStringLiteral("map.png"), white);
    QCOMPARE(Load(QDir::current().relativeFilePath(path)), BF::Results::Success);
    QVERIFY(QDir::isAbsolutePath(Weight().image.filePath));
    QCOMPARE(QFileInfo(Weight().image.filePath).canonicalFilePath(), QFileInfo(path).canonicalFilePath());
}

void TestWeightImageLoading::imageIsDecodedOnce()
{
    Load(ImageFile(QStringLiteral("map.png"), SampleImages::HalfBlack({64, 64})));
    BF::CHandle* source = nullptr;
    QVERIFY(Queries().GetThumbnailSourceImage(WeightTexture(), source));
    Render(WeightTexture(), {80, 80}, source);
    Adjust(10, 10);
    Render(WeightTexture(), {80, 80}, source);
    Embed();
    Render(WeightTexture(), {80, 80}, source);
    QCOMPARE(m_host->Images().Store().DecodeCount(), 1);
}

void TestWeightImageLoading::otherMaterialsKeepTheirImages()
{
    const auto slots = Host::Scene::SlotsOf(*m_hero);
    const QString a = ImageFile(QStringLiteral("a.png"), white);
    const QString b = ImageFile(QStringLiteral("b.png"), SampleImages::HalfBlack({8, 8}));
    QCOMPARE(Load(slots.at(0), a), BF::Results::Success);
    QCOMPARE(Load(slots.at(2), b), BF::Results::Success);
    QCOMPARE(CurrentScene().FindSlot(slots.at(0))->cloth.weight.image.filePath, a);
    QVERIFY(CurrentScene().FindSlot(slots.at(1))->cloth.weight.IsNone());
    QCOMPARE(CurrentScene().FindSlot(slots.at(2))->cloth.weight.image.filePath, b);
}

void TestWeightImageLoading::blackImageIsRefusedAndTakenBack()
{
    const Host::ClothState cloth = CurrentScene().FindSlot(m_address)->cloth;
    const QString path = ImageFile(QStringLiteral("black.png"), black);
    QCOMPARE(Load(path), BF::Results::Refused);
    QCOMPARE(Weight().image.filePath, path); // until it is taken back
    QVERIFY(!CurrentScene().FindSlot(m_address)->cloth.active);
    QVERIFY(!m_hero->state.softCloth);
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == cloth);
    QCOMPARE(CurrentScene().UndoStack().count(), 0); // nothing to redo either
    QVERIFY(m_problems.isEmpty());                   // the caller informs the user
}

void TestWeightImageLoading::imageThatIsBlackAtTheVerticesIsRefused()
{
    QImage image = black;
    image.setPixelColor(4, 4, Qt::white);
    QCOMPARE(Load(ImageFile(QStringLiteral("spot.png"), image)), BF::Results::Refused);
    Edits().UndoLastEdit();
    image.setPixelColor(0, 7, QColor(1, 1, 1));
    QCOMPARE(Load(ImageFile(QStringLiteral("corner.png"), image)), BF::Results::Success);
}

void TestWeightImageLoading::refusedLoadKeepsTheFormerImage()
{
    Load(ImageFile(QStringLiteral("white.png"), white));
    Adjust(-5, 5);
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    QCOMPARE(Load(ImageFile(QStringLiteral("black.png"), black)), BF::Results::Refused);
    Edits().UndoLastEdit();
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    QCOMPARE(CurrentScene().UndoStack().count(), 2);
    m_host->Undo(); // the step below is the former one
    QCOMPARE(Weight().brightness, 0);
}

void TestWeightImageLoading::badFileIsRefusedWithAMessage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QStringLiteral("missing.png") << QStringLiteral("there is no such file");
    QTest::newRow("directory") << QStringLiteral("folder.png") << QStringLiteral("it is not a file");
    QTest::newRow("empty") << QStringLiteral("empty.png") << QStringLiteral("it is empty");
    QTest::newRow("text with an image's suffix") << QStringLiteral("text.png") << QStringLiteral("it is no JPEG");
    for (const char* suffix : {"jpg", "bmp", "gif", "png", "tga"}) {
        QTest::addRow("truncated %s", suffix)
            << QStringLiteral("half.") + QString::fromLatin1(suffix)
            << (qstrcmp(suffix, "tga") == 0 ? QStringLiteral("it is damaged") : QStringLiteral("it is truncated"));
        QTest::addRow("oversized %s", suffix)
            << QStringLiteral("huge.") + QString::fromLatin1(suffix) << QStringLiteral("it has 60000 x 60000 pixels");
    }
}

void TestWeightImageLoading::badFileIsRefusedWithAMessage()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const QString suffix = QFileInfo(name).suffix();
    const QByteArray whole = SampleImages::Encoded(suffix, SampleImages::HalfBlack({40, 40}));
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.png")));
    SampleImages::WriteFile(PathOf(QStringLiteral("empty.png")), {});
    SampleImages::WriteFile(PathOf(QStringLiteral("text.png")), "text");
    SampleImages::WriteFile(PathOf(QStringLiteral("half.") + suffix), whole.left(whole.size() / 3));
    SampleImages::WriteFile(PathOf(QStringLiteral("huge.") + suffix), SampleImages::HeaderOnly(suffix, {60000, 60000}));

    Load(ImageFile(QStringLiteral("former.png"), white));
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    const BF::Result result = Load(PathOf(name));
    QCOMPARE(result, BF::Results::ResourceFailure);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    // One message: the reason is in the box that the caller shows.
    QVERIFY(m_problems.isEmpty());
    ShowBox();
    QCOMPARE(m_problems.size(), 1);
    QVERIFY2(m_problems.first().contains(QDir::toNativeSeparators(PathOf(name))) && m_problems.first().contains(reason),
             qPrintable(m_problems.first()));

    // The caller takes it back without a look at what went wrong.
    QCOMPARE(CurrentScene().UndoStack().index(), 2);
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    QCOMPARE(CurrentScene().UndoStack().count(), 1);
}

void TestWeightImageLoading::reasonIsForTheNextBoxOnly()
{
    Load(PathOf(QStringLiteral("missing.png")));
    ShowBox();
    QCOMPARE(m_problems.size(), 1);
    ShowBox();
    QCOMPARE(m_problems.size(), 1);
}

void TestWeightImageLoading::meshWithoutUvsSaysSo()
{
    m_hero->meshes[0].uvs.clear();
    // The lower left corner is where everything lies on the image then.
    QCOMPARE(Load(ImageFile(QStringLiteral("half.png"), SampleImages::HalfBlack({8, 8}))),
             BF::Results::ResourceFailure);
    ShowBox();
    QCOMPARE(m_problems.size(), 1);
    QVERIFY2(m_problems.first().contains(QStringLiteral("mesh \"Body\" has no texture coordinates")),
             qPrintable(m_problems.first()));
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QVERIFY(Weight().IsNone());
    QCOMPARE(CurrentScene().UndoStack().count(), 0);
    QCOMPARE(Load(ImageFile(QStringLiteral("white.png"), white)), BF::Results::Success);
}

void TestWeightImageLoading::unknownPlaceIsInvalid_data()
{
    QTest::addColumn<int>("part");
    QTest::newRow("object") << 0;
    QTest::newRow("mesh") << 1;
    QTest::newRow("material") << 2;
    QTest::newRow("all") << 3;
    QTest::newRow("no path") << 4;
}

void TestWeightImageLoading::unknownPlaceIsInvalid()
{
    QFETCH(int, part);
    Load(ImageFile(QStringLiteral("former.png"), white));
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    Host::ClothAddress address = m_address;
    if (part == 0 || part == 3) {
        address.object = part == 0 ? Host::ToHandle(12345) : nullptr;
    }
    if (part == 1 || part == 3) {
        address.mesh = part == 1 ? m_hero->meshes.at(1).id : 0;
    }
    if (part == 2 || part == 3) {
        address.material = part == 2 ? 1 : 0;
    }
    QCOMPARE(Load(address, part == 4 ? QString() : ImageFile(QStringLiteral("a.png"), white)),
             BF::Results::InvalidArgument);
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    QCOMPARE(CurrentScene().UndoStack().count(), 1);
}

void TestWeightImageLoading::failureByPlanLeavesAStepToTakeBack()
{
    Load(ImageFile(QStringLiteral("former.png"), white));
    const Host::ClothState former = CurrentScene().FindSlot(m_address)->cloth;
    m_host->Faults().FailOperation(QStringLiteral("LoadWeightImage"), BF::Result(0x80000004U), 1);
    QCOMPARE(Load(ImageFile(QStringLiteral("a.png"), white)), BF::Results::IndexOutOfRange);
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QVERIFY(CurrentScene().FindSlot(m_address)->cloth == former);
    QCOMPARE(CurrentScene().UndoStack().count(), 1);
}

void TestWeightImageLoading::tooManyMovingVerticesAreForTheUserToDecide_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("isHalfBlack");
    QTest::addColumn<int>("result");
    QTest::newRow("20,000") << 200 << 100 << false << 0;
    QTest::newRow("20,001") << 6667 << 3 << false << 1;
    QTest::newRow("20,164") << 142 << 142 << false << 1;
    QTest::newRow("20,164 of which half move") << 142 << 142 << true << 0;
    QTest::newRow("90,000 of which half move") << 300 << 300 << true << 1;
}

void TestWeightImageLoading::tooManyMovingVerticesAreForTheUserToDecide()
{
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(bool, isHalfBlack);
    QFETCH(int, result);
    const Host::Object& sheet = CurrentScene().AddObject(Sheet(columns, rows));
    const Host::ClothAddress address = Host::Scene::SlotsOf(sheet).front();
    const QString path = ImageFile(QStringLiteral("map.png"), isHalfBlack ? SampleImages::HalfBlack({64, 64}) : white);
    QCOMPARE(Load(address, path).Code(), result);
    // Kept, until the user decides otherwise.
    QCOMPARE(CurrentScene().FindSlot(address)->cloth.weight.image.filePath, path);
    QVERIFY(CurrentScene().FindSlot(address)->cloth.active);
    QCOMPARE(CurrentScene().UndoStack().count(), 1);
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QVERIFY(CurrentScene().FindSlot(address)->cloth.weight.IsNone());
    QVERIFY(!CurrentScene().FindSlot(address)->cloth.active);
}

void TestWeightImageLoading::sameLargeImageAgainCanBeTakenBack()
{
    const Host::Object& sheet = CurrentScene().AddObject(Sheet(150, 150));
    const Host::ClothAddress address = Host::Scene::SlotsOf(sheet).front();
    const QString path = ImageFile(QStringLiteral("map.png"), white);
    QCOMPARE(Load(address, path), BF::Results::NothingDone);
    QCOMPARE(Load(address, path), BF::Results::NothingDone);
    QCOMPARE(Edits().UndoLastEdit(), BF::Results::Success);
    QCOMPARE(CurrentScene().FindSlot(address)->cloth.weight.image.filePath, path); // that of the first time
}

void TestWeightImageLoading::sameImageAgainIsNoStep()
{
    const QString path = ImageFile(QStringLiteral("map.png"), white);
    QCOMPARE(Load(path), BF::Results::Success);
    QCOMPARE(Load(path), BF::Results::Success);
    QCOMPARE(CurrentScene().UndoStack().count(), 1);
}

SOFTCLOTH_TEST(TestWeightImageLoading)

#include "tst_weight_image_loading.moc"
