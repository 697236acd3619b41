#include "preset/SoftClothPresetSection.h"

#include "material/SoftClothMaterialDlg.h"
#include "panel/HostCodes.h"
#include "panel/MessageBox.h"
#include "panel/OutOfDate.h"
#include "panel/PanelForm.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/EditService.h"
#include "plugin/services/HotKeyService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "preset/ApplyKeys.h"
#include "preset/EditedMaterial.h"
#include "preset/PanelProfiles.h"
#include "preset/PresetGallery.h"
#include "preset/SoftClothSwitch.h"
#include "ui/IniFile.h"
#include "ui/WidgetAccess.h"

#include <MVPluginQt/EventSender.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTabWidget>

namespace MV {

namespace {

const QString gravityKey = QStringLiteral("Use_Global_Gravity");

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
    if (gravity.IsFailure()) {
        return gravity;
    }
    if (gravity == outOfDate) {
        return BF::Results::Success;
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

/// \return 0; the host's failure; or that the refresh is out of date: the box writes to the host when it changes, and
///         in that write the host can show something else
BF::Result CSoftClothPresetSection::ShowGravity(const SoftClothSelection& shown)
{
    bool gravity = false;
    const BF::Result known =
        Scene().GetUseGlobalGravity(shown.object, shown.mesh, shown.material, gravity, shown.affectAllMaterials);
    if (known.IsFailure()) {
        return known;
    }
    SetChecked(m_ui.useWorldGravityCheckBox, gravity);
    return IsStillShown(shown, Selection()) ? BF::Results::Success : outOfDate;
}

void CSoftClothPresetSection::ShowAffectAllMaterials()
{
    const CSoftClothMaterialDlg* dialog = m_plugin->MaterialDlg();
    EnableWidget(m_ui.affectAllMaterialsCheckBox, dialog && dialog->MaterialCount() >= 2);
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

void CSoftClothPresetSection::OnClickActivePhysicsCheckBox()
{
    if (m_host) {
        CSoftClothSwitch(this, m_plugin, m_host, m_ui.activePhysicsCheckBox).FollowBox();
    }
}

BF::Result CSoftClothPresetSection::ConfirmMultipleMaterials()
{
    if (!m_host) {
        return BF::Results::InvalidArgument;
    }
    return CSoftClothSwitch(this, m_plugin, m_host, m_ui.activePhysicsCheckBox).ConfirmMultipleMaterials();
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

/// The section's own group of a profile.
ProfileGroup CSoftClothPresetSection::GravityGroup()
{
    const auto load = [this](const CIniGroup& profile) {
        const QPointer<CSoftClothPresetSection> self(this);
        const bool gravity = profile.Value(gravityKey).toBool();
        // Not silent: a box that changes writes the gravity too.
        SetChecked(m_ui.useWorldGravityCheckBox, gravity);
        return self ? WriteGravity(gravity) : outOfDate;
    };
    const auto save = [this](QSettings& profile) {
        profile.setValue(gravityKey, IsChecked(m_ui.useWorldGravityCheckBox));
    };
    return {QStringLiteral("Preset"), load, save};
}

CPanelProfiles CSoftClothPresetSection::Profiles()
{
    return {this, m_plugin, m_host, GravityGroup()};
}

BF::Result CSoftClothPresetSection::LoadProfileFile(const QString& path)
{
    return m_host ? Profiles().Load(path) : BF::Result(BF::Results::InvalidArgument);
}

void CSoftClothPresetSection::OnChangeCurrentItemOfPresetContentListWidget(QListWidget* pListWidget)
{
    LoadProfileFile(pListWidget ? ProfileOf(pListWidget->currentItem()) : QString());
}

void CSoftClothPresetSection::OnClickOpenFilePushButton()
{
    if (m_host) {
        Profiles().ChooseAndLoad();
    }
}

void CSoftClothPresetSection::OnClickSaveFilePushButton()
{
    if (m_host) {
        Profiles().ChooseAndSave();
    }
}

void CSoftClothPresetSection::OnClickLoadIniPushButton()
{
    if (m_host) {
        Profiles().ChooseForHost();
    }
}

void CSoftClothPresetSection::ShowMessage(const QString& text)
{
    if (!m_host) {
        return;
    }
    ShowInformation(*m_host, text, tr("[Physics Soft Cloth Section] Movira 6", "Message Title"), this);
}

} // namespace MV
