#include "tests/torture/Runner.h"

#include "tests/support/PanelComparison.h"
#include "tests/torture/ChildProcess.h"
#include "tests/torture/Stage.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QEvent>
#include <QRegularExpression>

namespace Torture {

namespace {

QStringList g_warnings;

void NoteMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    const bool isNoise = message.startsWith(QLatin1String("This plugin does not support"));
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !isNoise) {
        g_warnings.append(message);
    }
    if (type == QtFatalMsg) {
        fprintf(stderr, "%s\n", qPrintable(message));
    }
}

/// Calls that change something, or that the user notices.
bool IsWrite(const Host::JournalEntry& call)
{
    static const QRegularExpression writes(
        QStringLiteral("^(Set|Apply|Convert|Cancel|Delete|Embed|Undo|Load.*(Image|Profile)$|SaveWeight|Change|Enable|"
                       "Disable|Register.*Action|RefreshScene|Launch|ShowPanel)"));
    return call.service != QLatin1String("Scene") && call.operation.contains(writes);
}

/// Writes of values; a mode that the host did not change may be asked for again.
bool IsValueWrite(const QString& operation)
{
    return !operation.contains(QLatin1String("Mode")) && !operation.contains(QLatin1String("HotKey"));
}

/// How often each operation that changes something was called.
QHash<QString, int> CountWrites(const BaseRun& run)
{
    QHash<QString, int> counts;
    for (const Host::JournalEntry& call : run.calls) {
        if (IsWrite(call)) {
            ++counts[call.operation];
        }
    }
    return counts;
}

QStringList Names(const char* list)
{
    return QString::fromLatin1(list).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

BaseRun CallsOf(const Host::CallJournal& journal)
{
    BaseRun run;
    for (const Host::JournalEntry& entry : journal.Entries()) {
        if (entry.kind == Host::JournalEntry::Kind::Call) {
            run.calls.append(entry);
        }
    }
    return run;
}

QByteArray ToBytes(const Outcome& outcome)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << outcome.problems << outcome.run.calls.size();
    for (const Host::JournalEntry& call : outcome.run.calls) {
        stream << call.service << call.operation << call.arguments << call.depth << call.hasStatus;
    }
    return bytes;
}

Outcome FromBytes(const QByteArray& bytes)
{
    Outcome outcome;
    QDataStream stream(bytes);
    int count = 0;
    stream >> outcome.problems >> count;
    for (int i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        Host::JournalEntry call;
        stream >> call.service >> call.operation >> call.arguments >> call.depth >> call.hasStatus;
        outcome.run.calls.append(call);
    }
    if (stream.status() != QDataStream::Ok) {
        outcome.problems.append(QStringLiteral("the report of the case is cut"));
    }
    return outcome;
}

} // namespace

void NoteWarnings()
{
    qInstallMessageHandler(NoteMessage);
}

QStringList TakeWarnings()
{
    return std::exchange(g_warnings, {});
}

Runner::Runner(MV::ECompatibleApp app, const Action& action, const QString& folder)
    : m_stage(std::make_unique<Stage>(app, folder))
    , m_action(action)
{
    if (action.prepare) {
        action.prepare(*m_stage);
    }
    QCoreApplication::processEvents();
    m_stage->App().Journal().Clear();
}

Runner::~Runner() = default;

Outcome Runner::RunBase()
{
    const Outcome base = Run({});
    m_base = base.run;
    m_hasBase = true;
    return base;
}

Outcome Runner::Run(const Blow& blow)
{
    const ChildResult child = RunInChild([&] { return ToBytes(RunHere(blow)); });
    if (!child.problem.isEmpty()) {
        Outcome outcome;
        outcome.problems.append(child.problem);
        return outcome;
    }
    return FromBytes(child.answer);
}

Outcome Runner::RunHere(const Blow& blow)
{
    TakeWarnings();
    Plan(blow, *m_stage);
    m_action.act(*m_stage);
    m_stage->App().Faults().Clear();
    const BaseRun run = CallsOf(m_stage->App().Journal());
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {run, Check(blow, run)};
}

QStringList Runner::Check(const Blow& blow, const BaseRun& run)
{
    QStringList problems = CheckWrites(blow, run);
    Host::HostApplication& host = m_stage->App();
    // A panel that did not start tries again before it is looked at.
    if (m_stage->panel.Plugin().InitializeResult().IsFailure()) {
        m_stage->panel.Start(m_stage->family);
    }
    PanelComparison::Settle(host);
    const bool isWhole = blow.kind != Blow::Kind::Destroy;
    if (isWhole || blow.what != QLatin1String("plugin")) {
        problems += PanelComparison::Differences(host, m_stage->family);
    }
    for (const QString& warning : TakeWarnings()) {
        problems.append(QLatin1String("warning: ") + warning);
    }
    return problems;
}

QStringList Runner::CheckWrites(const Blow& blow, const BaseRun& run) const
{
    QStringList problems;
    const QHash<QString, int> counts = CountWrites(run);
    const QStringList must = Names(m_action.writes);
    const bool hasPanel = HasAnyBit(m_stage->family, MV::ECompatibleApp::Both);
    if (blow.kind == Blow::Kind::None && hasPanel) {
        for (const QString& operation : must) {
            if (!counts.contains(operation)) {
                problems.append(operation + QLatin1String(" was not called"));
            }
        }
    }
    QStringList owned = must + Names(m_action.mayWrite);
    const bool hasEvent = blow.kind == Blow::Kind::Event || blow.kind == Blow::Kind::EventAtEnd;
    if (hasEvent) {
        // What the panel answers to such an event.
        owned +=
            {QStringLiteral("SetDialogMode"), QStringLiteral("CancelPickMode"), QStringLiteral("EnableHotKeyAction"),
             QStringLiteral("DisableHotKeyAction"), QStringLiteral("SetUseGlobalGravity")};
    }
    // A call that did nothing but did not fail either leaves the panel without an object.
    const bool isHalfFailure = (blow.kind == Blow::Kind::Fail || blow.kind == Blow::Kind::FailAll) && blow.code > 0;
    if (blow.kind == Blow::Kind::Destroy || isHalfFailure) {
        owned += {QStringLiteral("SetDialogMode"), QStringLiteral("CancelPickMode")};
    }
    const QHash<QString, int> baseCounts = CountWrites(m_base);
    for (auto write = counts.begin(); write != counts.end(); ++write) {
        if (!owned.contains(write.key())) {
            problems.append(QLatin1String("unasked ") + write.key());
        } else if (m_hasBase && !hasEvent && must.contains(write.key()) && IsValueWrite(write.key()) &&
                   write.value() > baseCounts.value(write.key())) {
            problems.append(QStringLiteral("%1 was called %2 times").arg(write.key()).arg(write.value()));
        }
    }
    return problems;
}

} // namespace Torture
