#pragma once

#include <MVPluginQt/Result.h>

#include <QHash>
#include <QString>

#include <optional>

namespace Host {

/// Host calls that are to fail. Consulted by every operation that returns a status, before it does anything.
class FaultPlan
{
public:
    /// Lets the \p n-th call from now on fail, 1 being the next. Replaces an earlier such plan.
    /// Calls of operations without a status are not counted: they cannot fail.
    void FailCall(int n, BF::Result code);

    /// Lets the next \p times calls of an operation fail; negative for all.
    void FailOperation(const QString& operation, BF::Result code, int times = -1);

    void Clear();
    bool IsEmpty() const { return m_callsLeft == 0 && m_operations.isEmpty(); }

    /// Counts one call of \p operation. \return the code that it is to fail with, if it is to fail
    std::optional<BF::Result> Consult(const QString& operation);

private:
    struct Operation
    {
        BF::Result code;
        int times = -1;
    };

    int m_callsLeft = 0;
    BF::Result m_callCode;
    QHash<QString, Operation> m_operations;
};

} // namespace Host
