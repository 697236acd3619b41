#pragma once

#include <QtGlobal>

#include <unistd.h>

/// Lets the process be a user without special rights while it lives: the superuser may read and write everything, so
/// that a refusal could not be tested. Nothing changes for a process that is an ordinary user already.
class OrdinaryUser
{
public:
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
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    uid_t m_user;
};
