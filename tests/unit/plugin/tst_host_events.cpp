#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"
#include "tests/unit/plugin/fakes/FakeParts.h"

#include "host/scene/Handles.h"

using MV::CEventSender;
using MV::ECompatibleApp;

/// What each host event sets off.
class TestHostEvents : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eventRefreshes_data();
    void eventRefreshes();
    void dialogModeChangeRefreshesInFamilyB();
    void dialogModeChangeDoesNothingInFamilyA();
    void conversionShowsTheSections_data();
    void conversionShowsTheSections();
    void conversionDecidesFromTheValuesAlone();
    void hierarchyChangeReloadsTheShownObjectOnly();
    void reloadIsForTheShownObject_data();
    void reloadIsForTheShownObject();
    void pickModeGoesToTheDialog();
    void playingDisablesWithoutRefreshing();
    void stoppingEnablesAndRefreshes();
    void undoReloadsSomeTypes_data();
    void undoReloadsSomeTypes();
    void undoNeedsTheShownObjectAlone();
    void pickedMaterialRefreshes_data();
    void pickedMaterialRefreshes();
    void pickedNullIsWhatAnEmptyPanelShows();
};

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

void TestHostEvents::reloadIsForTheShownObject_data()
{
    QTest::addColumn<QString>("event");
    for (const char* event : {"HierarchyChanged", "ObjectDataChanged", "UndoRedoDone"}) {
        QTest::newRow(event) << QString::fromLatin1(event);
    }
}

void TestHostEvents::reloadIsForTheShownObject()
{
    QFETCH(const QString, event);
    ShownFixture fixture;
    MV::CSoftClothMaterialDlg& dialog = *fixture.plugin->MaterialDlg();
    dialog.reloadedObject = nullptr;
    CEventSender& sender = *fixture.host.GetEventSender();
    const QHash<QString, std::function<void()>> events{
        {QStringLiteral("HierarchyChanged"), [&] { Q_EMIT sender.HierarchyChanged(); }},
        {QStringLiteral("ObjectDataChanged"),
         [&] { Q_EMIT sender.ObjectDataChanged({}, MV::EObjectChangedDataType::MaterialList); }},
        {QStringLiteral("UndoRedoDone"), [&] { Q_EMIT sender.UndoRedoDone(); }}};
    events.value(event)();
    QCOMPARE(dialog.reloadedObject, fixture.object->handle);
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
    // An event during playback refreshes as always.
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

void TestHostEvents::pickedNullIsWhatAnEmptyPanelShows()
{
    ShownFixture fixture;
    fixture.plugin->Selection().Clear();
    fixture.host.CurrentScene().dialogMode = MV::EDialogMode::WeightMap;
    FakeParts::pickChangesMaterial = true;
    Q_EMIT fixture.host.GetEventSender()->PickedMaterialIndexChanged(nullptr, 3);
    // The refresh that follows ends with the host, which knows no such object.
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral("GetDialogMode"), QStringLiteral("Dialog.PickMaterial(3)"),
                                          QStringLiteral("IsPhysicsActive")}));
}

SOFTCLOTH_TEST(TestHostEvents)
#include "tst_host_events.moc"
