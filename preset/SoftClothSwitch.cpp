#include "preset/SoftClothSwitch.h"

#include "material/SoftClothMaterialDlg.h"
#include "panel/HostCodes.h"
#include "panel/MessageBox.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/EditService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/SoftClothService.h"
#include "plugin/services/UiService.h"
#include "preset/SoftClothPresetSection.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "ui/WidgetAccess.h"

#include <QCheckBox>

namespace MV {

CSoftClothSwitch::CSoftClothSwitch(CSoftClothPresetSection* section, CPhysicsSoftClothPlugin* plugin,
                                   CMoviraInterface* host, QCheckBox* box)
    : m_section(section)
    , m_plugin(plugin)
    , m_host(host)
    , m_box(box)
{
}

SoftClothSelection& CSoftClothSwitch::Selection() const
{
    return m_plugin->Selection();
}

bool CSoftClothSwitch::IsWeightMapMode() const
{
    return m_host->GetSceneService()->GetDialogMode() == EDialogMode::WeightMap;
}

void CSoftClothSwitch::FollowBox()
{
    const bool activate = IsChecked(m_box);
    Selection().softClothActive = activate;
    if ((activate && !PrepareSoftCloth()) || !m_section) {
        return;
    }
    // The write can send events that refresh the whole panel: from here on the selection says what holds.
    const BF::CHandle* object = Selection().object;
    m_host->GetEditService()->SetPhysicsActive(Selection().object, softClothPhysics, Selection().softClothActive, true,
                                               true);
    if (!m_section || Selection().object != object) {
        // Gone, or showing something else, whose own refresh has enabled what belongs to it.
        return;
    }
    m_plugin->EnableAll(Selection().softClothActive);
    if (Selection().softClothActive) {
        RefreshAfterSwitchOn();
    } else if (IsWeightMapMode()) {
        m_host->GetUiService()->SetDialogMode(EDialogMode::None);
    }
}

/// Makes the selected material soft cloth if it is not. \return false when the physics is not to be switched on
bool CSoftClothSwitch::PrepareSoftCloth()
{
    const SoftClothSelection& shown = Selection();
    const BF::CHandle* const clicked = shown.object;
    bool active = false;
    m_host->GetSceneService()->IsSoftClothActive(shown.object, shown.mesh, shown.material, active);
    // In the call the host may have selected another object, which the user did not switch on.
    if (shown.object != clicked) {
        return false;
    }
    if (active) {
        return true;
    }
    const CSoftClothMaterialDlg* dialog = m_plugin->MaterialDlg();
    switch (dialog ? dialog->MaterialCount() : 0) {
    case 0:
        RefuseSoftCloth();
        return false;
    case 1:
        m_host->GetSoftClothService()->ApplySingleMaterialSoftCloth(shown.object, shown.mesh, shown.material);
        return true;
    default:
        ConfirmMultipleMaterials();
        return false;
    }
}

void CSoftClothSwitch::RefuseSoftCloth()
{
    Selection().softClothActive = false;
    // Not silent: the box going off switches the physics off as well.
    SetChecked(m_box, false);
    if (m_plugin) {
        m_plugin->EnableAll(false);
    }
    if (m_section) {
        m_section->ShowMessage(
            CSoftClothPresetSection::tr("This object does not have any valid material enabling to create soft cloth."));
    }
}

void CSoftClothSwitch::RefreshAfterSwitchOn()
{
    m_section->UpdateUi(true);
    if (CSoftClothMaterialDlg* dialog = m_plugin->MaterialDlg()) {
        dialog->UpdateUi();
    }
    if (CSoftClothPropertySection* property = m_plugin->PropertySection()) {
        property->UpdateUi();
    }
    if (CSoftClothCollisionSection* collision = m_plugin->CollisionSection()) {
        collision->UpdateUi();
    }
}

BF::Result CSoftClothSwitch::ConfirmMultipleMaterials()
{
    Selection().softClothActive = false;
    {
        const CSignalBlocker silent{m_box};
        SetChecked(m_box, false);
    }
    m_plugin->EnableAll(false);
    const bool confirmed =
        AskOkOrCancel(*m_host,
                      CSoftClothPresetSection::tr(
                          "This object has multiple materials.\n Please select a material and load a gray map image."),
                      CSoftClothPresetSection::tr("[Physics Soft Cloth Section] Movira 6", "Message Title"), m_section);
    if (!confirmed) {
        return BF::Results::Cancelled;
    }
    if (!m_section) {
        return BF::Results::Success;
    }
    m_section->EnableUi(false);
    if (CSoftClothPropertySection* property = m_plugin->PropertySection()) {
        property->EnableUi(false);
    }
    if (CSoftClothCollisionSection* collision = m_plugin->CollisionSection()) {
        collision->EnableSection(false);
    }
    if (!IsWeightMapMode()) {
        m_host->GetUiService()->SetDialogMode(EDialogMode::WeightMap);
    }
    return BF::Results::Success;
}

} // namespace MV
