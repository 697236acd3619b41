#include "material/SoftClothMaterialDlg.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"
#include "ui/IniFile.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSettings>
#include <QTabWidget>

/// What the host does inside the section's own calls: it shows something else, or is rid of the panel.
class TestPresetReentry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void selectionIsReadAgainAfterTheWrite();
    void selectionIsReadAgainAfterTheGravityWrite();
    void outdatedRefreshEndsAfterTheGravityWrite_data();
    void outdatedRefreshEndsAfterTheGravityWrite();
    void nothingIsEnabledAgainAfterTheGravityWrite_data();
    void nothingIsEnabledAgainAfterTheGravityWrite();
    void nothingStaysEnabledForASelectionThatIsGone_data();
    void nothingStaysEnabledForASelectionThatIsGone();
    void dialogClosedInAnOpenModeComesBackAtOnePress();
    void sectionsWithoutAHostDoNothing();
    void pluginMayDieInsideTheQuestion_data();
    void pluginMayDieInsideTheQuestion();
    void pluginMayDieInsideAWrite_data();
    void pluginMayDieInsideAWrite();
};

namespace {

constexpr const char* activeBox = "qtActivePhysicsCheckBox";

/// What a host event makes of the selection.
using Change = void (*)(MV::SoftClothSelection& selection);

/// Something that the user does.
using Deed = void (*)(PresetFixture& fixture);

void AddCloth(PresetFixture& fixture)
{
    fixture.AddCloth();
}

void AddSingle(PresetFixture& fixture)
{
    fixture.Add(SampleModels::Flag());
}

void AddConvertible(PresetFixture& fixture)
{
    Host::Object model = SampleModels::Flag();
    model.traits.type = 5;
    fixture.AddCloth(std::move(model));
}

void AddSwitchedOff(PresetFixture& fixture)
{
    AddCloth(fixture);
    fixture.Click(activeBox);
}

/// Switches the physics by the slot: a check box does not outlive its own destruction inside a click.
void Switch(PresetFixture& fixture)
{
    auto* box = fixture.Find<QAbstractButton>(activeBox);
    box->blockSignals(true);
    box->toggle();
    box->blockSignals(false);
    fixture.Invoke("OnClickActivePhysicsCheckBox");
}

void ClickRigid(PresetFixture& fixture)
{
    fixture.Find<QAbstractButton>("qtRigidBodyRadioButton")->click();
}

/// Loads a profile with the gravity that is set anyway, and with other groups.
void Load(PresetFixture& fixture)
{
    const char* content = "[Preset]\nUse_Global_Gravity=true\n[Property]\nMass=3\n[Wind_Setting]\nWind_Frequency=2\n";
    fixture.section->LoadProfileFile(Files::Write(fixture.Path(QStringLiteral("profile.ini")), content));
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Deed)

void TestPresetReentry::selectionIsReadAgainAfterTheWrite()
{
    PresetFixture fixture;
    Host::Object& flag = fixture.Add(SampleModels::Flag());
    fixture.AddCloth();
    // While the physics of the hero is switched off, the host selects an object without soft cloth; on the way back
    // nothing may be enabled for it, and what the hero is remembered as does not count any more.
    fixture.During("SetPhysicsActive", [&] { fixture.host.Select({flag.handle}); });
    fixture.Click(activeBox);
    QCOMPARE(fixture.Selection().object, flag.handle);
    QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));

    PresetFixture other;
    Host::Object& plain = other.Add(SampleModels::Flag());
    const Host::Object& hero = other.AddCloth();
    other.Click(activeBox);
    QVERIFY(!hero.state.softCloth);
    other.During("SetPhysicsActive", [&] { other.host.Select({plain.handle}); });
    other.Click(activeBox);
    QCOMPARE(other.Selection().object, plain.handle);
    QVERIFY(!other.Selection().softClothActive);
    QVERIFY(!other.IsEnabled("qtSoftPresetGroupBox"));
    QVERIFY(!IsBodyEnabled(other.plugin->WindSection()));
}

void TestPresetReentry::selectionIsReadAgainAfterTheGravityWrite()
{
    PresetFixture fixture;
    const Host::Object& flag = fixture.AddCloth(SampleModels::Flag());
    const Host::Object& hero = fixture.AddCloth();
    QVERIFY(fixture.IsEnabled("qtAffectAllMaterialsCheckBox"));
    fixture.Cloth(hero).useGlobalGravity = false;
    // Inside the write that the changed box sets off, the host selects an object with a single material.
    fixture.During("SetUseGlobalGravity", [&] { fixture.host.Select({flag.handle}); });
    fixture.section->UpdateUi(true);
    QCOMPARE(fixture.Selection().object, flag.handle);
    QVERIFY(!fixture.IsEnabled("qtAffectAllMaterialsCheckBox"));
}

void TestPresetReentry::outdatedRefreshEndsAfterTheGravityWrite_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("goesOn");
    const auto row = [](const char* name, Change change, bool goesOn = false) {
        QTest::newRow(name) << change << goesOn;
    };
    row("other object", [](MV::SoftClothSelection& selection) { selection.object = nullptr; });
    row("other mesh", [](MV::SoftClothSelection& selection) { ++selection.mesh; });
    row("other material", [](MV::SoftClothSelection& selection) { ++selection.material; });
    row("switched off", [](MV::SoftClothSelection& selection) { selection.softClothActive = false; });
    row(
        "all materials", [](MV::SoftClothSelection& selection) { selection.affectAllMaterials = true; }, true);
}

void TestPresetReentry::outdatedRefreshEndsAfterTheGravityWrite()
{
    QFETCH(const Change, change);
    QFETCH(const bool, goesOn);
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    auto* tabs = fixture.Find<QTabWidget>("qtPresetTabWidget");
    tabs->setCurrentIndex(2);
    fixture.Cloth(hero).useGlobalGravity = false;
    fixture.During("SetUseGlobalGravity", [&] {
        change(fixture.Selection());
        fixture.section->EnableUi(false);
    });
    QCOMPARE(fixture.section->UpdateUi(false), BF::Results::Success);
    QCOMPARE(fixture.IsEnabled("qtAffectAllMaterialsCheckBox"), goesOn);
    QCOMPARE(fixture.IsChecked("qtAffectAllMaterialsCheckBox"), goesOn);
    QCOMPARE(tabs->currentIndex(), goesOn ? 0 : 2);
}

void TestPresetReentry::nothingIsEnabledAgainAfterTheGravityWrite_data()
{
    QTest::addColumn<bool>("otherObject");
    QTest::newRow("object without soft cloth is selected") << true;
    QTest::newRow("soft cloth is switched off") << false;
}

void TestPresetReentry::nothingIsEnabledAgainAfterTheGravityWrite()
{
    QFETCH(const bool, otherObject);
    PresetFixture fixture;
    const Host::Object& plain = fixture.Add();
    const Host::Object& hero = fixture.AddCloth();
    fixture.Cloth(hero).useGlobalGravity = false;
    fixture.During("SetUseGlobalGravity", [&] {
        if (otherObject) {
            fixture.host.Select({plain.handle});
        } else {
            fixture.host.SetSoftClothActive(hero.handle, false);
        }
    });
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::Success);
    QVERIFY(!fixture.Selection().softClothActive);
    QVERIFY(!fixture.IsChecked(activeBox));
    QVERIFY(!fixture.IsEnabled("qtAffectAllMaterialsCheckBox"));
}

void TestPresetReentry::nothingStaysEnabledForASelectionThatIsGone_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::newRow("in the write") << QByteArray("SetPhysicsActive");
    QTest::newRow("in the rebuild") << QByteArray("GetMeshList");
    QTest::newRow("in the refresh") << QByteArray("IsPhysicsActive");
}

void TestPresetReentry::nothingStaysEnabledForASelectionThatIsGone()
{
    QFETCH(const QByteArray, operation);
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.Click(activeBox);
    QVERIFY(!hero.state.softCloth);
    fixture.During(operation, [&] { fixture.host.Select({}); });
    fixture.Click(activeBox);
    if (operation != "SetPhysicsActive") {
        // Whatever the switch did not ask comes with the next event.
        fixture.host.Select({});
    }
    QCOMPARE(fixture.Selection().object, nullptr);
    QVERIFY(!IsBodyEnabled(fixture.plugin->PropertySection()));
    QVERIFY(!IsBodyEnabled(fixture.plugin->CollisionSection()));
    QVERIFY(!IsBodyEnabled(fixture.plugin->WindSection()));
}

void TestPresetReentry::dialogClosedInAnOpenModeComesBackAtOnePress()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.Click("qtPaintPushButton");
    MV::CSoftClothMaterialDlg& dialog = *fixture.plugin->MaterialDlg();
    QVERIFY(dialog.isVisible());
    fixture.host.Faults().FailOperation(QStringLiteral("SetDialogMode"), BF::Results::InvalidArgument, 1);
    dialog.close();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode::WeightMap);
    fixture.Click("qtPaintPushButton");
    QVERIFY(dialog.isVisible());
    fixture.Click("qtPaintPushButton");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode::None);
}

void TestPresetReentry::sectionsWithoutAHostDoNothing()
{
    MV::CPhysicsSoftClothPlugin plugin;
    MV::CSoftClothPresetSection preset(&plugin);
    for (const char* slot : {"OnClickActivePhysicsCheckBox", "OnClickUseWorldGravityCheckBox",
                             "OnClickAffectAllMaterialsCheckBox", "OnClickLoadIniPushButton",
                             "OnClickOpenFilePushButton", "OnClickSaveFilePushButton", "OnClickPaintPushButton"}) {
        QVERIFY2(QMetaObject::invokeMethod(&preset, slot, Qt::DirectConnection), slot);
    }
    const QTemporaryDir folder;
    QSettings profile(folder.filePath(QStringLiteral("a.ini")), QSettings::IniFormat);
    MV::CSoftClothPropertySection property(&plugin);
    MV::CSoftClothCollisionSection collision(&plugin);
    MV::CSoftClothWindSection wind(&plugin);
    property.LoadProfile(MV::CIniGroup());
    collision.LoadProfile(MV::CIniGroup());
    wind.LoadProfile(MV::CIniGroup());
    property.SaveProfile(profile);
    QVERIFY(profile.allKeys().isEmpty());
}

void TestPresetReentry::pluginMayDieInsideTheQuestion_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("confirmed") << int(QMessageBox::Ok) << false;
    QTest::newRow("refused") << int(QMessageBox::Cancel) << true;
}

void TestPresetReentry::pluginMayDieInsideTheQuestion()
{
    QFETCH(const int, answer);
    QFETCH(const bool, cancelled);
    PresetFixture fixture;
    const Host::Object& hero = fixture.Add();
    fixture.host.Answers().AddButton(answer);
    fixture.During("ShowMessageBox", [&] { fixture.plugin.reset(); });
    fixture.host.Send("PhysicsSoftClothMultiMaterialsDetected",
                      &MV::CEventSender::PhysicsSoftClothMultiMaterialsDetected, hero.handle);
    QCOMPARE(fixture.TakeActions().join(QLatin1Char(' ')).contains(QLatin1String("CancelMultiMaterialSoftCloth")),
             cancelled);
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode::None);
}

void TestPresetReentry::pluginMayDieInsideAWrite_data()
{
    QTest::addColumn<Deed>("prepare");
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QByteArray>("write");
    QTest::addColumn<QString>("calls");
    const auto row = [](const char* name, Deed prepare, Deed deed, const char* write, const char* calls) {
        QTest::newRow(name) << prepare << deed << QByteArray(write) << QString::fromLatin1(calls);
    };
    row("switching off", AddCloth, Switch, "SetPhysicsActive", "SetPhysicsActive");
    row("switching on", AddSwitchedOff, Switch, "SetPhysicsActive", "IsSoftClothActive SetPhysicsActive");
    row("single material", AddSingle, Switch, "ApplySingleMaterialSoftCloth",
        "IsSoftClothActive ApplySingleMaterialSoftCloth");
    row("rigid body", AddConvertible, ClickRigid, "ConvertToRigidBody",
        "GetSelectedObject ConvertToRigidBody ShowPanelPage");
    row("profile", AddCloth, Load, "SetUseGlobalGravity", "SetUseGlobalGravity");
}

void TestPresetReentry::pluginMayDieInsideAWrite()
{
    QFETCH(const Deed, prepare);
    QFETCH(const Deed, deed);
    QFETCH(const QByteArray, write);
    QFETCH(const QString, calls);
    PresetFixture fixture;
    prepare(fixture);
    fixture.host.Journal().Clear();
    fixture.During(write, [&] { fixture.plugin.reset(); });
    deed(fixture);
    QVERIFY(!fixture.plugin);
    QVERIFY(!fixture.section);
    QCOMPARE(OperationsOf(fixture.Take()).join(QLatin1Char(' ')), calls);
}

SOFTCLOTH_TEST(TestPresetReentry)
#include "tst_preset_reentry.moc"
