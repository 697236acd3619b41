#include "preset/SoftClothMaterialTable.h"

#include "plugin/HostIds.h"
#include "plugin/PanelForm.h"
#include "plugin/services/EditService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "sections/WidgetAccess.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>
#include <memory>
#include <new>

namespace MV {

namespace {

enum Column
{
    TickColumn,
    MeshColumn,
    MaterialColumn,
    ColumnCount,
};

constexpr int tickColumnWidth = 40;

QString NameOf(CSceneService& scene, BF::CHandle* id)
{
    std::wstring name;
    scene.GetObjectName(name, id);
    return QString::fromStdWString(name);
}

QTableWidgetItem* NewReadOnlyItem()
{
    auto* item = new (std::nothrow) QTableWidgetItem;
    if (item) {
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    }
    return item;
}

/// Keeps a table out of sight while its number of rows changes: a visible one lays out all its rows again for each
/// cell widget that comes or goes.
class CTableHidden
{
public:
    CTableHidden(QTableWidget& table, bool hide)
        : m_table(hide && !table.isHidden() ? &table : nullptr)
        , m_hadFocus(table.hasFocus())
    {
        if (m_table) {
            m_table->hide();
        }
    }
    ~CTableHidden()
    {
        if (!m_table) {
            return;
        }
        m_table->show();
        if (m_hadFocus) {
            m_table->setFocus();
        }
    }
    Q_DISABLE_COPY_MOVE(CTableHidden)

private:
    QTableWidget* m_table;
    bool m_hadFocus;
};

} // namespace

/// What a row shows.
struct CSoftClothMaterialTable::Row
{
    QString mesh;
    QString material;
    bool enabled = false;
};

CSoftClothMaterialTable::CSoftClothMaterialTable(QWidget* parent, CPhysicsSoftClothPlugin* plugin)
    : CPluginDialog(parent)
    , m_plugin(plugin)
{
}

CSoftClothMaterialTable::~CSoftClothMaterialTable() = default;

BF::Result CSoftClothMaterialTable::Init(const QString& /*pluginPath*/, const QString& resourceBase,
                                         CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    m_host = host;
    const BF::Result built = BuildPanelForm(QStringLiteral("SoftClothMaterialTable"), this, m_ui, resourceBase, host);
    if (built.IsFailure()) {
        return built;
    }
    // The buttons act when they go down, not when they are let go.
    const auto connectPressed = [this](QPushButton* button, void (CSoftClothMaterialTable::*handler)()) {
        if (button) {
            connect(button, &QPushButton::pressed, this, handler);
        }
    };
    connectPressed(m_ui.cancelPushButton, &CSoftClothMaterialTable::OnClickCancelPushButton);
    connectPressed(m_ui.confirmPushButton, &CSoftClothMaterialTable::OnClickConfirmPushButton);
    SetUpTable();
    return BF::Results::Success;
}

void CSoftClothMaterialTable::SetUpTable()
{
    QTableWidget* table = m_ui.materialTableWidget;
    if (!table) {
        return;
    }
    table->setColumnCount(ColumnCount);
    // Each note names its column in Traditional Chinese (di yi / di er / di san lan ming cheng: name of the first,
    // second, third column), in Big5 as the translators' files have it.
    table->setHorizontalHeaderLabels(
        {tr(" ", "MVPhysicsSoftClothSection Material Table \xB2\xC4\xA4\x40\xC4\xE6\xA6\x57\xBA\xD9"),
         tr("Mesh", "MVPhysicsSoftClothSection Material Table \xB2\xC4\xA4\x47\xC4\xE6\xA6\x57\xBA\xD9"),
         tr("Material Name", "MVPhysicsSoftClothSection Material Table \xB2\xC4\xA4\x54\xC4\xE6\xA6\x57\xBA\xD9")});
    QHeaderView* header = table->horizontalHeader();
    header->setSectionsClickable(false);
    header->setSectionResizeMode(TickColumn, QHeaderView::Fixed);
    // Some styles and fonts would have it wider.
    header->setMinimumSectionSize(tickColumnWidth);
    header->resizeSection(TickColumn, tickColumnWidth);
    header->setSectionResizeMode(MeshColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(MaterialColumn, QHeaderView::Stretch);
}

void CSoftClothMaterialTable::SetMaterialRows(const BF::CArrayList<BF::CHandle*>& materials,
                                              const BF::CArrayList<BF::CHandle*>& meshes)
{
    m_materials = materials;
    m_meshes = meshes;
}

BF::Result CSoftClothMaterialTable::FillTable()
{
    QTableWidget* table = m_ui.materialTableWidget;
    if (!m_host || !table) {
        return BF::Results::Success;
    }
    const QVector<Row> rows = ReadRows();
    table->setCurrentCell(-1, -1);
    table->scrollToTop();
    // Rows that are there already are used again: making and destroying their widgets is what takes time.
    const int kept = std::min(m_checkBoxes.size(), rows.size());
    const CTableHidden hidden(*table, rows.size() != m_checkBoxes.size());
    m_checkBoxes.resize(kept);
    table->setRowCount(rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        if (row >= kept && !MakeRow(row)) {
            table->setRowCount(row);
            return BF::Results::ResourceFailure;
        }
        ShowRow(row, rows.at(row));
    }
    return BF::Results::Success;
}

QVector<CSoftClothMaterialTable::Row> CSoftClothMaterialTable::ReadRows() const
{
    const int count = int(std::min(m_materials.Size(), m_meshes.Size()));
    QVector<Row> rows(count);
    for (int i = 0; i < count; ++i) {
        BF::CHandle* material = m_materials[std::size_t(i)];
        CSceneService& scene = *m_host->GetSceneService();
        rows[i].material = NameOf(scene, material);
        rows[i].mesh = NameOf(scene, m_meshes[std::size_t(i)]);
        rows[i].enabled = scene.IsMaterialSoftClothEnabled(HandleAsId(material));
    }
    return rows;
}

/// Puts an unticked check box and two empty cells into a row that has none yet.
/// \return false when a part of the row could not be made
bool CSoftClothMaterialTable::MakeRow(int row)
{
    std::unique_ptr<QWidget> holder(new (std::nothrow) QWidget);
    auto* layout = holder ? new (std::nothrow) QHBoxLayout(holder.get()) : nullptr;
    auto* checkBox = layout ? new (std::nothrow) QCheckBox : nullptr;
    std::unique_ptr<QTableWidgetItem> mesh(NewReadOnlyItem());
    std::unique_ptr<QTableWidgetItem> material(NewReadOnlyItem());
    if (!checkBox || !mesh || !material) {
        delete checkBox;
        return false;
    }
    layout->addWidget(checkBox);
    layout->setAlignment(Qt::AlignCenter);
    layout->setContentsMargins(0, 0, 0, 0);
    connect(checkBox, &QCheckBox::stateChanged, this, &CSoftClothMaterialTable::UpdateConfirmEnabled);

    QTableWidget* table = m_ui.materialTableWidget;
    table->setCellWidget(row, TickColumn, holder.release());
    table->setItem(row, MeshColumn, mesh.release());
    table->setItem(row, MaterialColumn, material.release());
    m_checkBoxes.append(checkBox);
    return true;
}

void CSoftClothMaterialTable::ShowRow(int row, const Row& content)
{
    QCheckBox* checkBox = m_checkBoxes.at(row);
    const Qt::CheckState state = content.enabled ? Qt::Checked : Qt::Unchecked;
    if (checkBox->checkState() != state) {
        const CSignalBlocker silent{checkBox};
        checkBox->setCheckState(state);
    }
    checkBox->setAccessibleName(content.material);
    m_ui.materialTableWidget->item(row, MeshColumn)->setText(content.mesh);
    m_ui.materialTableWidget->item(row, MaterialColumn)->setText(content.material);
}

void CSoftClothMaterialTable::UpdateConfirmEnabled()
{
    const bool anyTicked = std::any_of(m_checkBoxes.cbegin(), m_checkBoxes.cend(), [](const QCheckBox* checkBox) {
        return checkBox->checkState() != Qt::Unchecked;
    });
    EnableWidget(m_ui.confirmPushButton, anyTicked);
}

void CSoftClothMaterialTable::OnClickCancelPushButton()
{
    reject();
}

void CSoftClothMaterialTable::OnClickConfirmPushButton()
{
    // A write can bring an event that fills the table anew, so the user's choice is taken down first.
    const BF::CArrayList<BF::CHandle*> materials = m_materials;
    QVector<bool> enabled;
    for (const QCheckBox* checkBox : qAsConst(m_checkBoxes)) {
        enabled.append(checkBox->checkState() != Qt::Unchecked);
    }
    const int count = std::min(enabled.size(), int(materials.Size()));
    const QPointer<CSoftClothMaterialTable> self(this);
    for (int row = 0; row < count && self; ++row) {
        m_host->GetEditService()->SetMaterialSoftClothEnabled(HandleAsId(materials[std::size_t(row)]), enabled.at(row));
    }
    if (self) {
        accept();
    }
}

} // namespace MV
