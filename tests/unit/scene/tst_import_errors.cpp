#include "host/import/ModelImport.h"

#include "tests/support/Files.h"
#include "tests/unit/scene/GeometryChecks.h"
#include "tests/unit/scene/ImportTestCase.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <algorithm>

using Host::ImportModel;
using Host::ImportResult;

/// Progress, cancelling, and files that cannot be imported.
class TestImportErrors : public ImportTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void progressGrowsToTheEnd();
    void cancelLeavesNothing();
    void impossibleFileIsRefused_data();
    void impossibleFileIsRefused();
    void truncatedModelsAreRefusedOrSound_data();
    void truncatedModelsAreRefusedOrSound();
    void modelWithTooManyMeshesIsRefused();
    void formatsWithUnreliableReadersAreRefused();
    void suffixesAreSortedAndComplete();
};

void TestImportErrors::progressGrowsToTheEnd()
{
    std::vector<double> told;
    const ImportResult result = ImportModel(SampleModel(QStringLiteral("OBJ/spider.obj")), [&](double done) {
        told.push_back(done);
        return true;
    });
    QVERIFY2(result.object, qPrintable(result.error));
    QVERIFY(told.size() > 5);
    QVERIFY(std::is_sorted(told.begin(), told.end()));
    QVERIFY(told.front() >= 0.0);
    QCOMPARE(told.back(), 1.0);
}

void TestImportErrors::cancelLeavesNothing()
{
    const QString path = SampleModel(QStringLiteral("OBJ/spider.obj"));
    int whole = 0;
    QVERIFY(ImportModel(path, [&](double) { return ++whole > 0; }).object);
    for (int last = 1; last <= whole; ++last) {
        int calls = 0;
        const ImportResult result = ImportModel(path, [&](double) { return ++calls < last; });
        QVERIFY(result.cancelled);
        QVERIFY(!result.object);
        QVERIFY(result.error.isEmpty());
        QCOMPARE(calls, last); // nobody is asked again
    }
}

void TestImportErrors::impossibleFileIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("complaint");
    const QByteArray garbage = QByteArray::fromHex("00ff10807f456789abcdef").repeated(100);
    QTest::newRow("missing") << QStringLiteral("none.obj") << QByteArray() << QStringLiteral("There is no model file");
    QTest::newRow("no name") << QString() << QByteArray() << QStringLiteral("There is no model file");
    QTest::newRow("folder") << QStringLiteral("folder.obj") << QByteArray() << QStringLiteral("is not a file");
    QTest::newRow("empty") << QStringLiteral("empty.fbx") << QByteArray("") << QStringLiteral("is empty");
    QTest::newRow("unknown suffix") << QStringLiteral("m.xyz") << garbage << QStringLiteral("could not be read");
    QTest::newRow("no suffix") << QStringLiteral("model") << garbage << QStringLiteral("could not be read");
    for (const char* suffix : {"fbx", "glb", "gltf", "dae", "ply", "3ds", "stl", "blend"}) {
        QTest::addRow("garbage %s", suffix)
            << QStringLiteral("m.") + QLatin1String(suffix) << garbage << QStringLiteral("could not be read");
    }
    QTest::newRow("garbage obj") << QStringLiteral("m.obj") << garbage << QStringLiteral("The model file");
    QTest::newRow("index out of range") << QStringLiteral("m.obj") << squareVertices + "f 1 2 900\n"
                                        << QStringLiteral("could not be read");
    QTest::newRow("points only") << QStringLiteral("m.obj") << squareVertices + "p 1 2 3\n"
                                 << QStringLiteral("holds no surfaces");
    QTest::newRow("triangles without area only")
        << QStringLiteral("m.obj") << squareVertices + "v 0 0 0\nf 1 5 2\nf 1 1 2\n"
        << QStringLiteral("holds no surfaces");
}

void TestImportErrors::impossibleFileIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, complaint);
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.obj")));
    const QString path = name.isEmpty() ? QString() : PathOf(name);
    if (!content.isNull()) {
        Files::Write(path, content);
    }
    const ImportResult result = ImportModel(path);
    QVERIFY(!result.object);
    QVERIFY(!result.cancelled);
    QVERIFY2(result.error.contains(complaint), qPrintable(result.error));
    QVERIFY2(result.error.contains(QDir::toNativeSeparators(path)), qPrintable(result.error));
}

void TestImportErrors::truncatedModelsAreRefusedOrSound_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"OBJ/spider.obj", "FBX/spider.fbx", "Collada/duck.dae", "PLY/cube_uv.ply", "PLY/cube_binary.ply",
          "glTF2/BoxTextured-glTF-Binary/BoxTextured.glb", "glTF2/BoxTextured-glTF-Embedded/BoxTextured.gltf"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void TestImportErrors::truncatedModelsAreRefusedOrSound()
{
    QFETCH(QString, file);
    const QByteArray whole = Files::Read(SampleModel(file));
    QVERIFY(!whole.isEmpty());
    const QString path = PathOf(QStringLiteral("cut.") + QFileInfo(file).suffix());
    for (int part = 1; part < 16; ++part) {
        Files::Write(path, whole.left(static_cast<int>(qint64{whole.size()} * part / 16)));
        const ImportResult result = ImportModel(path);
        if (result.object) {
            QCOMPARE(GeometryChecks::Faults(*result.object), QString());
        } else {
            QVERIFY(!result.error.isEmpty());
        }
    }
}

void TestImportErrors::modelWithTooManyMeshesIsRefused()
{
    constexpr int count = 100001;
    QByteArray nodes;
    QByteArray numbers;
    for (int i = 0; i < count; ++i) {
        nodes += "{\"mesh\":0},";
        numbers += QByteArray::number(i) + ',';
    }
    nodes.chop(1);
    numbers.chop(1);
    const QByteArray corners(36, '\1');
    const QString path = Files::Write(
        PathOf(QStringLiteral("many.gltf")),
        "{\"asset\":{\"version\":\"2.0\"},\"scene\":0,\"scenes\":[{\"nodes\":[" + numbers + "]}],\"nodes\":[" + nodes +
            "],\"meshes\":[{\"primitives\":[{\"attributes\":{\"POSITION\":0}}]}],\"accessors\":[{\"bufferView\":0,"
            "\"componentType\":5126,\"count\":3,\"type\":\"VEC3\"}],\"bufferViews\":[{\"buffer\":0,\"byteLength\":36}],"
            "\"buffers\":[{\"byteLength\":36,\"uri\":\"data:application/octet-stream;base64," +
            corners.toBase64() + "\"}]}");
    const ImportResult result = ImportModel(path);
    QVERIFY(!result.object);
    QVERIFY2(result.error.contains(QStringLiteral("it has 100001 meshes, and more than 100000 are too many")),
             qPrintable(result.error));
}

void TestImportErrors::formatsWithUnreliableReadersAreRefused()
{
    const QString path = SampleModel(QStringLiteral("MDL/MDL (HL1)/alpha_test.mdl"));
    QVERIFY(QFileInfo::exists(path));
    const ImportResult result = ImportModel(path);
    QVERIFY(!result.object);
    QVERIFY2(result.error.contains(QStringLiteral("could not be read")), qPrintable(result.error));
    QVERIFY(!Host::ImportableSuffixes().contains(QStringLiteral("mdl")));
}

void TestImportErrors::suffixesAreSortedAndComplete()
{
    const QStringList suffixes = Host::ImportableSuffixes();
    QVERIFY(std::is_sorted(suffixes.begin(), suffixes.end()));
    for (const char* suffix : {"3ds", "blend", "dae", "fbx", "glb", "gltf", "obj", "ply", "stl"}) {
        QVERIFY2(suffixes.contains(QLatin1String(suffix)), suffix);
    }
    for (const QString& suffix : suffixes) {
        QCOMPARE(suffix, suffix.toLower());
        QVERIFY(!suffix.startsWith(QLatin1Char('.')) && !suffix.contains(QLatin1Char('*')) && !suffix.isEmpty());
    }
}

SOFTCLOTH_TEST_WITH(TestImportErrors, QCoreApplication)

#include "tst_import_errors.moc"
