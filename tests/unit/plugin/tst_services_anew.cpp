#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"

#include <functional>

/// The plug-in object asks the host for a service at each use and keeps none.
class TestServicesAnew : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void serviceIsAskedForAtEachUse_data();
    void serviceIsAskedForAtEachUse();
    void startingAsksForTheMainWindowAnew();
};

namespace {

/// Passes on another host's services and writes into its journal which of them it is asked for.
class AskedHost final : public MV::CMoviraInterface
{
public:
    static inline const QString asking = QStringLiteral("Asking"); ///< Stands as the service of such an entry.

    explicit AskedHost(Host::HostApplication& inner)
        : m_inner(inner)
    {
    }

    MV::CEventSender* GetEventSender() override { return m_inner.GetEventSender(); }
    MV::CEditService* GetEditService() override { return Asked("Edit", m_inner.GetEditService()); }
    MV::CFileService* GetFileService() override { return Asked("File", m_inner.GetFileService()); }
    MV::CSceneService* GetSceneService() override { return Asked("Scene", m_inner.GetSceneService()); }
    MV::CUiService* GetUiService() override { return Asked("Ui", m_inner.GetUiService()); }
    MV::CHotKeyService* GetHotKeyService() override { return Asked("HotKey", m_inner.GetHotKeyService()); }
    MV::CSoftClothService* GetSoftClothService() override { return Asked("SoftCloth", m_inner.GetSoftClothService()); }
    MV::CAuxService* GetAuxService() override { return Asked("Aux", m_inner.GetAuxService()); }

private:
    template <class Service>
    Service* Asked(const char* name, Service* service)
    {
        Host::JournalEntry entry;
        entry.service = asking;
        entry.operation = QLatin1String(name);
        m_inner.Journal().End(m_inner.Journal().Begin(entry), {}, {});
        return service;
    }

    Host::HostApplication& m_inner;
};

/// The host calls of the journal whose service was not asked for since its last call.
QStringList CallsWithoutAsking(const Host::CallJournal& journal, QStringList* uses)
{
    QSet<QString> asked;
    QStringList calls;
    for (const Host::JournalEntry& entry : journal.Entries()) {
        if (entry.service == AskedHost::asking) {
            asked.insert(entry.operation);
        } else if (entry.kind == Host::JournalEntry::Kind::Call && entry.service != QLatin1String("Part")) {
            uses->append(entry.operation);
            if (!asked.remove(entry.service)) {
                calls.append(entry.operation);
            }
        }
    }
    return calls;
}

} // namespace

void TestServicesAnew::serviceIsAskedForAtEachUse_data()
{
    QTest::addColumn<MV::ECompatibleApp>("app");
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("operation"); ///< One that is used then, so that there is something to look at.
    const auto a = MV::ECompatibleApp::FamilyA;
    const auto b = MV::ECompatibleApp::FamilyB;
    const auto row = [](MV::ECompatibleApp app, const char* event, const char* operation) {
        QTest::addRow("%s, %s", event, operation)
            << app << QString::fromLatin1(event) << QString::fromLatin1(operation);
    };
    row(a, "ObjectSelectionChanged", "GetSoftClothConvertState");
    row(b, "ObjectSelectionChanged", "QueryAuxState");
    row(a, "nothing selected", "SetDialogMode");
    row(a, "Played", "IsPlaying");
    row(a, "HierarchyChanged", "GetSelectedObject");
    row(a, "UndoRedoDone", "GetSelectedObjectCount");
    row(a, "AboutToConvertPhysicsObjectType", "GetObjectType");
    row(a, "PickedMaterialIndexChanged", "GetDialogMode");
}

void TestServicesAnew::serviceIsAskedForAtEachUse()
{
    QFETCH(const MV::ECompatibleApp, app);
    QFETCH(const QString, event);
    QFETCH(const QString, operation);
    PluginFixture fixture(app);
    AskedHost host(fixture.host);
    QCOMPARE(fixture.InitializeIn(host), BF::Results::Success);
    Host::Object& object = fixture.AddSelected();
    object.traits.type = 5;
    QCOMPARE(fixture.plugin->UpdateUi(), BF::Results::Success);
    fixture.host.CurrentScene().dialogMode = MV::EDialogMode::WeightMap;
    MV::CEventSender& sender = *fixture.host.GetEventSender();
    const QHash<QString, std::function<void()>> events{
        {QStringLiteral("ObjectSelectionChanged"), [&] { Q_EMIT sender.ObjectSelectionChanged(); }},
        {QStringLiteral("nothing selected"), [&] { fixture.host.Select({}); }},
        {QStringLiteral("Played"), [&] { Q_EMIT sender.Played(); }},
        {QStringLiteral("HierarchyChanged"), [&] { Q_EMIT sender.HierarchyChanged(); }},
        {QStringLiteral("UndoRedoDone"), [&] { Q_EMIT sender.UndoRedoDone(); }},
        {QStringLiteral("AboutToConvertPhysicsObjectType"), [&] { Q_EMIT sender.AboutToConvertPhysicsObjectType(); }},
        {QStringLiteral("PickedMaterialIndexChanged"),
         [&] { Q_EMIT sender.PickedMaterialIndexChanged(object.handle, 0); }}};
    fixture.Take();
    events.value(event)();

    QStringList uses;
    QCOMPARE(CallsWithoutAsking(fixture.host.Journal(), &uses), QStringList());
    QVERIFY2(uses.contains(operation), qPrintable(uses.join(u' ')));
}

void TestServicesAnew::startingAsksForTheMainWindowAnew()
{
    PluginFixture fixture;
    AskedHost host(fixture.host);
    for (int start = 0; start < 2; ++start) {
        fixture.Take();
        QCOMPARE(fixture.InitializeIn(host), BF::Results::Success);
        QStringList uses;
        QCOMPARE(CallsWithoutAsking(fixture.host.Journal(), &uses), QStringList());
        QCOMPARE(uses, QStringList{QStringLiteral("GetMainWindow")});
    }
}

SOFTCLOTH_TEST(TestServicesAnew)
#include "tst_services_anew.moc"
