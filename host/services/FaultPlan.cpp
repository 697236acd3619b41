#include "host/services/FaultPlan.h"

namespace Host {

void FaultPlan::FailCall(int n, BF::Result code)
{
    m_callsLeft = qMax(n, 0);
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

void FaultPlan::Clear()
{
    m_callsLeft = 0;
    m_operations.clear();
}

std::optional<BF::Result> FaultPlan::Consult(const QString& operation)
{
    if (m_callsLeft > 0 && --m_callsLeft == 0) {
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
