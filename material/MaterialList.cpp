// The list of materials: its rows, the current one, and what narrows it.
#include "material/SoftClothMaterialDlg.h"

#include "material/SoftClothMaterialTable.h"
#include "panel/HostCodes.h"
#include "panel/HostIds.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/EditService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "ui/IniFile.h"
#include "ui/SignalBlocker.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QListWidget>
#include <QPointer>

#include <algorithm>
#include <map>
#include <new>

namespace MV {

namespace {

constexpr int materialRole = Qt::UserRole;
constexpr int meshRole = Qt::UserRole + 1;
constexpr int noRow = -1;

/// Lets the user choose a profile file; empty when none was chosen.
/// The dialog is no local variable, as in QFileDialog's own functions: it is destroyed with \p parent.
QString AskForProfile(QWidget* parent)
{
    const QPointer<QFileDialog> dialog(
        new QFileDialog(parent, QCoreApplication::translate("Open File title", "Load Soft Cloth Custom Profile"),
                        QString(), QStringLiteral("INI Files (*.ini)")));
    dialog->setFileMode(QFileDialog::ExistingFile);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QString path = accepted && dialog ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}

using IgnoredNames = std::map<std::wstring, BF::CArrayList<std::wstring>>;

/// The ignored material names of a profile; empty when it has none.
IgnoredNames ReadIgnoredNames(const CIniFile& profile)
{
    const CIniGroup& group = profile.Group(QStringLiteral("Ignored_Material_Name_List"));
    IgnoredNames names;
    const QStringList keys = group.Keys();
    for (const QString& key : keys) {
        BF::CArrayList<std::wstring> list;
        const QStringList values = group.Value(key).toStringList();
        for (const QString& name : values) {
            list.Add(name.toStdWString());
        }
        names.emplace(key.toStdWString(), list);
    }
    return names;
}

} // namespace

CSoftClothMaterialTable* CSoftClothMaterialDlg::MaterialTable() const
{
    return m_materialTable.toStrongRef().data();
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
    // Any host call can bring an event that lists materials again; that list is the newer one and stays.
    const int rebuild = ++m_rebuild;
    const auto isOutOfDate = [this, rebuild] { return rebuild != m_rebuild; };

    std::vector<Material> materials;
    const BF::Result read = ReadMaterials(object, materials);
    if (read.IsFailure() || isOutOfDate()) {
        return read;
    }
    const BF::Result tableFilled = FillMaterialTable(materials);
    if (tableFilled.IsFailure() || isOutOfDate()) {
        return tableFilled;
    }
    const auto isNotOffered = [this](const Material& m) { return !Scene().IsMaterialSoftClothEnabled(m.material); };
    materials.erase(std::remove_if(materials.begin(), materials.end(), isNotOffered), materials.end());
    if (isOutOfDate()) {
        return BF::Results::Success;
    }
    EnableEditWidgets(!materials.empty());
    if (materials.empty()) {
        return BF::Results::NothingDone;
    }

    int activeRow = noRow;
    for (const Material& material : materials) {
        const BF::Result added = AddMaterialRow(material);
        if (added.IsFailure() || isOutOfDate()) {
            return added;
        }
        bool active = false;
        if (reset && activeRow == noRow) {
            const BF::Result known = Scene().IsSoftClothActive(object, material.mesh, material.material, active);
            if (known.IsFailure() || isOutOfDate()) {
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

/// Appends a row, unless the list was filled by somebody else during the host calls.
BF::Result CSoftClothMaterialDlg::AddMaterialRow(const Material& material)
{
    const int rebuild = m_rebuild;
    std::wstring materialName;
    const BF::Result materialKnown = Scene().GetObjectName(materialName, IdAsHandle(material.material));
    if (materialKnown.IsFailure()) {
        return materialKnown;
    }
    std::wstring meshName;
    const BF::Result meshKnown = Scene().GetObjectName(meshName, IdAsHandle(material.mesh));
    if (meshKnown.IsFailure() || rebuild != m_rebuild) {
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
    SelectRow(row);
    m_ui.materialListWidget->setCurrentRow(row);
}

/// Makes \p row what the whole panel edits. What is not committed was meant for the row before.
void CSoftClothMaterialDlg::SelectRow(int row)
{
    const std::size_t material = RowDatum(row, materialRole);
    const std::size_t mesh = RowDatum(row, meshRole);
    if (material != Selection().material || mesh != Selection().mesh) {
        m_plugin->DropEdits();
    }
    Selection().material = material;
    Selection().mesh = mesh;
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
    const int rebuild = m_rebuild;
    for (int row = 0; row < list->count(); ++row) {
        std::wstring name;
        const BF::Result known = Scene().GetObjectName(name, IdAsHandle(RowDatum(row, materialRole)));
        if (known.IsFailure()) {
            return known;
        }
        if (rebuild != m_rebuild) {
            // The call has brought an event that filled the list, with the names as they are now.
            break;
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
    const int row = m_ui.materialListWidget ? m_ui.materialListWidget->currentRow() : noRow;
    if (row == noRow) {
        return;
    }
    SelectRow(row);
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
    const QString path = AskForProfile(this);
    if (!self || path.isEmpty()) {
        return;
    }
    const QFileInfo file(path);
    if (!file.exists()) {
        ShowMessage(tr("InValid File Path."));
        return;
    }
    const auto profile = CIniFile::Read(path);
    if (!profile) {
        ShowMessage(tr("File is Unreadable."));
        return;
    }
    // The selection can have changed while the file dialog was open.
    if (!Selection().object || Selection().objectType != filteredObjectType) {
        return;
    }
    Edit().SetIgnoredMaterialNames(Selection().object, ReadIgnoredNames(*profile));
    if (!self) {
        return;
    }
    ReloadMaterials(Selection().object, true);
    m_plugin->UpdateAllUIs(true);
}

} // namespace MV
