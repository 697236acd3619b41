#pragma once

#include "tests/support/ForwardingServices.h"
#include "tests/unit/material/HostWithScene.h"

#include <QString>

/// Scene service whose file dialogs return a path and a failure all the same.
class FailingFileDialogs : public Forwarding::SceneService
{
public:
    FailingFileDialogs(MV::CMoviraInterface& host, const QString& path)
        : SceneService(*host.GetSceneService())
        , m_path(path)
    {
    }

    BF::Result GetOpenImageFileName(QString& path, int /*kind1*/, int /*kind2*/, int /*kind3*/) override
    {
        path = m_path;
        return BF::Results::Refused;
    }

    BF::Result GetSaveImageFileName(QString& path, int /*kind1*/, int /*kind2*/, int /*kind3*/,
                                    const QString& /*defaultName*/) override
    {
        path = m_path;
        return BF::Results::Refused;
    }

private:
    QString m_path;
};
