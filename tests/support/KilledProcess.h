#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <functional>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/// Runs \p step over and over in a copy of this process, which is killed after \p microseconds wherever it is then.
/// Steps are numbered from 0. \return whether there was such a process to kill
inline bool RunUntilKilled(const std::function<void(int)>& step, int microseconds)
{
    const pid_t copy = fork();
    if (copy == 0) {
        for (int number = 0;; ++number) {
            step(number);
        }
    }
    if (copy < 0) {
        return false;
    }
    usleep(useconds_t(microseconds));
    kill(copy, SIGKILL);
    int status = 0;
    return waitpid(copy, &status, 0) == copy && WIFSIGNALED(status);
}
#endif
