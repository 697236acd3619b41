#include "host/scene/Scene.h"
#include "host/scene/SceneFile.h"
#include "host/scene/SceneJson.h"

#include "tests/support/Files.h"
#include "tests/support/TestCase.h"
#include "tests/unit/scene/JsonEdit.h"
#include "tests/unit/scene/SampleScene.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstring>
#include <limits>

using Host::Object;
using Host::Scene;
using Host::SceneFileResult;

class TestSceneFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void emptySceneComesBackEmpty();
    void everythingComesBack();
    void selectionComesBack();
    void geometryComesBackBitForBit();
    void namesComeBack_data();
    void namesComeBack();
    void statesAndUndoStepsComeBackBitForBit();
    void deletedObjectsComeBackForUndo();
    void loadedSceneHasIdsOfItsOwn();
    void loadedSceneIsClean();
    void savingTwiceGivesTheSameBytes();
    void texturesMoveAlongWithTheScene();
    void textureThatStayedIsFoundByItsAbsolutePath();
    void sceneNeedsNoOtherFile();

    void handWrittenNumbersAreTaken();
    void fileOfAnEarlierVersionOpens();
    void earlierVersionMayLackFields_data();
    void earlierVersionMayLackFields();

    void saveReplacesTheFile();

private:
    void SetUp() override;

    QString PathOf(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    std::unique_ptr<Scene> Reload(const Scene& scene) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

/// By bits, so that a NaN equals itself.
template <class Item>
bool SameBits(const std::vector<Item>& a, const std::vector<Item>& b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(Item)) == 0;
}

bool SameEdit(const Host::SceneEdit& a, const Host::SceneEdit& b)
{
    const auto sameStates = [](const auto& x, const auto& y) {
        return std::equal(x.begin(), x.end(), y.begin(), y.end(),
                          [](const auto& p, const auto& q) { return p.before == q.before && p.after == q.after; });
    };
    return a.text == b.text && sameStates(a.cloths, b.cloths) && sameStates(a.materials, b.materials) &&
           sameStates(a.objects, b.objects);
}

} // namespace

void TestSceneFile::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

std::unique_ptr<Scene> TestSceneFile::Reload(const Scene& scene) const
{
    const QString path = PathOf("reload.scene");
    const SceneFileResult saved = Host::SaveScene(scene, path);
    if (!saved.ok) {
        qFatal("%s", qPrintable(saved.error));
    }
    std::unique_ptr<Scene> loaded;
    const SceneFileResult result = Host::LoadScene(path, loaded);
    if (!result.ok || !result.error.isEmpty() || !loaded) {
        qFatal("%s", qPrintable(result.error));
    }
    return loaded;
}

void TestSceneFile::emptySceneComesBackEmpty()
{
    const auto loaded = Reload(Scene());
    QVERIFY(loaded->AllObjects().empty());
    QCOMPARE(loaded->UndoStack().count(), 0);
}

void TestSceneFile::selectionComesBack()
{
    Scene scene;
    scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
    Object& second = scene.AddObject(Sample::Robe(QStringLiteral("Coat")));
    scene.SetSelection({second.handle});
    const auto loaded = Reload(scene);
    QCOMPARE(loaded->Selection(), QVector<BF::CHandle*>{loaded->AllObjects()[1]->handle});
}

void TestSceneFile::everythingComesBack()
{
    Scene scene;
    Object robe = Sample::Robe(QStringLiteral("Robe"));
    robe.traits = {4294967295U, -7, 5, true, true};
    robe.materials[0].diffuse = QColor::fromRgba64(1, 2, 30000, 65535);
    robe.materials[0].textures = {{MV::ETextureChannel::Diffuse, {QStringLiteral("/no/such/silk.png"), {}}},
                                  {MV::ETextureChannel::Opacity, {{}, QByteArray("\0\xff png", 6)}},
                                  {MV::ETextureChannel::Weight, {QStringLiteral("/no/such/w.png"), "both"}}};
    robe.meshes[0].materialSlots[0].cloth.wind.frequency = 0.3F;
    const Object& before = scene.AddObject(robe);
    scene.AddObject({}); // nothing in it

    const auto loaded = Reload(scene);
    QCOMPARE(loaded->AllObjects().size(), std::size_t{2});
    const Object& after = *loaded->AllObjects()[0];
    QCOMPARE(after.name, QStringLiteral("Robe"));
    QVERIFY(after.traits == before.traits);
    QCOMPARE(after.materials.size(), std::size_t{3});
    QCOMPARE(after.materials[0].name, QStringLiteral("Silk"));
    QCOMPARE(after.materials[0].diffuse.rgba64(), before.materials[0].diffuse.rgba64());
    QCOMPARE(after.materials[1].diffuse, QColor(10, 20, 30, 40));
    QVERIFY(after.materials[1].textures.empty());
    const auto& textures = after.materials[0].textures;
    QCOMPARE(textures.size(), std::size_t{3});
    for (const auto& [channel, texture] : before.materials[0].textures) {
        QCOMPARE(textures.at(channel).filePath, texture.filePath);
        QCOMPARE(textures.at(channel).embedded, texture.embedded);
    }
    QCOMPARE(after.meshes.size(), std::size_t{2});
    QCOMPARE(after.meshes[1].name, QStringLiteral("Belt"));
    QCOMPARE(after.meshes[1].materialSlots[1].material, after.materials[2].id);
    QVERIFY(after.meshes[1].normals.empty());
    QVERIFY(after.meshes[1].uvs.empty());
    QVERIFY(Sample::StatesOf(*loaded) == Sample::StatesOf(scene));
}

void TestSceneFile::geometryComesBackBitForBit()
{
    QRandomGenerator random(99);
    const auto anyFloat = [&] {
        const quint32 bits = random.generate();
        float value = 0.0F;
        std::memcpy(&value, &bits, sizeof(value));
        return value;
    };
    Scene scene;
    Object robe = Sample::Robe(QStringLiteral("Robe"));
    Host::Mesh& mesh = robe.meshes[0];
    const std::size_t count = 5000;
    mesh.positions.resize(count);
    mesh.normals.resize(count);
    mesh.uvs.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        mesh.positions[i] = {anyFloat(), anyFloat(), anyFloat()};
        mesh.normals[i] = {anyFloat(), anyFloat(), anyFloat()};
        mesh.uvs[i] = {anyFloat(), anyFloat()};
    }
    mesh.materialSlots[0].indices.resize(3 * count);
    for (quint32& index : mesh.materialSlots[0].indices) {
        index = random.bounded(static_cast<quint32>(count));
    }
    const Host::Mesh& before = scene.AddObject(robe).meshes[0];
    const auto loaded = Reload(scene);
    const Host::Mesh& after = loaded->Objects()[0]->meshes[0];
    QVERIFY(SameBits(after.positions, before.positions));
    QVERIFY(SameBits(after.normals, before.normals));
    QVERIFY(SameBits(after.uvs, before.uvs));
    QVERIFY(SameBits(after.materialSlots[0].indices, before.materialSlots[0].indices));
}

void TestSceneFile::namesComeBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << QString();
    QTest::newRow("letters of all kinds") << QStringLiteral("Größe 東京 Ωμέγα ✂");
    QTest::newRow("beyond 16 bits") << QStringLiteral("\U0001F9E5 \U00020000");
    QTest::newRow("JSON's own marks") << QStringLiteral("\"{[\\,]}\" \b\f\n\r\t /");
    QTest::newRow("control characters") << QString(QChar(0)) + QChar(1) + QChar(0x1f) + QChar(0x7f) + QChar(0x2028);
    QTest::newRow("half a surrogate pair") << QStringLiteral("a") + QChar(0xd83e) + QStringLiteral("b");
    QTest::newRow("not a character") << QString(QChar(0xffff)) + QChar(0xfeff);
    QTest::newRow("long") << QString(100000, QChar(0x00fc));
}

void TestSceneFile::namesComeBack()
{
    QFETCH(QString, name);
    Scene scene;
    Object robe = Sample::Robe(name);
    robe.meshes[0].name = name;
    robe.materials[0].name = name;
    const Object& object = scene.AddObject(robe);
    Host::SceneEdit edit;
    edit.text = name;
    edit.objects.push_back({object.handle, {}, {true, true, false}});
    scene.Push(edit);
    const auto loaded = Reload(scene);
    const Object& after = *loaded->Objects()[0];
    QCOMPARE(after.name, name);
    QCOMPARE(after.meshes[0].name, name);
    QCOMPARE(after.materials[0].name, name);
    QCOMPARE(loaded->UndoSteps()[0].text, name);
}

void TestSceneFile::statesAndUndoStepsComeBackBitForBit()
{
    Scene scene;
    Sample::FillScene(scene);
    const auto loaded = Reload(scene);
    QVERIFY(Sample::StatesOf(*loaded) == Sample::StatesOf(scene));
    QCOMPARE(loaded->UndoStack().index(), 2);
    const auto before = scene.UndoSteps();
    const auto after = loaded->UndoSteps();
    QVERIFY(std::equal(after.begin(), after.end(), before.begin(), before.end(), SameEdit));
    for (const int index : {3, 0, 2, 1}) {
        loaded->UndoStack().setIndex(index);
        scene.UndoStack().setIndex(index);
        QVERIFY(Sample::StatesOf(*loaded) == Sample::StatesOf(scene));
    }
}

void TestSceneFile::deletedObjectsComeBackForUndo()
{
    Scene scene;
    Sample::FillScene(scene);
    Host::SceneEdit edit;
    edit.objects.push_back({scene.Objects()[0]->handle, {}, {false, false, false}});
    scene.Push(edit);
    const auto loaded = Reload(scene);
    QCOMPARE(loaded->Objects().size(), std::size_t{1});
    QCOMPARE(loaded->Objects()[0]->name, QStringLiteral("Second"));
    loaded->UndoStack().undo();
    QCOMPARE(loaded->Objects().size(), std::size_t{2});
    QCOMPARE(loaded->Objects()[0]->name, QStringLiteral("First"));
}

void TestSceneFile::loadedSceneHasIdsOfItsOwn()
{
    Scene scene;
    Sample::FillScene(scene);
    const Object& object = *scene.Objects()[0];
    const auto loaded = Reload(scene);
    QVERIFY(!loaded->FindObject(object.handle));
    QVERIFY(!loaded->FindMesh(object.meshes[0].id));
    QVERIFY(!loaded->FindMaterial(object.materials[0].id));
    for (const auto& step : loaded->UndoSteps()) {
        for (const auto& change : step.cloths) {
            QVERIFY(loaded->FindSlot(change.address));
        }
    }
}

void TestSceneFile::loadedSceneIsClean()
{
    Scene scene;
    Sample::FillScene(scene);
    const auto loaded = Reload(scene);
    QVERIFY(loaded->UndoStack().isClean());
    QVERIFY(loaded->UndoStack().canRedo());
    loaded->UndoStack().redo();
    QVERIFY(!loaded->UndoStack().isClean());
}

void TestSceneFile::savingTwiceGivesTheSameBytes()
{
    Scene scene;
    Sample::FillScene(scene);
    QVERIFY(Host::SaveScene(scene, PathOf("a.scene")).ok);
    const auto loaded = Reload(scene);
    QVERIFY(Host::SaveScene(*loaded, PathOf("b.scene")).ok);
    const QByteArray first = Files::Read(PathOf("a.scene"));
    QVERIFY(!first.isEmpty());
    QVERIFY(first == Files::Read(PathOf("b.scene")));
}

void TestSceneFile::texturesMoveAlongWithTheScene()
{
    QDir folder(m_folder->path());
    QVERIFY(folder.mkpath(QStringLiteral("old/maps")));
    Files::Write(PathOf("old/maps/silk.png"), "silk");
    Scene scene;
    Object robe = Sample::Robe(QStringLiteral("Robe"));
    robe.materials[0].textures[MV::ETextureChannel::Diffuse].filePath = PathOf("old/maps/silk.png");
    scene.AddObject(robe);
    QVERIFY(Host::SaveScene(scene, PathOf("old/robe.scene")).ok);
    QVERIFY(folder.rename(QStringLiteral("old"), QStringLiteral("new")));
    std::unique_ptr<Scene> loaded;
    const SceneFileResult result = Host::LoadScene(PathOf("new/robe.scene"), loaded);
    QVERIFY2(result.ok, qPrintable(result.error));
    QCOMPARE(loaded->Objects()[0]->materials[0].textures.at(MV::ETextureChannel::Diffuse).filePath,
             PathOf("new/maps/silk.png"));
}

void TestSceneFile::textureThatStayedIsFoundByItsAbsolutePath()
{
    QDir folder(m_folder->path());
    QVERIFY(folder.mkpath(QStringLiteral("old")) && folder.mkpath(QStringLiteral("far/away")));
    Files::Write(PathOf("old/silk.png"), "silk");
    Scene scene;
    Object robe = Sample::Robe(QStringLiteral("Robe"));
    robe.materials[0].textures[MV::ETextureChannel::Diffuse].filePath = PathOf("old/silk.png");
    scene.AddObject(robe);
    QVERIFY(Host::SaveScene(scene, PathOf("old/robe.scene")).ok);
    QVERIFY(QFile::rename(PathOf("old/robe.scene"), PathOf("far/away/robe.scene")));
    std::unique_ptr<Scene> loaded;
    QVERIFY(Host::LoadScene(PathOf("far/away/robe.scene"), loaded).ok);
    QCOMPARE(loaded->Objects()[0]->materials[0].textures.at(MV::ETextureChannel::Diffuse).filePath,
             PathOf("old/silk.png"));
}

void TestSceneFile::sceneNeedsNoOtherFile()
{
    Scene scene;
    Sample::FillScene(scene);
    QVERIFY(Host::SaveScene(scene, PathOf("robe.scene")).ok);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("robe.scene")});
}

void TestSceneFile::handWrittenNumbersAreTaken()
{
    Scene scene;
    scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
    QVERIFY(Host::SaveScene(scene, PathOf("robe.scene")).ok);
    QJsonValue root = QJsonDocument::fromJson(Files::Read(PathOf("robe.scene"))).object();
    const QString property = QStringLiteral("objects.0.meshes.0.slots.0.cloth.property.");
    root = JsonEdit::With(root, property + QStringLiteral("drag"), 0.1);
    root = JsonEdit::With(root, property + QStringLiteral("friction"), QStringLiteral("0x7f800000"));
    root = JsonEdit::With(root, property + QStringLiteral("mass"), QStringLiteral("-9223372036854775808"));
    Files::Write(PathOf("robe.scene"), QJsonDocument(root.toObject()).toJson());
    std::unique_ptr<Scene> loaded;
    const SceneFileResult result = Host::LoadScene(PathOf("robe.scene"), loaded);
    QVERIFY2(result.ok, qPrintable(result.error));
    const auto& values = loaded->Objects()[0]->meshes[0].materialSlots[0].cloth.property;
    QCOMPARE(values.drag, 0.1F);
    QCOMPARE(values.friction, std::numeric_limits<float>::infinity());
    QCOMPARE(values.mass, std::numeric_limits<qint64>::min());
}

/// A file that version 2 wrote stays as it is, however many fields the records may get.
void TestSceneFile::fileOfAnEarlierVersionOpens()
{
    std::unique_ptr<Scene> scene;
    const SceneFileResult result = Host::LoadScene(QStringLiteral(SOFTCLOTH_SCENE_SAMPLES "/version-2.scene"), scene);
    QVERIFY2(result.ok, qPrintable(result.error));
    QCOMPARE(scene->Objects().size(), 1);
    const Host::ClothState& cloth = scene->Objects()[0]->meshes[0].materialSlots[0].cloth;
    Host::ClothState expected;
    expected.active = true;
    expected.useGlobalGravity = false;
    expected.property.mass = 7;
    expected.property.solverFrequency = 300;
    expected.property.tetherStiffness = 0.75F;
    expected.property.tetherLimit = 1.25F;
    expected.property.friction = 0.25F;
    expected.property.damping = 0.125F;
    expected.property.drag = 0.375F;
    expected.property.stiffness = 0.625F;
    expected.property.stiffnessFrequency = 12.5F;
    expected.property.bending = 0.875F;
    expected.property.linearInertiaScale = 0.5F;
    expected.property.angularInertiaScale = 1.5F;
    expected.property.centrifugalInertiaScale = 2.0F;
    expected.property.collisionMassScale = 17.5F;
    expected.property.sleepLinearVelocity = 0.0625F;
    expected.property.wakeCounterValue = 0.75F;
    expected.property.reserved.back() = 0xAB;
    expected.collision = {false, true, 1.5F, 0.25F};
    expected.wind.externalAcceleration = {1, -2, 3};
    expected.wind.randomAcceleration = {4, 5, -6};
    expected.wind.frequency = 2.5F;
    expected.wind.randomFactor = {3, 8};
    QVERIFY(cloth == expected);
    QCOMPARE(scene->UndoStack().count(), 1);
}

void TestSceneFile::earlierVersionMayLackFields_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<bool>("opens");
    QTest::newRow("earlier") << Host::SceneFormat::version - 1 << true;
    QTest::newRow("this one") << Host::SceneFormat::version << false;
}

void TestSceneFile::earlierVersionMayLackFields()
{
    QFETCH(int, version);
    Scene scene;
    auto& saved = scene.AddObject(Sample::Robe(QStringLiteral("Robe"))).meshes[0].materialSlots[0].cloth.property;
    saved.mass = 5;
    saved.drag = 0.75F;
    saved.reserved.back() = 0xAB;
    const std::size_t reserved = saved.reserved.size();
    QVERIFY(Host::SaveScene(scene, PathOf("robe.scene")).ok);
    const QJsonValue whole = QJsonDocument::fromJson(Files::Read(PathOf("robe.scene"))).object();
    const QString property = QStringLiteral("objects.0.meshes.0.slots.0.cloth.property.");
    const auto load = [&](const QString& place, const QJsonValue& value, std::unique_ptr<Scene>& loaded) {
        QJsonValue root = JsonEdit::With(whole, QStringLiteral("version"), version);
        root = JsonEdit::With(root, property + place, value);
        Files::Write(PathOf("robe.scene"), QJsonDocument(root.toObject()).toJson());
        return Host::LoadScene(PathOf("robe.scene"), loaded).ok;
    };

    std::unique_ptr<Scene> lacking;
    QTEST(load(QStringLiteral("drag"), QJsonValue::Undefined, lacking), "opens");
    const QByteArray longer = QByteArray(3, 'x') + QByteArray(int(reserved) - 1, '\0') + '\xAB';
    std::unique_ptr<Scene> withReserve;
    QTEST(load(QStringLiteral("reserved"), QString::fromLatin1(longer.toBase64()), withReserve), "opens");
    if (lacking) {
        const auto& values = lacking->Objects()[0]->meshes[0].materialSlots[0].cloth.property;
        QCOMPARE(values.mass, qint64(5));
        QCOMPARE(values.drag, MV::SoftClothPropertyData().drag);
    }
    if (withReserve) {
        const auto& values = withReserve->Objects()[0]->meshes[0].materialSlots[0].cloth.property;
        QVERIFY(values.reserved == saved.reserved);
    }
    std::unique_ptr<Scene> none;
    QVERIFY(!load(QStringLiteral("reserved"), QStringLiteral("AAAA"), none)); // too few
}

void TestSceneFile::saveReplacesTheFile()
{
    Files::Write(PathOf("robe.scene"), QByteArray(100000, 'x'));
    QVERIFY(Host::SaveScene(Scene(), PathOf("robe.scene")).ok);
    std::unique_ptr<Scene> scene;
    QVERIFY(Host::LoadScene(PathOf("robe.scene"), scene).ok);
}

SOFTCLOTH_TEST_WITH(TestSceneFile, QCoreApplication)

#include "tst_scene_file.moc"
