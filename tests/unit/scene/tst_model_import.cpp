#include "host/import/ModelImport.h"

#include "tests/support/Files.h"
#include "tests/unit/scene/GeometryChecks.h"
#include "tests/unit/scene/ImportTestCase.h"

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

class TestModelImport : public ImportTestCase
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

    void namesAreUnicode();
};

namespace {

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

} // namespace

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
    const Object spider = Import("OBJ/spider.obj");
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
    const Bounds bounds = BoundsOf(Import("Collada/duck.dae").meshes[0]);
    // In the file the duck is a hundred times as large, and its node shrinks it.
    QVERIFY(bounds.high.y() > 163.0F && bounds.high.y() < 165.0F);
    QVERIFY(bounds.low.y() > 9.0F && bounds.low.y() < 11.0F);
}

void TestModelImport::mirroredNodesKeepTheirOutside()
{
    const Object cubes = Import("FBX/cubes_with_mirroring_and_pivot.fbx");
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
    const Object teapots = Import("Collada/teapot_instancenodes.DAE");
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
    const ImportResult result = ImportText(squareVertices + "o Thing\nf 1 2 3\nl 1 3\np 4\n");
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(GeometryChecks::Faults(*result.object), QString());
    QCOMPARE(result.object->meshes.size(), std::size_t{1});
    QCOMPARE(GeometryChecks::TriangleCount(result.object->meshes[0]), std::size_t{1});
}

void TestModelImport::slotsOfTheSameMaterialAreOne()
{
    const ImportResult result = ImportText("mtllib m.mtl\no Flag\n" + squareVertices +
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
    const Object cube = Import("PLY/cube_uv.ply");
    QCOMPARE(cube.meshes[0].name, QStringLiteral("Mesh 1"));
    QCOMPARE(cube.materials[0].name, QStringLiteral("Material 1"));
}

void TestModelImport::duplicateNamesAreKept()
{
    const Object cubes = Import("FBX/cubes_with_mirroring_and_pivot.fbx");
    const auto called = std::count_if(cubes.meshes.begin(), cubes.meshes.end(),
                                      [](const Mesh& mesh) { return mesh.name == QStringLiteral("Cube1"); });
    QCOMPARE(called, 2);
}

void TestModelImport::infiniteCoordinatesBecomeFinite()
{
    QCOMPARE(GeometryChecks::Faults(Import("glTF2/BoxWithInfinites-glTF-Binary/BoxWithInfinites.glb")), QString());
}

void TestModelImport::diffuseColorComesAlong()
{
    const ImportResult result = ImportText(SquareObj(), "newmtl Cloth\nKd 0.2 0.4 7\nd 0.6\n");
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(result.object->materials[0].diffuse.rgba(), QColor::fromRgbF(0.2, 0.4, 1.0, 0.6).rgba());
    QVERIFY(result.object->materials[0].textures.empty());
}

void TestModelImport::namesAreUnicode()
{
    const QString folder = QStringLiteral("Größe 東京");
    QVERIFY(QDir(m_folder->path()).mkpath(folder));
    const QString path = PathOf(folder + QStringLiteral("/Kleid Ω.v2.obj"));
    Files::Write(path,
                 QByteArray(SquareObj()).replace("Cloth", "Sei\xc3\xa9 \xe7\xb5\xb9").prepend("o Rock\xe8\xa1\xa3\n"));
    Files::Write(PathOf(folder + QStringLiteral("/m.mtl")),
                 "newmtl Sei\xc3\xa9 \xe7\xb5\xb9\nKd 1 1 1\nmap_Kd \xe7\xb5\xb9.png\n");
    Files::Write(PathOf(folder + QStringLiteral("/絹.png")), "image");
    const ImportResult result = ImportModel(path);
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(result.object->name, QStringLiteral("Kleid Ω.v2"));
    QCOMPARE(result.object->meshes[0].name, QStringLiteral("Rock衣"));
    QCOMPARE(result.object->materials[0].name, QStringLiteral("Seié 絹"));
    QCOMPARE(result.object->materials[0].textures.at(ETextureChannel::Diffuse).filePath,
             PathOf(folder + QStringLiteral("/絹.png")));
}

SOFTCLOTH_TEST_WITH(TestModelImport, QCoreApplication)

#include "tst_model_import.moc"
