#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace Torture {

/// What a child process left.
struct ChildResult
{
    QByteArray answer;
    QString problem; ///< Why there is no answer: how the process ended, and the last that it said.
};

/// Runs \p work in a copy of this process, which ends right after it, and hands its answer on. It may crash or hang:
/// after some seconds it is ended.
ChildResult RunInChild(const std::function<QByteArray()>& work);

/// How long a child may take before it counts as hanging.
void SetPatience(int seconds);

} // namespace Torture
