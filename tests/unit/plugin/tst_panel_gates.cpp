#include "tests/support/PanelFixture.h"
#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"

#include <array>

using MV::ECompatibleApp;

/// Whether the panel is shown: every gate on both sides, in both families, and the calls up to the decision.
class TestPanelGates : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void gate_data();
    void gate();
    void typeCode_data();
    void typeCode();
    void callsOfTheDecision_data();
    void callsOfTheDecision();
    void selectedObjectsAreAskedForWithTheFlagOne();
    void unansweredQuestionHasItsPreset_data();
    void unansweredQuestionHasItsPreset();
    void hidingClearsTheSelectionAndLeavesTheWeightMapMode();
    void hidingClearsTheSelectionBeforeTheHostHearsOfIt();
    void hidingLeavesOtherDialogModesAlone();
    void hidingInFamilyBEndsAlthoughTheModeChangeNests();
    void failingHostCallIsReturned_data();
    void failingHostCallIsReturned();
};

namespace {

const QStringList hidden{QStringLiteral("Property.hide"), QStringLiteral("Collision.hide"), QStringLiteral("Wind.hide"),
                         QStringLiteral("Preset.hide")};
const QStringList shown{QStringLiteral("Property.show"), QStringLiteral("Collision.show"), QStringLiteral("Wind.show"),
                        QStringLiteral("Preset.show")};

} // namespace

void TestPanelGates::gate_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<int>("engine");
    QTest::addColumn<int>("selectedCount");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<int>("convertState");
    QTest::addColumn<bool>("blocked");
    QTest::addColumn<bool>("blockedEx");
    QTest::addColumn<bool>("isShown");

    const auto a = ECompatibleApp::FamilyA;
    const auto b = ECompatibleApp::FamilyB;
    const auto both = ECompatibleApp::Both;
    const auto row = [](const char* name, ECompatibleApp app, int engine, int count, quint32 type, int state,
                        bool blocked, bool blockedEx, bool isShown) {
        QTest::newRow(name) << app << engine << count << type << state << blocked << blockedEx << isShown;
    };
    for (const auto& [app, family] : {std::make_pair(a, "A"), std::make_pair(b, "B"), std::make_pair(both, "both")}) {
        const auto name = [family = family](const char* gate) { return QByteArray(gate) + ", family " + family; };
        row(name("open"), app, 1, 1, 1, 3, false, false, true);
        row(name("engine 0"), app, 0, 1, 1, 3, false, false, false);
        row(name("engine 2"), app, 2, 1, 1, 3, false, false, false);
        row(name("nothing selected"), app, 1, 0, 1, 3, false, false, false);
        row(name("two objects selected"), app, 1, 2, 1, 3, false, false, false);
        row(name("type 7 even with engine 1"), app, 1, 1, 7, 3, false, false, false);
        row(name("blocked in A"), app, 1, 1, 1, 3, true, false, app != a);
        row(name("blocked in B"), app, 1, 1, 1, 3, false, true, app == a);
        // The conversion is checked in family A, also when family B is set as well.
        row(name("type 5 converting"), app, 1, 1, 5, 1, false, false, app == b);
        row(name("type 6 converting"), app, 1, 1, 6, 4, false, false, app == b);
        row(name("type 5 at rest"), app, 1, 1, 5, 3, false, false, true);
        row(name("type 6 at rest"), app, 1, 1, 6, 3, false, false, true);
        row(name("type 4 with another state"), app, 1, 1, 4, 1, false, false, true);
    }
    row("one bit of family A, blocked", ECompatibleApp(0x4), 1, 1, 1, 3, true, false, false);
    row("one bit of family B, blocked", ECompatibleApp(0x800000), 1, 1, 1, 3, false, true, false);
    row("neither family skips the gates", ECompatibleApp::None, 1, 1, 5, 1, true, true, true);
}

void TestPanelGates::gate()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const int, engine);
    QFETCH(const int, selectedCount);
    QFETCH(const quint32, type);
    QFETCH(const int, convertState);
    QFETCH(const bool, blocked);
    QFETCH(const bool, blockedEx);
    QFETCH(const bool, isShown);

    PluginFixture fixture(app);
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    Host::Scene& scene = fixture.host.CurrentScene();
    scene.physicsEngine = engine;
    QVector<BF::CHandle*> selected;
    for (int i = 0; i < selectedCount; ++i) {
        Host::Object& object = scene.AddObject(SampleModels::Hero());
        object.traits = {type, 0, convertState, blocked, blockedEx};
        selected.append(object.handle);
    }
    scene.SetSelection(selected);
    fixture.Take();

    QCOMPARE(fixture.plugin->UpdateUi(), isShown ? BF::Results::Success : BF::Results::NothingDone);
    QCOMPARE(fixture.plugin->Selection().object, isShown ? selected.first() : nullptr);
    if (app != ECompatibleApp::None) {
        QCOMPARE(fixture.TakeParts().mid(0, 4), isShown ? shown : hidden);
    }
}

void TestPanelGates::typeCode_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<bool>("isShown");
    const std::array<quint32, 16> types{1, 2, 3, 4, 5, 6, 30, 31, 32, 33, 34, 38, 39, 51, 52, 53};
    for (const quint32 type : types) {
        QTest::addRow("%u", type) << type << true;
    }
    for (const quint32 type : {0U, 7U, 29U, 35U, 36U, 37U, 40U, 50U, 54U, 0xFFFFFFFFU}) {
        QTest::addRow("%u", type) << type << false;
    }
}

void TestPanelGates::typeCode()
{
    QFETCH(const quint32, type);
    QFETCH(const bool, isShown);
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected().traits.type = type;
    QCOMPARE(fixture.plugin->UpdateUi(), isShown ? BF::Results::Success : BF::Results::NothingDone);
    QCOMPARE(fixture.plugin->Selection().objectType, type);
}

void TestPanelGates::callsOfTheDecision_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QStringList>("calls");
    const QString engine = QStringLiteral("GetPhysicsEngineType");
    const QString objects = QStringLiteral("GetSelectedObjects");
    const QString blocked = QStringLiteral("IsPanelBlockedForObject");
    const QString aux = QStringLiteral("QueryAuxState");
    const QString blockedEx = QStringLiteral("IsPanelBlockedForObjectEx");
    const QString type = QStringLiteral("GetObjectType");
    const QString kind = QStringLiteral("GetObjectKind");
    const QString state = QStringLiteral("GetSoftClothConvertState");
    QTest::newRow("family A") << ECompatibleApp::FamilyA << 1U << QStringList{engine, objects, blocked, type, kind};
    QTest::newRow("family A, type 5") << ECompatibleApp::FamilyA << 5U
                                      << QStringList{engine, objects, blocked, type, kind, state};
    QTest::newRow("family A, type 6") << ECompatibleApp::FamilyA << 6U
                                      << QStringList{engine, objects, blocked, type, kind, state};
    QTest::newRow("family B") << ECompatibleApp::FamilyB << 5U
                              << QStringList{engine, objects, aux, blockedEx, type, kind};
    QTest::newRow("both") << ECompatibleApp::Both << 5U
                          << QStringList{engine, objects, aux, blockedEx, type, kind, state};
}

void TestPanelGates::callsOfTheDecision()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const quint32, type);
    QFETCH(const QStringList, calls);
    PluginFixture fixture(app);
    fixture.Initialize();
    fixture.AddSelected().traits.type = type;
    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    const QStringList all = fixture.Take();
    QCOMPARE(all.mid(0, calls.size()), calls);
    QCOMPARE(all.mid(calls.size(), 4), shown);
}

void TestPanelGates::selectedObjectsAreAskedForWithTheFlagOne()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected();
    fixture.plugin->UpdateUi();
    const QStringList asked = TakeCalls(fixture.host.Journal()).filter(QStringLiteral("GetSelectedObjects("));
    QCOMPARE(asked, QStringList{QStringLiteral("GetSelectedObjects([\"Hero\"], 1) -> 0")});
}

void TestPanelGates::unansweredQuestionHasItsPreset_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("engine 0") << QStringLiteral("GetPhysicsEngineType") << false;
    QTest::newRow("not blocked") << QStringLiteral("IsPanelBlockedForObject") << true;
    QTest::newRow("convert state 3") << QStringLiteral("GetSoftClothConvertState") << true;
}

void TestPanelGates::unansweredQuestionHasItsPreset()
{
    QFETCH(const QString, operation);
    QFETCH(const bool, isShown);
    PluginFixture fixture;
    fixture.Initialize();
    fixture.AddSelected().traits = {5, 0, 3, false, false};
    // The host reports success and leaves the value as it is.
    fixture.host.Faults().FailOperation(operation, BF::Results::Success);
    QCOMPARE(fixture.plugin->UpdateUi(), isShown ? BF::Results::Success : BF::Results::NothingDone);
    QVERIFY(fixture.Take().contains(operation));
}

void TestPanelGates::hidingClearsTheSelectionAndLeavesTheWeightMapMode()
{
    PluginFixture fixture;
    fixture.Initialize();
    Host::Object& first = fixture.AddSelected();
    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    fixture.plugin->Selection().mesh = 5;
    fixture.plugin->Selection().material = 6;
    fixture.host.CurrentScene().dialogMode = MV::EDialogMode::WeightMap;
    Host::Object& second = fixture.host.CurrentScene().AddObject(SampleModels::Flag());
    fixture.host.CurrentScene().SetSelection({first.handle, second.handle});
    fixture.Take();

    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::NothingDone);
    QVERIFY(!fixture.plugin->Selection().object);
    QCOMPARE(fixture.plugin->Selection().mesh, std::size_t(0));
    QCOMPARE(fixture.plugin->Selection().material, std::size_t(0));
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode::None);
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral("GetPhysicsEngineType"), QStringLiteral("GetSelectedObjects"),
                                          QStringLiteral("GetDialogMode"), QStringLiteral("SetDialogMode")} +
                              hidden));
}

void TestPanelGates::hidingClearsTheSelectionBeforeTheHostHearsOfIt()
{
    ShownFixture fixture;
    fixture.host.CurrentScene().dialogMode = MV::EDialogMode::WeightMap;
    QStringList empty;
    const QObject whileTheFixtureLives;
    connect(&fixture.host.Journal(), &Host::CallJournal::EntryAdded, &whileTheFixtureLives,
            [&fixture, &empty](int index) {
                const MV::SoftClothSelection& selection = fixture.plugin->Selection();
                if (!selection.object && !selection.mesh && !selection.material) {
                    empty.append(fixture.host.Journal().Entries().at(index).operation);
                }
            });
    fixture.plugin->ShowAll(false);
    QCOMPARE(empty.mid(0, 2), (QStringList{QStringLiteral("GetDialogMode"), QStringLiteral("SetDialogMode")}));
}

void TestPanelGates::hidingLeavesOtherDialogModesAlone()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.host.CurrentScene().dialogMode = MV::EDialogMode(24);
    fixture.Take();
    fixture.plugin->UpdateUi();
    QCOMPARE(fixture.host.CurrentScene().dialogMode, MV::EDialogMode(24));
    QVERIFY(!fixture.Take().contains(QStringLiteral("SetDialogMode")));
}

void TestPanelGates::hidingInFamilyBEndsAlthoughTheModeChangeNests()
{
    PluginFixture fixture(ECompatibleApp::FamilyB);
    fixture.Initialize();
    fixture.host.CurrentScene().dialogMode = MV::EDialogMode::WeightMap;
    fixture.Take();
    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::NothingDone);
    const QStringList nested{QStringLiteral("GetPhysicsEngineType"), QStringLiteral("GetSelectedObjects"),
                             QStringLiteral("GetDialogMode")};
    QCOMPARE(fixture.Take(), (nested + QStringList{QStringLiteral("SetDialogMode")} + nested + hidden + hidden));
}

void TestPanelGates::failingHostCallIsReturned_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<QString>("operation");
    for (const char* operation : {"GetPhysicsEngineType", "GetSelectedObjects", "IsPanelBlockedForObject",
                                  "GetObjectType", "GetObjectKind", "GetSoftClothConvertState"}) {
        QTest::addRow("family A, %s", operation) << ECompatibleApp::FamilyA << QString::fromLatin1(operation);
    }
    QTest::newRow("family B, QueryAuxState") << ECompatibleApp::FamilyB << QStringLiteral("QueryAuxState");
}

void TestPanelGates::failingHostCallIsReturned()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const QString, operation);
    PluginFixture fixture(app);
    fixture.Initialize();
    fixture.AddSelected().traits.type = 5;
    const BF::Result failure(0x8000ABCD);
    fixture.host.Faults().FailOperation(operation, failure);
    fixture.Take();

    QCOMPARE(fixture.plugin->UpdateUi(), failure);
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.constLast(), operation);
    QVERIFY2(!calls.contains(shown.first()) && !calls.contains(hidden.first()),
             "a failure neither shows nor hides the panel");
}

SOFTCLOTH_TEST(TestPanelGates)
#include "tst_panel_gates.moc"
