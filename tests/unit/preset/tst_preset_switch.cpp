#include "material/SoftClothMaterialDlg.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QGroupBox>
#include <QMessageBox>

/// Switching soft cloth on and off, and objects with several materials.
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
    void objectWithoutMaterialsIsRefused();
    void missingDialogCountsAsNoMaterials();
    void severalMaterialsAreAskedAbout_data();
    void severalMaterialsAreAskedAbout();
    void panelIsOffWhileTheUserIsAsked();
    void confirmationOpensTheWeightMaps();
    void failedModeChangeIsNotExamined();
    void confirmationKeepsOpenWeightMaps();
    void switchingOffLeavesTheWeightMaps_data();
    void switchingOffLeavesTheWeightMaps();
    void selectionIsReadAgainAfterTheWrite();
    void hostEventAsksAndCancels();
    void hostEventConfirmedDoesNothingFurther();
    void pluginMayDieInsideTheQuestion_data();
    void pluginMayDieInsideTheQuestion();
    void closedPromptCountsAsRefused();

private:
    static constexpr const char* activeBox = "qtActivePhysicsCheckBox";
};

namespace {

QStringList Operations(const QStringList& calls)
{
    QStringList names;
    for (const QString& call : calls) {
        names.append(call.section(QLatin1Char('('), 0, 0));
    }
    return names;
}

bool IsBodyEnabled(const QWidget* section)
{
    return Child<QGroupBox>(section, "qtSectionGroupBox")->isEnabled();
}

QString SetPhysics(const char* object, bool active)
{
    return QStringLiteral("SetPhysicsActive(\"%1\", 3, %2, true, true) -> 0")
        .arg(QLatin1String(object), active ? QLatin1String("true") : QLatin1String("false"));
}

const QString getDialogMode = QStringLiteral("GetDialogMode() -> %1");

} // namespace

void TestPresetSwitch::singleMaterialIsMadeSoftClothAtOnce()
{
    PresetFixture fixture;
    const Host::Object& flag = fixture.Add(SampleModels::Flag());
    QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));
    fixture.Click(activeBox);

    const QString isActive = fixture.Call("IsSoftClothActive", {QStringLiteral("true")});
    QStringList expected{fixture.Call("IsSoftClothActive", {QStringLiteral("false")}),
                         fixture.Call("ApplySingleMaterialSoftCloth", {}),
                         SetPhysics("Flag", true),
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
    QCOMPARE(fixture.TakeActions(), QStringList{SetPhysics("Hero", true)});
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
    const QStringList operations = Operations(fixture.Take());
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
    QCOMPARE(Operations(fixture.TakeActions()).mid(0, 2),
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
    QCOMPARE(fixture.TakeActions(), (QStringList{SetPhysics("Hero", false), SetPhysics("Hero", true)}));
    delete fixture.plugin->MaterialDlg();
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Success);
}

void TestPresetSwitch::objectWithoutMaterialsIsRefused()
{
    PresetFixture fixture;
    const Host::Object& flag = fixture.Add(SampleModels::Flag());
    fixture.DisableMaterial(flag, 0);
    QCOMPARE(fixture.plugin->MaterialDlg()->MaterialCount(), 0);
    fixture.Click(activeBox);
    // The box going off runs the slot once more, before the user is told.
    QCOMPARE(fixture.Take(),
             (QStringList{fixture.Call("IsSoftClothActive", {QStringLiteral("false")}), SetPhysics("Flag", false),
                          getDialogMode.arg(0),
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

void TestPresetSwitch::severalMaterialsAreAskedAbout_data()
{
    QTest::addColumn<int>("materials");
    QTest::newRow("two") << 2;
    QTest::newRow("three") << 3;
}

void TestPresetSwitch::severalMaterialsAreAskedAbout()
{
    QFETCH(const int, materials);
    PresetFixture fixture;
    const Host::Object& hero = fixture.Add();
    for (int i = materials; i < 3; ++i) {
        fixture.DisableMaterial(hero, i);
    }
    fixture.host.Answers().AddButton(QMessageBox::Cancel);
    fixture.Click(activeBox);
    // Refused: the object is left alone, and so is the host.
    QCOMPARE(fixture.Take(), (QStringList{fixture.Call("IsSoftClothActive", {QStringLiteral("false")}),
                                          Journal::Question(QMessageBox::Cancel)}));
    QVERIFY(!fixture.IsChecked(activeBox));
    QVERIFY(!fixture.Selection().softClothActive);
    QVERIFY(!hero.state.softCloth);
    QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));
}

void TestPresetSwitch::panelIsOffWhileTheUserIsAsked()
{
    PresetFixture fixture;
    fixture.Add();
    for (const char* name : {"qtSoftPresetGroupBox", "qtPaintPushButton"}) {
        fixture.Find<QWidget>(name)->setEnabled(true);
    }
    bool asked = false;
    fixture.During("ShowMessageBox", [&] {
        asked = true;
        QVERIFY(!fixture.Selection().softClothActive);
        QVERIFY(!fixture.IsChecked(activeBox));
        QVERIFY(!fixture.Find<QWidget>(activeBox)->signalsBlocked());
        QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));
        QVERIFY(!fixture.IsEnabled("qtPaintPushButton"));
        QVERIFY(!IsBodyEnabled(fixture.plugin->PropertySection()));
    });
    fixture.Click(activeBox);
    QVERIFY(asked);
}

void TestPresetSwitch::failedModeChangeIsNotExamined()
{
    PresetFixture fixture;
    fixture.Add();
    fixture.host.Faults().FailOperation(QStringLiteral("SetDialogMode"), BF::Results::Refused);
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Success);
    QCOMPARE(fixture.Take(), (QStringList{Journal::Question(QMessageBox::Ok), getDialogMode.arg(0),
                                          QStringLiteral("SetDialogMode(25) -> 0x80000006")}));
    QVERIFY(!fixture.plugin->MaterialDlg()->isVisible());
}

void TestPresetSwitch::confirmationOpensTheWeightMaps()
{
    PresetFixture fixture;
    fixture.Add();
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    fixture.Click(activeBox);
    QCOMPARE(fixture.Take(), (QStringList{fixture.Call("IsSoftClothActive", {QStringLiteral("false")}),
                                          Journal::Question(QMessageBox::Ok), getDialogMode.arg(0),
                                          QStringLiteral("SetDialogMode(25) -> 0")}));
    QVERIFY(fixture.plugin->MaterialDlg()->isVisible());
    QVERIFY(!fixture.IsChecked(activeBox));
    QVERIFY(!fixture.IsEnabled("qtOpenFilePushButton"));
    QVERIFY(!IsBodyEnabled(fixture.plugin->PropertySection()));
    QVERIFY(!IsBodyEnabled(fixture.plugin->CollisionSection()));
}

void TestPresetSwitch::confirmationKeepsOpenWeightMaps()
{
    PresetFixture fixture;
    fixture.Add();
    fixture.host.SetDialogMode(MV::EDialogMode::WeightMap);
    fixture.host.Journal().Clear();
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Success);
    QCOMPARE(fixture.Take(), (QStringList{Journal::Question(QMessageBox::Ok), getDialogMode.arg(25)}));
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
    QStringList expected{SetPhysics("Hero", false), getDialogMode.arg(mode)};
    if (mode == 25) {
        expected.append(QStringLiteral("SetDialogMode(0) -> 0"));
    }
    QCOMPARE(fixture.Take(), expected);
    QCOMPARE(int(fixture.host.CurrentScene().dialogMode), modeAfter);
    QVERIFY(!hero.state.softCloth);
    QVERIFY(!fixture.plugin->MaterialDlg()->isVisible());
    QVERIFY(!fixture.IsEnabled("qtSaveFilePushButton"));
}

void TestPresetSwitch::selectionIsReadAgainAfterTheWrite()
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

void TestPresetSwitch::hostEventAsksAndCancels()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.Add();
    const Host::Object& other = fixture.AddCloth(SampleModels::Flag());
    // The event's object counts, whatever is selected.
    fixture.host.Send("PhysicsSoftClothMultiMaterialsDetected",
                      &MV::CEventSender::PhysicsSoftClothMultiMaterialsDetected, hero.handle);
    QCOMPARE(fixture.TakeActions(), (QStringList{Journal::Question(QMessageBox::Cancel),
                                                 QStringLiteral("CancelMultiMaterialSoftCloth(\"Hero\") -> 0")}));
    QVERIFY(other.state.softCloth);
    QVERIFY(!fixture.IsChecked(activeBox));
}

void TestPresetSwitch::hostEventConfirmedDoesNothingFurther()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.Add();
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    fixture.host.ConvertToSoftCloth(hero.handle);
    QStringList actions = fixture.TakeActions();
    // The panel's refresh writes the gravity once, because its check box was off before.
    actions = actions.filter(QRegularExpression(QStringLiteral("^(?!SetUseGlobalGravity)")));
    actions = actions.filter(QRegularExpression(QStringLiteral("^(?!ObjectDataChanged|Physics)")));
    QCOMPARE(actions, (QStringList{Journal::Question(QMessageBox::Ok), QStringLiteral("SetDialogMode(25) -> 0")}));
    QVERIFY(hero.state.softCloth);
    QVERIFY(fixture.plugin->MaterialDlg()->isVisible());
}

void TestPresetSwitch::pluginMayDieInsideTheQuestion_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("confirmed") << int(QMessageBox::Ok) << false;
    QTest::newRow("refused") << int(QMessageBox::Cancel) << true;
}

void TestPresetSwitch::pluginMayDieInsideTheQuestion()
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

void TestPresetSwitch::closedPromptCountsAsRefused()
{
    PresetFixture fixture;
    fixture.Add();
    for (const int answer : {int(QMessageBox::Cancel), int(QMessageBox::Close), 0}) {
        fixture.host.Answers().AddButton(answer);
        QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Cancelled);
    }
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode::None);
}

QTEST_MAIN(TestPresetSwitch)
#include "tst_preset_switch.moc"
