#pragma once

#include "tests/torture/Actions.h"
#include "tests/torture/Case.h"

#include <MVPluginQt/Enumerations.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

namespace Torture {

/// What came of one case.
struct Outcome
{
    BaseRun run;
    QStringList problems; ///< Empty when all is right.
};

/// Runs cases of one action, each in a process of its own that begins with the same prepared panel: a case that crashes
/// or hangs is one failure, and no case knows of another.
class Runner
{
public:
    /// Prepares the panel in this process. \param folder  an empty folder for the action's files
    Runner(MV::ECompatibleApp app, const Action& action, const QString& folder);
    ~Runner();
    Q_DISABLE_COPY_MOVE(Runner)

    /// The action as it is; the later cases are measured by it.
    Outcome RunBase();
    Outcome Run(const Blow& blow);

    /// Runs one case in this very process, for a debugger.
    Outcome RunHere(const Blow& blow);

private:
    QStringList Check(const Blow& blow, const BaseRun& run);
    QStringList CheckWrites(const Blow& blow, const BaseRun& run) const;

    std::unique_ptr<Stage> m_stage;
    const Action& m_action;
    BaseRun m_base;
    bool m_hasBase = false;
};

/// Notes every warning of Qt from now on. \return those since the last time
QStringList TakeWarnings();
void NoteWarnings();

} // namespace Torture
