#include "host/services/HostApplication.h"
#include "tests/support/HostCalls.h"
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
    void undoOfADeletionSelectsTheObjectAgain();
    void severalObjectsAreDeletedAsOneStep();
    void redoOfAnImportSelectsTheObject();
    void selectingAgainSendsTheEventOnceMore();
    void modelThatIsTooMuchForTheSceneIsRefused();
};

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
        "delete", [](Application& host, H object) { host.DeleteObjects({object}); }, "ObjectDeleted");
}

void TestHostEventsSent::changeSendsItsEventsOnce()
{
    QFETCH(const Action, change);
    QFETCH(const QString, events);
    Host::HostApplication host;
    BF::CHandle* hero = host.CurrentScene().AddObject(SampleModels::Hero()).handle;
    change(host, hero);
    QCOMPARE(TakeEvents(host.Journal()).join(QLatin1Char(' ')), events);
    // The same value once more is no change.
    change(host, hero);
    QCOMPARE(TakeEvents(host.Journal()), QStringList());
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
    TakeEvents(host.Journal());
    const QStringList expected{QStringLiteral("UndoRedoDone"), QStringLiteral("LaunchedImageChanged")};
    host.Undo();
    QCOMPARE(TakeEvents(host.Journal()), expected);
    host.Redo();
    QCOMPARE(TakeEvents(host.Journal()), expected);
    host.Redo();
    QCOMPARE(TakeEvents(host.Journal()), QStringList());
}

void TestHostEventsSent::undoOfADeletionBringsTheObjectBack()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.AddModel(SampleModels::Hero());
    host.DeleteObjects({hero});
    QVERIFY(!host.CurrentScene().FindObject(hero));
    QVERIFY(host.CurrentScene().Selection().isEmpty());
    host.Undo();
    QVERIFY(host.CurrentScene().FindObject(hero));
    host.Undo();
    QVERIFY(!host.CurrentScene().FindObject(hero));
    QVERIFY(TakeEvents(host.Journal()).contains(QStringLiteral("ObjectDeleted")));
}

void TestHostEventsSent::undoOfADeletionSelectsTheObjectAgain()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.AddModel(SampleModels::Hero());
    BF::CHandle* flag = host.AddModel(SampleModels::Flag());
    host.Select({hero});
    host.DeleteObjects({hero});
    host.Select({flag});
    TakeEvents(host.Journal());
    QVector<BF::CHandle*> seen;
    connect(host.GetEventSender(), &MV::CEventSender::ObjectSelectionChanged, this,
            [&] { seen = host.CurrentScene().Selection(); });
    host.Undo();
    QCOMPARE(host.CurrentScene().Selection(), QVector<BF::CHandle*>{hero});
    QCOMPARE(seen, QVector<BF::CHandle*>{hero});
    QCOMPARE(TakeEvents(host.Journal()).count(QStringLiteral("ObjectSelectionChanged")), 1);
}

void TestHostEventsSent::severalObjectsAreDeletedAsOneStep()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.AddModel(SampleModels::Hero());
    BF::CHandle* flag = host.AddModel(SampleModels::Flag());
    host.Select({hero, flag});
    const int steps = host.CurrentScene().UndoStack().index();
    host.DeleteObjects(host.CurrentScene().Selection());
    QVERIFY(host.CurrentScene().Objects().empty());
    QCOMPARE(host.CurrentScene().UndoStack().index(), steps + 1);
    host.Undo();
    QCOMPARE(host.CurrentScene().Selection(), (QVector<BF::CHandle*>{hero, flag}));
}

void TestHostEventsSent::redoOfAnImportSelectsTheObject()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.AddModel(SampleModels::Hero());
    host.Undo();
    host.Redo();
    QCOMPARE(host.CurrentScene().Selection(), QVector<BF::CHandle*>{hero});
}

void TestHostEventsSent::selectingAgainSendsTheEventOnceMore()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.AddModel(SampleModels::Hero());
    TakeEvents(host.Journal());
    host.Select({hero});
    QCOMPARE(TakeEvents(host.Journal()), QStringList());
    host.SelectAgain();
    QCOMPARE(TakeEvents(host.Journal()), QStringList{QStringLiteral("ObjectSelectionChanged")});
}

void TestHostEventsSent::modelThatIsTooMuchForTheSceneIsRefused()
{
    Host::HostApplication host;
    QSignalSpy problems(&host, &Host::HostApplication::ProblemTold);
    Host::Object many;
    many.name = QStringLiteral("Many");
    many.meshes.resize(60000);
    BF::CHandle* const first = host.AddModel(many);
    QVERIFY(first);
    TakeEvents(host.Journal());
    QVERIFY(!host.AddModel(many));
    QCOMPARE(problems.size(), 1);
    const QString told = problems.at(0).at(0).toString();
    QVERIFY2(told.contains(QStringLiteral("it has 120000 meshes, and more than 100000 are too many")),
             qPrintable(told));
    QCOMPARE(TakeEvents(host.Journal()), QStringList());
    QCOMPARE(host.CurrentScene().AllObjects().size(), std::size_t{1});
    QCOMPARE(host.CurrentScene().Selection(), QVector<BF::CHandle*>{first});
}

SOFTCLOTH_TEST(TestHostEventsSent)
#include "tst_host_events_sent.moc"
