// Tortures the panel: whatever a user or the host does is done again and again, and each time something goes wrong in
// another host call. After each case the panel must show what the host holds.
#include "tests/torture/Actions.h"
#include "tests/torture/ChildProcess.h"
#include "tests/torture/Report.h"
#include "tests/torture/Runner.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <numeric>

namespace {

using MV::ECompatibleApp;
using namespace Torture;

struct Family
{
    const char* name;
    ECompatibleApp app;
};

const Family families[] = {{"A", ECompatibleApp::FamilyA},
                           {"B", ECompatibleApp::FamilyB},
                           {"both", ECompatibleApp::Both},
                           {"none", ECompatibleApp::None}};

struct Options
{
    QStringList actions;
    QStringList families;
    bool isShort = false;
    double minutes = 0; ///< 0 for as long as it takes.
    Blow blow;
    bool hasBlow = false;
    bool inPlace = false;
};

Blow BlowOf(const QCommandLineParser& parser)
{
    Blow blow;
    blow.call = parser.value(QStringLiteral("call")).toInt();
    if (parser.isSet(QStringLiteral("fault"))) {
        blow.code = qint32(parser.value(QStringLiteral("fault")).toLongLong(nullptr, 0));
        blow.kind = parser.isSet(QStringLiteral("once")) ? Blow::Kind::Fail : Blow::Kind::FailAll;
    } else if (parser.isSet(QStringLiteral("event"))) {
        blow.what = parser.value(QStringLiteral("event"));
        blow.kind = parser.isSet(QStringLiteral("at-end")) ? Blow::Kind::EventAtEnd : Blow::Kind::Event;
    } else if (parser.isSet(QStringLiteral("destroy"))) {
        blow.what = parser.value(QStringLiteral("destroy"));
        blow.kind = Blow::Kind::Destroy;
    }
    return blow;
}

Options Parse(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Lets every host call of every action go wrong."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("action"), QStringLiteral("Only this action; can be repeated."), QStringLiteral("name")},
        {QStringLiteral("family"), QStringLiteral("Only A, B, both or none; can be repeated."), QStringLiteral("name")},
        {QStringLiteral("minutes"), QStringLiteral("How long; every case once without it."), QStringLiteral("number")},
        {QStringLiteral("short"), QStringLiteral("A few cases of each action.")},
        {QStringLiteral("call"), QStringLiteral("Only one case: the call that it is about."), QStringLiteral("number")},
        {QStringLiteral("fault"), QStringLiteral("The call and all after it fail."), QStringLiteral("code")},
        {QStringLiteral("once"), QStringLiteral("Only the call itself fails.")},
        {QStringLiteral("event"), QStringLiteral("The host does this in the call."), QStringLiteral("name")},
        {QStringLiteral("at-end"), QStringLiteral("At the end of the call.")},
        {QStringLiteral("destroy"), QStringLiteral("window, panel or plugin."), QStringLiteral("name")},
        {QStringLiteral("in-place"), QStringLiteral("In this very process, for a debugger.")},
    });
    parser.process(application);
    Options options;
    options.actions = parser.values(QStringLiteral("action"));
    options.families = parser.values(QStringLiteral("family"));
    options.isShort = parser.isSet(QStringLiteral("short"));
    options.minutes = parser.value(QStringLiteral("minutes")).toDouble();
    options.hasBlow = parser.isSet(QStringLiteral("call"));
    options.inPlace = parser.isSet(QStringLiteral("in-place"));
    options.blow = BlowOf(parser);
    return options;
}

/// One action in one kind of application.
class Session
{
public:
    Session(const Family& family, const Action& action, Report& report)
        : m_family(family)
        , m_action(action)
        , m_report(report)
    {
    }

    /// \param time  milliseconds that this session may take; negative for all that it wants
    void Run(const Options& options, qint64 time)
    {
        QElapsedTimer clock;
        clock.start();
        const QTemporaryDir folder;
        Runner runner(m_family.app, m_action, folder.path());
        if (options.inPlace) {
            Note({}, runner.RunHere(options.blow).problems);
            return;
        }
        const Outcome base = runner.RunBase();
        Note({}, base.problems);
        QVector<Blow> blows;
        if (options.hasBlow) {
            blows = {options.blow};
        } else {
            blows = options.isShort ? FewBlows(m_action, base.run, 2) : AllBlows(m_action, base.run);
        }
        // In strides, so that a run that is cut short has been everywhere.
        const int stride = Stride(blows.size());
        for (int i = 0, at = 0; i < blows.size() && (time < 0 || clock.elapsed() < time); ++i) {
            Note(blows.at(at), runner.Run(blows.at(at)).problems);
            at = (at + stride) % blows.size();
        }
    }

private:
    static int Stride(int count)
    {
        int stride = qMax(1, int(count * 0.38));
        while (std::gcd(stride, count) > 1) {
            ++stride;
        }
        return stride;
    }

    void Note(const Blow& blow, const QStringList& problems)
    {
        m_report.Add(QLatin1String(m_family.name), QLatin1String(m_action.name), OptionsOf(blow), problems);
    }

    const Family& m_family;
    const Action& m_action;
    Report& m_report;
};

} // namespace

int main(int argc, char** argv)
{
    // So that a failure's command line works anywhere; a loop of its own does not outlive the copying of a process.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    const QApplication application(argc, argv);
    const Options options = Parse(application);
    std::vector<std::pair<const Family*, const Action*>> sessions;
    for (const Family& family : families) {
        for (const Action& action : Actions()) {
            const bool isWanted =
                (options.families.isEmpty() || options.families.contains(QLatin1String(family.name))) &&
                (options.actions.isEmpty() || options.actions.contains(QLatin1String(action.name)));
            if (isWanted) {
                sessions.emplace_back(&family, &action);
            }
        }
    }
    if (sessions.empty()) {
        QTextStream(stderr) << "No such action or family.\n";
        return 2;
    }
    Report report(QString::fromLocal8Bit(argv[0]));
    NoteWarnings();
    QElapsedTimer clock;
    clock.start();
    std::size_t left = sessions.size();
    for (const auto& [family, action] : sessions) {
        // What the sessions before did not use is for those that come.
        const qint64 all = qint64(options.minutes * 60000);
        const qint64 share = all == 0 ? -1 : qMax<qint64>(0, (all - clock.elapsed()) / qint64(left--));
        const Family& chosen = *family;
        const Action& chosenAction = *action;
        const auto run = [&, share] {
            Report own(QString::fromLocal8Bit(argv[0]));
            Session(chosen, chosenAction, own).Run(options, share);
            return own.ToBytes();
        };
        if (options.inPlace) {
            report.AddAll(run());
            continue;
        }
        // A process for each session, too: the kind of application is one for the process.
        SetPatience(0);
        const ChildResult child = RunInChild([&run] {
            SetPatience(60);
            return run();
        });
        if (child.problem.isEmpty()) {
            report.AddAll(child.answer);
        } else {
            report.Add(QLatin1String(chosen.name), QLatin1String(chosenAction.name), {}, {child.problem});
        }
    }
    return report.Print(clock.elapsed()) ? 0 : 1;
}
