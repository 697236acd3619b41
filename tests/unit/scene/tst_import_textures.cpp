#include "host/import/ModelImport.h"
#include "host/import/TextureImport.h"

#include "tests/support/Files.h"
#include "tests/unit/scene/ImportTestCase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>

#include <assimp/material.h>
#include <assimp/scene.h>

using Host::ImportModel;
using Host::ImportResult;
using MV::ETextureChannel;

/// How the textures of a model file are found and taken over.
class TestImportTextures : public ImportTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void embeddedTexturesAreKept_data();
    void embeddedTexturesAreKept();
    void rawTexelsBecomePng();
    void rawTexelsOfAbsurdSizeAreLeftOut();
    void linkedTextureIsFound_data();
    void linkedTextureIsFound();
    void linkedTextureBesideTheModelIsTheLastResort();
    void missingTextureKeepsItsPath_data();
    void missingTextureKeepsItsPath();
    void opacityTextureComesAlong();
};

namespace {

/// An Assimp scene whose one material shows an embedded texture of raw texels.
struct EmbeddedTexture
{
    EmbeddedTexture(unsigned width, unsigned height)
        : texture(new aiTexture)
    {
        texture->mWidth = width;
        texture->mHeight = height;
        texture->pcData = new aiTexel[std::size_t{width} * height];
        scene.mNumTextures = 1;
        scene.mTextures = new aiTexture* [1] { texture };
        auto* material = new aiMaterial;
        const aiString name(std::string("*0"));
        material->AddProperty(&name, AI_MATKEY_TEXTURE_DIFFUSE(0));
        scene.mNumMaterials = 1;
        scene.mMaterials = new aiMaterial* [1] { material };
    }

    aiScene scene; ///< Owns everything.
    aiTexture* texture;
};

} // namespace

void TestImportTextures::embeddedTexturesAreKept_data()
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

void TestImportTextures::embeddedTexturesAreKept()
{
    QFETCH(QString, file);
    const ImportResult result = ImportModel(SampleModel(file));
    QVERIFY2(result.object, qPrintable(result.error));
    const auto& texture = result.object->materials[0].textures.at(ETextureChannel::Diffuse);
    QVERIFY(texture.filePath.isEmpty());
    QTEST(QImage::fromData(texture.embedded).size(), "size");
}

void TestImportTextures::rawTexelsBecomePng()
{
    // No reader that is in use delivers raw texels, but Assimp's scenes may hold them.
    EmbeddedTexture model(3, 2);
    for (unsigned i = 0; i < 6; ++i) {
        const auto shade = static_cast<unsigned char>(40 * i);
        model.texture->pcData[i] = {shade, 1, 2, static_cast<unsigned char>(255 - i)};
    }
    const auto textures = Host::ImportTextures(*model.scene.mMaterials[0], model.scene, QDir(m_folder->path()));
    const auto& texture = textures.at(ETextureChannel::Diffuse);
    QVERIFY(texture.filePath.isEmpty());
    QVERIFY(texture.embedded.startsWith("\x89PNG"));
    const QImage image = QImage::fromData(texture.embedded);
    QCOMPARE(image.size(), QSize(3, 2));
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(image.pixel(i % 3, i / 3), qRgba(2, 1, 40 * i, 255 - i));
    }
}

void TestImportTextures::rawTexelsOfAbsurdSizeAreLeftOut()
{
    EmbeddedTexture model(1, 1);
    model.texture->mWidth = 100000;
    QVERIFY(Host::ImportTextures(*model.scene.mMaterials[0], model.scene, QDir(m_folder->path())).empty());
}

void TestImportTextures::linkedTextureIsFound_data()
{
    QTest::addColumn<QByteArray>("asked");
    QTest::newRow("as it is") << QByteArray("maps/Silk Ü.png");
    QTest::newRow("backslashes") << QByteArray("maps\\Silk Ü.png");
    QTest::newRow("other case of the file name") << QByteArray("maps/SILK ü.PNG");
    QTest::newRow("through another folder") << QByteArray("./maps/../maps/Silk Ü.png");
    QTest::newRow("percent escapes") << QByteArray("maps/Silk%20%C3%9C.png");
}

void TestImportTextures::linkedTextureIsFound()
{
    QFETCH(QByteArray, asked);
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("maps")));
    const QString path = PathOf(QStringLiteral("maps/Silk Ü.png"));
    Files::Write(path, "image");
    const ImportResult result = ImportText(SquareObj(), "newmtl Cloth\nKd 1 1 1\nmap_Kd " + asked + "\n");
    QVERIFY2(result.object, qPrintable(result.error));
    const auto& texture = result.object->materials[0].textures.at(ETextureChannel::Diffuse);
    // The same file: on Windows any spelling of its name leads to it.
    QCOMPARE(QFileInfo(texture.filePath), QFileInfo(path));
    QVERIFY(texture.embedded.isEmpty());
}

void TestImportTextures::linkedTextureBesideTheModelIsTheLastResort()
{
    // The file names a folder of its author.
    QVERIFY(QFile::copy(SampleModel(QStringLiteral("FBX/spider.fbx")), PathOf(QStringLiteral("spider.fbx"))));
    Files::Write(PathOf(QStringLiteral("DRKWOOD2.JPG")), "image");
    const ImportResult result = ImportModel(PathOf(QStringLiteral("spider.fbx")));
    QVERIFY2(result.object, qPrintable(result.error));
    QHash<QString, QString> paths;
    for (const auto& material : result.object->materials) {
        paths[material.name] = material.textures.at(ETextureChannel::Diffuse).filePath;
    }
    QCOMPARE(QFileInfo(paths.value(QStringLiteral("BeinTex"))), QFileInfo(PathOf(QStringLiteral("DRKWOOD2.JPG"))));
    QVERIFY2(paths.value(QStringLiteral("Skin")).endsWith(QStringLiteral("/models/OBJ/wal67ar_small.jpg")),
             qPrintable(paths.value(QStringLiteral("Skin"))));
}

void TestImportTextures::missingTextureKeepsItsPath_data()
{
    QTest::addColumn<QByteArray>("asked");
    QTest::addColumn<QString>("path");
    QTest::newRow("relative") << QByteArray("maps/silk.png") << QStringLiteral("%1/maps/silk.png");
    QTest::newRow("absolute") << QByteArray("/no/such/silk.png") << QStringLiteral("/no/such/silk.png");
    QTest::newRow("on a drive") << QByteArray("C:\\maps\\silk.png") << QStringLiteral("C:/maps/silk.png");
    QTest::newRow("folder") << QByteArray("folder.png") << QStringLiteral("%1/folder.png");
}

void TestImportTextures::missingTextureKeepsItsPath()
{
    QFETCH(QByteArray, asked);
    QFETCH(QString, path);
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.png")));
    const ImportResult result = ImportText(SquareObj(), "newmtl Cloth\nKd 1 1 1\nmap_Kd " + asked + "\n");
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(result.object->materials[0].textures.at(ETextureChannel::Diffuse).filePath,
             path.replace(QStringLiteral("%1"), m_folder->path()));
}

void TestImportTextures::opacityTextureComesAlong()
{
    Files::Write(PathOf(QStringLiteral("a.png")), "image");
    const ImportResult result =
        ImportText(SquareObj(), "newmtl Cloth\nKd 1 1 1\nmap_Kd a.png\nmap_d missing.png\nmap_bump a.png\n");
    QVERIFY2(result.object, qPrintable(result.error));
    const auto& textures = result.object->materials[0].textures;
    QCOMPARE(textures.size(), std::size_t{2});
    QCOMPARE(textures.at(ETextureChannel::Opacity).filePath, PathOf(QStringLiteral("missing.png")));
}

SOFTCLOTH_TEST_WITH(TestImportTextures, QCoreApplication)

#include "tst_import_textures.moc"
