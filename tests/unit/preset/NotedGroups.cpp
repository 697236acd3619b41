#include "tests/unit/preset/NotedGroups.h"

#include <QSettings>

#include <utility>

std::vector<MV::ProfileGroup> NotedGroups::Make(const QString& failing)
{
    std::vector<MV::ProfileGroup> groups;
    for (const char* name : {"Preset", "Property", "Collision", "Wind_Setting"}) {
        const QString group = QString::fromLatin1(name);
        groups.push_back({group,
                          [this, group, failing](const MV::CIniGroup& /*profile*/) {
                              m_handled.append(group);
                              return group == failing ? BF::Results::Refused : BF::Results::Success;
                          },
                          [this, group](QSettings& profile) {
                              m_handled.append(profile.group());
                              profile.setValue(QStringLiteral("key"), group);
                          }});
    }
    return groups;
}

QStringList NotedGroups::Take()
{
    return std::exchange(m_handled, {});
}
