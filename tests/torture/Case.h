#pragma once

#include "host/services/CallJournal.h"

#include <MVPluginQt/Enumerations.h>

#include <QStringList>
#include <QVector>

namespace Torture {

struct Action;
class Stage;

/// What happens to one call of an action.
struct Blow
{
    enum class Kind
    {
        None,    ///< The action as it is.
        Fail,    ///< The call fails once.
        FailAll, ///< The call and all after it fail.
        Event,   ///< The host does something of its own accord at the call's beginning.
        EventAtEnd,
        Destroy, ///< Something is destroyed at the call's beginning.
    };

    Kind kind = Kind::None;
    int call = 0;    ///< Counted from 1.
    qint32 code = 0; ///< Of a failing call.
    QString what;    ///< The event, or what is destroyed.
};

/// What an action did when nothing went wrong.
struct BaseRun
{
    QVector<Host::JournalEntry> calls;
};

/// The options of the driver that repeat a blow: "--call 3 --fault -5 --once".
QString OptionsOf(const Blow& blow);

/// Every blow that there is for an action that makes these calls.
QVector<Blow> AllBlows(const Action& action, const BaseRun& base);
/// A few of them: one code, no more than \p most calls.
QVector<Blow> FewBlows(const Action& action, const BaseRun& base, int most);

/// Lets the host do one of the things that events inside calls are made of; any number stands for one.
void DoHostDeed(int number, Stage& stage);

/// Plans the blow in the stage's host.
void Plan(const Blow& blow, Stage& stage);

} // namespace Torture
