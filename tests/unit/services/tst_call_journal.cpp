#include "host/services/CallJournal.h"
#include "host/services/FaultPlan.h"
#include "host/services/HostApplication.h"
#include "host/workbench/CallJournalModel.h"
#include "host/workbench/HostCallsView.h"
#include "plugin/services/SceneService.h"
#include "tests/support/Children.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QLabel>
#include <QTableView>

#include <algorithm>

Q_DECLARE_METATYPE(Host::FaultPlan::Moment)

/// The journal of host calls and the plan of failing ones.
class TestCallJournal : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void callIsRecordedWithArgumentsAndResult();
    void callsInsideAnEventAreIndented();
    void clearingInsideACallIsSafe();
    void lastEntriesAreKept();
    void viewSaysThatEntriesWereDropped();
    void nthCallFails();
    void operationFailsAsOftenAsPlanned();
    void callsFailFromOneOn_data();
    void callsFailFromOneOn();
    void anythingHappensInsideACall_data();
    void anythingHappensInsideACall();
    void interceptedCallCanFail();
    void plannedFailureDoesNothing();
    void plainValuesCannotFail();
};

namespace {

Host::JournalEntry Entry(const char* operation)
{
    Host::JournalEntry entry;
    entry.service = QStringLiteral("Test");
    entry.operation = QLatin1String(operation);
    return entry;
}

} // namespace

void TestCallJournal::callIsRecordedWithArgumentsAndResult()
{
    Host::HostApplication host;
    BF::CHandle* hero = host.CurrentScene().AddObject(SampleModels::Hero()).handle;
    host.Journal().Clear();
    quint32 type = 0;
    QCOMPARE(host.GetSceneService()->GetObjectType(hero, type), BF::Results::Success);
    QCOMPARE(type, 1U);
    QCOMPARE(host.GetSceneService()->GetObjectType(nullptr, type), BF::Results::InvalidArgument);
    QCOMPARE(host.Journal().ToText(), QStringLiteral("Scene.GetObjectType(\"Hero\", 1) -> 0\n"
                                                     "Scene.GetObjectType(null, 1) -> 0x80000003\n"));
}

void TestCallJournal::callsInsideAnEventAreIndented()
{
    Host::HostApplication host;
    connect(host.GetEventSender(), &MV::CEventSender::Played, this, [&host] { host.GetSceneService()->IsPlaying(); });
    host.SetPlaying(true);
    QCOMPARE(host.Journal().ToText(), QStringLiteral("Event.Played()\n  Scene.IsPlaying() -> true\n"));
}

void TestCallJournal::clearingInsideACallIsSafe()
{
    Host::CallJournal journal;
    const qint64 outer = journal.Begin(Entry("Outer"));
    journal.Clear();
    const qint64 inner = journal.Begin(Entry("Inner"));
    journal.End(inner, {}, QStringLiteral("0"));
    journal.End(outer, {}, QStringLiteral("1"));
    QCOMPARE(journal.ToText(), QStringLiteral("  Test.Inner() -> 0\n"));
    journal.End(journal.Begin(Entry("Next")), {}, {});
    QCOMPARE(journal.Entries().constLast().depth, 0);
}

void TestCallJournal::lastEntriesAreKept()
{
    constexpr int most = Host::CallJournal::mostEntries;
    Host::CallJournal journal;
    const qint64 outer = journal.Begin(Entry("Outer"));
    int largest = 0;
    for (int i = 1; i <= 3 * most; ++i) {
        journal.End(journal.Begin(Entry(qPrintable(QStringLiteral("Call%1").arg(i)))), {QString::number(i)}, {});
        largest = std::max(largest, journal.Entries().size());
        QVERIFY(journal.Entries().size() >= std::min(i + 1, most));
    }
    QVERIFY(largest <= most + most / 10);
    QCOMPARE(journal.Entries().last().ToString(), QStringLiteral("Call%1(%1)").arg(3 * most));
    const int kept = journal.Entries().size();
    QCOMPARE(journal.Entries().first().operation, QStringLiteral("Call%1").arg(3 * most - kept + 1));
    journal.End(outer, {}, QStringLiteral("late")); // dropped long ago
    QVERIFY(journal.Entries().first().result.isEmpty());
    const QString gone = QLocale().toString(3 * most + 1 - kept);
    QVERIFY2(journal.DroppedText().contains(gone), qPrintable(journal.DroppedText()));
    QVERIFY(journal.ToText().startsWith(journal.DroppedText() + u'\n'));
    journal.Clear();
    QVERIFY(journal.DroppedText().isNull());
}

void TestCallJournal::viewSaysThatEntriesWereDropped()
{
    constexpr int most = Host::CallJournal::mostEntries;
    Host::CallJournal journal;
    const auto fill = [&](int count) {
        for (int i = 0; i < count; ++i) {
            journal.End(journal.Begin(Entry("Call")), {}, {});
        }
    };
    fill(most - 1);
    journal.End(journal.Begin(Entry("Marked")), {}, {});
    Host::HostCallsView view(journal);
    view.show();
    auto* const table = Child<QTableView>(&view, "hostCallsTable");
    auto* const label = Child<QLabel>(&view, "hostCallsDropped");
    Host::CallJournalModel model(journal, nullptr);
    QVERIFY(!label->isVisible());
    fill(most / 10);
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), journal.DroppedText());
    QCOMPARE(model.rowCount(), journal.Entries().size());
    QCOMPARE(table->model()->rowCount(), journal.Entries().size());
    const int row = model.rowCount() - most / 10 - 1;
    QCOMPARE(table->model()->columnCount(), int(Host::CallJournalModel::ColumnCount));
    QVERIFY(table->model()->index(row, 1).data().toString().startsWith(QStringLiteral("Marked")));
    journal.Clear();
    QVERIFY(!label->isVisible());
}

void TestCallJournal::nthCallFails()
{
    Host::FaultPlan plan;
    plan.FailCall(3, BF::Results::Refused);
    QVERIFY(!plan.IsEmpty());
    QVERIFY(!plan.Consult(QStringLiteral("A")));
    QVERIFY(!plan.Consult(QStringLiteral("B")));
    QCOMPARE(plan.Consult(QStringLiteral("A")), std::make_optional(BF::Results::Refused));
    QVERIFY(!plan.Consult(QStringLiteral("A")));
    QVERIFY(plan.IsEmpty());
}

void TestCallJournal::operationFailsAsOftenAsPlanned()
{
    Host::FaultPlan plan;
    plan.FailOperation(QStringLiteral("A"), BF::Results::Refused, 2);
    plan.FailOperation(QStringLiteral("B"), BF::Results::ResourceFailure);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(plan.Consult(QStringLiteral("A")).has_value(), i < 2);
        QCOMPARE(plan.Consult(QStringLiteral("B")), std::make_optional(BF::Results::ResourceFailure));
        QVERIFY(!plan.Consult(QStringLiteral("C")));
    }
    plan.Clear();
    QVERIFY(!plan.Consult(QStringLiteral("B")));
}

void TestCallJournal::callsFailFromOneOn_data()
{
    QTest::addColumn<int>("times");
    QTest::addColumn<QVector<bool>>("fails");
    QTest::newRow("never") << 0 << QVector<bool>{false, false, false, false, false};
    QTest::newRow("once") << 1 << QVector<bool>{false, true, false, false, false};
    QTest::newRow("twice") << 2 << QVector<bool>{false, true, true, false, false};
    QTest::newRow("for good") << -1 << QVector<bool>{false, true, true, true, true};
}

void TestCallJournal::callsFailFromOneOn()
{
    QFETCH(const int, times);
    QFETCH(const QVector<bool>, fails);
    Host::FaultPlan plan;
    plan.FailCall(2, BF::Results::Refused, times);
    for (const bool fail : fails) {
        QCOMPARE(plan.Consult(QStringLiteral("A")).has_value(), fail);
    }
    plan.Clear();
    QVERIFY(!plan.Consult(QStringLiteral("A")));
}

void TestCallJournal::anythingHappensInsideACall_data()
{
    QTest::addColumn<bool>("byName");
    QTest::addColumn<Host::FaultPlan::Moment>("moment");
    QTest::addColumn<quint32>("answer");
    QTest::newRow("second call, at its beginning") << false << Host::FaultPlan::Moment::Beginning << 30U;
    QTest::newRow("second call, at its end") << false << Host::FaultPlan::Moment::End << 1U;
    QTest::newRow("by name, at its beginning") << true << Host::FaultPlan::Moment::Beginning << 30U;
    QTest::newRow("by name, at its end") << true << Host::FaultPlan::Moment::End << 1U;
}

void TestCallJournal::anythingHappensInsideACall()
{
    QFETCH(const bool, byName);
    QFETCH(const Host::FaultPlan::Moment, moment);
    QFETCH(const quint32, answer);
    Host::HostApplication host;
    Host::Object& hero = host.CurrentScene().AddObject(SampleModels::Hero());
    int count = 0;
    const auto happen = [&] {
        ++count;
        hero.traits.type = 30;
        // A call inside the call: it is no longer planned for.
        host.GetSceneService()->IsPlaying();
    };
    if (byName) {
        host.Faults().Intercept(QStringLiteral("GetObjectType"), happen, moment);
    } else {
        host.Faults().Intercept(2, happen, moment);
    }
    // Calls without a status count.
    host.GetSceneService()->IsPlaying();
    QCOMPARE(count, 0);
    quint32 type = 77;
    QCOMPARE(host.GetSceneService()->GetObjectType(hero.handle, type), BF::Results::Success);
    QCOMPARE(type, answer);
    QCOMPARE(count, 1);
    host.GetSceneService()->GetObjectType(hero.handle, type);
    QCOMPARE(count, 1);
    QVERIFY(host.Faults().IsEmpty());
}

void TestCallJournal::interceptedCallCanFail()
{
    Host::HostApplication host;
    host.Faults().Intercept(2, [&host] { host.Faults().FailCall(1, BF::Results::Refused); });
    int engine = 0;
    QCOMPARE(host.GetSceneService()->GetPhysicsEngineType(engine), BF::Results::Success);
    QCOMPARE(host.GetSceneService()->GetPhysicsEngineType(engine), BF::Results::Refused);
    QCOMPARE(host.GetSceneService()->GetPhysicsEngineType(engine), BF::Results::Success);
}

void TestCallJournal::plannedFailureDoesNothing()
{
    Host::HostApplication host;
    const Host::Object& hero = host.CurrentScene().AddObject(SampleModels::Hero());
    host.Faults().FailOperation(QStringLiteral("GetObjectType"), BF::Result(0x80000042));
    quint32 type = 77;
    QCOMPARE(host.GetSceneService()->GetObjectType(hero.handle, type), BF::Result(0x80000042));
    QCOMPARE(type, 77U);
}

void TestCallJournal::plainValuesCannotFail()
{
    Host::HostApplication host;
    host.Faults().FailCall(1, BF::Results::Refused);
    QCOMPARE(host.GetSceneService()->GetSelectedObjectCount(), 0);
    int engine = 0;
    QCOMPARE(host.GetSceneService()->GetPhysicsEngineType(engine), BF::Results::Refused);
}

SOFTCLOTH_TEST(TestCallJournal)
#include "tst_call_journal.moc"
