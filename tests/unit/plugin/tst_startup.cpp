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
    void partsAreMadeInTheTwoFamiliesOnly_data();
    void partsAreMadeInTheTwoFamiliesOnly();
    void neitherFamilyGivesNoPartsButConnections();
    void failingInitialisationStopsThere_data();
    void failingInitialisationStopsThere();
    void missingMemoryStopsThere_data();
    void missingMemoryStopsThere();
    void partsAreInitialisedWithWhatThePluginWasGiven_data();
    void partsAreInitialisedWithWhatThePluginWasGiven();
    void partsKnowTheirParentAndThePlugin();
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

const QList<MV::CSectionInterface*> noSections{nullptr, nullptr, nullptr, nullptr};

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
    QCOMPARE(fixture.ConnectionCount(SIGNAL(HierarchyChanged())), 0);
}

void TestStartup::partsAreCreatedAndInitialisedInOrder()
{
    PluginFixture fixture;
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("GetMainWindow")} + PluginFixture::PartsMade());
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

void TestStartup::partsAreMadeInTheTwoFamiliesOnly_data()
{
    QTest::addColumn<quint32>("app");
    QTest::addColumn<bool>("isMade");
    for (const quint32 app : {0x1U, 0x2U, 0x4U, 0x800000U, 0x1000000U, 0x9U}) {
        QTest::addRow("0x%x", app) << app << true;
    }
    for (const quint32 app : {0U, 0x8U, 0x10U, 0x400000U, 0x2000000U, 0x80000000U, ~0x1800007U}) {
        QTest::addRow("0x%x", app) << app << false;
    }
}

void TestStartup::partsAreMadeInTheTwoFamiliesOnly()
{
    QFETCH(const quint32, app);
    QFETCH(const bool, isMade);
    PluginFixture fixture{ECompatibleApp(app)};
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.TakeParts(), isMade ? PluginFixture::PartsMade() : QStringList());
    const QList<MV::CSectionInterface*> sections = fixture.Sections();
    if (isMade) {
        QCOMPARE(sections.size(), 4);
        QVERIFY(!sections.contains(nullptr));
    } else {
        QCOMPARE(sections, noSections);
    }
}

void TestStartup::neitherFamilyGivesNoPartsButConnections()
{
    PluginFixture fixture(ECompatibleApp::None);
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.Take(), QStringList());
    QCOMPARE(fixture.Sections(), noSections);

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
    const QList<MV::CSectionInterface*> sections = fixture.Sections();
    QCOMPARE(sections.size(), 4);
    QCOMPARE(int(sections.size() - sections.count(nullptr)), sectionsMade);
}

void TestStartup::missingMemoryStopsThere_data()
{
    QTest::addColumn<int>("partsMade");
    QTest::addColumn<int>("sectionsMade");
    QTest::newRow("table") << 0 << 0;
    QTest::newRow("dialog") << 1 << 0;
    QTest::newRow("preset") << 2 << 0;
    QTest::newRow("property") << 3 << 1;
    QTest::newRow("collision") << 4 << 2;
    QTest::newRow("wind") << 5 << 3;
}

void TestStartup::missingMemoryStopsThere()
{
    QFETCH(const int, partsMade);
    QFETCH(const int, sectionsMade);
    PluginFixture fixture;
    FakeParts::partsWithMemory = partsMade;
    QCOMPARE(fixture.Initialize(), BF::Results::ResourceFailure);
    QCOMPARE(fixture.TakeParts(), PluginFixture::PartsMade().mid(0, 2 * partsMade));
    const QList<MV::CSectionInterface*> sections = fixture.Sections();
    QCOMPARE(int(sections.size() - sections.count(nullptr)), sectionsMade);
    QCOMPARE(fixture.ConnectionCount(SIGNAL(HierarchyChanged())), 0);
}

void TestStartup::partsAreInitialisedWithWhatThePluginWasGiven_data()
{
    QTest::addColumn<QString>("resourceBase");
    QTest::newRow("no resource folder") << QString();
    QTest::newRow("a resource folder") << QStringLiteral("some/folder of resources/");
}

void TestStartup::partsAreInitialisedWithWhatThePluginWasGiven()
{
    QFETCH(const QString, resourceBase);
    PluginFixture fixture;
    QCOMPARE(fixture.Initialize(resourceBase), BF::Results::Success);
    QStringList parts;
    for (const FakeParts::Initialised& part : qAsConst(FakeParts::initialised)) {
        parts.append(part.part);
        QCOMPARE(part.pluginPath, PluginFixture::PluginPath());
        QCOMPARE(part.resourceBase, resourceBase);
        QCOMPARE(part.host, &fixture.host);
    }
    QCOMPARE(parts, (QStringList{QStringLiteral("Table"), QStringLiteral("Dialog"), QStringLiteral("Preset"),
                                 QStringLiteral("Property"), QStringLiteral("Collision"), QStringLiteral("Wind")}));
}

void TestStartup::partsKnowTheirParentAndThePlugin()
{
    PluginFixture fixture;
    fixture.Initialize();
    MV::CSoftClothMaterialDlg* dialog = fixture.plugin->MaterialDlg();
    QVERIFY(dialog);
    const QSharedPointer<MV::CSoftClothMaterialTable> table = dialog->materialTable.toStrongRef();
    QVERIFY2(table, "the dialog was handed the table");
    for (const MV::FakePart* part : std::initializer_list<MV::FakePart*>{table.data(), dialog}) {
        QCOMPARE(part->parentWidget(), &fixture.mainWindow);
        QCOMPARE(part->plugin, fixture.plugin.get());
    }
    const auto sections = fixture.Sections();
    for (MV::CSectionInterface* section : sections) {
        const auto* part = dynamic_cast<MV::FakePart*>(section);
        QVERIFY(part);
        QCOMPARE(part->parentWidget(), fixture.plugin.get());
        QCOMPARE(part->plugin, fixture.plugin.get());
    }
}

void TestStartup::destructionReleasesThePartsInReverseOrder()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.Take();
    fixture.plugin.reset();
    QCOMPARE(fixture.Take(), PluginFixture::PartsDestroyed());
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
    delete fixture.Sections().at(1)->GetSectionWidget();
    fixture.AddSelected();

    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    const QStringList calls = fixture.Take();
    QVERIFY(calls.filter(QStringLiteral("Property.")).isEmpty());
    QVERIFY(calls.contains(QStringLiteral("Collision.UpdateUi")));
    const QList<MV::CSectionInterface*> sections = fixture.Sections();
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

SOFTCLOTH_TEST(TestStartup)
#include "tst_startup.moc"
