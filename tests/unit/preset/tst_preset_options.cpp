#include "material/SoftClothMaterialDlg.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QRadioButton>
#include <QUndoStack>

/// Gravity, affect-all-materials, the way to the weight maps, and the choice of a rigid body.
class TestPresetOptions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void gravityIsWrittenWhenClicked_data();
    void gravityIsWrittenWhenClicked();
    void gravityIsWrittenWhenSetByCode();
    void gravityOfAllMaterialsIsOneUndoStep();
    void failedGravityWriteIsNotTold();
    void affectAllMaterialsIsOnlyRemembered();
    void affectAllMaterialsIsRememberedWhenSetByCode();
    void affectAllMaterialsGoesWithTheNextGravityWrite();
    void paintButtonTogglesTheWeightMaps();
    void paintButtonReplacesAnotherMode();
    void failedModeChangeIsNotTold();
    void rigidBodyIsConvertedAndItsPageShown();
    void rigidBodyWithoutSelectionReachesTheHost();
    void rigidBodyIgnoresFailures();
    void rigidBodyCanBeUndone();

private:
    static Host::Object Convertible();
};

/// An object that may be a rigid body: the choice is enabled for its type.
Host::Object TestPresetOptions::Convertible()
{
    Host::Object model = SampleModels::Flag();
    model.traits.type = 5;
    return model;
}

void TestPresetOptions::gravityIsWrittenWhenClicked_data()
{
    QTest::addColumn<bool>("before");
    QTest::newRow("off") << true;
    QTest::newRow("on") << false;
}

void TestPresetOptions::gravityIsWrittenWhenClicked()
{
    QFETCH(const bool, before);
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    if (!before) {
        fixture.Click("qtUseWorldGravityCheckBox");
        fixture.host.Journal().Clear();
    }
    fixture.Click("qtUseWorldGravityCheckBox");
    const QString now = before ? QStringLiteral("false") : QStringLiteral("true");
    QCOMPARE(fixture.Take(), QStringList{fixture.Call("SetUseGlobalGravity", {now, QStringLiteral("false")})});
    QCOMPARE(fixture.Cloth(hero, 0).useGlobalGravity, !before);
    QCOMPARE(fixture.Cloth(hero, 1).useGlobalGravity, true);
}

void TestPresetOptions::gravityIsWrittenWhenSetByCode()
{
    PresetFixture fixture;
    fixture.AddCloth();
    auto* box = fixture.Find<QCheckBox>("qtUseWorldGravityCheckBox");
    box->setChecked(true);
    QCOMPARE(fixture.Take(), QStringList());
    box->setChecked(false);
    QCOMPARE(fixture.Take(),
             QStringList{fixture.Call("SetUseGlobalGravity", {QStringLiteral("false"), QStringLiteral("false")})});
}

void TestPresetOptions::gravityOfAllMaterialsIsOneUndoStep()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.Click("qtAffectAllMaterialsCheckBox");
    const int steps = fixture.host.CurrentScene().UndoStack().index();
    fixture.Click("qtUseWorldGravityCheckBox");
    for (const int slot : {0, 1, 2}) {
        QVERIFY(!fixture.Cloth(hero, slot).useGlobalGravity);
    }
    QCOMPARE(fixture.host.CurrentScene().UndoStack().index(), steps + 1);
    fixture.host.Undo();
    for (const int slot : {0, 1, 2}) {
        QVERIFY(fixture.Cloth(hero, slot).useGlobalGravity);
    }
    QVERIFY(fixture.IsChecked("qtUseWorldGravityCheckBox"));
}

void TestPresetOptions::failedGravityWriteIsNotTold()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.host.Faults().FailOperation(QStringLiteral("SetUseGlobalGravity"), BF::Results::Refused);
    fixture.Click("qtUseWorldGravityCheckBox");
    QCOMPARE(fixture.Take(),
             QStringList{fixture.Call("SetUseGlobalGravity", {QStringLiteral("false"), QStringLiteral("false")},
                                      "0x80000006")});
    QVERIFY(!fixture.IsChecked("qtUseWorldGravityCheckBox"));
    QVERIFY(fixture.Cloth(hero).useGlobalGravity);
}

void TestPresetOptions::affectAllMaterialsIsOnlyRemembered()
{
    PresetFixture fixture;
    fixture.AddCloth();
    QVERIFY(!fixture.Selection().affectAllMaterials);
    fixture.Click("qtAffectAllMaterialsCheckBox");
    QVERIFY(fixture.Selection().affectAllMaterials);
    fixture.Click("qtAffectAllMaterialsCheckBox");
    QVERIFY(!fixture.Selection().affectAllMaterials);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestPresetOptions::affectAllMaterialsIsRememberedWhenSetByCode()
{
    PresetFixture fixture;
    fixture.AddCloth();
    for (const bool all : {true, false}) {
        fixture.Find<QCheckBox>("qtAffectAllMaterialsCheckBox")->setChecked(all);
        QCOMPARE(fixture.Selection().affectAllMaterials, all);
    }
    QCOMPARE(fixture.Take(), QStringList());
}

void TestPresetOptions::affectAllMaterialsGoesWithTheNextGravityWrite()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.Click("qtAffectAllMaterialsCheckBox");
    fixture.Click("qtUseWorldGravityCheckBox");
    QCOMPARE(fixture.Take(),
             QStringList{fixture.Call("SetUseGlobalGravity", {QStringLiteral("false"), QStringLiteral("true")})});
}

void TestPresetOptions::paintButtonTogglesTheWeightMaps()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.Click("qtPaintPushButton");
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral("GetDialogMode() -> 0"), QStringLiteral("SetDialogMode(25) -> 0")}));
    QVERIFY(fixture.plugin->MaterialDlg()->isVisible());
    fixture.Click("qtPaintPushButton");
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral("GetDialogMode() -> 25"), QStringLiteral("SetDialogMode(0) -> 0")}));
    QVERIFY(!fixture.plugin->MaterialDlg()->isVisible());
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode::None);
}

void TestPresetOptions::paintButtonReplacesAnotherMode()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.host.SetDialogMode(MV::EDialogMode(7));
    fixture.host.Journal().Clear();
    fixture.Click("qtPaintPushButton");
    QCOMPARE(fixture.Take().constLast(), QStringLiteral("SetDialogMode(25) -> 0"));
}

void TestPresetOptions::failedModeChangeIsNotTold()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.host.Faults().FailOperation(QStringLiteral("SetDialogMode"), BF::Results::Refused);
    fixture.Click("qtPaintPushButton");
    QCOMPARE(fixture.Take().constLast(), QStringLiteral("SetDialogMode(25) -> 0x80000006"));
    QVERIFY(!fixture.plugin->MaterialDlg()->isVisible());
}

void TestPresetOptions::rigidBodyIsConvertedAndItsPageShown()
{
    PresetFixture fixture;
    const Host::Object& flag = fixture.AddCloth(Convertible());
    QVector<int> page;
    connect(&fixture.host, &Host::HostApplication::PanelPageRequested, this, [&page](int number, int order, int flags) {
        page = {number, order, flags};
    });
    fixture.Click("qtRigidBodyRadioButton");
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral("GetSelectedObject(0) -> \"Flag\""),
                                          QStringLiteral("ConvertToRigidBody(\"Flag\") -> 0"),
                                          QStringLiteral("ShowPanelPage(4, 6, 64) -> 0")}));
    QVERIFY(flag.state.rigidBody);
    QVERIFY(!flag.state.softCloth);
    QCOMPARE(page, (QVector<int>{4, 6, 64}));
    // The refresh that the conversion sets off always shows soft cloth as the choice.
    QVERIFY(fixture.IsChecked("qtSoftClothRadioButton"));
    QVERIFY(!fixture.IsChecked("qtActivePhysicsCheckBox"));
    QVERIFY(!fixture.IsEnabled("qtRigidBodyRadioButton"));
}

void TestPresetOptions::rigidBodyWithoutSelectionReachesTheHost()
{
    PresetFixture fixture;
    fixture.Find<QRadioButton>("qtRigidBodyRadioButton")->setEnabled(true);
    fixture.host.Journal().Clear();
    fixture.Find<QRadioButton>("qtRigidBodyRadioButton")->click();
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral("GetSelectedObject(0) -> null"),
                                          QStringLiteral("ConvertToRigidBody(null) -> 0x80000003"),
                                          QStringLiteral("ShowPanelPage(4, 6, 64) -> 0")}));
}

void TestPresetOptions::rigidBodyIgnoresFailures()
{
    PresetFixture fixture;
    fixture.AddCloth(Convertible());
    fixture.host.Faults().FailOperation(QStringLiteral("ConvertToRigidBody"), BF::Results::Refused);
    fixture.Click("qtRigidBodyRadioButton");
    QCOMPARE(fixture.TakeActions(), (QStringList{QStringLiteral("ConvertToRigidBody(\"Flag\") -> 0x80000006"),
                                                 QStringLiteral("ShowPanelPage(4, 6, 64) -> 0")}));
}

void TestPresetOptions::rigidBodyCanBeUndone()
{
    PresetFixture fixture;
    const Host::Object& flag = fixture.AddCloth(Convertible());
    fixture.Click("qtRigidBodyRadioButton");
    fixture.host.Undo();
    QVERIFY(!flag.state.rigidBody);
    QVERIFY(flag.state.softCloth);
    QVERIFY(fixture.IsChecked("qtActivePhysicsCheckBox"));
    QVERIFY(fixture.IsEnabled("qtRigidBodyRadioButton"));
}

SOFTCLOTH_TEST(TestPresetOptions)
#include "tst_preset_options.moc"
