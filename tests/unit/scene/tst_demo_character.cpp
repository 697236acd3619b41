#include "host/import/ModelImport.h"

#include "tests/support/Files.h"
#include "tests/support/TestCase.h"
#include "tests/unit/scene/GeometryChecks.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

using Host::Mesh;
using Host::Object;
using MV::ETextureChannel;

class TestDemoCharacter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bodyAndClothesHaveTheirMaterials();
    void clothIsFineEnoughToSimulate();
    void textureCoordinatesAreInRange();
    void noTriangleIsDegenerate();
    void normalsPointOutwards();
    void characterStandsOnTheGround();
    void texturesDecode();
    void hairOpacityHasHolesAndSolidParts();
    void flagHasOneMaterialAndShowsItsWholeTexture();
    void weightImagesAreGray_data();
    void weightImagesAreGray();
    void generatorGivesTheSameBytesEachTime();
    void generatorRefusesAFolderThatCannotBeMade();

private:
    Object m_character;
};

namespace {

QString MaterialNames(const Object& object, const Mesh& mesh)
{
    QStringList names;
    for (const auto& slot : mesh.materialSlots) {
        names.append(object.materials[slot.material - 1].name);
    }
    return names.join(QLatin1String(", "));
}

} // namespace

void TestDemoCharacter::initTestCase()
{
    const auto result = Host::ImportModel(QStringLiteral(SOFTCLOTH_DEMO_FOLDER "/demo-character.obj"));
    QVERIFY2(result.object, qPrintable(result.error));
    m_character = *result.object;
    QCOMPARE(GeometryChecks::Faults(m_character), QString());
}

void TestDemoCharacter::bodyAndClothesHaveTheirMaterials()
{
    QCOMPARE(m_character.name, QStringLiteral("demo-character"));
    QCOMPARE(m_character.meshes.size(), std::size_t{2});
    QCOMPARE(m_character.meshes[0].name, QStringLiteral("Body"));
    QCOMPARE(MaterialNames(m_character, m_character.meshes[0]), QStringLiteral("Body skin, Hair"));
    QCOMPARE(m_character.meshes[1].name, QStringLiteral("Clothes"));
    QCOMPARE(MaterialNames(m_character, m_character.meshes[1]), QStringLiteral("Skirt, Cape"));
}

void TestDemoCharacter::clothIsFineEnoughToSimulate()
{
    std::size_t total = 0;
    for (const Mesh& mesh : m_character.meshes) {
        total += mesh.positions.size();
    }
    QVERIFY(total < 20000);
    for (const auto& slot : m_character.meshes[1].materialSlots) {
        const QSet<quint32> vertices(slot.indices.begin(), slot.indices.end());
        QVERIFY(vertices.size() > 2000);
    }
}

void TestDemoCharacter::textureCoordinatesAreInRange()
{
    for (const Mesh& mesh : m_character.meshes) {
        QCOMPARE(mesh.uvs.size(), mesh.positions.size());
        QVERIFY(std::all_of(mesh.uvs.begin(), mesh.uvs.end(), [](const QVector2D& uv) {
            return uv.x() >= 0.0F && uv.x() <= 1.0F && uv.y() >= 0.0F && uv.y() <= 1.0F;
        }));
    }
}

void TestDemoCharacter::noTriangleIsDegenerate()
{
    // The import leaves out triangles without area, so none of the file may be missing.
    const QByteArray file = Files::Read(QStringLiteral(SOFTCLOTH_DEMO_FOLDER "/demo-character.obj"));
    std::size_t imported = 0;
    for (const Mesh& mesh : m_character.meshes) {
        imported += GeometryChecks::TriangleCount(mesh);
    }
    QCOMPARE(imported, static_cast<std::size_t>(file.count("\nf ")));
    for (const Mesh& mesh : m_character.meshes) {
        QCOMPARE(GeometryChecks::DegenerateTriangles(mesh), 0);
    }
}

void TestDemoCharacter::normalsPointOutwards()
{
    for (const Mesh& mesh : m_character.meshes) {
        QCOMPARE(mesh.normals.size(), mesh.positions.size());
        QCOMPARE(GeometryChecks::FacingShare(mesh), 1.0);
        QVERIFY(std::all_of(mesh.normals.begin(), mesh.normals.end(),
                            [](const QVector3D& normal) { return qAbs(normal.length() - 1.0F) < 1e-3F; }));
    }
    // The skirt goes around the y axis.
    const Mesh& clothes = m_character.meshes[1];
    for (const quint32 index : clothes.materialSlots[0].indices) {
        const QVector3D& position = clothes.positions[index];
        QVERIFY(QVector3D::dotProduct(clothes.normals[index], {position.x(), 0.0F, position.z()}) > 0.0F);
    }
}

void TestDemoCharacter::characterStandsOnTheGround()
{
    const auto& positions = m_character.meshes[0].positions;
    const auto byHeight = [](const QVector3D& a, const QVector3D& b) { return a.y() < b.y(); };
    const auto [low, high] = std::minmax_element(positions.begin(), positions.end(), byHeight);
    QVERIFY(qAbs(low->y()) < 1.0F);
    QVERIFY(qAbs(high->y() - 170.0F) < 2.0F);
}

void TestDemoCharacter::texturesDecode()
{
    for (const auto& material : m_character.materials) {
        QCOMPARE(material.textures.size(), std::size_t(material.name == QStringLiteral("Hair") ? 2 : 1));
        for (const auto& [channel, texture] : material.textures) {
            QCOMPARE(QImage(texture.filePath).size(), QSize(512, 512));
        }
        QVERIFY(material.textures.count(ETextureChannel::Diffuse) == 1);
    }
}

void TestDemoCharacter::hairOpacityHasHolesAndSolidParts()
{
    const QImage image(m_character.materials[1].textures.at(ETextureChannel::Opacity).filePath);
    QCOMPARE(qGray(image.pixel(256, 0)), 255);
    QCOMPARE(qGray(image.pixel(256, image.height() - 1)), 0);
}

void TestDemoCharacter::flagHasOneMaterialAndShowsItsWholeTexture()
{
    const auto result = Host::ImportModel(QStringLiteral(SOFTCLOTH_DEMO_FOLDER "/demo-flag.obj"));
    QVERIFY2(result.object, qPrintable(result.error));
    QCOMPARE(GeometryChecks::Faults(*result.object), QString());
    QCOMPARE(result.object->meshes.size(), std::size_t(1));
    const Mesh& sheet = result.object->meshes.front();
    QCOMPARE(MaterialNames(*result.object, sheet), QStringLiteral("Flag"));
    QCOMPARE(sheet.positions.size(), std::size_t(61 * 41));
    QVector2D low(1.0F, 1.0F);
    QVector2D high(0.0F, 0.0F);
    for (const QVector2D& uv : sheet.uvs) {
        low = {qMin(low.x(), uv.x()), qMin(low.y(), uv.y())};
        high = {qMax(high.x(), uv.x()), qMax(high.y(), uv.y())};
    }
    QCOMPARE(low, QVector2D(0.0F, 0.0F));
    QCOMPARE(high, QVector2D(1.0F, 1.0F));
}

void TestDemoCharacter::weightImagesAreGray_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("topLeft");
    QTest::addColumn<int>("topRight");
    QTest::addColumn<int>("bottomLeft");
    QTest::newRow("hanging") << QStringLiteral("weights-hanging.png") << 0 << 0 << 255;
    QTest::newRow("flag") << QStringLiteral("weights-flag.png") << 0 << 255 << 0;
    QTest::newRow("black") << QStringLiteral("weights-black.png") << 0 << 0 << 0;
}

void TestDemoCharacter::weightImagesAreGray()
{
    QFETCH(const QString, name);
    QFETCH(const int, topLeft);
    QFETCH(const int, topRight);
    QFETCH(const int, bottomLeft);
    const QImage image(QStringLiteral(SOFTCLOTH_DEMO_FOLDER "/") + name);
    QCOMPARE(image.size(), QSize(512, 512));
    QVERIFY(image.isGrayscale());
    QCOMPARE(qGray(image.pixel(0, 0)), topLeft);
    QCOMPARE(qGray(image.pixel(511, 0)), topRight);
    QCOMPARE(qGray(image.pixel(0, 511)), bottomLeft);
}

void TestDemoCharacter::generatorGivesTheSameBytesEachTime()
{
    QTemporaryDir folder;
    const QString again = folder.filePath(QStringLiteral("made/again"));
    QCOMPARE(QProcess::execute(QStringLiteral(SOFTCLOTH_MAKE_DEMO), {again}), 0);
    const QDir built(QStringLiteral(SOFTCLOTH_DEMO_FOLDER));
    const QStringList names = QDir(again).entryList(QDir::Files, QDir::Name);
    QCOMPARE(names.size(), 13);
    for (const QString& name : names) {
        QVERIFY2(Files::Read(QDir(again).filePath(name)) == Files::Read(built.filePath(name)), qPrintable(name));
    }
}

void TestDemoCharacter::generatorRefusesAFolderThatCannotBeMade()
{
    QTemporaryDir folder;
    Files::Write(folder.filePath(QStringLiteral("file")), "x");
    QProcess process;
    process.start(QStringLiteral(SOFTCLOTH_MAKE_DEMO), {folder.filePath(QStringLiteral("file/demo"))});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().startsWith("cannot make the folder"));
}

SOFTCLOTH_TEST_WITH(TestDemoCharacter, QCoreApplication)

#include "tst_demo_character.moc"
