#include "tests/support/PanelFixture.h"
#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"
#include "tests/unit/plugin/fakes/FakeParts.h"

/// What happens once the panel is shown: adopting the object, enabling, the refresh chain and its end at a failure.
class TestPanelRefresh : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newObjectIsAdoptedAndEverythingRefreshed();
    void sameObjectIsNotReloaded();
    void adoptingReplacesMeshAndMaterial();
    void failingReloadIsReturnedAndEndsTheRefresh();
    void adoptedObjectIsTheOneThatIsReloaded();
    void softClothIsThePhysicsAskedFor();
    void softClothStateEnablesTheSections_data();
    void softClothStateEnablesTheSections();
    void nothingShownDoesNotStopTheChain();
    void failureStopsTheChain_data();
    void failureStopsTheChain();
    void failingPhysicsQueryRefreshesNothing();
    void enableAllReachesTheSectionsInOrder();
    void showAllReachesTheSectionsInOrder();
};

namespace {

QStringList Refreshed(const QString& sameObject)
{
    return {QStringLiteral("Property.UpdateUi"), QStringLiteral("Collision.UpdateUi"), QStringLiteral("Wind.UpdateUi"),
            QStringLiteral("Preset.UpdateUi(%1)").arg(sameObject), QStringLiteral("Dialog.UpdateUi")};
}

QStringList Enabled(const QString& enable)
{
    return {QStringLiteral("Preset.EnableUi(%1)").arg(enable), QStringLiteral("Property.EnableSection(%1)").arg(enable),
            QStringLiteral("Collision.EnableSection(%1)").arg(enable),
            QStringLiteral("Wind.EnableSection(%1)").arg(enable)};
}

const QStringList shown{QStringLiteral("Property.show"), QStringLiteral("Collision.show"), QStringLiteral("Wind.show"),
                        QStringLiteral("Preset.show")};

} // namespace

void TestPanelRefresh::newObjectIsAdoptedAndEverythingRefreshed()
{
    PluginFixture fixture;
    fixture.Initialize();
    Host::Object& object = fixture.AddSelected();
    fixture.Take();

    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    QCOMPARE(fixture.plugin->Selection().object, object.handle);
    const QStringList gates{QStringLiteral("GetPhysicsEngineType"), QStringLiteral("GetSelectedObjects"),
                            QStringLiteral("IsPanelBlockedForObject"), QStringLiteral("GetObjectType"),
                            QStringLiteral("GetObjectKind")};
    const QStringList adopted{QStringLiteral("Dialog.ReloadMaterials(true)"),
                              QStringLiteral("Dialog.SelectWeightingLabel"), QStringLiteral("IsPhysicsActive")};
    QCOMPARE(fixture.Take(),
             gates + shown + adopted + Enabled(QStringLiteral("false")) + Refreshed(QStringLiteral("false")));
}

void TestPanelRefresh::sameObjectIsNotReloaded()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected();
    fixture.plugin->UpdateUi();
    fixture.plugin->Selection().mesh = 7;
    fixture.Take();

    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    QCOMPARE(fixture.TakeParts(), shown + Enabled(QStringLiteral("false")) + Refreshed(QStringLiteral("true")));
    QCOMPARE(fixture.plugin->Selection().mesh, std::size_t(7));
}

void TestPanelRefresh::adoptingReplacesMeshAndMaterial()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected();
    fixture.plugin->UpdateUi();
    fixture.plugin->Selection().mesh = 7;
    fixture.plugin->Selection().material = 8;
    fixture.plugin->Selection().affectAllMaterials = true;
    Host::Object& other = fixture.AddSelected(SampleModels::Flag());

    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    QCOMPARE(fixture.plugin->Selection().object, other.handle);
    QCOMPARE(fixture.plugin->Selection().mesh, std::size_t(0));
    QCOMPARE(fixture.plugin->Selection().material, std::size_t(0));
    QVERIFY(fixture.plugin->Selection().affectAllMaterials);
}

void TestPanelRefresh::failingReloadIsReturnedAndEndsTheRefresh()
{
    PluginFixture fixture;
    fixture.Initialize();
    Host::Object& object = fixture.AddSelected();
    const BF::Result failure(0x80000777);
    FakeParts::results.insert(QStringLiteral("Dialog.ReloadMaterials"), failure);
    fixture.Take();

    QCOMPARE(fixture.plugin->UpdateUi(), failure);
    QCOMPARE(fixture.TakeParts(), shown + QStringList{QStringLiteral("Dialog.ReloadMaterials(true)")});
    QCOMPARE(fixture.plugin->Selection().object, object.handle);
}

void TestPanelRefresh::adoptedObjectIsTheOneThatIsReloaded()
{
    PluginFixture fixture;
    fixture.Initialize();
    for (const Host::Object* object : {&fixture.AddSelected(), &fixture.AddSelected(SampleModels::Flag())}) {
        fixture.host.CurrentScene().SetSelection({object->handle});
        fixture.plugin->UpdateUi();
        QCOMPARE(fixture.plugin->MaterialDlg()->reloadedObject, object->handle);
    }
}

void TestPanelRefresh::softClothIsThePhysicsAskedFor()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected().state.softCloth = true;
    fixture.plugin->UpdateUi();
    const QStringList asked = TakeCalls(fixture.host.Journal()).filter(QStringLiteral("IsPhysicsActive("));
    QCOMPARE(asked, QStringList{QStringLiteral("IsPhysicsActive(\"Hero\", 3, true) -> 0")});
}

void TestPanelRefresh::softClothStateEnablesTheSections_data()
{
    QTest::addColumn<bool>("active");
    QTest::newRow("active") << true;
    QTest::newRow("not active") << false;
}

void TestPanelRefresh::softClothStateEnablesTheSections()
{
    QFETCH(const bool, active);
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected().state.softCloth = active;
    fixture.plugin->UpdateUi();
    QCOMPARE(fixture.plugin->Selection().softClothActive, active);
    const QStringList calls = fixture.TakeParts();
    QVERIFY(calls.contains(Enabled(FakeParts::Text(active)).constFirst()));
    QVERIFY(calls.contains(Enabled(FakeParts::Text(active)).constLast()));
}

void TestPanelRefresh::nothingShownDoesNotStopTheChain()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected();
    for (const char* part : {"Property", "Collision", "Wind", "Preset", "Dialog"}) {
        FakeParts::results.insert(QLatin1String(part) + QStringLiteral(".UpdateUi"), BF::Results::NothingDone);
    }
    FakeParts::results.insert(QStringLiteral("Dialog.ReloadMaterials"), BF::Results::NothingDone);
    fixture.Take();
    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    QVERIFY(fixture.TakeParts().contains(QStringLiteral("Dialog.UpdateUi")));
}

void TestPanelRefresh::failureStopsTheChain_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("property") << 0;
    QTest::newRow("collision") << 1;
    QTest::newRow("wind") << 2;
    QTest::newRow("preset") << 3;
    QTest::newRow("dialog") << 4;
}

void TestPanelRefresh::failureStopsTheChain()
{
    QFETCH(const int, place);
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected();
    fixture.plugin->UpdateUi();
    fixture.Take();
    const QStringList chain = Refreshed(QStringLiteral("true"));
    const BF::Result failure(0x80000100U + quint32(place));
    FakeParts::results.insert(chain.at(place).section(QLatin1Char('('), 0, 0), failure);

    QCOMPARE(fixture.plugin->UpdateAllUIs(true), failure);
    QCOMPARE(fixture.TakeParts(), Enabled(QStringLiteral("false")) + chain.mid(0, place + 1));
    QCOMPARE(fixture.plugin->UpdateUi(), failure);
}

void TestPanelRefresh::failingPhysicsQueryRefreshesNothing()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected();
    const BF::Result failure(0x80000042);
    fixture.host.Faults().FailOperation(QStringLiteral("IsPhysicsActive"), failure);
    fixture.Take();
    QCOMPARE(fixture.plugin->UpdateAllUIs(false), failure);
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("IsPhysicsActive")});
}

void TestPanelRefresh::enableAllReachesTheSectionsInOrder()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.Take();
    fixture.plugin->EnableAll(true);
    QCOMPARE(fixture.Take(), Enabled(QStringLiteral("true")));
}

void TestPanelRefresh::showAllReachesTheSectionsInOrder()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.Take();
    fixture.plugin->ShowAll(true);
    QCOMPARE(fixture.Take(), shown);
}

SOFTCLOTH_TEST(TestPanelRefresh)
#include "tst_panel_refresh.moc"
