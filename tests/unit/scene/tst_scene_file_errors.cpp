#include "host/scene/Scene.h"
#include "host/scene/SceneFile.h"
#include "host/scene/SceneJson.h"

#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TestCase.h"
#include "tests/unit/scene/JsonEdit.h"
#include "tests/unit/scene/SampleScene.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using Host::Object;
using Host::Scene;
using Host::SceneFileResult;

/// Scene files that cannot be loaded and places where none can be saved.
class TestSceneFileErrors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void damagedFileIsRefused_data();
    void damagedFileIsRefused();
    void damagedDocumentIsRefused_data();
    void damagedDocumentIsRefused();
    void truncatedFileIsRefusedWhereverItEnds();
    void fileThatIsTooLargeIsRefused();
    void impossibleTargetIsRefused_data();
    void impossibleTargetIsRefused();
    void refusedSaveLeavesTheOldFile();
#ifdef Q_OS_UNIX // Elsewhere no limit makes a disk look full.
    void fullDiskLeavesTheOldScene();
#endif

private:
    void SetUp() override;

    QString PathOf(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSceneFileErrors::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestSceneFileErrors::damagedFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("is empty");
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0", 10) << QStringLiteral("no scene file at all");
    QTest::newRow("text") << QByteArray("Hello") << QStringLiteral("no scene file at all");
    QTest::newRow("list") << QByteArray("[1,2]") << QStringLiteral("no scene of this application");
    QTest::newRow("another document") << QByteArray("{\"asset\":{}}") << QStringLiteral("no scene of this application");
    QTest::newRow("other format") << QByteArray("{\"format\":\"model\",\"version\":1}")
                                  << QStringLiteral("no scene of this application");
    QTest::newRow("format of another type")
        << QByteArray("{\"format\":1,\"version\":1}") << QStringLiteral("no scene of this application");
    QTest::newRow("newer version") << "{\"format\":\"softcloth-scene\",\"version\":" +
                                          QByteArray::number(Host::SceneFormat::version + 1) + '}'
                                   << QStringLiteral("newer version");
    QTest::newRow("no version") << QByteArray("{\"format\":\"softcloth-scene\"}")
                                << QStringLiteral("version is missing");
    QTest::newRow("version 0") << QByteArray("{\"format\":\"softcloth-scene\",\"version\":0}")
                               << QStringLiteral("version must be");
    const QString tooDeep = QStringLiteral("its values are nested more than 64 levels deep");
    QTest::newRow("too deep") << QByteArray(5000, '[') << tooDeep;
    QTest::newRow("65 lists and groups in each other")
        << QByteArray("[").repeated(64) + "{\"a\":1}" + QByteArray("]").repeated(64) << tooDeep;
    QTest::newRow("64 lists in each other") << QByteArray("[").repeated(64) + QByteArray("]").repeated(64)
                                            << QStringLiteral("no scene of this application");
    QTest::newRow("brackets in a text") << "[\"\\\"" + QByteArray(100, '[') + "\\\\\"]"
                                        << QStringLiteral("no scene of this application");
    QTest::newRow("unfinished text") << QByteArray("[\"abc\\") << QStringLiteral("no scene file at all");
    QTest::newRow("too many values") << "[" + QByteArray("1,").repeated(30000001) + "1]"
                                     << QStringLiteral("it has more than 30000000 values");
}

void TestSceneFileErrors::damagedFileIsRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, complaint);
    Files::Write(PathOf("robe.scene"), content);
    auto scene = std::make_unique<Scene>();
    const SceneFileResult result = Host::LoadScene(PathOf("robe.scene"), scene);
    QVERIFY(!result.ok);
    QVERIFY(!scene);
    QVERIFY2(result.error.contains(complaint), qPrintable(result.error));
    QVERIFY2(result.error.contains(QDir::toNativeSeparators(PathOf("robe.scene"))), qPrintable(result.error));
    QVERIFY(Files::Read(PathOf("robe.scene")) == content);
}

void TestSceneFileErrors::damagedDocumentIsRefused_data()
{
    const QJsonValue missing(QJsonValue::Undefined);
    const auto text = [](const char* string) { return QJsonValue(QLatin1String(string)); };
    const struct
    {
        const char* path;
        QJsonValue value;
        const char* complaint;
    } rows[] = {
        // missing fields
        {"objects", missing, "objects is missing"},
        {"undo", missing, "undo is missing"},
        {"undo.applied", missing, "undo.applied is missing"},
        {"objects.1.name", missing, "objects[1].name is missing"},
        {"objects.0.traits.type", missing, "objects[0].traits.type is missing"},
        {"objects.0.state.exists", missing, "objects[0].state.exists is missing"},
        {"objects.0.materials.0.id", missing, "materials[0].id is missing"},
        {"objects.0.materials.0.state.softClothEnabled", missing, "softClothEnabled is missing"},
        {"objects.0.meshes.0.positions", missing, "positions is missing"},
        {"objects.0.meshes.0.uvs.data", missing, "uvs.data is missing"},
        {"objects.0.meshes.0.uvs.sha1", missing, "uvs.sha1 is missing"},
        {"objects.0.meshes.0.slots.1.cloth.wind", missing, "slots[1].cloth.wind is missing"},
        {"objects.0.meshes.0.slots.1.cloth.property.bending", missing, "property.bending is missing"},
        {"undo.steps.0.cloths.0.after", missing, "undo.steps[0].cloths[0].after is missing"},
        {"undo.steps.1.materials.0.material", missing, "undo.steps[1].materials[0].material is missing"},
        // wrong types
        {"objects", text("many"), "objects must be a list"},
        {"objects.0", 5, "objects[0] must be a group of values"},
        {"objects.0.name", 5, "objects[0].name must be text"},
        {"objects.0.state.exists", 1, "state.exists must be true or false"},
        {"objects.0.traits.kind", 0.5, "traits.kind must be a whole number"},
        {"objects.0.traits.kind", 3e9, "traits.kind must be a whole number"},
        {"objects.0.traits.type", -1, "traits.type must be a whole number"},
        {"objects.0.id", text("1"), "objects[0].id must be a number"},
        {"objects.0.id", 0, "objects[0].id must be a whole number from 1"},
        {"objects.0.meshes.0.slots.0.cloth.active", QJsonValue::Null, "cloth.active must be true or false"},
        {"objects.0.meshes.0.slots.0.cloth.property.mass", 7, "property.mass must be text"},
        {"objects.0.meshes.0.slots.0.cloth.property.mass", text("7 kg"), "property.mass must be a whole number"},
        {"objects.0.meshes.0.slots.0.cloth.property.mass", text("9223372036854775808"), "property.mass must be"},
        {"objects.0.meshes.0.slots.0.cloth.property.drag", true, "property.drag must be a number"},
        {"objects.0.meshes.0.slots.0.cloth.property.drag", text("soon"), "property.drag must be a number"},
        {"objects.0.meshes.0.slots.0.cloth.property.drag", text("12"), "property.drag must be a number"},
        {"objects.0.meshes.0.slots.0.cloth.property.drag", 1e39, "property.drag is out of range"},
        {"objects.0.meshes.0.slots.0.cloth.property.reserved", text("AAAA"), "reserved must be 24 bytes"},
        {"objects.0.meshes.0.slots.0.cloth.wind.randomFactor.2", 1, "randomFactor must be a list of 2 numbers"},
        {"objects.0.materials.0.diffuse.3", 65536, "diffuse[3] must be a whole number from 0 to 65535"},
        {"objects.0.materials.0.diffuse.3", missing, "diffuse must be a list of 4 numbers"},
        {"undo.steps.0.text", 3, "undo.steps[0].text must be text"},
        // textures
        {"objects.0.materials.0.textures.0", QJsonObject{{QStringLiteral("channel"), 15}}, "channel must be"},
        {"objects.0.materials.0.textures.0", QJsonObject{{QStringLiteral("channel"), -2}}, "channel must be"},
        {"objects.0.materials.0.textures",
         QJsonArray{QJsonObject{{QStringLiteral("channel"), 1}}, QJsonObject{{QStringLiteral("channel"), 1}}},
         "textures[1].channel has a texture already"},
        {"objects.0.materials.0.textures.0",
         QJsonObject{{QStringLiteral("channel"), 1}, {QStringLiteral("embedded"), QStringLiteral("a b*")}},
         "embedded is not valid base64"},
        // geometry
        {"objects.0.meshes.0.positions.data", text("A!B"), "positions.data is not valid base64"},
        {"objects.0.meshes.0.positions.data", text("AAAAAAAA"), "positions is damaged"},
        {"objects.0.meshes.0.positions.data", text(""), "positions is damaged"},
        {"objects.0.meshes.0.positions.count", 3, "positions does not hold as many"},
        {"objects.0.meshes.0.positions.count", 1.2e9, "positions.count must be"},
        {"objects.0.meshes.0.positions.count", 16000001, "it has 16000001 vertices, and more than 16000000 are too"},
        {"objects.1.meshes.0.positions.count", 16000000, "and more than 16000000 are too many"},
        {"objects.0.meshes.0.slots.0.indices.count", 48000003, "it has 16000001 triangles"},
        {"objects.0.meshes.0.normals.count", 16000000, "normals must hold one item per vertex"},
        {"objects.0.meshes.0.positions.count", -1, "positions.count must be"},
        // ids
        {"objects.1.id", 1, "objects[1].id is 1, which is in use"},
        {"objects.0.materials.1.id", 2, "objects[0].materials[1].id is 2, which is in use"},
        {"objects.0.meshes.1.id", 2, "objects[0].meshes[1].id is 2, which is in use"},
        {"objects.0.meshes.0.slots.0.material", 4711, "names a material that the object does not have"},
        {"objects.0.meshes.0.slots.0.material", 8, "names a material that the object does not have"},
        {"objects.0.meshes.0.slots.0.material", 3, "has a slot on this mesh already"},
        {"undo.steps.0.cloths.0.object", 4711, "undo.steps[0].cloths[0] changes something"},
        {"undo.steps.0.cloths.0.object", 7, "undo.steps[0].cloths[0] changes something"},
        {"undo.steps.0.cloths.0.mesh", 4711, "undo.steps[0].cloths[0] changes something"},
        {"undo.steps.0.cloths.0.material", 4, "undo.steps[0].cloths[0] changes something"},
        {"undo.steps.2.materials.0.material", 1, "undo.steps[2].materials[0] changes something"},
        {"undo.steps.2.objects.0.object", 2, "undo.steps[2].objects[0] changes something"},
        {"undo.applied", 4, "undo.applied must be a whole number from 0 to 3"},
        {"undo.applied", -1, "undo.applied must be a whole number from 0 to 3"},
    };
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("complaint");
    int number = 0;
    for (const auto& row : rows) {
        QTest::addRow("%d %s: %s", ++number, row.path, row.complaint)
            << QString::fromLatin1(row.path) << row.value << QString::fromLatin1(row.complaint);
    }
    // Sound arrays of the wrong sizes and values, with the check sums that belong to them.
    Scene other;
    Object robe = Sample::Robe(QStringLiteral("Robe"));
    robe.meshes[0].materialSlots[0].indices = {0, 1, 4};
    robe.meshes[0].materialSlots[1].indices = {0, 1};
    robe.meshes[0].uvs.pop_back();
    robe.meshes[0].normals.emplace_back();
    other.AddObject(robe);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("other.scene"));
    QVERIFY(Host::SaveScene(other, path).ok);
    const QJsonObject root = QJsonDocument::fromJson(Files::Read(path)).object();
    const auto fromOther = [&](const char* place) { return JsonEdit::At(root, QLatin1String(place)); };
    const QString uvs = QStringLiteral("objects.0.meshes.0.uvs");
    const QString normals = QStringLiteral("objects.0.meshes.0.normals");
    const QString indices = QStringLiteral("objects.0.meshes.0.slots.0.indices");
    QTest::newRow("index out of range") << indices << fromOther("objects.0.meshes.0.slots.0.indices")
                                        << QStringLiteral("indices names a vertex");
    QTest::newRow("half a triangle") << indices << fromOther("objects.0.meshes.0.slots.1.indices")
                                     << QStringLiteral("indices must hold three");
    QTest::newRow("a UV too few") << uvs << fromOther("objects.0.meshes.0.uvs")
                                  << QStringLiteral("uvs must hold one item per vertex");
    QTest::newRow("a normal too many") << normals << fromOther("objects.0.meshes.0.normals")
                                       << QStringLiteral("normals must hold one item per vertex");
}

void TestSceneFileErrors::damagedDocumentIsRefused()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QFETCH(QString, complaint);
    Scene sound;
    Sample::FillScene(sound);
    QVERIFY(Host::SaveScene(sound, PathOf("robe.scene")).ok);
    const QJsonValue root(QJsonDocument::fromJson(Files::Read(PathOf("robe.scene"))).object());
    const QJsonObject damaged = JsonEdit::With(root, path, value).toObject();
    QVERIFY(damaged != root.toObject());
    Files::Write(PathOf("robe.scene"), QJsonDocument(damaged).toJson());

    std::unique_ptr<Scene> scene;
    const SceneFileResult result = Host::LoadScene(PathOf("robe.scene"), scene);
    QVERIFY(!result.ok);
    QVERIFY(!scene);
    QVERIFY2(result.error.contains(complaint), qPrintable(result.error));
}

void TestSceneFileErrors::truncatedFileIsRefusedWhereverItEnds()
{
    Scene sound;
    Sample::FillScene(sound);
    QVERIFY(Host::SaveScene(sound, PathOf("robe.scene")).ok);
    const QByteArray whole = Files::Read(PathOf("robe.scene"));
    for (int size = whole.size() - 1; size >= 0; size -= 1 + size / 50) {
        Files::Write(PathOf("robe.scene"), whole.left(size));
        std::unique_ptr<Scene> scene;
        QVERIFY(!Host::LoadScene(PathOf("robe.scene"), scene).ok);
        QVERIFY(!scene);
    }
}

void TestSceneFileErrors::fileThatIsTooLargeIsRefused()
{
    QFile file(PathOf("robe.scene"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize((qint64{1} << 30) + 1)); // a hole, which takes no room on the disk
    file.close();
    std::unique_ptr<Scene> scene;
    const SceneFileResult result = Host::LoadScene(PathOf("robe.scene"), scene);
    QVERIFY2(!result.ok && result.error.contains(QStringLiteral("too large")), qPrintable(result.error));
}

void TestSceneFileErrors::impossibleTargetIsRefused_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("folder") << QStringLiteral("folder") << true;
    QTest::newRow("missing folder") << QStringLiteral("nowhere/robe.scene") << false;
    QTest::newRow("under a file") << QStringLiteral("file/robe.scene") << false;
#ifdef Q_OS_UNIX // Elsewhere a folder is not locked by its permissions, and the system has its own in other places.
    QTest::newRow("read-only folder") << QStringLiteral("locked/robe.scene") << false;
    QTest::newRow("system folder") << QStringLiteral("/proc/robe.scene") << false;
#endif
    QTest::newRow("no name") << QString() << false;
}

void TestSceneFileErrors::impossibleTargetIsRefused()
{
    QFETCH(const QString, target);
    QFETCH(bool, isThere);
    const QDir folder(m_folder->path());
    QVERIFY(folder.mkpath(QStringLiteral("folder")) && folder.mkpath(QStringLiteral("locked")));
    Files::Write(PathOf("file"), "old");
    Files::OpenToAll(m_folder->path());
    QVERIFY(QFile::setPermissions(PathOf("locked"), QFileDevice::Permissions(0x5555)));
    const QString path = target.isEmpty() ? target : folder.absoluteFilePath(target);
    const OrdinaryUser user;
    const SceneFileResult saved = Host::SaveScene(Scene(), path);
    QVERIFY(!saved.ok);
    QVERIFY2(saved.error.startsWith(QStringLiteral("The scene could not be saved as")), qPrintable(saved.error));
    QVERIFY2(saved.error.contains(QDir::toNativeSeparators(path)), qPrintable(saved.error));

    std::unique_ptr<Scene> scene;
    const SceneFileResult loaded = Host::LoadScene(path, scene);
    QVERIFY(!loaded.ok);
    QVERIFY(!scene);
    QVERIFY2(
        loaded.error.contains(isThere ? QStringLiteral("is not a file") : QStringLiteral("There is no scene file")),
        qPrintable(loaded.error));
    QCOMPARE(Files::Read(PathOf("file")), QByteArray("old"));
    const QStringList left = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    QCOMPARE(left, (QStringList{QStringLiteral("file"), QStringLiteral("folder"), QStringLiteral("locked")}));
}

void TestSceneFileErrors::refusedSaveLeavesTheOldFile()
{
    Scene scene;
    Object robe = Sample::Robe(QStringLiteral("Robe"));
    QByteArray& image = robe.materials[0].textures[MV::ETextureChannel::Diffuse].embedded;
    image.resize((1 << 30) + 1); // more than a scene file may have
    scene.AddObject(std::move(robe));
    Files::Write(PathOf("robe.scene"), "old");
    const SceneFileResult saved = Host::SaveScene(scene, PathOf("robe.scene"));
    QVERIFY2(!saved.ok && saved.error.contains(QStringLiteral("too large")), qPrintable(saved.error));
    QCOMPARE(Files::Read(PathOf("robe.scene")), QByteArray("old"));
}

#ifdef Q_OS_UNIX
void TestSceneFileErrors::fullDiskLeavesTheOldScene()
{
    const Scene scene; // small enough for the buffer of a file
    QVERIFY(Host::SaveScene(scene, PathOf("whole.scene")).ok);
    const int size = Files::Read(PathOf("whole.scene")).size();
    Files::Write(PathOf("robe.scene"), "old");
    for (int room = 0; room < size; room += 1 + size / 20) {
        const FullDisk full{rlim_t(room)};
        const SceneFileResult saved = Host::SaveScene(scene, PathOf("robe.scene"));
        QVERIFY2(!saved.ok && !saved.error.endsWith(QStringLiteral(": .")), qPrintable(saved.error));
        QCOMPARE(Files::Read(PathOf("robe.scene")), QByteArray("old"));
    }
    const FullDisk enough{rlim_t(size)};
    QVERIFY(Host::SaveScene(scene, PathOf("robe.scene")).ok);
}
#endif

SOFTCLOTH_TEST_WITH(TestSceneFileErrors, QCoreApplication)

#include "tst_scene_file_errors.moc"
