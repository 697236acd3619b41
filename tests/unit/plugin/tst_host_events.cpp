#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"
#include "tests/unit/plugin/fakes/FakeParts.h"

#include "host/scene/Handles.h"

using MV::CEventSender;
using MV::ECompatibleApp;
using Bit = MV::EObjectChangedDataType;

/// What each host event sets off.
class TestHostEvents : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eventRefreshes_data();
    void eventRefreshes();
    void dialogModeChangeRefreshesInFamilyB();
    void dialogModeChangeDoesNothingInFamilyA();
    void objectDataChanged_data();
    void objectDataChanged();
    void materialListBitAsksForTheFirstSelectedObject();
    void conversionShowsTheSections_data();
    void conversionShowsTheSections();
    void conversionDecidesFromTheValuesAlone();
    void hierarchyChangeReloadsTheShownObjectOnly();
    void pickModeGoesToTheDialog();
    void playingDisablesWithoutRefreshing();
    void stoppingEnablesAndRefreshes();
    void undoReloadsSomeTypes_data();
    void undoReloadsSomeTypes();
    void undoNeedsTheShownObjectAlone();
    void pickedMaterialRefreshes_data();
    void pickedMaterialRefreshes();
};

namespace {

/// A fixture that shows its selected object.
struct ShownFixture : PluginFixture
{
    explicit ShownFixture(ECompatibleApp app = ECompatibleApp::FamilyA)
        : PluginFixture(app)
    {
        Initialize();
        object = &AddSelected();
        plugin->UpdateUi();
        plugin->Selection().mesh = 11;
        plugin->Selection().material = 12;
        Take();
    }

    /// Whether the calls since the last time hold a whole refresh.
    static bool IsRefresh(const QStringList& calls)
    {
        return calls.contains(QStringLiteral("GetPhysicsEngineType")) &&
               calls.contains(QStringLiteral("Dialog.UpdateUi"));
    }

    Host::Object* object = nullptr;
};

BF::CArrayList<BF::CHandle*> List(BF::CHandle* object)
{
    return {object};
}

} // namespace

void TestHostEvents::eventRefreshes_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<bool>("sameObject");
    QTest::newRow("object deleted") << QStringLiteral("ObjectDeleted") << true;
    QTest::newRow("engine changed") << QStringLiteral("PhysicsEngineChanged") << true;
    QTest::newRow("launched image changed") << QStringLiteral("LaunchedImageChanged") << true;
    QTest::newRow("selection changed clears first") << QStringLiteral("ObjectSelectionChanged") << false;
    QTest::newRow("file loaded clears first") << QStringLiteral("AfterFileLoaded") << false;
}

void TestHostEvents::eventRefreshes()
{
    QFETCH(const QString, event);
    QFETCH(const bool, sameObject);
    ShownFixture fixture;
    CEventSender& sender = *fixture.host.GetEventSender();
    const QHash<QString, std::function<void()>> events{
        {QStringLiteral("ObjectDeleted"), [&] { Q_EMIT sender.ObjectDeleted({}); }},
        {QStringLiteral("PhysicsEngineChanged"),
         [&] { Q_EMIT sender.PhysicsEngineChanged(MV::EPhysicsEngineType::SoftCloth); }},
        {QStringLiteral("LaunchedImageChanged"), [&] { Q_EMIT sender.LaunchedImageChanged({}); }},
        {QStringLiteral("ObjectSelectionChanged"), [&] { Q_EMIT sender.ObjectSelectionChanged(); }},
        {QStringLiteral("AfterFileLoaded"), [&] { Q_EMIT sender.AfterFileLoaded(MV::EFileType::Scene); }}};
    events.value(event)();
    const QStringList calls = fixture.Take();
    QVERIFY(ShownFixture::IsRefresh(calls));
    QCOMPARE(calls.contains(QStringLiteral("Dialog.ReloadMaterials(true)")), !sameObject);
    QVERIFY(calls.contains(QStringLiteral("Preset.UpdateUi(%1)").arg(FakeParts::Text(sameObject))));
    QCOMPARE(fixture.plugin->Selection().object, fixture.object->handle);
    QCOMPARE(fixture.plugin->Selection().mesh, std::size_t(sameObject ? 11 : 0));
}

void TestHostEvents::dialogModeChangeRefreshesInFamilyB()
{
    ShownFixture fixture(ECompatibleApp::FamilyB);
    fixture.host.SetDialogMode(MV::EDialogMode::WeightMap);
    QVERIFY(ShownFixture::IsRefresh(fixture.Take()));
}

void TestHostEvents::dialogModeChangeDoesNothingInFamilyA()
{
    ShownFixture fixture;
    fixture.host.SetDialogMode(MV::EDialogMode::WeightMap);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestHostEvents::objectDataChanged_data()
{
    QTest::addColumn<Bit>("bits");
    QTest::addColumn<bool>("concernsShownObject");
    QTest::addColumn<QString>("reload"); ///< What the dialog reloads before anything else.
    QTest::addColumn<QString>("outcome");

    const QString none = QStringLiteral("none");
    const QString cleared = QStringLiteral("clear and refresh");
    const QString reread = QStringLiteral("object null and refresh");
    const QString names = QStringLiteral("names");
    const QString list = QStringLiteral("Dialog.ReloadMaterials(false)");
    const auto row = [](const char* name, Bit bits, bool concerns, const QString& reload, const QString& outcome) {
        QTest::newRow(name) << bits << concerns << reload << outcome;
    };
    row("no bit", Bit::None, true, {}, none);
    row("a bit that means nothing here", Bit(0x1 | 0x10 | 0x20 | 0x80 | 0x200), true, {}, none);
    row("topology", Bit::Topology, true, {}, cleared);
    row("topology of another object", Bit::Topology, false, {}, cleared);
    row("replaced", Bit::Replaced, true, {}, cleared);
    row("replaced, another object", Bit::Replaced, false, {}, cleared);
    row("material list", Bit::MaterialList, true, list, none);
    row("material list goes by the selection, not by the objects", Bit::MaterialList, false, list, none);
    row("removed", Bit::Removed, true, {}, reread);
    row("removed, another object", Bit::Removed, false, {}, none);
    row("names", Bit::MaterialNames, true, {}, names);
    row("names of another object", Bit::MaterialNames, false, {}, none);
    row("0x40 with 0x2 acts only on 0x40", Bit::Removed | Bit::Topology, true, {}, reread);
    row("0x40 with 0x2, another object", Bit::Removed | Bit::Topology, false, {}, none);
    row("0x100 with 0x2 acts only on 0x100", Bit::MaterialNames | Bit::Topology, true, {}, names);
    row("0x40 with 0x100 acts only on 0x40", Bit::Removed | Bit::MaterialNames, true, {}, reread);
    row("0x4 always clears", Bit(0x4 | 0x40 | 0x100 | 0x2), false, {}, cleared);
    row("0x8 runs beside the others", Bit::MaterialList | Bit::Replaced, true, list, cleared);
    row("0x8 with 0x100", Bit::MaterialList | Bit::MaterialNames, true, list, names);
}

void TestHostEvents::objectDataChanged()
{
    QFETCH(const Bit, bits);
    QFETCH(const bool, concernsShownObject);
    QFETCH(const QString, reload);
    QFETCH(const QString, outcome);
    ShownFixture fixture;
    Host::Object& other = fixture.host.CurrentScene().AddObject(SampleModels::Flag());
    Q_EMIT fixture.host.GetEventSender()->ObjectDataChanged(
        List(concernsShownObject ? fixture.object->handle : other.handle), bits);

    QStringList calls = fixture.TakeParts();
    if (!reload.isEmpty()) {
        QCOMPARE(calls.takeFirst(), reload);
    }
    const bool reloadsAll = calls.contains(QStringLiteral("Dialog.ReloadMaterials(true)"));
    const bool refreshes = calls.contains(QStringLiteral("Dialog.UpdateUi"));
    if (outcome == QLatin1String("none")) {
        QCOMPARE(calls, QStringList());
    } else if (outcome == QLatin1String("names")) {
        QCOMPARE(calls, QStringList{QStringLiteral("Dialog.RefreshMaterialStates")});
    } else {
        // Without its object the panel adopts the selected one anew.
        QVERIFY(reloadsAll && refreshes);
        QCOMPARE(fixture.plugin->Selection().object, fixture.object->handle);
        QCOMPARE(fixture.plugin->Selection().mesh, std::size_t(0));
    }
}

void TestHostEvents::materialListBitAsksForTheFirstSelectedObject()
{
    ShownFixture fixture;
    Host::Object& other = fixture.host.CurrentScene().AddObject(SampleModels::Flag());
    fixture.host.CurrentScene().SetSelection({other.handle, fixture.object->handle});
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->ObjectDataChanged(List(fixture.object->handle), Bit::MaterialList);
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("GetSelectedObject")});

    // Nothing shown and nothing selected is no match either.
    fixture.host.CurrentScene().SetSelection({});
    fixture.plugin->Selection().Clear();
    Q_EMIT fixture.host.GetEventSender()->ObjectDataChanged({}, Bit::MaterialList);
    QCOMPARE(fixture.TakeParts(), QStringList());
}

void TestHostEvents::conversionShowsTheSections_data()
{
    QTest::addColumn<int>("engine");
    QTest::addColumn<int>("selectedCount");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("type 5") << 1 << 1 << 5U << true;
    QTest::newRow("type 6") << 1 << 1 << 6U << true;
    QTest::newRow("type 4") << 1 << 1 << 4U << false;
    QTest::newRow("type 7") << 1 << 1 << 7U << false;
    QTest::newRow("another engine") << 2 << 1 << 5U << false;
    QTest::newRow("nothing selected") << 1 << 0 << 5U << false;
    QTest::newRow("two objects") << 1 << 2 << 5U << false;
}

void TestHostEvents::conversionShowsTheSections()
{
    QFETCH(const int, engine);
    QFETCH(const int, selectedCount);
    QFETCH(const quint32, type);
    QFETCH(const bool, isShown);
    PluginFixture fixture;
    fixture.Initialize();
    Host::Scene& scene = fixture.host.CurrentScene();
    scene.physicsEngine = engine;
    QVector<BF::CHandle*> selected;
    for (int i = 0; i < selectedCount; ++i) {
        Host::Object& object = scene.AddObject(SampleModels::Flag());
        object.traits.type = type;
        selected.append(object.handle);
    }
    scene.SetSelection(selected);
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->AboutToConvertPhysicsObjectType();
    const QStringList shown{QStringLiteral("Property.show"), QStringLiteral("Collision.show"),
                            QStringLiteral("Wind.show"), QStringLiteral("Preset.show")};
    QCOMPARE(fixture.TakeParts(), isShown ? shown : QStringList());
    QVERIFY(!fixture.plugin->Selection().object);
}

void TestHostEvents::conversionDecidesFromTheValuesAlone()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected().traits.type = 5;
    // The engine is preset to 1, so a failing query goes on; the type is preset to 0, which shows nothing.
    fixture.host.Faults().FailOperation(QStringLiteral("GetPhysicsEngineType"), BF::Results::Refused);
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->AboutToConvertPhysicsObjectType();
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral("GetPhysicsEngineType"), QStringLiteral("GetSelectedObjectCount"),
                          QStringLiteral("GetSelectedObject"), QStringLiteral("GetObjectType"),
                          QStringLiteral("Property.show"), QStringLiteral("Collision.show"),
                          QStringLiteral("Wind.show"), QStringLiteral("Preset.show")}));
    fixture.host.Faults().FailOperation(QStringLiteral("GetObjectType"), BF::Results::Refused);
    Q_EMIT fixture.host.GetEventSender()->AboutToConvertPhysicsObjectType();
    QCOMPARE(fixture.TakeParts(), QStringList());
}

void TestHostEvents::hierarchyChangeReloadsTheShownObjectOnly()
{
    ShownFixture fixture;
    Q_EMIT fixture.host.GetEventSender()->HierarchyChanged();
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.mid(0, 3),
             (QStringList{QStringLiteral("GetSelectedObject"), QStringLiteral("Dialog.ReloadMaterials(true)"),
                          QStringLiteral("GetPhysicsEngineType")}));
    QVERIFY(calls.contains(QStringLiteral("Preset.UpdateUi(true)")));

    Host::Object& other = fixture.host.CurrentScene().AddObject(SampleModels::Flag());
    fixture.host.CurrentScene().SetSelection({other.handle});
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->HierarchyChanged();
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("GetSelectedObject")});

    fixture.host.CurrentScene().SetSelection({});
    fixture.plugin->Selection().Clear();
    Q_EMIT fixture.host.GetEventSender()->HierarchyChanged();
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("GetSelectedObject")});
}

void TestHostEvents::pickModeGoesToTheDialog()
{
    ShownFixture fixture;
    fixture.host.SetPickMode(MV::EPickMode::Material);
    fixture.host.SetPickMode(MV::EPickMode::None);
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral("Dialog.OnPickModeChanged(7)"),
                                          QStringLiteral("Dialog.OnPickModeChanged(0)")}));
}

void TestHostEvents::playingDisablesWithoutRefreshing()
{
    ShownFixture fixture;
    fixture.host.SetPlaying(true);
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral("IsPlaying"), QStringLiteral("Preset.EnableSection(false)"),
                                          QStringLiteral("Property.EnableSection(false)"),
                                          QStringLiteral("Collision.EnableSection(false)"),
                                          QStringLiteral("Wind.EnableSection(false)")}));
    // An event during playback refreshes as ever.
    Q_EMIT fixture.host.GetEventSender()->ObjectDeleted({});
    QVERIFY(ShownFixture::IsRefresh(fixture.Take()));
}

void TestHostEvents::stoppingEnablesAndRefreshes()
{
    ShownFixture fixture;
    fixture.host.SetPlaying(true);
    fixture.Take();
    fixture.host.SetPlaying(false);
    const QStringList calls = fixture.Take();
    QCOMPARE(
        calls.mid(0, 6),
        (QStringList{QStringLiteral("IsPlaying"), QStringLiteral("Preset.EnableSection(true)"),
                     QStringLiteral("Property.EnableSection(true)"), QStringLiteral("Collision.EnableSection(true)"),
                     QStringLiteral("Wind.EnableSection(true)"), QStringLiteral("GetPhysicsEngineType")}));
    QVERIFY(ShownFixture::IsRefresh(calls));
}

void TestHostEvents::undoReloadsSomeTypes_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<bool>("reloads");
    for (const quint32 type : {1U, 2U, 5U, 30U}) {
        QTest::addRow("type %u", type) << type << true;
    }
    for (const quint32 type : {3U, 4U, 6U, 31U, 53U}) {
        QTest::addRow("type %u", type) << type << false;
    }
}

void TestHostEvents::undoReloadsSomeTypes()
{
    QFETCH(const quint32, type);
    QFETCH(const bool, reloads);
    ShownFixture fixture;
    fixture.plugin->Selection().objectType = type;
    Q_EMIT fixture.host.GetEventSender()->UndoRedoDone();
    QCOMPARE(fixture.TakeParts(),
             reloads ? QStringList{QStringLiteral("Dialog.ReloadMaterials(false)")} : QStringList());
}

void TestHostEvents::undoNeedsTheShownObjectAlone()
{
    ShownFixture fixture;
    Host::Object& other = fixture.host.CurrentScene().AddObject(SampleModels::Flag());
    fixture.host.CurrentScene().SetSelection({fixture.object->handle, other.handle});
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->UndoRedoDone();
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("GetSelectedObjectCount")});
    fixture.host.CurrentScene().SetSelection({other.handle});
    Q_EMIT fixture.host.GetEventSender()->UndoRedoDone();
    QCOMPARE(fixture.TakeParts(), QStringList());
}

void TestHostEvents::pickedMaterialRefreshes_data()
{
    QTest::addColumn<bool>("shownObject");
    QTest::addColumn<MV::EDialogMode>("mode");
    QTest::addColumn<bool>("materialChanges");
    QTest::addColumn<QStringList>("firstCalls");
    QTest::addColumn<bool>("refreshes");
    const auto weightMap = MV::EDialogMode::WeightMap;
    const QStringList picked{QStringLiteral("GetDialogMode"), QStringLiteral("Dialog.PickMaterial(2)")};
    const QStringList asked{QStringLiteral("GetDialogMode")};
    QTest::newRow("another material") << true << weightMap << true << picked << true;
    QTest::newRow("the same material") << true << weightMap << false << picked << false;
    QTest::newRow("no weight-map mode") << true << MV::EDialogMode::None << true << asked << false;
    QTest::newRow("another object") << false << weightMap << true << QStringList() << false;
}

void TestHostEvents::pickedMaterialRefreshes()
{
    QFETCH(const bool, shownObject);
    QFETCH(const MV::EDialogMode, mode);
    QFETCH(const bool, materialChanges);
    QFETCH(const QStringList, firstCalls);
    QFETCH(const bool, refreshes);
    ShownFixture fixture;
    fixture.host.CurrentScene().dialogMode = mode;
    FakeParts::pickChangesMaterial = materialChanges;
    BF::CHandle* object = shownObject ? fixture.object->handle : Host::ToHandle(Host::NewId());
    Q_EMIT fixture.host.GetEventSender()->PickedMaterialIndexChanged(object, 2);
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.mid(0, firstCalls.size()), firstCalls);
    if (refreshes) {
        QCOMPARE(calls.value(firstCalls.size()), QStringLiteral("IsPhysicsActive"));
        QVERIFY(calls.contains(QStringLiteral("Preset.UpdateUi(true)")));
    } else {
        QCOMPARE(calls.size(), firstCalls.size());
    }
}

QTEST_MAIN(TestHostEvents)
#include "tst_host_events.moc"
