#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"

using Bit = MV::EObjectChangedDataType;

/// What the event that some data of objects changed sets off, by its bits.
class TestObjectDataChanged : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void objectDataChanged_data();
    void objectDataChanged();
    void selectionIsTakenAwayBeforeTheRefresh_data();
    void selectionIsTakenAwayBeforeTheRefresh();
    void nullInTheListIsWhatAnEmptyPanelShows_data();
    void nullInTheListIsWhatAnEmptyPanelShows();
    void materialListBitAsksForTheFirstSelectedObject();
};

namespace {

BF::CArrayList<BF::CHandle*> List(BF::CHandle* object)
{
    return {object};
}

void EmitChange(ShownFixture& fixture, bool concernsShownObject, Bit bits)
{
    const Host::Object& other = fixture.host.CurrentScene().AddObject(SampleModels::Flag());
    Q_EMIT fixture.host.GetEventSender()->ObjectDataChanged(
        List(concernsShownObject ? fixture.object->handle : other.handle), bits);
}

} // namespace

void TestObjectDataChanged::objectDataChanged_data()
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

void TestObjectDataChanged::objectDataChanged()
{
    QFETCH(const Bit, bits);
    QFETCH(const bool, concernsShownObject);
    QFETCH(const QString, reload);
    QFETCH(const QString, outcome);
    ShownFixture fixture;
    EmitChange(fixture, concernsShownObject, bits);

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
        // Without its object the panel adopts the selected one again.
        QVERIFY(reloadsAll && refreshes);
        QCOMPARE(fixture.plugin->Selection().object, fixture.object->handle);
        QCOMPARE(fixture.plugin->Selection().mesh, std::size_t(0));
    }
}

void TestObjectDataChanged::selectionIsTakenAwayBeforeTheRefresh_data()
{
    objectDataChanged_data();
}

void TestObjectDataChanged::selectionIsTakenAwayBeforeTheRefresh()
{
    QFETCH(const Bit, bits);
    QFETCH(const bool, concernsShownObject);
    QFETCH(const QString, outcome);
    ShownFixture fixture;
    // The refresh ends at its first question, so what the event left of the selection is still to be seen.
    fixture.host.Faults().FailOperation(QStringLiteral("GetPhysicsEngineType"), BF::Results::Refused);
    EmitChange(fixture, concernsShownObject, bits);

    const bool clears = outcome == QLatin1String("clear and refresh");
    const bool refreshes = clears || outcome == QLatin1String("object null and refresh");
    QCOMPARE(fixture.Take().count(QStringLiteral("GetPhysicsEngineType")), refreshes ? 1 : 0);
    const MV::SoftClothSelection& selection = fixture.plugin->Selection();
    QCOMPARE(selection.object, refreshes ? nullptr : fixture.object->handle);
    QCOMPARE(selection.mesh, std::size_t(clears ? 0 : 11));
    QCOMPARE(selection.material, std::size_t(clears ? 0 : 12));
}

void TestObjectDataChanged::nullInTheListIsWhatAnEmptyPanelShows_data()
{
    QTest::addColumn<Bit>("bits");
    QTest::addColumn<bool>("nullInTheList");
    QTest::addColumn<QStringList>("calls");
    const QStringList hiding{QStringLiteral("GetPhysicsEngineType"), QStringLiteral("GetSelectedObjects"),
                             QStringLiteral("GetDialogMode"),        QStringLiteral("Property.hide"),
                             QStringLiteral("Collision.hide"),       QStringLiteral("Wind.hide"),
                             QStringLiteral("Preset.hide")};
    QTest::newRow("removed") << Bit::Removed << true << hiding;
    QTest::newRow("removed, no null") << Bit::Removed << false << QStringList();
    QTest::newRow("names") << Bit::MaterialNames << true << QStringList{QStringLiteral("Dialog.RefreshMaterialStates")};
    QTest::newRow("names, no null") << Bit::MaterialNames << false << QStringList();
}

void TestObjectDataChanged::nullInTheListIsWhatAnEmptyPanelShows()
{
    QFETCH(const Bit, bits);
    QFETCH(const bool, nullInTheList);
    QFETCH(const QStringList, calls);
    ShownFixture fixture;
    fixture.host.CurrentScene().SetSelection({});
    fixture.plugin->Selection().Clear();
    fixture.Take();
    BF::CArrayList<BF::CHandle*> objects = List(fixture.object->handle);
    if (nullInTheList) {
        objects.Add(nullptr);
    }
    Q_EMIT fixture.host.GetEventSender()->ObjectDataChanged(objects, bits);
    QCOMPARE(fixture.Take(), calls);
}

void TestObjectDataChanged::materialListBitAsksForTheFirstSelectedObject()
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

SOFTCLOTH_TEST(TestObjectDataChanged)
#include "tst_object_data_changed.moc"
