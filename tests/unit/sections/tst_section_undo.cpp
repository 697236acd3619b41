#include "host/scene/SceneFile.h"
#include "plugin/services/EditService.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/Children.h"
#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QTemporaryDir>
#include <QUndoStack>

Q_DECLARE_METATYPE(MV::SoftClothPropertyData)
Q_DECLARE_METATYPE(MV::SoftClothWindData)

using Property = MV::SoftClothPropertyData;
using Wind = MV::SoftClothWindData;

/// What the stand-in host does with the sections' edits: one undo step each, for one material or for all of the
/// object's, kept in the scene file.
class TestSectionUndo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eachEditIsOneStepBack();
    void editReachesOneMaterialOrAll_data();
    void editReachesOneMaterialOrAll();
    void oneStepTakesBackAllMaterials();
    void selectorTakesItsFieldsOnly_data();
    void selectorTakesItsFieldsOnly();
    void windSelectorTakesItsFieldsOnly_data();
    void windSelectorTakesItsFieldsOnly();
    void unknownSelectorIsRefused();
    void sceneFileKeepsBothRecords();
};

namespace {

const Property allDifferent = PropertyRows::AllDifferent();
const Wind windDifferent{{2, 3, 4}, {5, 6, 7}, 8, {9, 10}};

} // namespace

void TestSectionUndo::eachEditIsOneStepBack()
{
    SectionFixture fixture;
    auto& property = fixture.Make<MV::CSoftClothPropertySection>();
    auto& wind = fixture.Make<MV::CSoftClothWindSection>();
    QUndoStack& undo = fixture.host.CurrentScene().UndoStack();
    const int before = undo.count();

    Enter(Child<QWidget>(&property, "qtMassEXSpinBox"), QStringLiteral("16"));
    Enter(Child<QWidget>(&wind, "qtExternalYEXSpinBox"), QStringLiteral("-20"));
    QCOMPARE(undo.count(), before + 2);

    fixture.host.Undo();
    QCOMPARE(fixture.Cloth().wind.externalAcceleration.at(1), 0.0F);
    QCOMPARE(fixture.Cloth().property.mass, qint64(16));
    fixture.host.Undo();
    COMPARE_RECORDS(fixture, fixture.Cloth().property, Property());
    fixture.host.Redo();
    QCOMPARE(fixture.Cloth().property.mass, qint64(16));
}

void TestSectionUndo::editReachesOneMaterialOrAll_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("one material") << false;
    QTest::newRow("all materials of the object") << true;
}

void TestSectionUndo::editReachesOneMaterialOrAll()
{
    QFETCH(bool, all);
    SectionFixture fixture;
    auto& property = fixture.Make<MV::CSoftClothPropertySection>();
    auto& wind = fixture.Make<MV::CSoftClothWindSection>();
    fixture.Cloth(1).property = allDifferent;
    fixture.Cloth(2).active = false;
    fixture.plugin.Selection().affectAllMaterials = all;

    Enter(Child<QWidget>(&property, "qtMassEXSpinBox"), QStringLiteral("16"));
    Enter(Child<QWidget>(&wind, "qtFrequencyCombodoublespinbox"), QStringLiteral("2.5"));

    Property expected = allDifferent;
    expected.mass = all ? 16 : allDifferent.mass;
    COMPARE_RECORDS(fixture, fixture.Cloth(1).property, expected);
    QCOMPARE(fixture.Cloth(0).property.mass, qint64(16));
    QCOMPARE(fixture.Cloth(2).property.mass, qint64(all ? 16 : 1));
    QCOMPARE(fixture.Cloth(0).wind.frequency, 2.5F);
    QCOMPARE(fixture.Cloth(2).wind.frequency, all ? 2.5F : 1.0F);
}

void TestSectionUndo::oneStepTakesBackAllMaterials()
{
    SectionFixture fixture;
    auto& property = fixture.Make<MV::CSoftClothPropertySection>();
    fixture.Cloth(1).property = allDifferent;
    fixture.plugin.Selection().affectAllMaterials = true;
    Enter(Child<QWidget>(&property, "qtMassEXSpinBox"), QStringLiteral("16"));
    QCOMPARE(fixture.host.CurrentScene().UndoStack().count(), 1);
    fixture.host.Undo();
    COMPARE_RECORDS(fixture, fixture.Cloth(0).property, Property());
    COMPARE_RECORDS(fixture, fixture.Cloth(1).property, allDifferent);
    COMPARE_RECORDS(fixture, fixture.Cloth(2).property, Property());
}

void TestSectionUndo::selectorTakesItsFieldsOnly_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<Property>("expected");
    for (const PropertyRow& row : PropertyRows::All()) {
        Property expected;
        PropertyRows::Take(expected, allDifferent, row.selector);
        QTest::newRow(row.name) << row.selector << expected;
    }
}

void TestSectionUndo::selectorTakesItsFieldsOnly()
{
    QFETCH(int, type);
    QFETCH(Property, expected);
    SectionFixture fixture;
    const MV::SoftClothSelection& selection = fixture.plugin.Selection();
    const BF::Result written = fixture.host.GetEditService()->SetSoftClothProperty(
        selection.object, selection.mesh, selection.material, MV::ESoftClothPropertyType(type), allDifferent, false);
    QCOMPARE(written, BF::Results::Success);
    COMPARE_RECORDS(fixture, fixture.Cloth().property, expected);
}

void TestSectionUndo::windSelectorTakesItsFieldsOnly_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<Wind>("expected");
    const auto row = [](const char* name, int type, auto field) {
        Wind expected;
        expected.*field = windDifferent.*field;
        QTest::newRow(name) << type << expected;
    };
    row("external acceleration", 0, &Wind::externalAcceleration);
    row("random acceleration", 1, &Wind::randomAcceleration);
    row("frequency", 2, &Wind::frequency);
    row("random factor", 3, &Wind::randomFactor);
    QTest::newRow("whole record") << 4 << windDifferent;
}

void TestSectionUndo::windSelectorTakesItsFieldsOnly()
{
    QFETCH(int, type);
    QFETCH(Wind, expected);
    SectionFixture fixture;
    const MV::SoftClothSelection& selection = fixture.plugin.Selection();
    const BF::Result written = fixture.host.GetEditService()->SetSoftClothWind(
        selection.object, selection.mesh, selection.material, MV::ESoftClothWindType(type), windDifferent, false);
    QCOMPARE(written, BF::Results::Success);
    COMPARE_RECORDS(fixture, fixture.Cloth().wind, expected);
}

void TestSectionUndo::unknownSelectorIsRefused()
{
    SectionFixture fixture;
    const MV::SoftClothSelection& selection = fixture.plugin.Selection();
    const BF::Result written = fixture.host.GetEditService()->SetSoftClothProperty(
        selection.object, selection.mesh, selection.material, MV::ESoftClothPropertyType(8), allDifferent, false);
    QCOMPARE(written, BF::Results::InvalidArgument);
    COMPARE_RECORDS(fixture, fixture.Cloth().property, Property());
}

void TestSectionUndo::sceneFileKeepsBothRecords()
{
    SectionFixture fixture;
    fixture.Cloth(1).property = allDifferent;
    fixture.Cloth(1).wind = windDifferent;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("hero.scene"));
    const Host::SceneFileResult saved = Host::SaveScene(fixture.host.CurrentScene(), path);
    QVERIFY2(saved.ok, qPrintable(saved.error));

    std::unique_ptr<Host::Scene> scene;
    const Host::SceneFileResult loaded = Host::LoadScene(path, scene);
    QVERIFY2(loaded.ok, qPrintable(loaded.error));
    const Host::ClothAddress address = Host::Scene::SlotsOf(*scene->Objects().front()).at(1);
    COMPARE_RECORDS(fixture, scene->FindSlot(address)->cloth.property, allDifferent);
    COMPARE_RECORDS(fixture, scene->FindSlot(address)->cloth.wind, windDifferent);
}

SOFTCLOTH_TEST(TestSectionUndo)
#include "tst_section_undo.moc"
