#include "host/services/FaultPlan.h"

#include <utility>

namespace Host {

void FaultPlan::FailCall(int n, BF::Result code, int times)
{
    m_callsLeft = times == 0 ? 0 : qMax(n, 0);
    m_callTimes = times;
    m_callCode = code;
}

void FaultPlan::FailOperation(const QString& operation, BF::Result code, int times)
{
    if (times == 0) {
        m_operations.remove(operation);
    } else {
        m_operations.insert(operation, {code, times});
    }
}

void FaultPlan::Intercept(int n, Interception action, Moment moment)
{
    m_enterLeft = qMax(n, 0);
    m_enterPlan = {std::move(action), moment};
}

void FaultPlan::Intercept(const QString& operation, Interception action, Moment moment)
{
    m_interceptions.insert(operation, {std::move(action), moment});
}

void FaultPlan::Clear()
{
    m_callsLeft = 0;
    m_operations.clear();
    m_enterLeft = 0;
    m_interceptions.clear();
}

/// Runs what is for the beginning. \return what is for the end
FaultPlan::Interception FaultPlan::RunOrKeep(const Planned& planned)
{
    if (planned.moment == Moment::End) {
        return planned.action;
    }
    planned.action();
    return {};
}

FaultPlan::Interception FaultPlan::Enter(const QString& operation)
{
    // Taken out of the plan first: what runs may make calls of its own and plan anew.
    if (m_enterLeft > 0 && --m_enterLeft == 0) {
        return RunOrKeep(std::exchange(m_enterPlan, {}));
    }
    return m_interceptions.contains(operation) ? RunOrKeep(m_interceptions.take(operation)) : Interception();
}

std::optional<BF::Result> FaultPlan::Consult(const QString& operation)
{
    if (m_callsLeft > 0 && --m_callsLeft == 0) {
        // More of them: the next call is the one.
        if (m_callTimes < 0 || --m_callTimes > 0) {
            m_callsLeft = 1;
        }
        return m_callCode;
    }
    const auto planned = m_operations.find(operation);
    if (planned == m_operations.end()) {
        return std::nullopt;
    }
    const BF::Result code = planned->code;
    if (planned->times > 0 && --planned->times == 0) {
        m_operations.erase(planned);
    }
    return code;
}

} // namespace Host
