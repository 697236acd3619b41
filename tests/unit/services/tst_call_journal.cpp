#include "host/services/CallJournal.h"
#include "host/services/FaultPlan.h"
#include "host/services/HostApplication.h"
#include "plugin/services/SceneService.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

/// The journal of host calls and the plan of failing ones.
class TestCallJournal : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void callIsRecordedWithArgumentsAndResult();
    void callsInsideAnEventAreIndented();
    void clearingInsideACallIsSafe();
    void nthCallFails();
    void operationFailsAsOftenAsPlanned();
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

QTEST_MAIN(TestCallJournal)
#include "tst_call_journal.moc"
