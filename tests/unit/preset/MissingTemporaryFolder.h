#pragma once

#include "tests/support/OrdinaryUser.h"

#include <QByteArray>
#include <QtGlobal>

#ifdef Q_OS_UNIX
/// While it lives there is no folder for temporary files, and the process is an ordinary user, for whom no other place
/// is found. Only where a variable names that folder.
class MissingTemporaryFolder
{
public:
    MissingTemporaryFolder()
        : m_wasSet(qEnvironmentVariableIsSet("TMPDIR"))
        , m_before(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", "/nowhere/at/all");
    }
    ~MissingTemporaryFolder()
    {
        if (m_wasSet) {
            qputenv("TMPDIR", m_before);
        } else {
            qunsetenv("TMPDIR");
        }
    }
    Q_DISABLE_COPY_MOVE(MissingTemporaryFolder)

private:
    bool m_wasSet;
    QByteArray m_before;
    OrdinaryUser m_user;
};
#endif
