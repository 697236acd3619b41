#include "material/SoftClothMaterialDlg.h"

#include "plugin/HostIds.h"
#include "plugin/MessageBox.h"
#include "plugin/PanelForm.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/EditService.h"
#include "plugin/services/HotKeyService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "preset/SoftClothMaterialTable.h"
#include "sections/WidgetAccess.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>
#include <MVPluginQt/EventSender.h>

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QHideEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QShortcut>

#include <algorithm>
#include <map>
#include <new>

namespace MV {

namespace {

constexpr int materialRole = Qt::UserRole;
constexpr int meshRole = Qt::UserRole + 1;
constexpr int noRow = -1;
constexpr quint32 filteredObjectType = 2;

using IgnoredNames = std::map<std::wstring, BF::CArrayList<std::wstring>>;

/// The ignored material names of a profile file; empty when it has none.
IgnoredNames ReadIgnoredNames(const QString& profilePath)
{
    QSettings profile(profilePath, QSettings::IniFormat);
    profile.setIniCodec("UTF-8");
    profile.beginGroup(QStringLiteral("Ignored_Material_Name_List"));
    IgnoredNames names;
    const QStringList keys = profile.allKeys();
    for (const QString& key : keys) {
        BF::CArrayList<std::wstring> list;
        for (const QString& name : profile.value(key).toStringList()) {
            list.Add(name.toStdWString());
        }
        names.emplace(key.toStdWString(), list);
    }
    return names;
}

} // namespace

CSoftClothMaterialDlg::CSoftClothMaterialDlg(QWidget* parent, CPhysicsSoftClothPlugin* plugin)
    : CPluginDialog(parent)
    , m_plugin(plugin)
{
}

CSoftClothMaterialDlg::~CSoftClothMaterialDlg()
{
    for (const QMetaObject::Connection& connection : m_imageLoadEvents) {
        disconnect(connection);
    }
}

BF::Result CSoftClothMaterialDlg::Init(const QString& /*pluginPath*/, const QString& resourceBase,
                                       CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    m_host = host;
    const BF::Result built = BuildPanelForm(QStringLiteral("SoftClothMaterialDlg"), this, m_ui, resourceBase, host);
    if (built.IsFailure()) {
        return built;
    }
    if (m_ui.weightingItemLabel) {
        m_ui.weightingItemLabel->SetGetOpenFileNameFunctor([host] {
            QString path;
            host->GetSceneService()->GetOpenImageFileName(path, 4, 71, 4);
            return path;
        });
        m_ui.weightingItemLabel->SetFileFilter(QStringLiteral("jpg jpeg bmp gif png tga"));
    }
    ConnectWidgets();
    ConnectHostEvents();
    auto* filterShortcut = new (std::nothrow) QShortcut(QKeySequence(QStringLiteral("Alt+Shift+F")), this);
    if (!filterShortcut) {
        return BF::Results::ResourceFailure;
    }
    connect(filterShortcut, &QShortcut::activated, this, &CSoftClothMaterialDlg::OnFilterMaterialList);
    return RegisterHotKeys();
}

void CSoftClothMaterialDlg::ConnectWidgets()
{
    using Dialog = CSoftClothMaterialDlg;
    ConnectClicked(m_ui.openFilePushButton, this, &Dialog::OnClickOpenFilePushButton);
    ConnectClicked(m_ui.saveFilePushButton, this, &Dialog::OnClickSaveFilePushButton);
    ConnectClicked(m_ui.deleteFilePushButton, this, &Dialog::OnClickDeleteFilePushButton);
    ConnectClicked(m_ui.launchPushButton, this, &Dialog::OnClickLaunchFilePushButton);
    ConnectClicked(m_ui.uvRefPushButton, this, &Dialog::OnClickUvRefPushButton);
    ConnectClicked(m_ui.openPathPushButton, this, &Dialog::OnClickOpenPathPushButton);
    ConnectClicked(m_ui.embedTexturePushButton, this, &Dialog::OnClickEmbedTexturePushButton);
    ConnectClicked(m_ui.pickMaterialPushButton, this, &Dialog::OnClickPickMaterialPushButton);
    ConnectClicked(m_ui.showMaterialTableButton, this, &Dialog::OnClickShowMaterialTablePushButton);

    for (QComboSpinBox* box : {m_ui.brightnessComboSpinBox, m_ui.contrastComboSpinBox}) {
        if (box) {
            connect(box, &QComboSpinBox::ValueChanged, this, [this] { WriteWeightAdjust(false, false); });
            connect(box, &QComboSpinBox::EditFinished, this, [this] { WriteWeightAdjust(true, true); });
        }
    }
    for (QItemLabel* label : {m_ui.diffuseItemLabel, m_ui.opacityItemLabel, m_ui.weightingItemLabel}) {
        if (label) {
            connect(label, &QItemLabel::SelectedChanged, this, &Dialog::OnItemSelectedChanged);
        }
    }
    if (m_ui.weightingItemLabel) {
        connect(m_ui.weightingItemLabel, &QItemLabel::PreImageLoaded, this, &Dialog::OnLoadWeightImage);
    }
    if (m_ui.materialListWidget) {
        connect(m_ui.materialListWidget, &QListWidget::currentItemChanged, this,
                &Dialog::OnChangeCurrentItemOfMaterialList);
    }
}

void CSoftClothMaterialDlg::ConnectHostEvents()
{
    using Dialog = CSoftClothMaterialDlg;
    CEventSender* sender = m_host->GetEventSender();
    connect(sender, &CEventSender::DialogModeChanged, this, &Dialog::ShowDialog);
    connect(sender, &CEventSender::PickedMaterialTextureChanged, this, &Dialog::OnMaterialTextureChanged);
    m_imageLoadEvents = {
        connect(sender, &CEventSender::ImageAsyncLoadStart, sender, [this] { SetImageLoading(true); }),
        connect(sender, &CEventSender::ImageAsyncLoadAllDone, sender, [this] { SetImageLoading(false); })};
    if (!HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyB)) {
        return;
    }
    connect(sender, &CEventSender::UndoRedoDone, this, &Dialog::UpdateUi);
    connect(sender, &CEventSender::ObjectSelectionChanged, this, &Dialog::UpdateUi);
    connect(sender, &CEventSender::FileLoaded, this, [this] {
        if (isVisible()) {
            hide();
        }
    });
    if (m_ui.materialListWidget) {
        connect(m_ui.materialListWidget, &QListWidget::itemClicked, this, [this] {
            if (isVisible()) {
                UpdateWeightSettings(false, false);
            }
        });
    }
}

BF::Result CSoftClothMaterialDlg::RegisterHotKeys()
{
    CHotKeyService& hotKeys = *m_host->GetHotKeyService();
    const quint64 registration = hotKeys.RegisterSectionHotKeys(
        {QCoreApplication::translate("Modify Panel hot key", "[Hot Key] Modify").toStdWString(),
         QCoreApplication::translate("LensFlare section hot key", "[Hot Key] Physics").toStdWString()},
        L"MVPhysicsSoftCloth");
    if (m_ui.doEscapeAction) {
        connect(m_ui.doEscapeAction, &QAction::triggered, this, &CSoftClothMaterialDlg::DoHotkeyEscape);
    }
    const BF::Result registered = hotKeys.RegisterEscapeAction(registration, m_ui.doEscapeAction, this);
    if (registered.IsFailure()) {
        return registered;
    }
    const BF::Result disabled = hotKeys.DisableHotKeyAction(m_ui.doEscapeAction);
    return disabled.IsFailure() ? disabled : BF::Results::Success;
}

CSceneService& CSoftClothMaterialDlg::Scene() const
{
    return *m_host->GetSceneService();
}

CEditService& CSoftClothMaterialDlg::Edit() const
{
    return *m_host->GetEditService();
}

CUiService& CSoftClothMaterialDlg::Ui() const
{
    return *m_host->GetUiService();
}

SoftClothSelection& CSoftClothMaterialDlg::Selection() const
{
    return m_plugin->Selection();
}

CSoftClothMaterialTable* CSoftClothMaterialDlg::MaterialTable() const
{
    return m_materialTable.toStrongRef().data();
}

void CSoftClothMaterialDlg::ShowMessage(const QString& text)
{
    ShowInformation(*m_host, text, MessageTitle(), this);
}

BF::Result CSoftClothMaterialDlg::UpdateUi()
{
    if (!isVisible()) {
        return BF::Results::NothingDone;
    }
    if (Selection().mesh == 0 || Selection().material == 0) {
        EnableEditWidgets(false);
        return BF::Results::NothingDone;
    }
    EnableEditWidgets(true);
    const BF::Result diffuse = ShowThumbnail(m_ui.diffuseItemLabel, true);
    if (diffuse.IsFailure()) {
        return diffuse;
    }
    const BF::Result opacity = ShowThumbnail(m_ui.opacityItemLabel, true);
    return opacity.IsFailure() ? opacity : UpdateWeightSettings(true, true);
}

void CSoftClothMaterialDlg::EnableEditWidgets(bool enable)
{
    for (QWidget* widget : std::initializer_list<QWidget*>{
             m_ui.weightingItemLabel, m_ui.label, m_ui.label_2, m_ui.label_3, m_ui.label_4, m_ui.openFilePushButton,
             m_ui.saveFilePushButton, m_ui.deleteFilePushButton, m_ui.launchPushButton, m_ui.uvRefPushButton,
             m_ui.embedTexturePushButton, m_ui.openPathPushButton, m_ui.pickMaterialPushButton, m_ui.bitmapLabel,
             m_ui.bitmapPathLineEdit, m_ui.listBorderWidget}) {
        EnableWidget(widget, enable);
    }
    EnableAdjustWidgets(enable);
    ShowPath({});
    EnableWidget(m_ui.diffuseItemLabel, enable && !m_imageLoading);
    EnableWidget(m_ui.opacityItemLabel, enable && !m_imageLoading);
}

void CSoftClothMaterialDlg::EnableAdjustWidgets(bool enable)
{
    for (QWidget* widget : std::initializer_list<QWidget*>{m_ui.brightnessComboSpinBox, m_ui.brightnessLabel,
                                                           m_ui.contrastComboSpinBox, m_ui.contrastLabel}) {
        EnableWidget(widget, enable);
    }
}

void CSoftClothMaterialDlg::ShowPath(const QString& path)
{
    if (m_ui.bitmapPathLineEdit) {
        m_ui.bitmapPathLineEdit->setText(path);
    }
}

void CSoftClothMaterialDlg::SetImageLoading(bool loading)
{
    m_imageLoading = loading;
    UpdateUi();
}

void CSoftClothMaterialDlg::ShowDialog(EDialogMode eMode)
{
    if (eMode == EDialogMode::WeightMap) {
        show();
        UpdateUi();
    } else if (isVisible()) {
        hide();
    }
}

void CSoftClothMaterialDlg::hideEvent(QHideEvent* event)
{
    // A minimised window is still open.
    if (m_host && !event->spontaneous()) {
        if (Scene().GetCurrentPickMode() == EPickMode::Material) {
            Ui().CancelPickMode();
        }
        if (Scene().GetDialogMode() == EDialogMode::WeightMap) {
            Ui().SetDialogMode(EDialogMode::None);
        }
    }
    CPluginDialog::hideEvent(event);
}

void CSoftClothMaterialDlg::OnClickPickMaterialPushButton()
{
    Ui().ChangePickMode(EPickMode::Material);
}

BF::Result CSoftClothMaterialDlg::OnPickModeChanged(EPickMode mode)
{
    if (!m_host) {
        return BF::Results::InvalidArgument;
    }
    CHotKeyService& hotKeys = *m_host->GetHotKeyService();
    return mode == EPickMode::Material ? hotKeys.EnableHotKeyAction(m_ui.doEscapeAction)
                                       : hotKeys.DisableHotKeyAction(m_ui.doEscapeAction);
}

void CSoftClothMaterialDlg::DoHotkeyEscape()
{
    if (Scene().GetCurrentPickMode() == EPickMode::Material) {
        Ui().ChangePickMode(EPickMode::None);
    }
}

BF::Result CSoftClothMaterialDlg::ReloadMaterials(BF::CHandle* object, bool reset)
{
    QListWidget* list = m_ui.materialListWidget;
    if (!m_host || !list) {
        return BF::Results::InvalidArgument;
    }
    const int rememberedRow = reset ? noRow : list->currentRow();
    const CSignalBlocker silent{list};
    list->clear();

    std::vector<Material> materials;
    const BF::Result read = ReadMaterials(object, materials);
    if (read.IsFailure()) {
        return read;
    }
    const BF::Result tableFilled = FillMaterialTable(materials);
    if (tableFilled.IsFailure()) {
        return tableFilled;
    }
    const auto isNotOffered = [this](const Material& m) { return !Scene().IsMaterialSoftClothEnabled(m.material); };
    materials.erase(std::remove_if(materials.begin(), materials.end(), isNotOffered), materials.end());
    EnableEditWidgets(!materials.empty());
    if (materials.empty()) {
        return BF::Results::NothingDone;
    }

    int activeRow = noRow;
    for (const Material& material : materials) {
        const BF::Result added = AddMaterialRow(material);
        if (added.IsFailure()) {
            return added;
        }
        bool active = false;
        if (reset && activeRow == noRow) {
            const BF::Result known = Scene().IsSoftClothActive(object, material.mesh, material.material, active);
            if (known.IsFailure()) {
                return known;
            }
        }
        if (active) {
            activeRow = list->count() - 1;
        }
    }
    ChooseRow(rememberedRow >= 0 && rememberedRow < list->count() ? rememberedRow : std::max(activeRow, 0));
    return BF::Results::Success;
}

/// Every material on every mesh of \p object.
BF::Result CSoftClothMaterialDlg::ReadMaterials(BF::CHandle* object, std::vector<Material>& materials) const
{
    BF::CArrayList<std::size_t> meshes;
    const BF::Result meshesKnown = Scene().GetMeshList(object, meshes);
    if (meshesKnown.IsFailure()) {
        return meshesKnown;
    }
    for (const std::size_t mesh : meshes) {
        BF::CArrayList<std::size_t> ids;
        const BF::Result materialsKnown = Scene().GetMaterialList(mesh, ids, 0);
        if (materialsKnown.IsFailure()) {
            return materialsKnown;
        }
        for (const std::size_t material : ids) {
            materials.push_back({mesh, material});
        }
    }
    return BF::Results::Success;
}

BF::Result CSoftClothMaterialDlg::FillMaterialTable(const std::vector<Material>& materials) const
{
    CSoftClothMaterialTable* table = MaterialTable();
    if (!table) {
        return BF::Results::Success;
    }
    BF::CArrayList<BF::CHandle*> materialHandles;
    BF::CArrayList<BF::CHandle*> meshHandles;
    for (const Material& material : materials) {
        materialHandles.Add(IdAsHandle(material.material));
        meshHandles.Add(IdAsHandle(material.mesh));
    }
    table->SetMaterialRows(materialHandles, meshHandles);
    return table->FillTable();
}

BF::Result CSoftClothMaterialDlg::AddMaterialRow(const Material& material)
{
    std::wstring materialName;
    const BF::Result materialKnown = Scene().GetObjectName(materialName, IdAsHandle(material.material));
    if (materialKnown.IsFailure()) {
        return materialKnown;
    }
    std::wstring meshName;
    const BF::Result meshKnown = Scene().GetObjectName(meshName, IdAsHandle(material.mesh));
    if (meshKnown.IsFailure()) {
        return meshKnown;
    }
    auto* item = new (std::nothrow) QListWidgetItem(QString::fromStdWString(materialName + L"( " + meshName + L" )"));
    if (!item) {
        return BF::Results::ResourceFailure;
    }
    item->setData(materialRole, QVariant::fromValue<quint64>(material.material));
    item->setData(meshRole, QVariant::fromValue<quint64>(material.mesh));
    m_ui.materialListWidget->addItem(item);
    return BF::Results::Success;
}

/// Makes \p row current in the list and in the selection.
void CSoftClothMaterialDlg::ChooseRow(int row)
{
    Selection().material = RowDatum(row, materialRole);
    Selection().mesh = RowDatum(row, meshRole);
    m_ui.materialListWidget->setCurrentRow(row);
}

/// An id that a row carries; 0 when it carries none.
std::size_t CSoftClothMaterialDlg::RowDatum(int row, int role) const
{
    const QListWidgetItem* item = m_ui.materialListWidget->item(row);
    return item ? std::size_t(item->data(role).toULongLong()) : 0;
}

int CSoftClothMaterialDlg::MaterialCount() const
{
    return m_ui.materialListWidget ? m_ui.materialListWidget->count() : 0;
}

std::size_t CSoftClothMaterialDlg::CurrentMaterial() const
{
    return m_ui.materialListWidget ? RowDatum(m_ui.materialListWidget->currentRow(), materialRole) : 0;
}

BF::Result CSoftClothMaterialDlg::RefreshMaterialStates()
{
    QListWidget* list = m_ui.materialListWidget;
    if (MaterialCount() == 0) {
        return BF::Results::NothingDone;
    }
    const CSignalBlocker silent{list};
    for (int row = 0; row < list->count(); ++row) {
        std::wstring name;
        const BF::Result known = Scene().GetObjectName(name, IdAsHandle(RowDatum(row, materialRole)));
        if (known.IsFailure()) {
            return known;
        }
        list->item(row)->setText(QString::fromStdWString(name));
    }
    return BF::Results::Success;
}

bool CSoftClothMaterialDlg::PickMaterial(std::size_t index)
{
    if (!m_host) {
        return false;
    }
    const std::size_t picked = Scene().GetMaterialIdByIndex(Selection().object, index);
    if (picked == 0 || picked == Selection().material) {
        return false;
    }
    for (int row = 0; row < MaterialCount(); ++row) {
        if (RowDatum(row, materialRole) == picked) {
            const CSignalBlocker silent{m_ui.materialListWidget};
            ChooseRow(row);
            return true;
        }
    }
    return false;
}

void CSoftClothMaterialDlg::OnChangeCurrentItemOfMaterialList()
{
    const int row = m_ui.materialListWidget->currentRow();
    if (row == noRow) {
        return;
    }
    Selection().material = RowDatum(row, materialRole);
    Selection().mesh = RowDatum(row, meshRole);
    m_plugin->UpdateAllUIs(true);
}

void CSoftClothMaterialDlg::OnClickShowMaterialTablePushButton()
{
    const QPointer<CSoftClothMaterialTable> table(MaterialTable());
    if (!table) {
        return;
    }
    const QPointer<CSoftClothMaterialDlg> self(this);
    const int code = table->exec();
    if (!self) {
        return;
    }
    m_materialTableCode = code;
    ReloadMaterials(Selection().object, true);
    m_plugin->UpdateAllUIs(true);
    if (m_materialTableCode == QDialog::Accepted) {
        Ui().RefreshScene(0);
    }
}

void CSoftClothMaterialDlg::OnFilterMaterialList()
{
    if (Selection().objectType != filteredObjectType) {
        return;
    }
    const QPointer<CSoftClothMaterialDlg> self(this);
    const QString path = QFileDialog::getOpenFileName(
        this, QCoreApplication::translate("Open File title", "Load Soft Cloth Custom Profile"), QString(),
        QStringLiteral("INI Files (*.ini)"));
    if (!self || path.isEmpty()) {
        return;
    }
    const QFileInfo file(path);
    if (!file.exists()) {
        ShowMessage(tr("InValid File Path."));
        return;
    }
    if (!file.isReadable()) {
        ShowMessage(tr("File is Unreadable."));
        return;
    }
    Edit().SetIgnoredMaterialNames(Selection().object, ReadIgnoredNames(path));
    ReloadMaterials(Selection().object, true);
    m_plugin->UpdateAllUIs(true);
}

} // namespace MV
