#pragma once

#include <MVPluginQt/Result.h>

#include <QPointer>

class QCheckBox;

namespace MV {

class CMoviraInterface;
class CPhysicsSoftClothPlugin;
class CSoftClothPresetSection;
struct SoftClothSelection;

/// Switches soft cloth on and off for the selected object, as the check box of the preset section says. Made for one
/// operation, during which the selection can change and the panel can end.
class CSoftClothSwitch
{
public:
    /// \param box  null for none, which counts as off
    CSoftClothSwitch(CSoftClothPresetSection* section, CPhysicsSoftClothPlugin* plugin, CMoviraInterface* host,
                     QCheckBox* box);

    /// Does what the check box says by now, and makes the selected material soft cloth first where it is none.
    void FollowBox();

    /// Switches soft cloth off, tells the user that the object has several materials, and lets the user choose one and
    /// give it a weight map.
    /// \return 0; or 2 when the user refused
    BF::Result ConfirmMultipleMaterials();

private:
    SoftClothSelection& Selection() const;
    bool PrepareSoftCloth();
    void RefuseSoftCloth();
    void RefreshAfterSwitchOn();
    bool IsWeightMapMode() const;

    QPointer<CSoftClothPresetSection> m_section;
    QPointer<CPhysicsSoftClothPlugin> m_plugin;
    CMoviraInterface* m_host;
    QCheckBox* m_box;
};

} // namespace MV
