#pragma once

#include "preset/ProfileFile.h"

#include <QStringList>

#include <vector>

/// The four groups of a profile, which note their name when they are handled and save a key each.
class NotedGroups
{
public:
    /// \param failing  name of a group that fails to be loaded
    std::vector<MV::ProfileGroup> Make(const QString& failing = {});

    /// The names of the groups handled so far, in order; empties the list.
    QStringList Take();

private:
    QStringList m_handled;
};
