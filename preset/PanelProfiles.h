#pragma once

#include "preset/ProfileFile.h"

#include <MVPluginQt/Result.h>

#include <QPointer>
#include <QString>

#include <vector>

namespace MV {

class CMoviraInterface;
class CPhysicsSoftClothPlugin;
class CSoftClothPresetSection;

/// Profiles of the whole panel: presets, custom profiles that the user chooses in a file dialog, and files of the
/// host's own. Made for one operation, during which the panel can end.
class CPanelProfiles
{
public:
    /// \param section  shows the messages and is the parent of the dialogs
    /// \param plugin   keeper of the sections that have the other groups
    /// \param own      the group of the section itself
    CPanelProfiles(CSoftClothPresetSection* section, CPhysicsSoftClothPlugin* plugin, CMoviraInterface* host,
                   ProfileGroup own);

    /// Applies the profile at \p path: the groups that it has, in a fixed order.
    /// \return 0; 1 when there is no such file or it cannot be read, after a message; or the failure of a host
    ///         call, at which the loading ends
    BF::Result Load(const QString& path);

    /// Applies the profile that the user chooses.
    void ChooseAndLoad();
    /// Saves what the panel shows where the user wants it.
    void ChooseAndSave();
    /// Hands the path that the user chooses to the host, an empty one when the user chooses none.
    void ChooseForHost();

private:
    std::vector<ProfileGroup> Groups() const;
    QString DefaultFolder() const;

    QPointer<CSoftClothPresetSection> m_section;
    QPointer<CPhysicsSoftClothPlugin> m_plugin;
    CMoviraInterface* m_host;
    ProfileGroup m_own;
};

} // namespace MV
