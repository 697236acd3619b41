// The whole panel: actions of the user and deeds of the host in any order, some of them inside calls of others, some
// calls failing. In the end the panel must show what the host holds.
#include "tests/fuzz/Fuzz.h"

#include "tests/support/PanelComparison.h"
#include "tests/torture/Actions.h"
#include "tests/torture/Case.h"
#include "tests/torture/Stage.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

using Fuzz::Numbers;
using Torture::Stage;

void PlanSomething(Stage& stage, Numbers& numbers)
{
    Host::FaultPlan& faults = stage.App().Faults();
    const int call = 1 + numbers.Below(60);
    const int kind = numbers.Below(4);
    if (kind == 1) {
        const BF::Result code(0x80000002U + quint32(numbers.Below(6)));
        const int times = numbers.Below(3) - 1;
        faults.Intercept(call, [&faults, code, times] { faults.FailCall(1, code, times); });
    } else if (kind > 1) {
        const int deed = numbers.Byte();
        faults.Intercept(
            call, [&stage, deed] { Torture::DoHostDeed(deed, stage); },
            kind == 2 ? Host::FaultPlan::Moment::Beginning : Host::FaultPlan::Moment::End);
    }
}

/// File dialogs and the table wait for their windows, and start makes everything anew: too slow here.
bool IsQuick(const Torture::Action& action)
{
    const QLatin1String name(action.name);
    for (const char* slow : {"profile", "table", "filter", "start", "image-edit", "texture-edit", "uv-reference"}) {
        if (QString(name).contains(QLatin1String(slow))) {
            return false;
        }
    }
    return true;
}

const std::vector<Torture::Action>& QuickActions()
{
    static const std::vector<Torture::Action> actions = [] {
        std::vector<Torture::Action> quick;
        for (const Torture::Action& action : Torture::Actions()) {
            if (IsQuick(action)) {
                quick.push_back(action);
            }
        }
        return quick;
    }();
    return actions;
}

QStringList Play(Stage& stage, Numbers& numbers, QStringList& played)
{
    while (!numbers.IsAtEnd()) {
        // What there is to do needs an object to do it to.
        if (!stage.Scene().FindObject(stage.hero) || !stage.Scene().FindObject(stage.flag)) {
            stage.LoadOtherScene();
        }
        const Torture::Action& action = QuickActions()[std::size_t(numbers.Below(int(QuickActions().size())))];
        played.append(QLatin1String(action.name));
        const int plan = numbers.Byte();
        if (plan % 2 != 0) {
            stage.App().Select({stage.hero});
            if (action.prepare) {
                action.prepare(stage);
            }
        }
        if (plan % 4 > 1) {
            PlanSomething(stage, numbers);
        }
        action.act(stage);
        stage.App().Faults().Clear();
        stage.App().Answers() = {};
        stage.App().Answers().unattended = true;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    PanelComparison::Settle(stage.App());
    return PanelComparison::Differences(stage.App(), stage.family);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::StartApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Numbers numbers(data, qMin<std::size_t>(size, 60));
    const auto family = numbers.Below(2) == 0 ? MV::ECompatibleApp::FamilyA : MV::ECompatibleApp::FamilyB;
    QStringList played;
    QStringList differences;
    {
        Stage stage(family, Fuzz::Folder());
        differences = Play(stage, numbers, played);
    }
    if (!differences.isEmpty()) {
        Fuzz::Fail(played.join(QLatin1String(", ")) + QLatin1String(":\n") + differences.join(QLatin1Char('\n')));
    }
    return 0;
}

QVector<QByteArray> FuzzSeeds()
{
    QVector<QByteArray> seeds;
    // Every action once by itself, a few at a time; then with something inside.
    for (int first = 0; first < int(QuickActions().size()); first += 8) {
        for (const int plan : {1, 3}) {
            QByteArray seed(1, char(first / 8));
            for (int i = 0; i < 8; ++i) {
                seed.append(char(first + i)).append(char(plan));
                if (plan == 3) {
                    seed.append(char(first * 3 + i)).append(char(i)).append(char(first + i));
                }
            }
            seeds.append(seed);
        }
    }
    return seeds;
}
