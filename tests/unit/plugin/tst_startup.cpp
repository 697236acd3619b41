#include "host/scene/Handles.h"
#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"
#include "tests/unit/plugin/fakes/FakeParts.h"

#include <MVPluginQt/EventSender.h>
#include <MVPluginQt/SectionInterface.h>

#include <QMenu>
#include <QTemporaryDir>
#include <QToolBar>

using MV::ECompatibleApp;

/// Creation, start and end of the plug-in object.
class TestStartup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nullHostIsRefusedAndDoesNothing();
    void missingResourceFileIsReturnedAndCreatesNothing();
    void partsAreCreatedAndInitialisedInOrder();
    void partsStandInTheOrderOfTheSections();
    void neitherFamilyGivesNoPartsButConnections();
    void failingInitialisationStopsThere_data();
    void failingInitialisationStopsThere();
    void dialogModeChangeIsFollowedInFamilyBOnly_data();
    void dialogModeChangeIsFollowedInFamilyBOnly();
    void destructionReleasesThePartsInReverseOrder();
    void partsMayDieBeforeThePlugin();
    void destroyedPartIsPassedOver();
    void eventsAfterDestructionReachNobody();
    void contextAndDockAndDialogListsAreNothing();
    void menusAndToolBarsAreCopied();
    void compatibleWithBothFamilies();
    void everyHostIsValid();
    void selectionStartsZeroedAndClearsThreeFields();
};

namespace {

int ConnectionCount(MV::CEventSender& sender, const char* signal)
{
    class Access : public MV::CEventSender
    {
    public:
        using QObject::receivers;
    };
    // Only the protected counter is used, which needs no other layout than the base's.
    return (sender.*(&Access::receivers))(signal);
}

} // namespace

void TestStartup::nullHostIsRefusedAndDoesNothing()
{
    PluginFixture fixture;
    const BF::Result result = fixture.plugin->Initialize(QStringLiteral("."), QString(), nullptr);
    QCOMPARE(result, BF::Results::InvalidArgument);
    QCOMPARE(fixture.Take(), QStringList());
    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::InvalidArgument);
}

void TestStartup::missingResourceFileIsReturnedAndCreatesNothing()
{
    PluginFixture fixture;
    const QTemporaryDir empty;
    QCOMPARE(fixture.plugin->Initialize(empty.path(), QString(), &fixture.host), BF::Results::ResourceFailure);
    QCOMPARE(fixture.Take(), QStringList());
    QCOMPARE(ConnectionCount(*fixture.host.GetEventSender(), SIGNAL(HierarchyChanged())), 0);
}

void TestStartup::partsAreCreatedAndInitialisedInOrder()
{
    PluginFixture fixture;
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    const QStringList expected{
        QStringLiteral("GetMainWindow"),    QStringLiteral("Table.create"),    QStringLiteral("Table.Init"),
        QStringLiteral("Dialog.create"),    QStringLiteral("Dialog.Init"),     QStringLiteral("Preset.create"),
        QStringLiteral("Preset.Init"),      QStringLiteral("Property.create"), QStringLiteral("Property.Init"),
        QStringLiteral("Collision.create"), QStringLiteral("Collision.Init"),  QStringLiteral("Wind.create"),
        QStringLiteral("Wind.Init")};
    QCOMPARE(fixture.Take(), expected);
}

void TestStartup::partsStandInTheOrderOfTheSections()
{
    PluginFixture fixture;
    fixture.Initialize();
    QList<MV::CSectionInterface*> sections{nullptr};
    QCOMPARE(fixture.plugin->GetSectionList(sections), BF::Results::Success);
    QCOMPARE(sections.size(), 5);
    QCOMPARE(sections.at(0), nullptr);
    QVERIFY(dynamic_cast<MV::CSoftClothPresetSection*>(sections.at(1)));
    QVERIFY(dynamic_cast<MV::CSoftClothPropertySection*>(sections.at(2)));
    QVERIFY(dynamic_cast<MV::CSoftClothCollisionSection*>(sections.at(3)));
    QVERIFY(dynamic_cast<MV::CSoftClothWindSection*>(sections.at(4)));
}

void TestStartup::neitherFamilyGivesNoPartsButConnections()
{
    PluginFixture fixture(ECompatibleApp::None);
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.Take(), QStringList());
    QList<MV::CSectionInterface*> sections;
    QCOMPARE(fixture.plugin->GetSectionList(sections), BF::Results::Success);
    QCOMPARE(sections, (QList<MV::CSectionInterface*>{nullptr, nullptr, nullptr, nullptr}));

    // The panel's gates are asked all the same, without the application gate.
    fixture.AddSelected();
    fixture.host.Send("ObjectSelectionChanged", &MV::CEventSender::ObjectSelectionChanged);
    const QStringList expected{QStringLiteral("GetPhysicsEngineType"), QStringLiteral("GetSelectedObjects"),
                               QStringLiteral("GetObjectType"), QStringLiteral("GetObjectKind"),
                               QStringLiteral("IsPhysicsActive")};
    QCOMPARE(fixture.Take(), expected);
}

void TestStartup::failingInitialisationStopsThere_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<int>("sectionsMade");
    QTest::newRow("table") << QStringLiteral("Table") << 0;
    QTest::newRow("dialog") << QStringLiteral("Dialog") << 0;
    QTest::newRow("preset") << QStringLiteral("Preset") << 1;
    QTest::newRow("failing Property initialisation leaves Collision and Wind out") << QStringLiteral("Property") << 2;
    QTest::newRow("collision") << QStringLiteral("Collision") << 3;
    QTest::newRow("wind") << QStringLiteral("Wind") << 4;
}

void TestStartup::failingInitialisationStopsThere()
{
    QFETCH(const QString, part);
    QFETCH(const int, sectionsMade);
    PluginFixture fixture;
    const BF::Result failure(0x80001234);
    FakeParts::results.insert(part + QLatin1String(".Init"), failure);
    QCOMPARE(fixture.Initialize(), failure);
    QCOMPARE(fixture.Take().constLast(), part + QLatin1String(".Init"));
    QList<MV::CSectionInterface*> sections;
    fixture.plugin->GetSectionList(sections);
    QCOMPARE(sections.size(), 4);
    QCOMPARE(int(sections.size() - sections.count(nullptr)), sectionsMade);
    for (const char* signal : {SIGNAL(HierarchyChanged()), SIGNAL(ObjectSelectionChanged()), SIGNAL(Played())}) {
        QCOMPARE(ConnectionCount(*fixture.host.GetEventSender(), signal), 0);
    }
}

void TestStartup::dialogModeChangeIsFollowedInFamilyBOnly_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<int>("connections");
    QTest::newRow("family A") << ECompatibleApp::FamilyA << 0;
    QTest::newRow("family B") << ECompatibleApp::FamilyB << 1;
    QTest::newRow("one bit of family B") << ECompatibleApp(0x800000) << 1;
    QTest::newRow("other bit of family B") << ECompatibleApp(0x1000000) << 1;
    QTest::newRow("both") << ECompatibleApp::Both << 1;
    QTest::newRow("neither") << ECompatibleApp(0x8) << 0;
}

void TestStartup::dialogModeChangeIsFollowedInFamilyBOnly()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const int, connections);
    PluginFixture fixture(app);
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    MV::CEventSender& sender = *fixture.host.GetEventSender();
    QCOMPARE(ConnectionCount(sender, SIGNAL(DialogModeChanged(MV::EDialogMode))), connections);
    QCOMPARE(ConnectionCount(sender, SIGNAL(ObjectSelectionChanged())), 1);
}

void TestStartup::destructionReleasesThePartsInReverseOrder()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.Take();
    fixture.plugin.reset();
    const QStringList expected{QStringLiteral("Table.destroy"),     QStringLiteral("Wind.destroy"),
                               QStringLiteral("Collision.destroy"), QStringLiteral("Property.destroy"),
                               QStringLiteral("Dialog.destroy"),    QStringLiteral("Preset.destroy")};
    QCOMPARE(fixture.Take(), expected);
}

void TestStartup::partsMayDieBeforeThePlugin()
{
    PluginFixture fixture;
    auto window = std::make_unique<QWidget>();
    fixture.host.SetMainWindow(window.get());
    fixture.Initialize();
    window.reset();
    fixture.Take();
    fixture.plugin.reset();
    const QStringList expected{QStringLiteral("Wind.destroy"), QStringLiteral("Collision.destroy"),
                               QStringLiteral("Property.destroy"), QStringLiteral("Preset.destroy")};
    QCOMPARE(fixture.Take(), expected);
}

void TestStartup::destroyedPartIsPassedOver()
{
    PluginFixture fixture;
    fixture.Initialize();
    QList<MV::CSectionInterface*> sections;
    fixture.plugin->GetSectionList(sections);
    delete sections.at(1)->GetSectionWidget();
    fixture.AddSelected();

    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    const QStringList calls = fixture.Take();
    QVERIFY(calls.filter(QStringLiteral("Property.")).isEmpty());
    QVERIFY(calls.contains(QStringLiteral("Collision.UpdateUi")));
    sections.clear();
    fixture.plugin->GetSectionList(sections);
    QCOMPARE(sections.size(), 4);
    QCOMPARE(sections.at(1), nullptr);
}

void TestStartup::eventsAfterDestructionReachNobody()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.plugin.reset();
    fixture.Take();
    fixture.host.SetPlaying(true);
    fixture.host.SetPhysicsEngine(2);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestStartup::contextAndDockAndDialogListsAreNothing()
{
    const PluginFixture fixture;
    QList<QAction*> actions{nullptr};
    QCOMPARE(fixture.plugin->GetContextList(actions), BF::Results::NothingDone);
    QCOMPARE(actions.size(), 1);
    QList<QDockWidget*> docks;
    QCOMPARE(fixture.plugin->GetDockWidgetList(docks), BF::Results::NothingDone);
    QVERIFY(docks.isEmpty());
    QList<QDialog*> dialogs;
    QCOMPARE(fixture.plugin->GetDialogList(dialogs), BF::Results::NothingDone);
    QVERIFY(dialogs.isEmpty());
}

void TestStartup::menusAndToolBarsAreCopied()
{
    class Plugin : public MV::CPhysicsSoftClothPlugin
    {
    public:
        using MV::CAbstractPlugin::AddMenu;
        using MV::CAbstractPlugin::AddToolBar;
    };
    Plugin plugin;
    QMenu kept;
    auto lost = std::make_unique<QMenu>();
    QToolBar toolBar;
    plugin.AddMenu(&kept);
    plugin.AddMenu(lost.get());
    plugin.AddToolBar(&toolBar);
    lost.reset();

    QList<QMenu*> menus;
    QCOMPARE(plugin.GetMenusList(menus), BF::Results::Success);
    QCOMPARE(menus, (QList<QMenu*>{&kept, nullptr}));
    QList<QToolBar*> toolBars;
    QCOMPARE(plugin.GetToolBarsList(toolBars), BF::Results::Success);
    QCOMPARE(toolBars, QList<QToolBar*>{&toolBar});
}

void TestStartup::compatibleWithBothFamilies()
{
    const PluginFixture fixture;
    QCOMPARE(quint32(fixture.plugin->GetCompatibleApps()), 0x1800007U);
}

void TestStartup::everyHostIsValid()
{
    PluginFixture fixture;
    QVERIFY(fixture.plugin->IsValid(nullptr));
    QVERIFY(fixture.plugin->IsValid(&fixture.host));
}

void TestStartup::selectionStartsZeroedAndClearsThreeFields()
{
    const PluginFixture fixture;
    MV::SoftClothSelection& selection = fixture.plugin->Selection();
    QVERIFY(!selection.object && !selection.mesh && !selection.material && !selection.objectType);
    QVERIFY(!selection.softClothActive && !selection.affectAllMaterials);

    selection = {Host::ToHandle(16), 2, 3, 4, true, true};
    selection.Clear();
    QVERIFY(!selection.object && !selection.mesh && !selection.material);
    QCOMPARE(selection.objectType, 4U);
    QVERIFY(selection.softClothActive && selection.affectAllMaterials);
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
