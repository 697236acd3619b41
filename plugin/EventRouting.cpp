#include "plugin/PhysicsSoftClothPlugin.h"

#include "material/SoftClothMaterialDlg.h"
#include "panel/HostCodes.h"
#include "plugin/Parts.h"
#include "plugin/services/AuxService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "preset/SoftClothPresetSection.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "ui/EditDrop.h"

namespace MV {

BF::Result CPhysicsSoftClothPlugin::UpdateUi()
{
    if (!Host()) {
        return BF::Results::InvalidArgument;
    }
    BF::CHandle* candidate = nullptr;
    const BF::Result gates = CheckGates(candidate);
    if (gates.IsFailure()) {
        return gates;
    }
    if (!gates.IsSuccess()) {
        ShowAll(false);
        return BF::Results::NothingDone;
    }
    ShowAll(true);
    const bool sameObject = m_selection.object == candidate;
    if (!sameObject) {
        const BF::Result adopted = AdoptObject(candidate);
        if (adopted.IsFailure()) {
            return adopted;
        }
    }
    return UpdateAllUIs(sameObject);
}

/// 0 when the panel is to be shown for \p candidate, 1 when it is to be hidden, or the host's failure.
BF::Result CPhysicsSoftClothPlugin::CheckGates(BF::CHandle*& candidate)
{
    int engine = 0;
    const BF::Result engineKnown = Scene().GetPhysicsEngineType(engine);
    if (engineKnown.IsFailure()) {
        return engineKnown;
    }
    if (engine != softClothEngine) {
        return BF::Results::NothingDone;
    }
    BF::CArrayList<BF::CHandle*> selected;
    const BF::Result selectionKnown = Scene().GetSelectedObjects(selected, 1);
    if (selectionKnown.IsFailure()) {
        return selectionKnown;
    }
    if (selected.Size() != 1) {
        return BF::Results::NothingDone;
    }
    candidate = selected[0];
    const BF::Result application = CheckApplicationGate(candidate);
    return application.IsSuccess() ? CheckObjectGates(candidate) : application;
}

BF::Result CPhysicsSoftClothPlugin::CheckApplicationGate(BF::CHandle* candidate)
{
    bool blocked = false;
    if (HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyB)) {
        int unused = 0;
        const BF::Result queried = Host()->GetAuxService()->QueryAuxState(unused);
        if (queried.IsFailure()) {
            return queried;
        }
        blocked = Scene().IsPanelBlockedForObjectEx(candidate);
    } else if (HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyA)) {
        const BF::Result known = Scene().IsPanelBlockedForObject(candidate, blocked);
        if (known.IsFailure()) {
            return known;
        }
    }
    return blocked ? BF::Results::NothingDone : BF::Results::Success;
}

BF::Result CPhysicsSoftClothPlugin::CheckObjectGates(BF::CHandle* candidate)
{
    const BF::Result typeKnown = Scene().GetObjectType(candidate, m_selection.objectType);
    if (typeKnown.IsFailure()) {
        return typeKnown;
    }
    int kind = 0;
    const BF::Result kindKnown = Scene().GetObjectKind(candidate, kind);
    if (kindKnown.IsFailure()) {
        return kindKnown;
    }
    if (!CanHaveSoftCloth(m_selection.objectType)) {
        return BF::Results::NothingDone;
    }
    if (HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyA) && IsConvertedInSteps(m_selection.objectType)) {
        int state = notConverting;
        const BF::Result stateKnown = Scene().GetSoftClothConvertState(candidate, state);
        if (stateKnown.IsFailure()) {
            return stateKnown;
        }
        if (state != notConverting) {
            return BF::Results::NothingDone;
        }
    }
    return BF::Results::Success;
}

BF::Result CPhysicsSoftClothPlugin::AdoptObject(BF::CHandle* candidate)
{
    DropEdits();
    m_selection.Clear();
    m_selection.object = candidate;
    const BF::Result reloaded = ReloadMaterials(true);
    if (!reloaded.IsFailure()) {
        VisitPart(m_materialDlg, [](auto& dialog) { dialog.SelectWeightingLabel(); });
    }
    return reloaded;
}

BF::Result CPhysicsSoftClothPlugin::ReloadMaterials(bool reset)
{
    return AskPart(m_materialDlg, [&](auto& dialog) { return dialog.ReloadMaterials(m_selection.object, reset); });
}

BF::Result CPhysicsSoftClothPlugin::UpdateAllUIs(bool sameObject)
{
    if (!Host()) {
        return BF::Results::InvalidArgument;
    }
    DropSectionEdits();
    BF::Result result = Scene().IsPhysicsActive(m_selection.object, softClothPhysics, m_selection.softClothActive);
    if (result.IsFailure()) {
        return result;
    }
    EnableAll(m_selection.softClothActive);

    const auto refresh = [&result](const auto& part, auto call) {
        if (!result.IsFailure()) {
            result = AskPart(part, call);
        }
    };
    refresh(m_propertySection, [](auto& section) { return section.UpdateUi(); });
    refresh(m_collisionSection, [](auto& section) { return section.UpdateUi(); });
    refresh(m_windSection, [](auto& section) { return section.UpdateUi(); });
    refresh(m_presetSection, [sameObject](auto& section) { return section.UpdateUi(sameObject); });
    refresh(m_materialDlg, [](auto& dialog) { return dialog.UpdateUi(); });
    return result.IsFailure() ? result : BF::Results::Success;
}

void CPhysicsSoftClothPlugin::ShowAll(bool show)
{
    if (!show) {
        const QPointer<CPhysicsSoftClothPlugin> self(this);
        DropEdits();
        m_selection.Clear();
        if (Host() && Scene().GetDialogMode() == EDialogMode::WeightMap) {
            Host()->GetUiService()->SetDialogMode(EDialogMode::None);
        }
        if (!self) {
            return;
        }
    }
    const auto setVisible = [show](auto& section) { section.setVisible(show); };
    VisitPart(m_propertySection, setVisible);
    VisitPart(m_collisionSection, setVisible);
    VisitPart(m_windSection, setVisible);
    VisitPart(m_presetSection, setVisible);
}

void CPhysicsSoftClothPlugin::EnableAll(bool enable)
{
    const auto enableSection = [enable](auto& section) { section.EnableSection(enable); };
    VisitPart(m_presetSection, [enable](auto& section) { section.EnableUi(enable); });
    VisitPart(m_propertySection, enableSection);
    VisitPart(m_collisionSection, enableSection);
    VisitPart(m_windSection, enableSection);
}

void CPhysicsSoftClothPlugin::DropEdits()
{
    DropSectionEdits();
    VisitPart(m_materialDlg, [](auto& dialog) { MV::DropEdits(dialog); });
}

/// A refresh is enough for those. The dialog's values are written while they are being changed, and a refresh in such
/// a write does not end the edit.
void CPhysicsSoftClothPlugin::DropSectionEdits()
{
    const auto drop = [](auto& section) { MV::DropEdits(section); };
    VisitPart(m_propertySection, drop);
    VisitPart(m_collisionSection, drop);
    VisitPart(m_windSection, drop);
}

void CPhysicsSoftClothPlugin::ClearSelectionAndUpdate()
{
    DropEdits();
    m_selection.Clear();
    UpdateUi();
}

/// Whether the panel shows an object and the host's first selected object is that one.
bool CPhysicsSoftClothPlugin::IsShownObjectSelected() const
{
    const BF::CHandle* selected = Scene().GetSelectedObject(0);
    return selected && selected == m_selection.object;
}

void CPhysicsSoftClothPlugin::ObjectDataChanged(const BF::CArrayList<BF::CHandle*>& objects,
                                                EObjectChangedDataType changed)
{
    using Bit = EObjectChangedDataType;
    if (HasAnyBit(changed, Bit::MaterialList) && IsShownObjectSelected()) {
        ReloadMaterials(false);
    }
    if (HasAnyBit(changed, Bit::Replaced)) {
        ClearSelectionAndUpdate();
    } else if (HasAnyBit(changed, Bit::Removed)) {
        if (objects.Contains(m_selection.object)) {
            DropEdits();
            m_selection.object = nullptr;
            UpdateUi();
        }
    } else if (HasAnyBit(changed, Bit::MaterialNames)) {
        if (objects.Contains(m_selection.object)) {
            VisitPart(m_materialDlg, [](auto& dialog) { dialog.RefreshMaterialStates(); });
        }
    } else if (HasAnyBit(changed, Bit::Topology)) {
        ClearSelectionAndUpdate();
    }
}

void CPhysicsSoftClothPlugin::OnAboutToConvertPhysicsObjectType()
{
    int engine = softClothEngine;
    Scene().GetPhysicsEngineType(engine);
    if (engine != softClothEngine || Scene().GetSelectedObjectCount() != 1) {
        return;
    }
    BF::CHandle* selected = Scene().GetSelectedObject(0);
    quint32 type = 0;
    Scene().GetObjectType(selected, type);
    if (IsConvertedInSteps(type)) {
        ShowAll(true);
    }
}

void CPhysicsSoftClothPlugin::OnHierarchyChanged()
{
    if (IsShownObjectSelected()) {
        ReloadMaterials(true);
        UpdateUi();
    }
}

void CPhysicsSoftClothPlugin::OnPickModeChanged(EPickMode mode)
{
    VisitPart(m_materialDlg, [mode](auto& dialog) { dialog.OnPickModeChanged(mode); });
}

void CPhysicsSoftClothPlugin::OnPlayStopChanged()
{
    const bool enable = !Scene().IsPlaying();
    const auto enableSection = [enable](auto& section) { section.EnableSection(enable); };
    VisitPart(m_presetSection, enableSection);
    VisitPart(m_propertySection, enableSection);
    VisitPart(m_collisionSection, enableSection);
    VisitPart(m_windSection, enableSection);
    if (enable) {
        UpdateUi();
    }
}

void CPhysicsSoftClothPlugin::OnUndoRedoDone()
{
    if (Scene().GetSelectedObjectCount() == 1 && IsReloadedAfterUndo(m_selection.objectType) &&
        Scene().GetSelectedObject(0) == m_selection.object) {
        ReloadMaterials(false);
    }
}

void CPhysicsSoftClothPlugin::PickedMaterialIndexChanged(BF::CHandle* object, size_t materialIndex)
{
    if (object != m_selection.object || Scene().GetDialogMode() != EDialogMode::WeightMap) {
        return;
    }
    bool materialChanged = false;
    VisitPart(m_materialDlg, [&](auto& dialog) { materialChanged = dialog.PickMaterial(materialIndex); });
    if (materialChanged) {
        UpdateAllUIs(true);
    }
}

} // namespace MV
