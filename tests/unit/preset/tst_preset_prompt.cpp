#include "material/SoftClothMaterialDlg.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QMessageBox>
#include <QRegularExpression>

/// The question what to do about an object with several materials.
class TestPresetPrompt : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void severalMaterialsAreAskedAbout_data();
    void severalMaterialsAreAskedAbout();
    void panelIsOffWhileTheUserIsAsked();
    void onlyConfirmationSwitchesThePartsOffOnceMore_data();
    void onlyConfirmationSwitchesThePartsOffOnceMore();
    void failedModeChangeIsNotExamined();
    void confirmationOpensTheWeightMaps_data();
    void confirmationOpensTheWeightMaps();
    void confirmationKeepsOpenWeightMaps();
    void hostEventAsksAndCancels();
    void hostEventConfirmedDoesNothingFurther();
    void closedPromptCountsAsRefused();
    void textsAreTranslatedWithTheirNotes();

private:
    static constexpr const char* activeBox = "qtActivePhysicsCheckBox";
};

void TestPresetPrompt::severalMaterialsAreAskedAbout_data()
{
    QTest::addColumn<int>("materials");
    QTest::newRow("two") << 2;
    QTest::newRow("three") << 3;
}

void TestPresetPrompt::severalMaterialsAreAskedAbout()
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

void TestPresetPrompt::panelIsOffWhileTheUserIsAsked()
{
    PresetFixture fixture;
    fixture.Add();
    fixture.plugin->EnableAll(true);
    bool asked = false;
    fixture.During("ShowMessageBox", [&] {
        asked = true;
        QVERIFY(!fixture.Selection().softClothActive);
        QVERIFY(!fixture.IsChecked(activeBox));
        QVERIFY(!fixture.Find<QWidget>(activeBox)->signalsBlocked());
        QVERIFY(!fixture.IsEnabled("qtSoftPresetGroupBox"));
        QVERIFY(!fixture.IsEnabled("qtPaintPushButton"));
        QVERIFY(!IsBodyEnabled(fixture.plugin->PropertySection()));
        QVERIFY(!IsBodyEnabled(fixture.plugin->CollisionSection()));
        QVERIFY(!IsBodyEnabled(fixture.plugin->WindSection()));
    });
    fixture.Click(activeBox);
    QVERIFY(asked);
}

void TestPresetPrompt::onlyConfirmationSwitchesThePartsOffOnceMore_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("confirmed") << int(QMessageBox::Ok) << false;
    QTest::newRow("refused") << int(QMessageBox::Cancel) << true;
}

void TestPresetPrompt::onlyConfirmationSwitchesThePartsOffOnceMore()
{
    QFETCH(const int, answer);
    QFETCH(const bool, enabled);
    PresetFixture fixture;
    fixture.Add();
    fixture.host.Answers().AddButton(answer);
    // Something brings the panel back while the user is asked.
    fixture.During("ShowMessageBox", [&] { fixture.plugin->EnableAll(true); });
    fixture.section->ConfirmMultipleMaterials();
    QCOMPARE(fixture.IsEnabled("qtSoftPresetGroupBox"), enabled);
    QCOMPARE(fixture.IsEnabled("qtPaintPushButton"), enabled);
    QCOMPARE(IsBodyEnabled(fixture.plugin->PropertySection()), enabled);
    QCOMPARE(IsBodyEnabled(fixture.plugin->CollisionSection()), enabled);
    QVERIFY(IsBodyEnabled(fixture.plugin->WindSection()));
}

void TestPresetPrompt::failedModeChangeIsNotExamined()
{
    PresetFixture fixture;
    fixture.Add();
    fixture.host.Faults().FailOperation(QStringLiteral("SetDialogMode"), BF::Results::Refused);
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Success);
    QCOMPARE(fixture.Take(), (QStringList{Journal::Question(QMessageBox::Ok), Journal::GetDialogMode(0),
                                          QStringLiteral("SetDialogMode(25) -> 0x80000006")}));
    QVERIFY(!fixture.plugin->MaterialDlg()->isVisible());
}

void TestPresetPrompt::confirmationOpensTheWeightMaps_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("no mode") << 0;
    QTest::newRow("another mode") << 7;
}

void TestPresetPrompt::confirmationOpensTheWeightMaps()
{
    QFETCH(const int, mode);
    PresetFixture fixture;
    fixture.Add();
    fixture.host.SetDialogMode(MV::EDialogMode(mode));
    fixture.host.Journal().Clear();
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    fixture.Click(activeBox);
    QCOMPARE(fixture.Take(), (QStringList{fixture.Call("IsSoftClothActive", {QStringLiteral("false")}),
                                          Journal::Question(QMessageBox::Ok), Journal::GetDialogMode(mode),
                                          QStringLiteral("SetDialogMode(25) -> 0")}));
    QVERIFY(fixture.plugin->MaterialDlg()->isVisible());
    QVERIFY(!fixture.IsChecked(activeBox));
    QVERIFY(!fixture.IsEnabled("qtOpenFilePushButton"));
    QVERIFY(!IsBodyEnabled(fixture.plugin->PropertySection()));
    QVERIFY(!IsBodyEnabled(fixture.plugin->CollisionSection()));
}

void TestPresetPrompt::confirmationKeepsOpenWeightMaps()
{
    PresetFixture fixture;
    fixture.Add();
    fixture.host.SetDialogMode(MV::EDialogMode::WeightMap);
    fixture.host.Journal().Clear();
    fixture.host.Answers().AddButton(QMessageBox::Ok);
    QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Success);
    QCOMPARE(fixture.Take(), (QStringList{Journal::Question(QMessageBox::Ok), Journal::GetDialogMode(25)}));
}

void TestPresetPrompt::hostEventAsksAndCancels()
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

void TestPresetPrompt::hostEventConfirmedDoesNothingFurther()
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

void TestPresetPrompt::closedPromptCountsAsRefused()
{
    PresetFixture fixture;
    fixture.Add();
    for (const int answer : {int(QMessageBox::Cancel), int(QMessageBox::Close), 0}) {
        fixture.host.Answers().AddButton(answer);
        QCOMPARE(fixture.section->ConfirmMultipleMaterials(), BF::Results::Cancelled);
    }
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode::None);
}

void TestPresetPrompt::textsAreTranslatedWithTheirNotes()
{
    PresetFixture fixture;
    fixture.Add();
    const NotingTranslator translator;
    fixture.section->ConfirmMultipleMaterials();
    QCOMPARE(TranslatedTexts(translator),
             (QStringList{
                 QStringLiteral(
                     "This object has multiple materials.\n Please select a material and load a gray map image. <>"),
                 QStringLiteral("[Physics Soft Cloth Section] Movira 6 <Message Title>")}));
}

SOFTCLOTH_TEST(TestPresetPrompt)
#include "tst_preset_prompt.moc"
