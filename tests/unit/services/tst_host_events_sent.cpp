#include "host/services/HostApplication.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QSignalSpy>

#include <functional>

using Action = std::function<void(Host::HostApplication&, BF::CHandle*)>;
Q_DECLARE_METATYPE(Action)

/// Which events the stand-in host sends, and that the state is in place before.
class TestHostEventsSent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void changeSendsItsEventsOnce_data();
    void changeSendsItsEventsOnce();
    void stateIsStoredBeforeItsEvent();
    void pickModeTellsNewAndOld();
    void undoShowsTheValuesAgain();
    void undoOfADeletionBringsTheObjectBack();
};

namespace {

/// The events in the journal, and empties it.
QStringList TakeEvents(Host::HostApplication& host)
{
    QStringList events;
    for (const Host::JournalEntry& entry : host.Journal().Entries()) {
        if (entry.kind == Host::JournalEntry::Kind::Event) {
            events.append(entry.operation);
        }
    }
    host.Journal().Clear();
    return events;
}

} // namespace

void TestHostEventsSent::changeSendsItsEventsOnce_data()
{
    QTest::addColumn<Action>("change");
    QTest::addColumn<QString>("events");
    const auto row = [](const char* name, const Action& change, const char* events) {
        QTest::newRow(name) << change << QString::fromLatin1(events);
    };
    using Application = Host::HostApplication;
    using H = BF::CHandle*;
    row(
        "engine", [](Application& host, H) { host.SetPhysicsEngine(2); }, "PhysicsEngineChanged");
    row(
        "playing", [](Application& host, H) { host.SetPlaying(true); }, "Played");
    row(
        "dialog mode", [](Application& host, H) { host.SetDialogMode(MV::EDialogMode::WeightMap); },
        "DialogModeChanged");
    row(
        "pick mode", [](Application& host, H) { host.SetPickMode(MV::EPickMode::Material); }, "PickedModeChanged");
    row(
        "selection", [](Application& host, H object) { host.Select({object}); }, "ObjectSelectionChanged");
    row(
        "convert state", [](Application& host, H object) { host.SetConvertState(object, 1); },
        "AboutToConvertPhysicsObjectType ObjectDataChanged");
    row(
        "traits",
        [](Application& host, H object) {
            host.SetTraits(object, {5, 0, 3, false, false});
        },
        "ObjectDataChanged");
    row(
        "soft cloth", [](Application& host, H object) { host.SetSoftClothActive(object, true); }, "ObjectDataChanged");
    row(
        "material name",
        [](Application& host, H object) {
            host.RenameMaterial(host.CurrentScene().FindObject(object)->materials.front().id, QStringLiteral("New"));
        },
        "ObjectDataChanged");
    row(
        "delete", [](Application& host, H object) { host.DeleteObject(object); }, "ObjectDeleted");
}

void TestHostEventsSent::changeSendsItsEventsOnce()
{
    QFETCH(const Action, change);
    QFETCH(const QString, events);
    Host::HostApplication host;
    BF::CHandle* hero = host.CurrentScene().AddObject(SampleModels::Hero()).handle;
    change(host, hero);
    QCOMPARE(TakeEvents(host).join(QLatin1Char(' ')), events);
    // The same value once more is no change.
    change(host, hero);
    QCOMPARE(TakeEvents(host), QStringList());
}

void TestHostEventsSent::stateIsStoredBeforeItsEvent()
{
    Host::HostApplication host;
    MV::CEventSender* sender = host.GetEventSender();
    int heard = 0;
    connect(sender, &MV::CEventSender::DialogModeChanged, this, [&](MV::EDialogMode mode) {
        ++heard;
        QCOMPARE(host.CurrentScene().dialogMode, mode);
        // A listener may set it again from inside.
        host.SetDialogMode(MV::EDialogMode::None);
    });
    connect(sender, &MV::CEventSender::Played, this, [&] {
        ++heard;
        QVERIFY(host.CurrentScene().playing);
    });
    host.SetDialogMode(MV::EDialogMode::WeightMap);
    QCOMPARE(host.CurrentScene().dialogMode, MV::EDialogMode::None);
    host.SetPlaying(true);
    QCOMPARE(heard, 3);
}

void TestHostEventsSent::pickModeTellsNewAndOld()
{
    Host::HostApplication host;
    host.SetPickMode(MV::EPickMode::Material);
    QSignalSpy spy(host.GetEventSender(), &MV::CEventSender::PickedModeChanged);
    host.SetPickMode(MV::EPickMode::None);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<MV::EPickMode>(), MV::EPickMode::None);
    QCOMPARE(spy.at(0).at(1).value<MV::EPickMode>(), MV::EPickMode::Material);
}

void TestHostEventsSent::undoShowsTheValuesAgain()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.CurrentScene().AddObject(SampleModels::Hero()).handle;
    host.SetSoftClothActive(hero, true);
    TakeEvents(host);
    const QStringList expected{QStringLiteral("UndoRedoDone"), QStringLiteral("LaunchedImageChanged")};
    host.Undo();
    QCOMPARE(TakeEvents(host), expected);
    host.Redo();
    QCOMPARE(TakeEvents(host), expected);
    host.Redo();
    QCOMPARE(TakeEvents(host), QStringList());
}

void TestHostEventsSent::undoOfADeletionBringsTheObjectBack()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.AddModel(SampleModels::Hero());
    host.DeleteObject(hero);
    QVERIFY(!host.CurrentScene().FindObject(hero));
    QVERIFY(host.CurrentScene().Selection().isEmpty());
    host.Undo();
    QVERIFY(host.CurrentScene().FindObject(hero));
    host.Undo();
    QVERIFY(!host.CurrentScene().FindObject(hero));
    QVERIFY(TakeEvents(host).contains(QStringLiteral("ObjectDeleted")));
}

QTEST_MAIN(TestHostEventsSent)
#include "tst_host_events_sent.moc"
