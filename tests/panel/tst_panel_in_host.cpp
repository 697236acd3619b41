#include "tests/support/Children.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"
#include "tests/support/Typing.h"

#include "host/import/ModelImport.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QRegularExpression>

#include <array>

using MV::ECompatibleApp;

/// The whole panel in the stand-in host: an object is selected, values are edited, the host keeps them.
class TestPanelInHost : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void realModelIsEditedAndUndone_data();
    void realModelIsEditedAndUndone();
    void sectionsFollowTheSelection();
    void sectionIsDisabledWithoutSoftCloth();
    void playingDisablesTheSections();
    void wheelOverThePanelChangesNothing();
    void editReachesOneMaterialOnly();
    void refreshWritesNothing();
    void failedReadLeavesTheMarginAlone();
    void deletedObjectHidesThePanel();
};

namespace {

const std::array<const char*, 4> sectionForms{"SoftClothPreset", "SoftClothProperty", "SoftClothCollision",
                                              "SoftClothWindSetting"};
const char* const rigidMargin = "qtCollideWithRigidMarginDoubleEXSpinBox";

QGroupBox* BodyOf(QWidget* section)
{
    return Child<QGroupBox>(section, "qtSectionGroupBox");
}

QStringList Writes(Host::CallJournal& journal)
{
    return TakeOperations(journal).filter(QRegularExpression(QStringLiteral("^Set|^Delete|^Embed|^Undo|^Convert")));
}

} // namespace

void TestPanelInHost::realModelIsEditedAndUndone_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<ECompatibleApp>("app");
    for (const auto& [app, family] :
         {std::make_pair(ECompatibleApp::FamilyA, "A"), std::make_pair(ECompatibleApp::FamilyB, "B")}) {
        for (const char* file : {"OBJ/spider.obj", "FBX/spider.fbx", "Collada/duck.dae"}) {
            QTest::addRow("%s, family %s", file, family) << SampleModels::RealModel(QLatin1String(file)) << app;
        }
    }
}

void TestPanelInHost::realModelIsEditedAndUndone()
{
    QFETCH(const QString, file);
    QFETCH(const ECompatibleApp, app);
    PanelFixture fixture(app);
    Host::ImportResult imported = Host::ImportModel(file);
    QVERIFY2(imported.object, qPrintable(imported.error));
    const Host::Object& object = fixture.AddCloth(std::move(*imported.object));
    QVERIFY(fixture.Section("SoftClothCollision")->isVisible());
    auto* margin = Child<QDoubleSpinBox>(&fixture.Window(), rigidMargin);
    QVERIFY(margin->isEnabled());

    Enter(margin, QStringLiteral("2.5"));
    QCOMPARE(fixture.Cloth(object).collision.rigidMargin, 2.5F);
    QCOMPARE(Writes(fixture.App().Journal()), QStringList{QStringLiteral("SetSoftClothCollision")});
    fixture.App().Undo();
    QCOMPARE(fixture.Cloth(object).collision.rigidMargin, 0.0F);
    QCOMPARE(margin->value(), 0.0);
    fixture.App().Redo();
    QCOMPARE(margin->value(), 2.5);
}

void TestPanelInHost::sectionsFollowTheSelection()
{
    PanelFixture fixture;
    QVERIFY(!fixture.Section("SoftClothCollision")->isVisible());
    const Host::Object& hero = fixture.AddCloth(SampleModels::Hero());
    const Host::Object& flag = fixture.AddCloth(SampleModels::Flag());
    fixture.Cloth(hero).collision.rigidMargin = 1;
    fixture.Cloth(flag).collision.rigidMargin = 2;
    const auto* margin = Child<QDoubleSpinBox>(&fixture.Window(), rigidMargin);
    fixture.App().Select({hero.handle});
    QCOMPARE(margin->value(), 1.0);
    fixture.App().Select({flag.handle});
    QCOMPARE(margin->value(), 2.0);
    fixture.App().Select({flag.handle, hero.handle});
    QVERIFY(!fixture.Section("SoftClothCollision")->isVisible());
    fixture.App().Select({hero.handle});
    QVERIFY(fixture.Section("SoftClothCollision")->isVisible());
    QCOMPARE(margin->value(), 1.0);
}

void TestPanelInHost::sectionIsDisabledWithoutSoftCloth()
{
    PanelFixture fixture;
    const Host::Object& hero = fixture.AddCloth(SampleModels::Hero());
    QVERIFY(BodyOf(fixture.Section("SoftClothCollision"))->isEnabled());
    fixture.App().SetSoftClothActive(hero.handle, false);
    QVERIFY(fixture.Section("SoftClothCollision")->isVisible());
    QVERIFY(!BodyOf(fixture.Section("SoftClothCollision"))->isEnabled());
    fixture.App().Undo();
    QVERIFY(BodyOf(fixture.Section("SoftClothCollision"))->isEnabled());
}

void TestPanelInHost::playingDisablesTheSections()
{
    PanelFixture fixture;
    fixture.AddCloth(SampleModels::Hero());
    fixture.App().SetPlaying(true);
    for (const char* form : sectionForms) {
        QVERIFY2(!BodyOf(fixture.Section(form))->isEnabled(), form);
    }
    fixture.App().SetPlaying(false);
    for (const char* form : sectionForms) {
        QVERIFY2(BodyOf(fixture.Section(form))->isEnabled(), form);
    }
}

void TestPanelInHost::wheelOverThePanelChangesNothing()
{
    PanelFixture fixture;
    const Host::Object& hero = fixture.AddCloth(SampleModels::Hero());
    auto* margin = Child<QDoubleSpinBox>(&fixture.Window(), rigidMargin);
    fixture.Window().setFocus();
    margin->clearFocus();
    const QPointF position(margin->rect().center());
    QWheelEvent wheel(position, margin->mapToGlobal(position.toPoint()), {}, QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(margin, &wheel);
    QCOMPARE(margin->value(), 0.0);
    QCOMPARE(fixture.Cloth(hero).collision.rigidMargin, 0.0F);
}

void TestPanelInHost::editReachesOneMaterialOnly()
{
    PanelFixture fixture;
    const Host::Object& hero = fixture.AddCloth(SampleModels::Hero());
    Enter(Child<QDoubleSpinBox>(&fixture.Window(), rigidMargin), QStringLiteral("3"));
    QCOMPARE(fixture.Cloth(hero, 0).collision.rigidMargin, 3.0F);
    QCOMPARE(fixture.Cloth(hero, 1).collision.rigidMargin, 0.0F);
    QCOMPARE(fixture.Cloth(hero, 2).collision.rigidMargin, 0.0F);
}

void TestPanelInHost::refreshWritesNothing()
{
    PanelFixture fixture;
    const Host::Object& hero = fixture.AddCloth(SampleModels::Hero());
    fixture.Cloth(hero).collision = {false, true, 5, 6};
    fixture.Cloth(hero).property.friction = 0.25F;
    fixture.Cloth(hero).wind.externalAcceleration = {1, 2, 3};
    const int steps = fixture.CurrentScene().UndoStack().count();
    fixture.App().Journal().Clear();
    fixture.App().Send("LaunchedImageChanged", &MV::CEventSender::LaunchedImageChanged, BF::CArrayList<BF::CHandle*>());
    QCOMPARE(Child<QDoubleSpinBox>(&fixture.Window(), rigidMargin)->value(), 5.0);
    QCOMPARE(Writes(fixture.App().Journal()), QStringList());
    QCOMPARE(fixture.CurrentScene().UndoStack().count(), steps);
}

void TestPanelInHost::failedReadLeavesTheMarginAlone()
{
    PanelFixture fixture;
    const Host::Object& hero = fixture.AddCloth(SampleModels::Hero());
    fixture.Cloth(hero).collision.rigidMargin = 5;
    fixture.App().Faults().FailOperation(QStringLiteral("GetSoftClothCollision"), BF::Results::Refused);
    fixture.App().Journal().Clear();
    fixture.App().Send("LaunchedImageChanged", &MV::CEventSender::LaunchedImageChanged, BF::CArrayList<BF::CHandle*>());
    QCOMPARE(Child<QDoubleSpinBox>(&fixture.Window(), rigidMargin)->value(), 0.0);
    // The Property section was refreshed before, the Wind section was not reached.
    const QStringList calls = TakeOperations(fixture.App().Journal());
    QVERIFY(calls.contains(QStringLiteral("GetSoftClothProperty")));
    QCOMPARE(calls.constLast(), QStringLiteral("GetSoftClothCollision"));
}

void TestPanelInHost::deletedObjectHidesThePanel()
{
    PanelFixture fixture;
    const Host::Object& hero = fixture.AddCloth(SampleModels::Hero());
    fixture.App().DeleteObjects({hero.handle});
    QVERIFY(!fixture.Section("SoftClothCollision")->isVisible());
}

SOFTCLOTH_TEST(TestPanelInHost)
#include "tst_panel_in_host.moc"
