#include "tests/torture/Case.h"

#include "tests/torture/Actions.h"
#include "tests/torture/Stage.h"

#include <algorithm>
#include <array>

namespace Torture {

namespace {

/// The codes of the contract, then such as nobody has heard of.
const std::array<qint32, 11> codes{qint32(0x80000002),
                                   qint32(0x80000003),
                                   qint32(0x80000004),
                                   qint32(0x80000005),
                                   qint32(0x80000006),
                                   1,
                                   2,
                                   -1,
                                   qint32(0x80004005),
                                   7,
                                   0x7fffffff};

struct HostDeed
{
    const char* name;
    void (*run)(Stage& stage);
};

const HostDeed events[] = {
    {"select-other", [](Stage& s) { s.App().Select({s.flag}); }},
    {"select-none", [](Stage& s) { s.App().Select({}); }},
    {"select-two",
     [](Stage& s) {
         s.App().Select({s.hero, s.flag});
     }},
    {"undo", [](Stage& s) { s.App().Undo(); }},
    {"load-file", [](Stage& s) { s.LoadOtherScene(); }},
    {"delete-object", [](Stage& s) { s.App().DeleteObjects({s.hero}); }},
    {"change-mode",
     [](Stage& s) {
         const bool isOpen = s.Scene().dialogMode == MV::EDialogMode::WeightMap;
         s.App().SetDialogMode(isOpen ? MV::EDialogMode::None : MV::EDialogMode::WeightMap);
     }},
    {"change-pick-mode",
     [](Stage& s) {
         const bool isPicking = s.Scene().pickMode == MV::EPickMode::Material;
         s.App().SetPickMode(isPicking ? MV::EPickMode::None : MV::EPickMode::Material);
     }},
    {"play", [](Stage& s) { s.App().SetPlaying(true); }},
    {"ignore-materials",
     [](Stage& s) {
         if (s.Scene().FindObject(s.hero)) {
             s.IgnoreAll(s.hero);
         }
     }},
    {"soft-cloth-off", [](Stage& s) { s.App().SetSoftClothActive(s.hero, false); }},
    {"images-loading", [](Stage& s) { s.Send("ImageAsyncLoadStart", &MV::CEventSender::ImageAsyncLoadStart); }},
};

const HostDeed destructions[] = {
    {"window", [](Stage& s) { s.panel.DestroyWindow(); }},
    {"panel", [](Stage& s) { s.panel.DestroyModifyPanel(); }},
    {"plugin", [](Stage& s) { s.panel.Plugin().Stop(); }},
};

/// Whether a host may destroy the panel inside this call of this action: a message box, a file dialog, a change of mode
/// or a write, unless Qt uses the widget that caused it once more.
bool MayDestroyIn(const Action& action, const BaseRun& base, int number)
{
    const Host::JournalEntry& call = base.calls.at(number - 1);
    const QString next = number < base.calls.size() ? base.calls.at(number).operation : QString();
    static const QStringList windows{QStringLiteral("ShowMessageBox"), QStringLiteral("GetOpenImageFileName"),
                                     QStringLiteral("GetSaveImageFileName"), QStringLiteral("FileDialog"),
                                     QStringLiteral("MaterialTable")};
    static const QStringList modes{QStringLiteral("SetDialogMode"), QStringLiteral("ChangePickMode"),
                                   QStringLiteral("CancelPickMode")};
    static const QStringList services{QStringLiteral("Edit"), QStringLiteral("File"), QStringLiteral("SoftCloth")};
    // Sent while the box that holds the value is still at work on it: each step of an adjustment, and the write of the
    // gravity's box where a profile's own follows.
    const bool isHalfDone =
        (call.operation == QLatin1String("SetWeightImageAdjust") && call.arguments.last() == QLatin1String("false")) ||
        (call.operation == QLatin1String("SetUseGlobalGravity") && next == call.operation);
    // In a host event a mode may change, too.
    const bool isWrite =
        (services.contains(call.service) && call.depth == 0) || (modes.contains(call.operation) && call.depth <= 1);
    return !action.keepsPanel && !isHalfDone && (isWrite || windows.contains(call.operation));
}

Blow NewBlow(Blow::Kind kind, int call, qint32 code, const char* what = "")
{
    return {kind, call, code, QLatin1String(what)};
}

template <std::size_t size>
const HostDeed* FindDeed(const HostDeed (&deeds)[size], const QString& name)
{
    const auto found = std::find_if(std::begin(deeds), std::end(deeds),
                                    [&](const HostDeed& deed) { return name == QLatin1String(deed.name); });
    return found == std::end(deeds) ? nullptr : &*found;
}

void AddDestructions(const Action& action, const BaseRun& base, int call, QVector<Blow>& blows)
{
    if (MayDestroyIn(action, base, call)) {
        for (const HostDeed& destruction : destructions) {
            blows.append(NewBlow(Blow::Kind::Destroy, call, 0, destruction.name));
        }
    }
}

} // namespace

QString OptionsOf(const Blow& blow)
{
    const QString call = QStringLiteral("--call %1 ").arg(blow.call);
    switch (blow.kind) {
    case Blow::Kind::None:
        return {};
    case Blow::Kind::Fail:
        return call + QStringLiteral("--fault %1 --once").arg(blow.code);
    case Blow::Kind::FailAll:
        return call + QStringLiteral("--fault %1").arg(blow.code);
    case Blow::Kind::Event:
        return call + QStringLiteral("--event ") + blow.what;
    case Blow::Kind::EventAtEnd:
        return call + QStringLiteral("--event %1 --at-end").arg(blow.what);
    case Blow::Kind::Destroy:
        return call + QStringLiteral("--destroy ") + blow.what;
    }
    return {};
}

QVector<Blow> AllBlows(const Action& action, const BaseRun& base)
{
    QVector<Blow> blows;
    for (int call = 1; call <= base.calls.size(); ++call) {
        const Host::JournalEntry& entry = base.calls.at(call - 1);
        for (const qint32 code : codes) {
            if (entry.hasStatus) {
                blows.append(NewBlow(Blow::Kind::Fail, call, code));
                blows.append(NewBlow(Blow::Kind::FailAll, call, code));
            }
        }
        for (const HostDeed& event : events) {
            blows.append(NewBlow(Blow::Kind::Event, call, 0, event.name));
            blows.append(NewBlow(Blow::Kind::EventAtEnd, call, 0, event.name));
        }
        AddDestructions(action, base, call, blows);
    }
    return blows;
}

QVector<Blow> FewBlows(const Action& action, const BaseRun& base, int most)
{
    QVector<Blow> blows;
    const int count = base.calls.size();
    const int step = qMax(1, (count + most - 1) / most);
    // Each action begins elsewhere, so that the events take turns.
    std::size_t turn = qHash(QLatin1String(action.name)) % std::size(events);
    for (int call = 1; call <= count; call += step) {
        if (base.calls.at(call - 1).hasStatus) {
            blows.append(NewBlow(Blow::Kind::Fail, call, codes[1]));
        }
        blows.append(NewBlow(turn % 2 == 0 ? Blow::Kind::Event : Blow::Kind::EventAtEnd, call, 0, events[turn].name));
        turn = (turn + 1) % std::size(events);
    }
    for (int call = 1; call <= count; ++call) {
        if (MayDestroyIn(action, base, call)) {
            blows.append(NewBlow(Blow::Kind::Destroy, call, 0, destructions[turn++ % std::size(destructions)].name));
        }
    }
    return blows;
}

void DoHostDeed(int number, Stage& stage)
{
    events[std::size_t(number) % std::size(events)].run(stage);
}

void Plan(const Blow& blow, Stage& stage)
{
    Host::FaultPlan& faults = stage.App().Faults();
    using Moment = Host::FaultPlan::Moment;
    switch (blow.kind) {
    case Blow::Kind::None:
        break;
    case Blow::Kind::Fail:
    case Blow::Kind::FailAll:
        faults.Intercept(blow.call, [&faults, blow] {
            faults.FailCall(1, BF::Result(quint32(blow.code)), blow.kind == Blow::Kind::Fail ? 1 : -1);
        });
        break;
    case Blow::Kind::Event:
    case Blow::Kind::EventAtEnd:
        if (const HostDeed* event = FindDeed(events, blow.what)) {
            faults.Intercept(
                blow.call, [event, &stage] { event->run(stage); },
                blow.kind == Blow::Kind::Event ? Moment::Beginning : Moment::End);
        }
        break;
    case Blow::Kind::Destroy:
        if (const HostDeed* destruction = FindDeed(destructions, blow.what)) {
            faults.Intercept(blow.call, [destruction, &stage] { destruction->run(stage); });
        }
        break;
    }
}

} // namespace Torture
