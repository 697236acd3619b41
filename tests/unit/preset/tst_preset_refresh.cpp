#include "material/SoftClothMaterialDlg.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>

/// What the section shows after a refresh, and what it enables.
class TestPresetRefresh : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void enablingCoversAllButTheSwitch_data();
    void enablingCoversAllButTheSwitch();
    void activeSoftClothIsShown();
    void nothingToShowDisables_data();
    void nothingToShowDisables();
    void materialThatIsNoSoftClothDisables();
    void failuresEndTheRefresh_data();
    void failuresEndTheRefresh();
    void radioButtonsFollowTypeAndKind_data();
    void radioButtonsFollowTypeAndKind();
    void kindIsNotAskedOutsideFamilyA_data();
    void kindIsNotAskedOutsideFamilyA();
    void refreshNeverEnables();
    void changedGravityIsWrittenOnce();
    void gravityIsAskedForWithAffectAllMaterials();
    void affectAllMaterialsNeedsTwoMaterials_data();
    void affectAllMaterialsNeedsTwoMaterials();
    void missingDialogDisablesAffectAllMaterials();
    void otherObjectTurnsBackToTheFirstTab();
    void refreshIsSilent();
    void softClothButtonIsAlwaysChecked();
    void playingDisablesTheWholeSection();

private:
    static constexpr const char* enabled[] = {"qtOpenFilePushButton",      "qtSaveFilePushButton",
                                              "qtUseWorldGravityCheckBox", "qtAffectAllMaterialsCheckBox",
                                              "qtSoftPresetGroupBox",      "qtPaintPushButton"};
    static constexpr const char* radioButtons[] = {"qtRigidBodyRadioButton", "qtSoftClothRadioButton"};
};

void TestPresetRefresh::enablingCoversAllButTheSwitch_data()
{
    QTest::addColumn<MV::ECompatibleApp>("app");
    QTest::addColumn<bool>("radioButtonsToo");
    QTest::newRow("family A") << MV::ECompatibleApp::FamilyA << true;
    QTest::newRow("both families") << MV::ECompatibleApp::Both << true;
    QTest::newRow("family B") << MV::ECompatibleApp::FamilyB << false;
    QTest::newRow("neither") << MV::ECompatibleApp(0x8) << false;
}

void TestPresetRefresh::enablingCoversAllButTheSwitch()
{
    QFETCH(const MV::ECompatibleApp, app);
    QFETCH(const bool, radioButtonsToo);
    PresetFixture fixture;
    fixture.plugin->SetCurrentApp(app);
    for (const bool enable : {true, false}) {
        for (const char* name : radioButtons) {
            fixture.Find<QWidget>(name)->setEnabled(!enable);
        }
        fixture.section->EnableUi(enable);
        for (const char* name : enabled) {
            QVERIFY2(fixture.IsEnabled(name) == enable, name);
        }
        for (const char* name : radioButtons) {
            QVERIFY2(fixture.IsEnabled(name) == (radioButtonsToo ? enable : !enable), name);
        }
        QVERIFY(fixture.IsEnabled("qtActivePhysicsCheckBox"));
        QVERIFY(fixture.IsEnabled("qtSectionGroupBox"));
    }
}

void TestPresetRefresh::activeSoftClothIsShown()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.Cloth(hero).useGlobalGravity = false;
    fixture.Selection().affectAllMaterials = true;
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::Success);
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral("GetObjectKind(\"Hero\", 0) -> 0"),
                          fixture.Call("IsSoftClothActive", {QStringLiteral("true")}),
                          fixture.Call("GetUseGlobalGravity", {QStringLiteral("false"), QStringLiteral("true")}),
                          fixture.Call("SetUseGlobalGravity", {QStringLiteral("false"), QStringLiteral("true")})}));
    QVERIFY(fixture.IsChecked("qtActivePhysicsCheckBox"));
    QVERIFY(!fixture.IsChecked("qtUseWorldGravityCheckBox"));
    QVERIFY(fixture.IsChecked("qtAffectAllMaterialsCheckBox"));
    QVERIFY(fixture.IsEnabled("qtAffectAllMaterialsCheckBox"));
}

void TestPresetRefresh::nothingToShowDisables_data()
{
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("mesh");
    QTest::addColumn<bool>("material");
    QTest::newRow("not active") << false << true << true;
    QTest::newRow("no mesh") << true << false << true;
    QTest::newRow("no material") << true << true << false;
}

void TestPresetRefresh::nothingToShowDisables()
{
    QFETCH(const bool, active);
    QFETCH(const bool, mesh);
    QFETCH(const bool, material);
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.Selection().softClothActive = active;
    fixture.Selection().mesh *= mesh ? 1 : 0;
    fixture.Selection().material *= material ? 1 : 0;
    QCOMPARE(fixture.section->UpdateUi(false), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), QStringList());
    QCOMPARE(fixture.IsChecked("qtActivePhysicsCheckBox"), active);
    for (const char* name : enabled) {
        QVERIFY2(!fixture.IsEnabled(name), name);
    }
    for (const char* name : radioButtons) {
        QVERIFY2(!fixture.IsEnabled(name), name);
    }
}

void TestPresetRefresh::materialThatIsNoSoftClothDisables()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.Cloth(hero).active = false;
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral("GetObjectKind(\"Hero\", 0) -> 0"),
                                          fixture.Call("IsSoftClothActive", {QStringLiteral("false")})}));
    for (const char* name : enabled) {
        QVERIFY2(!fixture.IsEnabled(name), name);
    }
}

void TestPresetRefresh::failuresEndTheRefresh_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("calls");
    QTest::newRow("kind") << QStringLiteral("GetObjectKind") << 1;
    QTest::newRow("soft cloth") << QStringLiteral("IsSoftClothActive") << 2;
    QTest::newRow("gravity") << QStringLiteral("GetUseGlobalGravity") << 3;
}

void TestPresetRefresh::failuresEndTheRefresh()
{
    QFETCH(const QString, operation);
    QFETCH(const int, calls);
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    fixture.Find<QTabWidget>("qtPresetTabWidget")->setCurrentIndex(2);
    fixture.Cloth(hero).useGlobalGravity = false;
    fixture.host.Faults().FailOperation(operation, BF::Results::ResourceFailure);
    QCOMPARE(fixture.section->UpdateUi(false), BF::Results::ResourceFailure);
    QCOMPARE(fixture.Take().size(), calls);
    // What comes after the failed call stays as it was.
    QVERIFY(fixture.IsChecked("qtUseWorldGravityCheckBox"));
    QVERIFY(fixture.IsEnabled("qtSoftPresetGroupBox"));
    QCOMPARE(fixture.Find<QTabWidget>("qtPresetTabWidget")->currentIndex(), 2);
    QVERIFY(!fixture.Find<QWidget>("qtActivePhysicsCheckBox")->signalsBlocked());
    QVERIFY(!fixture.Find<QWidget>("qtSoftClothRadioButton")->signalsBlocked());
}

void TestPresetRefresh::radioButtonsFollowTypeAndKind_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("mayChoose");
    for (const quint32 type : {1U, 2U, 3U}) {
        QTest::addRow("type %u", type) << type << 0 << false;
    }
    for (const quint32 type : {4U, 5U, 6U, 30U, 53U}) {
        QTest::addRow("type %u", type) << type << 0 << true;
        QTest::addRow("type %u, kind 14", type) << type << 14 << false;
        QTest::addRow("type %u, kind 13", type) << type << 13 << true;
    }
}

void TestPresetRefresh::radioButtonsFollowTypeAndKind()
{
    QFETCH(const quint32, type);
    QFETCH(const int, kind);
    QFETCH(const bool, mayChoose);
    PresetFixture fixture;
    Host::Object model = SampleModels::Hero();
    model.traits.type = type;
    model.traits.kind = kind;
    fixture.AddCloth(std::move(model));
    for (const char* name : radioButtons) {
        QVERIFY2(fixture.IsEnabled(name) == mayChoose, name);
    }
}

void TestPresetRefresh::kindIsNotAskedOutsideFamilyA_data()
{
    QTest::addColumn<quint32>("app");
    QTest::newRow("family B") << 0x800000U;
    QTest::newRow("neither") << 0x8U;
}

void TestPresetRefresh::kindIsNotAskedOutsideFamilyA()
{
    QFETCH(const quint32, app);
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.plugin->SetCurrentApp(MV::ECompatibleApp(app));
    for (const char* name : radioButtons) {
        fixture.Find<QWidget>(name)->setEnabled(true);
    }
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::Success);
    QVERIFY(!fixture.Take().join(QLatin1Char(' ')).contains(QLatin1String("GetObjectKind")));
    for (const char* name : radioButtons) {
        QVERIFY(fixture.IsEnabled(name));
    }
}

void TestPresetRefresh::refreshNeverEnables()
{
    PresetFixture fixture;
    fixture.AddCloth(SampleModels::Flag());
    fixture.section->EnableUi(false);
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::Success);
    for (const char* name : enabled) {
        QVERIFY2(!fixture.IsEnabled(name), name);
    }
}

void TestPresetRefresh::changedGravityIsWrittenOnce()
{
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    const auto refresh = [&] {
        fixture.host.Journal().Clear();
        fixture.section->UpdateUi(true);
        return fixture.TakeActions();
    };
    QCOMPARE(refresh(), QStringList());
    fixture.Cloth(hero).useGlobalGravity = false;
    QCOMPARE(refresh(),
             QStringList{fixture.Call("SetUseGlobalGravity", {QStringLiteral("false"), QStringLiteral("false")})});
    QCOMPARE(refresh(), QStringList());
}

void TestPresetRefresh::gravityIsAskedForWithAffectAllMaterials()
{
    PresetFixture fixture;
    fixture.AddCloth();
    for (const bool all : {false, true}) {
        fixture.Selection().affectAllMaterials = all;
        fixture.section->UpdateUi(true);
        QCOMPARE(fixture.Take().constLast(),
                 fixture.Call("GetUseGlobalGravity",
                              {QStringLiteral("true"), Host::JournalText(fixture.host.CurrentScene())(all)}));
    }
}

void TestPresetRefresh::affectAllMaterialsNeedsTwoMaterials_data()
{
    QTest::addColumn<int>("materials");
    QTest::addColumn<bool>("mayChoose");
    QTest::newRow("one") << 1 << false;
    QTest::newRow("two") << 2 << true;
    QTest::newRow("three") << 3 << true;
}

void TestPresetRefresh::affectAllMaterialsNeedsTwoMaterials()
{
    QFETCH(const int, materials);
    QFETCH(const bool, mayChoose);
    PresetFixture fixture;
    const Host::Object& hero = fixture.AddCloth();
    for (int i = materials; i < 3; ++i) {
        fixture.DisableMaterial(hero, i);
    }
    QCOMPARE(fixture.plugin->MaterialDlg()->MaterialCount(), materials);
    for (const bool all : {true, false}) {
        fixture.Selection().affectAllMaterials = all;
        QCOMPARE(fixture.section->UpdateUi(true), BF::Results::Success);
        QCOMPARE(fixture.IsEnabled("qtAffectAllMaterialsCheckBox"), mayChoose);
        QCOMPARE(fixture.IsChecked("qtAffectAllMaterialsCheckBox"), all);
    }
}

void TestPresetRefresh::missingDialogDisablesAffectAllMaterials()
{
    PresetFixture fixture;
    fixture.AddCloth();
    QVERIFY(fixture.IsEnabled("qtAffectAllMaterialsCheckBox"));
    delete fixture.plugin->MaterialDlg();
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::Success);
    QVERIFY(!fixture.IsEnabled("qtAffectAllMaterialsCheckBox"));
}

void TestPresetRefresh::otherObjectTurnsBackToTheFirstTab()
{
    PresetFixture fixture;
    fixture.AddCloth();
    auto* tabs = fixture.Find<QTabWidget>("qtPresetTabWidget");
    tabs->setCurrentIndex(1);
    const QSignalSpy changed(tabs, &QTabWidget::currentChanged);
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::Success);
    QCOMPARE(tabs->currentIndex(), 1);
    QCOMPARE(fixture.section->UpdateUi(false), BF::Results::Success);
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(tabs->currentWidget()->objectName(), QStringLiteral("qtClothTab"));
    QCOMPARE(changed.count(), 0);
    QVERIFY(!tabs->signalsBlocked());
}

void TestPresetRefresh::refreshIsSilent()
{
    PresetFixture fixture;
    fixture.AddCloth();
    const QSignalSpy active(fixture.Find<QCheckBox>("qtActivePhysicsCheckBox"), &QCheckBox::toggled);
    const QSignalSpy all(fixture.Find<QCheckBox>("qtAffectAllMaterialsCheckBox"), &QCheckBox::toggled);
    const QSignalSpy soft(fixture.Find<QRadioButton>("qtSoftClothRadioButton"), &QRadioButton::toggled);
    fixture.Find<QRadioButton>("qtRigidBodyRadioButton")->setChecked(true);
    const int softBefore = soft.count();
    fixture.Find<QWidget>("qtSoftClothRadioButton")->blockSignals(true);
    fixture.Selection().affectAllMaterials = true;
    fixture.section->UpdateUi(true);
    fixture.Selection().softClothActive = false;
    fixture.section->UpdateUi(true);
    QCOMPARE(active.count(), 0);
    QCOMPARE(all.count(), 0);
    QCOMPARE(soft.count(), softBefore);
    QVERIFY(fixture.Find<QWidget>("qtSoftClothRadioButton")->signalsBlocked());
    QVERIFY(!fixture.Find<QWidget>("qtActivePhysicsCheckBox")->signalsBlocked());
    QVERIFY(!fixture.Find<QWidget>("qtAffectAllMaterialsCheckBox")->signalsBlocked());
}

void TestPresetRefresh::softClothButtonIsAlwaysChecked()
{
    PresetFixture fixture;
    fixture.Find<QRadioButton>("qtRigidBodyRadioButton")->setChecked(true);
    QCOMPARE(fixture.section->UpdateUi(true), BF::Results::NothingDone);
    QVERIFY(fixture.IsChecked("qtSoftClothRadioButton"));
    QVERIFY(!fixture.IsChecked("qtRigidBodyRadioButton"));
}

void TestPresetRefresh::playingDisablesTheWholeSection()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.host.SetPlaying(true);
    QVERIFY(!fixture.Find<QWidget>("qtActivePhysicsCheckBox")->isEnabled());
    fixture.host.SetPlaying(false);
    QVERIFY(fixture.Find<QWidget>("qtActivePhysicsCheckBox")->isEnabled());
    QVERIFY(fixture.Find<QWidget>("qtSoftPresetGroupBox")->isEnabled());
}

SOFTCLOTH_TEST(TestPresetRefresh)
#include "tst_preset_refresh.moc"
