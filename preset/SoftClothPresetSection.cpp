#include "preset/SoftClothPresetSection.h"

#include "material/SoftClothMaterialDlg.h"
#include "panel/HostCodes.h"
#include "panel/MessageBox.h"
#include "panel/PanelForm.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/EditService.h"
#include "plugin/services/HotKeyService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/SoftClothService.h"
#include "plugin/services/UiService.h"
#include "preset/ApplyKeys.h"
#include "preset/EditedMaterial.h"
#include "preset/PresetGallery.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "ui/WidgetAccess.h"

#include <MVPluginQt/EventSender.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace MV {

namespace {

/// Whether \p now is the material that \p before was, and soft cloth.
bool IsStillShown(const SoftClothSelection& before, const SoftClothSelection& now)
{
    return now.softClothActive && now.object == before.object && now.mesh == before.mesh &&
           now.material == before.material;
}

} // namespace

CSoftClothPresetSection::CSoftClothPresetSection(CPhysicsSoftClothPlugin* plugin)
    : QWidget(plugin)
    , m_plugin(plugin)
{
    hide();
}

CSoftClothPresetSection::~CSoftClothPresetSection() = default;

BF::Result CSoftClothPresetSection::Init(const QString& /*pluginPath*/, const QString& resourceBase,
                                         CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    m_host = host;
    const BF::Result built = BuildPanelForm(QStringLiteral("SoftClothPreset"), this, m_ui, resourceBase, host);
    if (built.IsFailure()) {
        return built;
    }
    SetSectionWidgets(m_ui.expandButton, m_ui.sectionGroupBox);
    RegisterHotKeys();
    ConnectWidgets();
    ShowEditedMaterial();
    FillGallery();
    if (CEventSender* events = host->GetEventSender()) {
        connect(events, &CEventSender::PhysicsSoftClothMultiMaterialsDetected, this,
                &CSoftClothPresetSection::PhysicsSoftClothMultiMaterialsDetected);
    }
    return BF::Results::Success;
}

void CSoftClothPresetSection::RegisterHotKeys()
{
    // The second note names another kind of section; translators have it under that name.
    m_hotKeys = m_host->GetHotKeyService()->RegisterSectionHotKeys(
        {tr("[Hot Key] Modify", "Modify Panel hot key").toStdWString(),
         tr("[Hot Key] Physics", "LensFlare section hot key").toStdWString()},
        L"MVSoftClothPresetSection");
}

void CSoftClothPresetSection::ConnectWidgets()
{
    using Section = CSoftClothPresetSection;
    const auto connectToggled = [this](QCheckBox* box, void (Section::*handler)()) {
        if (box) {
            connect(box, &QCheckBox::toggled, this, handler);
        }
    };
    connectToggled(m_ui.activePhysicsCheckBox, &Section::OnClickActivePhysicsCheckBox);
    connectToggled(m_ui.useWorldGravityCheckBox, &Section::OnClickUseWorldGravityCheckBox);
    connectToggled(m_ui.affectAllMaterialsCheckBox, &Section::OnClickAffectAllMaterialsCheckBox);
    ConnectClicked(m_ui.openFilePushButton, this, &Section::OnClickOpenFilePushButton);
    ConnectClicked(m_ui.saveFilePushButton, this, &Section::OnClickSaveFilePushButton);
    ConnectClicked(m_ui.paintPushButton, this, &Section::OnClickPaintPushButton);

    if (IsFamilyA()) {
        ConnectClicked(m_ui.rigidBodyRadioButton, this, &Section::ConvertToRigidBody);
    } else if (HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyB)) {
        for (QWidget* button : {m_ui.rigidBodyRadioButton, m_ui.softClothRadioButton}) {
            if (button) {
                button->hide();
            }
        }
    }
}

/// All sections edit one material, which is chosen in the material dialog.
void CSoftClothPresetSection::ShowEditedMaterial()
{
    if (m_ui.editedMaterialLabel) {
        const CSoftClothMaterialDlg* dialog = m_plugin->MaterialDlg();
        new CEditedMaterial(m_ui.editedMaterialLabel, dialog ? dialog->MaterialListWidget() : nullptr);
    }
}

void CSoftClothPresetSection::FillGallery()
{
    if (!m_ui.presetTabWidget) {
        return;
    }
    std::wstring folder;
    const BF::Result known = Scene().GetDataFolderPath(folder, presetDataFolder);
    // An empty root gives an empty gallery; the section works without.
    FillPresetGallery(known.IsFailure() ? QString()
                                        : QString::fromStdWString(folder) + QLatin1String("PhysicsSoftPreset"),
                      *m_ui.presetTabWidget);
    const auto lists = m_ui.presetTabWidget->findChildren<QListWidget*>();
    for (QListWidget* list : lists) {
        const auto apply = [this, list] { OnChangeCurrentItemOfPresetContentListWidget(list); };
        connect(list, &QListWidget::itemDoubleClicked, this, apply);
        new CApplyKeys(list, apply);
    }
}

CSceneService& CSoftClothPresetSection::Scene() const
{
    return *m_host->GetSceneService();
}

CEditService& CSoftClothPresetSection::Edit() const
{
    return *m_host->GetEditService();
}

CUiService& CSoftClothPresetSection::Ui() const
{
    return *m_host->GetUiService();
}

SoftClothSelection& CSoftClothPresetSection::Selection() const
{
    return m_plugin->Selection();
}

bool CSoftClothPresetSection::IsFamilyA() const
{
    return HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyA);
}

BF::Result CSoftClothPresetSection::UpdateUi(bool sameObject)
{
    if (!m_host) {
        return BF::Results::InvalidArgument;
    }
    const CSignalBlocker silent{m_ui.activePhysicsCheckBox, m_ui.softClothRadioButton};
    SetChecked(m_ui.activePhysicsCheckBox, Selection().softClothActive);
    SetChecked(m_ui.softClothRadioButton, true);

    const SoftClothSelection shown = Selection();
    bool active = false;
    if (shown.softClothActive && shown.mesh != 0 && shown.material != 0) {
        BF::Result known = EnableRadioButtons();
        if (!known.IsFailure()) {
            known = Scene().IsSoftClothActive(shown.object, shown.mesh, shown.material, active);
        }
        if (known.IsFailure()) {
            return known;
        }
    }
    if (!active) {
        EnableUi(false);
        return BF::Results::NothingDone;
    }
    const BF::Result gravity = ShowGravity(shown);
    if (!gravity.IsSuccess()) {
        return gravity.IsFailure() ? gravity : BF::Results::Success;
    }
    ShowAffectAllMaterials();
    if (!sameObject && m_ui.presetTabWidget) {
        const CSignalBlocker silentTabs{m_ui.presetTabWidget};
        m_ui.presetTabWidget->setCurrentIndex(0);
    }
    return BF::Results::Success;
}

/// The choice between rigid body and soft cloth, as far as the selected object has it.
BF::Result CSoftClothPresetSection::EnableRadioButtons()
{
    if (!IsFamilyA()) {
        return BF::Results::Success;
    }
    int kind = 0;
    const BF::Result known = Scene().GetObjectKind(Selection().object, kind);
    if (known.IsFailure()) {
        return known;
    }
    const bool enable = !IsSoftClothOnly(Selection().objectType) && kind != unconvertibleKind;
    EnableWidget(m_ui.rigidBodyRadioButton, enable);
    EnableWidget(m_ui.softClothRadioButton, enable);
    return BF::Results::Success;
}

/// \return 0; the host's failure; or 1 when the refresh is out of date by now: the box writes to the host when it
///         changes, and in that write the host can show something else
BF::Result CSoftClothPresetSection::ShowGravity(const SoftClothSelection& shown)
{
    bool gravity = false;
    const BF::Result known =
        Scene().GetUseGlobalGravity(shown.object, shown.mesh, shown.material, gravity, shown.affectAllMaterials);
    if (known.IsFailure()) {
        return known;
    }
    SetChecked(m_ui.useWorldGravityCheckBox, gravity);
    return IsStillShown(shown, Selection()) ? BF::Results::Success : BF::Results::NothingDone;
}

void CSoftClothPresetSection::ShowAffectAllMaterials()
{
    EnableWidget(m_ui.affectAllMaterialsCheckBox, MaterialCount() >= 2);
    const CSignalBlocker silent{m_ui.affectAllMaterialsCheckBox};
    SetChecked(m_ui.affectAllMaterialsCheckBox, Selection().affectAllMaterials);
}

void CSoftClothPresetSection::EnableUi(bool enable)
{
    if (IsFamilyA()) {
        EnableWidget(m_ui.rigidBodyRadioButton, enable);
        EnableWidget(m_ui.softClothRadioButton, enable);
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{
             m_ui.openFilePushButton, m_ui.saveFilePushButton, m_ui.useWorldGravityCheckBox,
             m_ui.affectAllMaterialsCheckBox, m_ui.softPresetGroupBox, m_ui.paintPushButton}) {
        EnableWidget(widget, enable);
    }
}

int CSoftClothPresetSection::MaterialCount() const
{
    const CSoftClothMaterialDlg* dialog = m_plugin->MaterialDlg();
    return dialog ? dialog->MaterialCount() : 0;
}

void CSoftClothPresetSection::OnClickActivePhysicsCheckBox()
{
    const QPointer<CSoftClothPresetSection> self(this);
    if (!m_host) {
        return;
    }
    const bool activate = IsChecked(m_ui.activePhysicsCheckBox);
    Selection().softClothActive = activate;
    if ((activate && !PrepareSoftCloth()) || !self) {
        return;
    }
    // The write can send events that refresh the whole panel: from here on the selection says what holds.
    const BF::CHandle* object = Selection().object;
    Edit().SetPhysicsActive(Selection().object, softClothPhysics, Selection().softClothActive, true, true);
    if (!self || Selection().object != object) {
        // Gone, or showing something else, whose own refresh has enabled what belongs to it.
        return;
    }
    m_plugin->EnableAll(Selection().softClothActive);
    if (Selection().softClothActive) {
        RefreshAfterSwitchOn();
    } else if (IsWeightMapMode()) {
        Ui().SetDialogMode(EDialogMode::None);
    }
}

/// Makes the selected material soft cloth if it is not. \return false when the physics is not to be switched on
bool CSoftClothPresetSection::PrepareSoftCloth()
{
    const SoftClothSelection& shown = Selection();
    const BF::CHandle* const clicked = shown.object;
    bool active = false;
    Scene().IsSoftClothActive(shown.object, shown.mesh, shown.material, active);
    // In the call the host may have selected another object, which the user did not switch on.
    if (shown.object != clicked) {
        return false;
    }
    if (active) {
        return true;
    }
    switch (MaterialCount()) {
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

void CSoftClothPresetSection::RefuseSoftCloth()
{
    Selection().softClothActive = false;
    // Not silent: the box going off switches the physics off as well.
    SetChecked(m_ui.activePhysicsCheckBox, false);
    m_plugin->EnableAll(false);
    ShowMessage(tr("This object does not have any valid material enabling to create soft cloth."));
}

void CSoftClothPresetSection::RefreshAfterSwitchOn()
{
    UpdateUi(true);
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

BF::Result CSoftClothPresetSection::ConfirmMultipleMaterials()
{
    if (!m_host) {
        return BF::Results::InvalidArgument;
    }
    Selection().softClothActive = false;
    {
        const CSignalBlocker silent{m_ui.activePhysicsCheckBox};
        SetChecked(m_ui.activePhysicsCheckBox, false);
    }
    m_plugin->EnableAll(false);
    const QPointer<CSoftClothPresetSection> self(this);
    const bool confirmed = AskOkOrCancel(
        *m_host, tr("This object has multiple materials.\n Please select a material and load a gray map image."),
        tr("[Physics Soft Cloth Section] Movira 6", "Message Title"), this);
    if (!confirmed) {
        return BF::Results::Cancelled;
    }
    if (!self) {
        return BF::Results::Success;
    }
    EnableUi(false);
    if (CSoftClothPropertySection* property = m_plugin->PropertySection()) {
        property->EnableUi(false);
    }
    if (CSoftClothCollisionSection* collision = m_plugin->CollisionSection()) {
        collision->EnableSection(false);
    }
    if (!IsWeightMapMode()) {
        Ui().SetDialogMode(EDialogMode::WeightMap);
    }
    return BF::Results::Success;
}

void CSoftClothPresetSection::PhysicsSoftClothMultiMaterialsDetected(BFHANDLE hObject)
{
    CMoviraInterface* host = m_host;
    if (ConfirmMultipleMaterials() == BF::Results::Cancelled) {
        host->GetEditService()->CancelMultiMaterialSoftCloth(hObject);
    }
}

bool CSoftClothPresetSection::IsWeightMapMode() const
{
    return Scene().GetDialogMode() == EDialogMode::WeightMap;
}

void CSoftClothPresetSection::OnClickPaintPushButton()
{
    if (!m_host) {
        return;
    }
    if (!IsWeightMapMode()) {
        Ui().SetDialogMode(EDialogMode::WeightMap);
        return;
    }
    CSoftClothMaterialDlg* dialog = m_plugin->MaterialDlg();
    if (!dialog || !dialog->ShowAgainInOpenMode()) {
        Ui().SetDialogMode(EDialogMode::None);
    }
}

void CSoftClothPresetSection::ConvertToRigidBody()
{
    // The conversion can destroy this section.
    CMoviraInterface* host = m_host;
    Edit().ConvertToRigidBody(Scene().GetSelectedObject(0));
    host->GetUiService()->ShowPanelPage(physicsPage[0], physicsPage[1], physicsPage[2]);
}

void CSoftClothPresetSection::OnClickUseWorldGravityCheckBox()
{
    WriteGravity(IsChecked(m_ui.useWorldGravityCheckBox));
}

BF::Result CSoftClothPresetSection::WriteGravity(bool useGlobalGravity)
{
    if (!m_host) {
        return BF::Results::InvalidArgument;
    }
    const SoftClothSelection& shown = Selection();
    return Edit().SetUseGlobalGravity(shown.object, shown.mesh, shown.material, useGlobalGravity,
                                      shown.affectAllMaterials);
}

void CSoftClothPresetSection::OnClickAffectAllMaterialsCheckBox()
{
    Selection().affectAllMaterials = IsChecked(m_ui.affectAllMaterialsCheckBox);
}

void CSoftClothPresetSection::ShowMessage(const QString& text)
{
    if (!m_host) {
        return;
    }
    ShowInformation(*m_host, text, tr("[Physics Soft Cloth Section] Movira 6", "Message Title"), this);
}

} // namespace MV
