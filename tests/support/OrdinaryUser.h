#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

/// Lets the process be a user without special rights while it lives: the superuser may read and write everything, so
/// that a refusal could not be tested. Nothing changes for a process that is an ordinary user already, nor where there
/// is no superuser.
class OrdinaryUser
{
public:
#ifdef Q_OS_UNIX
    OrdinaryUser()
        : m_user(geteuid())
    {
        const uid_t nobody = 65534;
        if (m_user == 0 && setresuid(nobody, nobody, 0) != 0) {
            qFatal("cannot become an ordinary user");
        }
    }
    ~OrdinaryUser()
    {
        if (m_user == 0 && setresuid(0, 0, 0) != 0) {
            qFatal("cannot become the superuser again");
        }
    }
#else
    OrdinaryUser() {} // NOLINT(modernize-use-equals-default): so that a variable of it is no unused one
    ~OrdinaryUser() = default;
#endif
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

#ifdef Q_OS_UNIX
private:
    uid_t m_user;
#endif
};
