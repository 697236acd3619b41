#include "host/import/ModelImport.h"

#include "tests/support/TestCase.h"
#include "tests/unit/scene/Files.h"
#include "tests/unit/scene/GeometryChecks.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <algorithm>

using Host::ImportModel;
using Host::ImportResult;
using Host::Mesh;
using Host::Object;
using MV::ETextureChannel;

class TestModelImport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void realModelsComeOutSound_data();
    void realModelsComeOutSound();
    void spiderHasItsMaterialsAndTextures();
    void transformsAreBakedIn();
    void mirroredNodesKeepTheirOutside();
    void repeatedMeshesAreSeparateMeshes();
    void missingNormalsAreMadeSmooth_data();
    void missingNormalsAreMadeSmooth();
    void smoothNormalsCrossTheSeamsOfTheTexture();
    void pointsAndLinesAreLeftOut();
    void slotsOfTheSameMaterialAreOne();
    void unnamedThingsAreNumbered();
    void duplicateNamesAreKept();
    void infiniteCoordinatesBecomeFinite();
    void diffuseColorComesAlong();

    void embeddedTexturesAreKept_data();
    void embeddedTexturesAreKept();
    void rawTexelsBecomePng();
    void linkedTextureIsFound_data();
    void linkedTextureIsFound();
    void linkedTextureBesideTheModelIsTheLastResort();
    void missingTextureKeepsItsPath_data();
    void missingTextureKeepsItsPath();
    void opacityTextureComesAlong();

    void namesAreUnicode();
    void progressGrowsToTheEnd();
    void cancelLeavesNothing();
    void impossibleFileIsRefused_data();
    void impossibleFileIsRefused();
    void truncatedModelsAreRefusedOrSound_data();
    void truncatedModelsAreRefusedOrSound();
    void suffixesAreSortedAndComplete();

private:
    void SetUp() override;

    QString PathOf(const QString& name) const { return m_folder->filePath(name); }
    ImportResult ImportText(const QByteArray& obj, const QByteArray& mtl = {}) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QByteArray quad = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nvt 0 0\nvt 1 0\nvt 1 1\nvt 0 1\n";

QString SampleModel(const QString& name)
{
    return QDir(QStringLiteral(SOFTCLOTH_TEST_MODELS)).filePath(name);
}

/// Imports one of the sample models; it has to be there and sound.
Object Sample(const char* name)
{
    const ImportResult result = ImportModel(SampleModel(QString::fromLatin1(name)));
    if (!result.object) {
        qFatal("%s: %s", name, qPrintable(result.error));
    }
    return *result.object;
}

const Mesh* MeshCalled(const Object& object, const char* name)
{
    const auto found = std::find_if(object.meshes.begin(), object.meshes.end(),
                                    [name](const Mesh& mesh) { return mesh.name == QLatin1String(name); });
    return found == object.meshes.end() ? nullptr : &*found;
}

struct Bounds
{
    QVector3D low;
    QVector3D high;
};

Bounds BoundsOf(const Mesh& mesh)
{
    Bounds bounds{mesh.positions.front(), mesh.positions.front()};
    for (const QVector3D& position : mesh.positions) {
        for (int axis = 0; axis < 3; ++axis) {
            bounds.low[axis] = std::min(bounds.low[axis], position[axis]);
            bounds.high[axis] = std::max(bounds.high[axis], position[axis]);
        }
    }
    return bounds;
}

/// An OBJ file with one textured square.
QByteArray SquareObj()
{
    return "mtllib m.mtl\n" + quad + "usemtl Cloth\nf 1/1 2/2 3/3\nf 1/1 3/3 4/4\n";
}

} // namespace

void TestModelImport::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

ImportResult TestModelImport::ImportText(const QByteArray& obj, const QByteArray& mtl) const
{
    if (!Files::Write(PathOf(QStringLiteral("m.obj")), obj) || !Files::Write(PathOf(QStringLiteral("m.mtl")), mtl)) {
        qFatal("cannot write the model");
    }
    return ImportModel(PathOf(QStringLiteral("m.obj")));
}

void TestModelImport::realModelsComeOutSound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<int>("meshes");
    QTest::addColumn<int>("materials");
    QTest::addColumn<int>("triangles");
    QTest::addColumn<bool>("hasUvs");
    const struct
    {
        const char* file;
        const char* objectName;
        int meshes;
        int materials;
        int triangles;
        bool hasUvs;
    } rows[] = {
        {"OBJ/spider.obj", "spider", 19, 4, 1312, true},
        {"FBX/spider.fbx", "spider", 19, 4, 1312, true},
        {"FBX/phong_cube.fbx", "phong_cube", 1, 1, 12, true},
        {"Collada/duck.dae", "duck", 1, 1, 4212, true},
        {"PLY/cube_uv.ply", "cube_uv", 1, 1, 12, true},
        {"PLY/cube_binary.ply", "cube_binary", 1, 1, 12, false},
        {"glTF2/BoxTextured-glTF/BoxTextured.gltf", "BoxTextured", 1, 1, 12, true},
        {"glTF2/BoxTextured-glTF-Binary/BoxTextured.glb", "BoxTextured", 1, 1, 12, true},
        {"3DS/cubes_with_alpha.3DS", "cubes_with_alpha", 5, 5, 60, true},
        {"STL/Spider_binary.stl", "Spider_binary", 1, 1, 1312, false},
        {"BLEND/TexturedPlane_ImageUvPacked_248.blend", "TexturedPlane_ImageUvPacked_248", 1, 1, 2, true},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.file) << QString::fromLatin1(row.file) << QString::fromLatin1(row.objectName) << row.meshes
                                << row.materials << row.triangles << row.hasUvs;
    }
}

void TestModelImport::realModelsComeOutSound()
{
    QFETCH(QString, file);
    QFETCH(bool, hasUvs);
    const ImportResult result = ImportModel(SampleModel(file));
    QVERIFY2(result.object, qPrintable(result.error));
    QVERIFY(!result.cancelled);
    QVERIFY(result.error.isEmpty());
    const Object& object = *result.object;
    QCOMPARE(GeometryChecks::Faults(object), QString());
    QTEST(object.name, "objectName");
    QTEST(static_cast<int>(object.meshes.size()), "meshes");
    QTEST(static_cast<int>(object.materials.size()), "materials");
    int triangles = 0;
    for (const Mesh& mesh : object.meshes) {
        triangles += static_cast<int>(GeometryChecks::TriangleCount(mesh));
        QCOMPARE(!mesh.uvs.empty(), hasUvs);
        QCOMPARE(mesh.normals.size(), mesh.positions.size());
    }
    QTEST(triangles, "triangles");
    QCOMPARE(object.traits.type, 1U);
}

void TestModelImport::spiderHasItsMaterialsAndTextures()
{
    // The file describes a fifth material, which no surface has.
    const std::map<QString, QString> expected{{QStringLiteral("Skin"), QStringLiteral("wal67ar_small.jpg")},
                                              {QStringLiteral("HLeibTex"), QStringLiteral("SpiderTex.jpg")},
                                              {QStringLiteral("BeinTex"), QStringLiteral("drkwood2.jpg")},
                                              {QStringLiteral("Augentex"), QStringLiteral("engineflare1.jpg")}};
    const Object spider = Sample("OBJ/spider.obj");
    std::map<QString, QString> found;
    for (const auto& material : spider.materials) {
        const auto& texture = material.textures.at(ETextureChannel::Diffuse);
        QCOMPARE(texture.filePath, SampleModel(QStringLiteral("OBJ/") + QFileInfo(texture.filePath).fileName()));
        QVERIFY(texture.embedded.isEmpty());
        QVERIFY(!QImage(texture.filePath).isNull());
        found[material.name] = QFileInfo(texture.filePath).fileName();
    }
    QVERIFY(found == expected);
    const Mesh* eye = MeshCalled(spider, "Auge");
    QVERIFY(eye);
    QCOMPARE(spider.materials[eye->materialSlots[0].material - 1].name, QStringLiteral("Augentex"));
}

void TestModelImport::transformsAreBakedIn()
{
    const Bounds bounds = BoundsOf(Sample("Collada/duck.dae").meshes[0]);
    // In the file the duck is a hundred times as large, and its node shrinks it.
    QVERIFY(bounds.high.y() > 1.63F && bounds.high.y() < 1.65F);
    QVERIFY(bounds.low.y() > 0.09F && bounds.low.y() < 0.11F);
}

void TestModelImport::mirroredNodesKeepTheirOutside()
{
    const Object cubes = Sample("FBX/cubes_with_mirroring_and_pivot.fbx");
    QCOMPARE(cubes.meshes.size(), std::size_t{4});
    for (const Mesh& mesh : cubes.meshes) {
        QCOMPARE(GeometryChecks::FacingShare(mesh), 1.0);
        const Bounds bounds = BoundsOf(mesh);
        const QVector3D middle = (bounds.low + bounds.high) / 2.0F;
        const bool isCube = GeometryChecks::TriangleCount(mesh) == 12;
        for (std::size_t i = 0; isCube && i < mesh.positions.size(); ++i) {
            QVERIFY(QVector3D::dotProduct(mesh.normals[i], mesh.positions[i] - middle) > 0.0F);
        }
    }
}

void TestModelImport::repeatedMeshesAreSeparateMeshes()
{
    const Object teapots = Sample("Collada/teapot_instancenodes.DAE");
    QCOMPARE(GeometryChecks::Faults(teapots), QString());
    QVERIFY(teapots.meshes.size() > 1);
    for (const Mesh& mesh : teapots.meshes) {
        QCOMPARE(mesh.positions.size(), teapots.meshes[0].positions.size());
    }
    QVERIFY(!qFuzzyCompare(BoundsOf(teapots.meshes[0]).low, BoundsOf(teapots.meshes[1]).low));
}

void TestModelImport::missingNormalsAreMadeSmooth_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("shared vertices") << SampleModel(QStringLiteral("PLY/cube_binary.ply"));
    QTest::newRow("vertices of their own") << SampleModel(QStringLiteral("OBJ/box.obj"));
    QTest::newRow("large triangles and tiny ones") << QString();
}

void TestModelImport::missingNormalsAreMadeSmooth()
{
    QFETCH(QString, file);
    // A tower on a square of a thousandth of a millimetre.
    const ImportResult result = !file.isEmpty()
                                    ? ImportModel(file)
                                    : ImportText("v 0 0 0\nv 1e-6 0 0\nv 1e-6 1e-6 0\nv 0 1e-6 0\nv 5e-7 5e-7 1\n"
                                                 "f 4 3 2 1\nf 1 2 5\nf 2 3 5\nf 3 4 5\nf 4 1 5\n");
    QVERIFY2(result.object, qPrintable(result.error));
    const Mesh& mesh = result.object->meshes[0];
    QVERIFY(mesh.uvs.empty());
    QVERIFY(mesh.positions.size() <= 8); // shared, so smooth
    QCOMPARE(mesh.normals.size(), mesh.positions.size());
    const Bounds bounds = BoundsOf(mesh);
    const QVector3D middle = (bounds.low + bounds.high) / 2.0F;
    for (std::size_t i = 0; i < mesh.normals.size(); ++i) {
        QVERIFY(qAbs(mesh.normals[i].length() - 1.0F) < 1e-5F);
        QVERIFY(QVector3D::dotProduct(mesh.normals[i], mesh.positions[i] - middle) > 0.0F);
    }
}

void TestModelImport::smoothNormalsCrossTheSeamsOfTheTexture()
{
    // Two squares at a right angle, whose common edge is twice in the texture.
    const ImportResult result = ImportText("v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nv 0 0 1\nv 0 1 1\n"
                                           "vt 0 0\nvt 1 0\nvt 1 1\nvt 0 1\n"
                                           "f 1/1 2/2 3/3 4/4\nf 5/1 1/2 4/3 6/4\n");
    QVERIFY2(result.object, qPrintable(result.error));
    const Mesh& mesh = result.object->meshes[0];
    QCOMPARE(mesh.positions.size(), std::size_t{8});
    QVector3D bottomNormal;
    for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
        const QVector3D& position = mesh.positions[i];
        const QVector3D& normal = mesh.normals[i];
        if (position.x() > 0.0F) {
            QCOMPARE(normal, QVector3D(0.0F, 0.0F, 1.0F));
        } else if (position.z() > 0.0F) {
            QCOMPARE(normal, QVector3D(1.0F, 0.0F, 0.0F));
        } else {
            QVERIFY(normal.x() > 0.4F && normal.z() > 0.4F);
        }
        if (position.isNull()) {
            QVERIFY(bottomNormal.isNull() || normal == bottomNormal);
            bottomNormal = normal;
        }
    }
}

void TestModelImport::pointsAndLinesAreLeftOut()
{
    const ImportResult result = ImportText(quad + "o Thing\nf 1 2 3\nl 1 3\np 4\n");
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(GeometryChecks::Faults(*result.object), QString());
    QCOMPARE(result.object->meshes.size(), std::size_t{1});
    QCOMPARE(GeometryChecks::TriangleCount(result.object->meshes[0]), std::size_t{1});
}

void TestModelImport::slotsOfTheSameMaterialAreOne()
{
    const ImportResult result = ImportText("mtllib m.mtl\no Flag\n" + quad +
                                               "usemtl Red\nf 1/1 2/2 3/3\nusemtl Blue\nf 1/1 3/3 4/4\n"
                                               "usemtl Red\nf 3/3 2/2 1/1\n",
                                           "newmtl Red\nKd 1 0 0\nnewmtl Blue\nKd 0 0 1\nnewmtl Green\nKd 0 1 0\n");
    QVERIFY2(result.object, qPrintable(result.error));
    const Object& object = *result.object;
    QCOMPARE(object.meshes.size(), std::size_t{1});
    QCOMPARE(object.meshes[0].name, QStringLiteral("Flag"));
    QCOMPARE(object.meshes[0].materialSlots.size(), std::size_t{2});
    QCOMPARE(object.materials.size(), std::size_t{2});
    QCOMPARE(object.materials[0].name, QStringLiteral("Red"));
    QCOMPARE(object.materials[1].name, QStringLiteral("Blue"));
    QCOMPARE(object.meshes[0].materialSlots[0].material, Host::Id{1});
    QCOMPARE(object.meshes[0].materialSlots[0].indices.size(), std::size_t{6});
    QCOMPARE(object.meshes[0].materialSlots[1].indices.size(), std::size_t{3});
}

void TestModelImport::unnamedThingsAreNumbered()
{
    const Object cube = Sample("PLY/cube_uv.ply");
    QCOMPARE(cube.meshes[0].name, QStringLiteral("Mesh 1"));
    QCOMPARE(cube.materials[0].name, QStringLiteral("Material 1"));
}

void TestModelImport::duplicateNamesAreKept()
{
    const Object cubes = Sample("FBX/cubes_with_mirroring_and_pivot.fbx");
    const auto called = std::count_if(cubes.meshes.begin(), cubes.meshes.end(),
                                      [](const Mesh& mesh) { return mesh.name == QStringLiteral("Cube1"); });
    QCOMPARE(called, 2);
}

void TestModelImport::infiniteCoordinatesBecomeFinite()
{
    QCOMPARE(GeometryChecks::Faults(Sample("glTF2/BoxWithInfinites-glTF-Binary/BoxWithInfinites.glb")), QString());
}

void TestModelImport::diffuseColorComesAlong()
{
    const ImportResult result = ImportText(SquareObj(), "newmtl Cloth\nKd 0.2 0.4 7\nd 0.6\n");
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(result.object->materials[0].diffuse.rgba(), QColor::fromRgbF(0.2, 0.4, 1.0, 0.6).rgba());
    QVERIFY(result.object->materials[0].textures.empty());
}

void TestModelImport::embeddedTexturesAreKept_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    QTest::newRow("FBX") << QStringLiteral("FBX/embedded_ascii/box.FBX") << QSize(512, 512);
    QTest::newRow("FBX in pieces") << QStringLiteral("FBX/embedded_ascii/box_embedded_texture_fragmented.fbx")
                                   << QSize(1024, 1024);
    QTest::newRow("glTF binary") << QStringLiteral("glTF2/BoxTextured-glTF-Binary/BoxTextured.glb") << QSize(211, 211);
    QTest::newRow("glTF data URI") << QStringLiteral("glTF2/BoxTextured-glTF-Embedded/BoxTextured.gltf")
                                   << QSize(211, 211);
    QTest::newRow("Collada archive") << QStringLiteral("Collada/duck.zae") << QSize(512, 512);
    QTest::newRow("Blender") << QStringLiteral("BLEND/TexturedPlane_ImageUvPacked_248.blend") << QSize(512, 512);
}

void TestModelImport::embeddedTexturesAreKept()
{
    QFETCH(QString, file);
    const ImportResult result = ImportModel(SampleModel(file));
    QVERIFY2(result.object, qPrintable(result.error));
    const auto& texture = result.object->materials[0].textures.at(ETextureChannel::Diffuse);
    QVERIFY(texture.filePath.isEmpty());
    QTEST(QImage::fromData(texture.embedded).size(), "size");
}

void TestModelImport::rawTexelsBecomePng()
{
    const Object model = Sample("MDL/MDL (HL1)/alpha_test.mdl");
    const QByteArray& encoded = model.materials[0].textures.at(ETextureChannel::Diffuse).embedded;
    QVERIFY(encoded.startsWith("\x89PNG"));
    const QImage image = QImage::fromData(encoded);
    QCOMPARE(image.size(), QSize(512, 512));
    QSet<QRgb> colors;
    for (int i = 0; i < 512; ++i) {
        colors.insert(image.pixel(i, i));
    }
    QVERIFY(colors.size() > 1);
}

void TestModelImport::linkedTextureIsFound_data()
{
    QTest::addColumn<QByteArray>("asked");
    QTest::newRow("as it is") << QByteArray("maps/Silk Ü.png");
    QTest::newRow("backslashes") << QByteArray("maps\\Silk Ü.png");
    QTest::newRow("other case of the file name") << QByteArray("maps/SILK ü.PNG");
    QTest::newRow("through another folder") << QByteArray("./maps/../maps/Silk Ü.png");
    QTest::newRow("percent escapes") << QByteArray("maps/Silk%20%C3%9C.png");
}

void TestModelImport::linkedTextureIsFound()
{
    QFETCH(QByteArray, asked);
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("maps")));
    const QString path = PathOf(QStringLiteral("maps/Silk Ü.png"));
    QVERIFY(Files::Write(path, "image"));
    const ImportResult result = ImportText(SquareObj(), "newmtl Cloth\nKd 1 1 1\nmap_Kd " + asked + "\n");
    QVERIFY2(result.object, qPrintable(result.error));
    const auto& texture = result.object->materials[0].textures.at(ETextureChannel::Diffuse);
    QCOMPARE(texture.filePath, path);
    QVERIFY(texture.embedded.isEmpty());
}

void TestModelImport::linkedTextureBesideTheModelIsTheLastResort()
{
    // The file names a folder of its author.
    QDir folder(m_folder->path());
    QVERIFY(QFile::copy(SampleModel(QStringLiteral("FBX/spider.fbx")), PathOf(QStringLiteral("spider.fbx"))));
    QVERIFY(Files::Write(PathOf(QStringLiteral("DRKWOOD2.JPG")), "image"));
    const ImportResult result = ImportModel(PathOf(QStringLiteral("spider.fbx")));
    QVERIFY2(result.object, qPrintable(result.error));
    QHash<QString, QString> paths;
    for (const auto& material : result.object->materials) {
        paths[material.name] = material.textures.at(ETextureChannel::Diffuse).filePath;
    }
    QCOMPARE(paths.value(QStringLiteral("BeinTex")), PathOf(QStringLiteral("DRKWOOD2.JPG")));
    QVERIFY2(paths.value(QStringLiteral("Skin")).endsWith(QStringLiteral("/models/OBJ/wal67ar_small.jpg")),
             qPrintable(paths.value(QStringLiteral("Skin"))));
}

void TestModelImport::missingTextureKeepsItsPath_data()
{
    QTest::addColumn<QByteArray>("asked");
    QTest::addColumn<QString>("path");
    QTest::newRow("relative") << QByteArray("maps/silk.png") << QStringLiteral("%1/maps/silk.png");
    QTest::newRow("absolute") << QByteArray("/no/such/silk.png") << QStringLiteral("/no/such/silk.png");
    QTest::newRow("on a drive") << QByteArray("C:\\maps\\silk.png") << QStringLiteral("C:/maps/silk.png");
    QTest::newRow("folder") << QByteArray("folder.png") << QStringLiteral("%1/folder.png");
}

void TestModelImport::missingTextureKeepsItsPath()
{
    QFETCH(QByteArray, asked);
    QFETCH(QString, path);
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.png")));
    const ImportResult result = ImportText(SquareObj(), "newmtl Cloth\nKd 1 1 1\nmap_Kd " + asked + "\n");
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(result.object->materials[0].textures.at(ETextureChannel::Diffuse).filePath,
             path.replace(QStringLiteral("%1"), m_folder->path()));
}

void TestModelImport::opacityTextureComesAlong()
{
    QVERIFY(Files::Write(PathOf(QStringLiteral("a.png")), "image"));
    const ImportResult result =
        ImportText(SquareObj(), "newmtl Cloth\nKd 1 1 1\nmap_Kd a.png\nmap_d missing.png\nmap_bump a.png\n");
    QVERIFY2(result.object, qPrintable(result.error));
    const auto& textures = result.object->materials[0].textures;
    QCOMPARE(textures.size(), std::size_t{2});
    QCOMPARE(textures.at(ETextureChannel::Opacity).filePath, PathOf(QStringLiteral("missing.png")));
}

void TestModelImport::namesAreUnicode()
{
    const QString folder = QStringLiteral("Größe 東京");
    QVERIFY(QDir(m_folder->path()).mkpath(folder));
    const QString path = PathOf(folder + QStringLiteral("/Kleid Ω.v2.obj"));
    QVERIFY(Files::Write(
        path, QByteArray(SquareObj()).replace("Cloth", "Sei\xc3\xa9 \xe7\xb5\xb9").prepend("o Rock\xe8\xa1\xa3\n")));
    QVERIFY(Files::Write(PathOf(folder + QStringLiteral("/m.mtl")),
                         "newmtl Sei\xc3\xa9 \xe7\xb5\xb9\nKd 1 1 1\nmap_Kd \xe7\xb5\xb9.png\n"));
    QVERIFY(Files::Write(PathOf(folder + QStringLiteral("/絹.png")), "image"));
    const ImportResult result = ImportModel(path);
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(result.object->name, QStringLiteral("Kleid Ω.v2"));
    QCOMPARE(result.object->meshes[0].name, QStringLiteral("Rock衣"));
    QCOMPARE(result.object->materials[0].name, QStringLiteral("Seié 絹"));
    QCOMPARE(result.object->materials[0].textures.at(ETextureChannel::Diffuse).filePath,
             PathOf(folder + QStringLiteral("/絹.png")));
}

void TestModelImport::progressGrowsToTheEnd()
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

void TestModelImport::cancelLeavesNothing()
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

void TestModelImport::impossibleFileIsRefused_data()
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
    QTest::newRow("index out of range") << QStringLiteral("m.obj") << quad + "f 1 2 900\n"
                                        << QStringLiteral("could not be read");
    QTest::newRow("points only") << QStringLiteral("m.obj") << quad + "p 1 2 3\n"
                                 << QStringLiteral("holds no surfaces");
    QTest::newRow("triangles without area only") << QStringLiteral("m.obj") << quad + "v 0 0 0\nf 1 5 2\nf 1 1 2\n"
                                                 << QStringLiteral("holds no surfaces");
}

void TestModelImport::impossibleFileIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, complaint);
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.obj")));
    const QString path = name.isEmpty() ? QString() : PathOf(name);
    if (!content.isNull()) {
        QVERIFY(Files::Write(path, content));
    }
    const ImportResult result = ImportModel(path);
    QVERIFY(!result.object);
    QVERIFY(!result.cancelled);
    QVERIFY2(result.error.contains(complaint), qPrintable(result.error));
    QVERIFY2(result.error.contains(path), qPrintable(result.error));
}

void TestModelImport::truncatedModelsAreRefusedOrSound_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"OBJ/spider.obj", "FBX/spider.fbx", "Collada/duck.dae", "PLY/cube_uv.ply", "PLY/cube_binary.ply",
          "glTF2/BoxTextured-glTF-Binary/BoxTextured.glb", "glTF2/BoxTextured-glTF-Embedded/BoxTextured.gltf"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void TestModelImport::truncatedModelsAreRefusedOrSound()
{
    QFETCH(QString, file);
    const QByteArray whole = Files::Read(SampleModel(file));
    QVERIFY(!whole.isEmpty());
    const QString path = PathOf(QStringLiteral("cut.") + QFileInfo(file).suffix());
    for (int part = 1; part < 16; ++part) {
        QVERIFY(Files::Write(path, whole.left(static_cast<int>(qint64{whole.size()} * part / 16))));
        const ImportResult result = ImportModel(path);
        if (result.object) {
            QCOMPARE(GeometryChecks::Faults(*result.object), QString());
        } else {
            QVERIFY(!result.error.isEmpty());
        }
    }
}

void TestModelImport::suffixesAreSortedAndComplete()
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

QTEST_GUILESS_MAIN(TestModelImport)

#include "tst_model_import.moc"
