#include "host/import/Units.h"

#include "tests/support/Files.h"
#include "tests/unit/scene/ImportTestCase.h"

#include <algorithm>

using Host::ImportResult;
using Host::LengthUnit;

/// How large imported models are in the scene, whose unit is the centimetre, and which way is up.
class TestImportUnits : public ImportTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void filesWithAUnitComeOutInCentimetres_data();
    void filesWithAUnitComeOutInCentimetres();
    void unitIsGuessedFromTheSize_data();
    void unitIsGuessedFromTheSize();
    void chosenUnitScalesTheModel_data();
    void chosenUnitScalesTheModel();
    void chooserHearsTheSizeInUnitsOfTheFile();
    void noUnitChosenCancels();
    void filesWithAUnitDoNotAsk();
    void colladaUnitAndUpAxisCount_data();
    void colladaUnitAndUpAxisCount();
    void fbxSettingsTurnTheModelUpright_data();
    void fbxSettingsTurnTheModelUpright();
    void fbxUnitFactorCounts();

private:
    ImportResult ImportFbxTriangle(const QByteArray& axes, const QByteArray& unitFactor) const;
    static QVector3D SidesOf(const Host::Object& object);
};

namespace {

void ComparePlaces(const QVector3D& actual, const QVector3D& expected)
{
    QVERIFY2((actual - expected).length() <= 0.001F * expected.length() + 1e-4F,
             qPrintable(QStringLiteral("%1 %2 %3").arg(actual.x()).arg(actual.y()).arg(actual.z())));
}

} // namespace

QVector3D TestImportUnits::SidesOf(const Host::Object& object)
{
    QVector3D low = object.meshes.front().positions.front();
    QVector3D high = low;
    for (const Host::Mesh& mesh : object.meshes) {
        for (const QVector3D& position : mesh.positions) {
            for (int axis = 0; axis < 3; ++axis) {
                low[axis] = std::min(low[axis], position[axis]);
                high[axis] = std::max(high[axis], position[axis]);
            }
        }
    }
    return high - low;
}

void TestImportUnits::filesWithAUnitComeOutInCentimetres_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<float>("height");
    QTest::newRow("glTF, metres") << QStringLiteral("glTF2/BoxTextured-glTF/BoxTextured.gltf") << 100.0F;
    QTest::newRow("binary glTF, metres") << QStringLiteral("glTF2/BoxTextured-glTF-Binary/BoxTextured.glb") << 100.0F;
    QTest::newRow("Collada, hundredths of a metre") << QStringLiteral("Collada/duck.dae") << 154.1F;
    QTest::newRow("FBX, factor 1") << QStringLiteral("FBX/spider.fbx") << 7973.8F;
}

void TestImportUnits::filesWithAUnitComeOutInCentimetres()
{
    QFETCH(const QString, file);
    QFETCH(const float, height);
    const float actual = SidesOf(Import(file.toLatin1().constData())).y();
    QVERIFY2(qAbs(actual - height) < 0.01F * height, qPrintable(QString::number(double(actual))));
}

void TestImportUnits::unitIsGuessedFromTheSize_data()
{
    QTest::addColumn<double>("size");
    QTest::addColumn<QString>("unit");
    QTest::newRow("character in metres") << 1.7 << "m";
    QTest::newRow("character in centimetres") << 170.0 << "cm";
    QTest::newRow("character in millimetres") << 1700.0 << "mm";
    QTest::newRow("cube of side 1") << 1.0 << "m";
    QTest::newRow("just metres") << 16.9 << "m";
    QTest::newRow("just centimetres") << 17.1 << "cm";
    QTest::newRow("just no millimetres") << 537.0 << "cm";
    QTest::newRow("just millimetres") << 538.0 << "mm";
    QTest::newRow("nothing") << 0.0 << "cm";
    QTest::newRow("not a number") << qQNaN() << "cm";
    QTest::newRow("endless") << qInf() << "cm";
}

void TestImportUnits::unitIsGuessedFromTheSize()
{
    QFETCH(const double, size);
    QTEST(Host::GuessUnit(size).key, "unit");
}

void TestImportUnits::chosenUnitScalesTheModel_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<float>("side");
    QTest::newRow("millimetres") << "mm" << 0.1F;
    QTest::newRow("centimetres") << "cm" << 1.0F;
    QTest::newRow("inches") << "in" << 2.54F;
    QTest::newRow("feet") << "ft" << 30.48F;
    QTest::newRow("metres") << "m" << 100.0F;
}

void TestImportUnits::chosenUnitScalesTheModel()
{
    QFETCH(const QString, key);
    QFETCH(const float, side);
    const QString path = Files::Write(PathOf(QStringLiteral("square.obj")), SquareObj());
    const ImportResult result = Host::ImportModel(path, {}, [&key](double) { return Host::UnitCalled(key); });
    QVERIFY2(result.object, qPrintable(result.error));
    ComparePlaces(SidesOf(*result.object), {side, side, 0.0F});
    QVERIFY(!Host::UnitCalled(QStringLiteral("parsec")));
}

void TestImportUnits::chooserHearsTheSizeInUnitsOfTheFile()
{
    const QString path =
        Files::Write(PathOf(QStringLiteral("square.obj")), QByteArray(SquareObj()).replace("v 1 1 0", "v 1 12.5 0"));
    double heard = 0.0;
    const ImportResult result = Host::ImportModel(path, {}, [&heard](double size) {
        heard = size;
        return Host::UnitCalled(QStringLiteral("cm"));
    });
    QVERIFY(result.object);
    QCOMPARE(heard, 12.5);
}

void TestImportUnits::noUnitChosenCancels()
{
    const QString path = Files::Write(PathOf(QStringLiteral("square.obj")), SquareObj());
    const ImportResult result = Host::ImportModel(path, {}, [](double) { return std::optional<LengthUnit>(); });
    QVERIFY(result.cancelled);
    QVERIFY(!result.object);
    QCOMPARE(result.error, QString());
}

void TestImportUnits::filesWithAUnitDoNotAsk()
{
    for (const char* file : {"Collada/duck.dae", "FBX/spider.fbx", "glTF2/BoxTextured-glTF/BoxTextured.gltf"}) {
        int asked = 0;
        const ImportResult result = Host::ImportModel(SampleModel(QString::fromLatin1(file)), {}, [&asked](double) {
            ++asked;
            return std::optional<LengthUnit>();
        });
        QVERIFY(result.object);
        QCOMPARE(asked, 0);
    }
}

void TestImportUnits::colladaUnitAndUpAxisCount_data()
{
    QTest::addColumn<QByteArray>("asset");
    QTest::addColumn<QVector3D>("sides");
    // The triangle is 1 wide, 2 deep along the file's y and 3 high along its z.
    QTest::newRow("metres") << QByteArray("<unit meter=\"1\"/><up_axis>Y_UP</up_axis>") << QVector3D(100, 200, 300);
    QTest::newRow("inches") << QByteArray("<unit meter=\"0.0254\"/><up_axis>Y_UP</up_axis>")
                            << QVector3D(2.54F, 5.08F, 7.62F);
    QTest::newRow("no unit") << QByteArray("<up_axis>Y_UP</up_axis>") << QVector3D(100, 200, 300);
    QTest::newRow("z upwards") << QByteArray("<unit meter=\"0.01\"/><up_axis>Z_UP</up_axis>") << QVector3D(1, 3, 2);
}

void TestImportUnits::colladaUnitAndUpAxisCount()
{
    QFETCH(const QByteArray, asset);
    const QByteArray text =
        "<?xml version=\"1.0\"?><COLLADA xmlns=\"http://www.collada.org/2005/11/COLLADASchema\" "
        "version=\"1.4.1\"><asset>" +
        asset +
        "</asset><library_geometries><geometry id=\"g\"><mesh><source id=\"p\"><float_array id=\"a\" count=\"9\">"
        "0 0 0 1 0 0 0 2 3</float_array><technique_common><accessor source=\"#a\" count=\"3\" stride=\"3\">"
        "<param name=\"X\" type=\"float\"/><param name=\"Y\" type=\"float\"/><param name=\"Z\" type=\"float\"/>"
        "</accessor></technique_common></source><vertices id=\"v\"><input semantic=\"POSITION\" source=\"#p\"/>"
        "</vertices><triangles count=\"1\"><input semantic=\"VERTEX\" source=\"#v\" offset=\"0\"/><p>0 1 2</p>"
        "</triangles></mesh></geometry></library_geometries><library_visual_scenes><visual_scene id=\"s\"><node "
        "id=\"n\">"
        "<instance_geometry url=\"#g\"/></node></visual_scene></library_visual_scenes><scene>"
        "<instance_visual_scene url=\"#s\"/></scene></COLLADA>";
    const ImportResult result = Host::ImportModel(Files::Write(PathOf(QStringLiteral("t.dae")), text));
    QVERIFY2(result.object, qPrintable(result.error));
    QFETCH(const QVector3D, sides);
    ComparePlaces(SidesOf(*result.object), sides);
}

/// A triangle with a corner at (1, 2, 3) in a file whose settings name the up, front and right axes with their signs.
ImportResult TestImportUnits::ImportFbxTriangle(const QByteArray& axes, const QByteArray& unitFactor) const
{
    const QList<QByteArray> numbers = axes.split(' ');
    QByteArray settings;
    const char* names[] = {"UpAxis", "UpAxisSign", "FrontAxis", "FrontAxisSign", "CoordAxis", "CoordAxisSign"};
    for (int i = 0; i < 6; ++i) {
        settings += QByteArray("P: \"") + names[i] + "\", \"int\", \"Integer\", \"\"," + numbers.at(i) + "\n";
    }
    const QByteArray text =
        "; FBX 7.3.0 project file\nFBXHeaderExtension:  {\nFBXHeaderVersion: 1003\nFBXVersion: 7300\n}\n"
        "GlobalSettings:  {\nVersion: 1000\nProperties70:  {\n" +
        settings + "P: \"UnitScaleFactor\", \"double\", \"Number\", \"\"," + unitFactor +
        "\n}\n}\n"
        "Objects:  {\nGeometry: 1, \"Geometry::g\", \"Mesh\" {\nVertices: *9 {\na: 0,0,0,1,0,0,1,2,3\n}\n"
        "PolygonVertexIndex: *3 {\na: 0,1,-3\n}\nGeometryVersion: 124\n}\n"
        "Model: 2, \"Model::m\", \"Mesh\" {\nVersion: 232\n}\n}\n"
        "Connections:  {\nC: \"OO\",2,0\nC: \"OO\",1,2\n}\n";
    return Host::ImportModel(Files::Write(PathOf(QStringLiteral("t.fbx")), text));
}

void TestImportUnits::fbxUnitFactorCounts()
{
    const ImportResult result = ImportFbxTriangle("1 1 2 1 0 1", "2.54");
    QVERIFY2(result.object, qPrintable(result.error));
    ComparePlaces(SidesOf(*result.object), {2.54F, 5.08F, 7.62F});
}

void TestImportUnits::fbxSettingsTurnTheModelUpright_data()
{
    QTest::addColumn<QByteArray>("axes");
    QTest::addColumn<QVector3D>("third"); // where (1, 2, 3) goes
    QTest::newRow("y upwards") << QByteArray("1 1 2 1 0 1") << QVector3D(1, 2, 3);
    QTest::newRow("z upwards, -y to the front") << QByteArray("2 1 1 -1 0 1") << QVector3D(1, 3, -2);
    QTest::newRow("an axis twice") << QByteArray("1 1 1 1 0 1") << QVector3D(1, 2, 3);
    QTest::newRow("inside out") << QByteArray("1 1 2 1 0 -1") << QVector3D(1, 2, 3);
}

void TestImportUnits::fbxSettingsTurnTheModelUpright()
{
    QFETCH(const QByteArray, axes);
    const ImportResult result = ImportFbxTriangle(axes, "1");
    QVERIFY2(result.object, qPrintable(result.error));
    QFETCH(const QVector3D, third);
    const auto& places = result.object->meshes.front().positions;
    QVERIFY(std::any_of(places.begin(), places.end(),
                        [&third](const QVector3D& place) { return (place - third).length() < 1e-4F; }));
}

SOFTCLOTH_TEST_WITH(TestImportUnits, QCoreApplication)

#include "tst_import_units.moc"
