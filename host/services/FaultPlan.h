#pragma once

#include <MVPluginQt/Result.h>

#include <QHash>
#include <QString>

#include <functional>
#include <optional>

namespace Host {

/// What is to go wrong in host calls: some fail, inside others something happens that their caller did not ask for.
class FaultPlan
{
public:
    /// When something happens inside a call: before the host does anything for it, or after that.
    enum class Moment
    {
        Beginning,
        End,
    };
    using Interception = std::function<void()>;

    /// Lets the \p n-th call from now on fail, 1 being the next, and \p times calls in all; negative for all from then
    /// on. Replaces an earlier such plan. Calls of operations without a status are not counted: they cannot fail.
    void FailCall(int n, BF::Result code, int times = 1);

    /// Lets the next \p times calls of an operation fail; negative for all.
    void FailOperation(const QString& operation, BF::Result code, int times = -1);

    /// Runs \p action inside the \p n-th call from now on, 1 being the next, whether or not it can fail; calls that are
    /// made inside another one count. Replaces an earlier such plan. A call can be made to fail at its beginning.
    void Intercept(int n, Interception action, Moment moment = Moment::Beginning);
    /// Runs \p action inside the next call of an operation. Replaces an earlier plan for it.
    void Intercept(const QString& operation, Interception action, Moment moment = Moment::Beginning);

    void Clear();
    bool IsEmpty() const
    {
        return m_callsLeft == 0 && m_operations.isEmpty() && m_enterLeft == 0 && m_interceptions.isEmpty();
    }

    /// Every call begins with this. \return what is to run when it ends; empty for nothing
    Interception Enter(const QString& operation);
    /// Counts one call of \p operation, which answers a status. \return the code that it is to fail with, if it is to
    std::optional<BF::Result> Consult(const QString& operation);

private:
    struct Operation
    {
        BF::Result code;
        int times = -1;
    };

    struct Planned
    {
        Interception action;
        Moment moment = Moment::Beginning;
    };

    static Interception RunOrKeep(const Planned& planned);

    int m_callsLeft = 0;
    int m_callTimes = 1;
    BF::Result m_callCode;
    QHash<QString, Operation> m_operations;
    int m_enterLeft = 0;
    Planned m_enterPlan;
    QHash<QString, Planned> m_interceptions;
};

} // namespace Host
