#include "material/SoftClothMaterialDlg.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QMessageBox>

/// Switching soft cloth on and off.
class TestPresetSwitch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void singleMaterialIsMadeSoftClothAtOnce();
    void materialThatIsSoftClothNeedsNoConversion();
    void refreshLeavesTheWindSectionOut();
    void failedQueryAndConversionAreNotExamined();
    void failedWriteLeavesThePanelAsClicked();
    void missingPartsArePassedOver();
    void missingDialogIsPassedOver();
    void objectWithoutMaterialsIsRefused();
    void missingDialogCountsAsNoMaterials();
    void refusalIsTranslatedWithItsNotes();
    void switchingOffLeavesTheWeightMaps_data();
    void switchingOffLeavesTheWeightMaps();

private:
    static constexpr const char* activeBox = "qtActivePhysicsCheckBox";
};

void TestPresetSwitch::singleMaterialIsMadeSoftClothAtOnce()
{
    PresetFixture fixture;
    const Host::Object& flag = fixture.Add(SampleModels::Flag());
    QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));
    fixture.Click(activeBox);

    const QString isActive = fixture.Call("IsSoftClothActive", {QStringLiteral("true")});
    QStringList expected{fixture.Call("IsSoftClothActive", {QStringLiteral("false")}),
                         fixture.Call("ApplySingleMaterialSoftCloth", {}),
                         Journal::SetPhysicsActive("Flag", true),
                         QStringLiteral("GetObjectKind(\"Flag\", 0) -> 0"),
                         isActive,
                         fixture.Call("GetUseGlobalGravity", {QStringLiteral("true"), QStringLiteral("false")}),
                         isActive,
                         QStringLiteral("GetSoftClothProperty"),
                         isActive,
                         QStringLiteral("GetSoftClothCollision")};
    QStringList calls = fixture.Take();
    for (QString& call : calls) {
        if (call.startsWith(QLatin1String("GetSoftCloth"))) {
            call = call.section(QLatin1Char('('), 0, 0);
        }
    }
    QCOMPARE(calls, expected);
    QVERIFY(flag.state.softCloth);
    QVERIFY(fixture.Cloth(flag).active);
    QVERIFY(fixture.Selection().softClothActive);
    QVERIFY(fixture.IsChecked(activeBox));
    QVERIFY(fixture.IsEnabled("qtSoftPresetGroupBox"));
    QVERIFY(IsBodyEnabled(fixture.plugin->PropertySection()));
    QVERIFY(IsBodyEnabled(fixture.plugin->WindSection()));
}

void TestPresetSwitch::materialThatIsSoftClothNeedsNoConversion()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.Click(activeBox);
    QVERIFY(!hero.state.softCloth);
    fixture.host.Journal().Clear();
    fixture.Click(activeBox);
    QCOMPARE(fixture.TakeActions(), QStringList{Journal::SetPhysicsActive("Hero", true)});
    QVERIFY(hero.state.softCloth);
}

void TestPresetSwitch::refreshLeavesTheWindSectionOut()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.host.SetDialogMode(MV::EDialogMode::WeightMap);
    fixture.Click(activeBox);
    fixture.host.SetDialogMode(MV::EDialogMode::WeightMap);
    fixture.host.Journal().Clear();
    // The write fails, so that no event refreshes the panel and what is read is the section's own doing.
    fixture.host.Faults().FailOperation(QStringLiteral("SetPhysicsActive"), BF::Results::Refused);
    fixture.Click(activeBox);
    const QStringList operations = OperationsOf(fixture.Take());
    int last = -1;
    for (const char* operation :
         {"GetUseGlobalGravity", "GetMaterialTextureState", "GetSoftClothProperty", "GetSoftClothCollision"}) {
        const int place = operations.indexOf(QLatin1String(operation));
        QVERIFY2(place > last, operation);
        last = place;
    }
    QVERIFY(!operations.contains(QLatin1String("GetSoftClothWind")));
}

void TestPresetSwitch::failedQueryAndConversionAreNotExamined()
{
    PresetFixture fixture;
    fixture.Add(SampleModels::Flag());
    fixture.host.Faults().FailOperation(QStringLiteral("IsSoftClothActive"), BF::Results::Refused, 1);
    fixture.host.Faults().FailOperation(QStringLiteral("ApplySingleMaterialSoftCloth"), BF::Results::Refused);
    fixture.Click(activeBox);
    QCOMPARE(OperationsOf(fixture.TakeActions()).mid(0, 2),
             (QStringList{QStringLiteral("ApplySingleMaterialSoftCloth"), QStringLiteral("SetPhysicsActive")}));
}

void TestPresetSwitch::failedWriteLeavesThePanelAsClicked()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.host.Faults().FailOperation(QStringLiteral("SetPhysicsActive"), BF::Results::Refused);
    fixture.Click(activeBox);
    QVERIFY(!fixture.Selection().softClothActive);
    QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));
    QVERIFY(!IsBodyEnabled(fixture.plugin->WindSection()));
    fixture.Click(activeBox);
    QVERIFY(fixture.Selection().softClothActive);
    QVERIFY(fixture.IsEnabled("qtSoftPresetGroupBox"));
    QVERIFY(IsBodyEnabled(fixture.plugin->WindSection()));
}

void TestPresetSwitch::missingPartsArePassedOver()
{
    PresetFixture fixture;
    fixture.AddCloth();
    delete fixture.plugin->PropertySection();
    delete fixture.plugin->CollisionSection();
    delete fixture.plugin->WindSection();
    fixture.Click(activeBox);
    fixture.Click(activeBox);
    QCOMPARE(fixture.TakeActions(),
             (QStringList{Journal::SetPhysicsActive("Hero", false), Journal::SetPhysicsActive("Hero", true)}));
    delete fixture.plugin->MaterialDlg();
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Success);
}

void TestPresetSwitch::missingDialogIsPassedOver()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.Click(activeBox);
    delete fixture.plugin->MaterialDlg();
    fixture.host.Journal().Clear();
    fixture.host.Faults().FailOperation(QStringLiteral("SetPhysicsActive"), BF::Results::Refused);
    fixture.Click(activeBox);
    // What comes after the dialog is refreshed as always.
    QCOMPARE(OperationsOf(fixture.Take()),
             (QStringList{QStringLiteral("IsSoftClothActive"), QStringLiteral("SetPhysicsActive"),
                          QStringLiteral("GetObjectKind"), QStringLiteral("IsSoftClothActive"),
                          QStringLiteral("GetUseGlobalGravity"), QStringLiteral("IsSoftClothActive"),
                          QStringLiteral("GetSoftClothProperty"), QStringLiteral("IsSoftClothActive"),
                          QStringLiteral("GetSoftClothCollision")}));
    QVERIFY(IsBodyEnabled(fixture.plugin->CollisionSection()));
}

void TestPresetSwitch::objectWithoutMaterialsIsRefused()
{
    PresetFixture fixture;
    const Host::Object& flag = fixture.Add(SampleModels::Flag());
    fixture.DisableMaterial(flag, 0);
    QCOMPARE(fixture.plugin->MaterialDlg()->MaterialCount(), 0);
    fixture.Click(activeBox);
    // The box going off runs the slot once more, before the message.
    QCOMPARE(fixture.Take(),
             (QStringList{fixture.Call("IsSoftClothActive", {QStringLiteral("false")}),
                          Journal::SetPhysicsActive("Flag", false), Journal::GetDialogMode(0),
                          Journal::Message(QStringLiteral(
                              "This object does not have any valid material enabling to create soft cloth."))}));
    QVERIFY(!fixture.IsChecked(activeBox));
    QVERIFY(!fixture.Selection().softClothActive);
    QVERIFY(!flag.state.softCloth);
    QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));
    QVERIFY(!IsBodyEnabled(fixture.plugin->CollisionSection()));
}

void TestPresetSwitch::missingDialogCountsAsNoMaterials()
{
    PresetFixture fixture;
    fixture.Add(SampleModels::Flag());
    delete fixture.plugin->MaterialDlg();
    fixture.Click(activeBox);
    QVERIFY(!fixture.IsChecked(activeBox));
    QCOMPARE(fixture.TakeActions().constLast(),
             Journal::Message(
                 QStringLiteral("This object does not have any valid material enabling to create soft cloth.")));
}

void TestPresetSwitch::refusalIsTranslatedWithItsNotes()
{
    PresetFixture fixture;
    fixture.DisableMaterial(fixture.Add(SampleModels::Flag()), 0);
    const NotingTranslator translator;
    fixture.Click(activeBox);
    QCOMPARE(
        TranslatedTexts(translator),
        (QStringList{QStringLiteral("This object does not have any valid material enabling to create soft cloth. <>"),
                     QStringLiteral("[Physics Soft Cloth Section] Movira 6 <Message Title>")}));
}

void TestPresetSwitch::switchingOffLeavesTheWeightMaps_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("modeAfter");
    QTest::newRow("weight maps") << 25 << 0;
    QTest::newRow("no mode") << 0 << 0;
    QTest::newRow("another mode") << 7 << 7;
}

void TestPresetSwitch::switchingOffLeavesTheWeightMaps()
{
    QFETCH(const int, mode);
    QFETCH(const int, modeAfter);
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.host.SetDialogMode(MV::EDialogMode(mode));
    fixture.host.Journal().Clear();
    fixture.Click(activeBox);
    QStringList expected{Journal::SetPhysicsActive("Hero", false), Journal::GetDialogMode(mode)};
    if (mode == 25) {
        expected.append(QStringLiteral("SetDialogMode(0) -> 0"));
    }
    QCOMPARE(fixture.Take(), expected);
    QCOMPARE(int(fixture.host.CurrentScene().dialogMode), modeAfter);
    QVERIFY(!hero.state.softCloth);
    QVERIFY(!fixture.plugin->MaterialDlg()->isVisible());
    QVERIFY(!fixture.IsEnabled("qtSaveFilePushButton"));
}

SOFTCLOTH_TEST(TestPresetSwitch)
#include "tst_preset_switch.moc"
