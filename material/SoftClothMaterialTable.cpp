#include "material/SoftClothMaterialTable.h"

#include "material/MaterialTableItems.h"
#include "panel/HostIds.h"
#include "panel/PanelForm.h"
#include "plugin/services/EditService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "ui/WidgetAccess.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QShowEvent>
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

/// Keeps a table out of sight while its number of rows changes: a visible one lays out all its rows again for each
/// cell widget that comes or goes. The focus stays where it was in the table; where that is gone, the table gets it.
class CTableHidden
{
public:
    CTableHidden(QTableWidget& table, bool hide)
        : m_table(hide && !table.isHidden() ? &table : nullptr)
    {
        if (!m_table) {
            return;
        }
        QWidget* focused = table.window()->focusWidget();
        m_hadFocus = focused && (focused == &table || table.isAncestorOf(focused));
        m_focused = m_hadFocus ? focused : nullptr;
        table.hide();
    }
    ~CTableHidden()
    {
        if (!m_table) {
            return;
        }
        m_table->show();
        if (m_hadFocus) {
            // A check box whose row is gone is only hidden at first.
            (m_focused && m_focused->isVisibleTo(m_table) ? m_focused.data() : m_table)->setFocus();
        }
    }
    Q_DISABLE_COPY_MOVE(CTableHidden)

private:
    QTableWidget* m_table;
    bool m_hadFocus = false;
    QPointer<QWidget> m_focused;
};

/// Whether the user has just pressed Space.
bool IsSpacePress(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier;
}

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
    table->installEventFilter(this);
    table->setItemDelegateForColumn(TickColumn, new CTickDelegate(table));
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
    // The labels are longer in some languages than in others.
    const int labelWidth = qMax(header->sectionSizeHint(MeshColumn), header->sectionSizeHint(MaterialColumn));
    const int besides = 2 * table->frameWidth() + table->verticalScrollBar()->sizeHint().width();
    table->setMinimumWidth(qMax(table->minimumWidth(), tickColumnWidth + 2 * labelWidth + besides));
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
    const int fill = ++m_fills;
    const QVector<Row> rows = ReadRows();
    if (fill != m_fills) {
        // A host call has brought an event that filled the table with newer rows.
        return BF::Results::Success;
    }
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
    if (rows.size() > kept) {
        MoveButtonsBehindRows();
    }
    return BF::Results::Success;
}

/// A new check box is the last one that Tab reaches. It is the two buttons that move then: thousands of check boxes,
/// one by one, would take longer than all the rest.
void CSoftClothMaterialTable::MoveButtonsBehindRows()
{
    QWidget* last = m_checkBoxes.constLast();
    for (QWidget* button : {m_ui.confirmPushButton, m_ui.cancelPushButton}) {
        if (button) {
            setTabOrder(last, button);
            last = button;
        }
    }
}

QVector<CSoftClothMaterialTable::Row> CSoftClothMaterialTable::ReadRows() const
{
    // Copies: the host calls can bring events that set other rows.
    const BF::CArrayList<BF::CHandle*> materials = m_materials;
    const BF::CArrayList<BF::CHandle*> meshes = m_meshes;
    const int count = int(std::min(materials.Size(), meshes.Size()));
    QVector<Row> rows(count);
    for (int i = 0; i < count; ++i) {
        BF::CHandle* material = materials[std::size_t(i)];
        rows[i].material = NameOf(*m_host->GetSceneService(), material);
        rows[i].mesh = NameOf(*m_host->GetSceneService(), meshes[std::size_t(i)]);
        rows[i].enabled = m_host->GetSceneService()->IsMaterialSoftClothEnabled(HandleAsId(material));
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
    std::unique_ptr<QTableWidgetItem> tick(checkBox ? new (std::nothrow) CTickItem(checkBox) : nullptr);
    std::unique_ptr<QTableWidgetItem> mesh(new (std::nothrow) CNameItem);
    std::unique_ptr<QTableWidgetItem> material(new (std::nothrow) CNameItem);
    if (!tick || !mesh || !material) {
        delete checkBox;
        return false;
    }
    layout->addWidget(checkBox);
    layout->setAlignment(Qt::AlignCenter);
    layout->setContentsMargins(0, 0, 0, 0);
    connect(checkBox, &QCheckBox::stateChanged, this, &CSoftClothMaterialTable::UpdateConfirmEnabled);
    checkBox->installEventFilter(this);

    QTableWidget* table = m_ui.materialTableWidget;
    table->setCellWidget(row, TickColumn, holder.release());
    table->setItem(row, TickColumn, tick.release());
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

void CSoftClothMaterialTable::showEvent(QShowEvent* event)
{
    // Not where it was the last time: that is the button by which the table was left.
    if (!event->spontaneous() && m_ui.materialTableWidget) {
        m_ui.materialTableWidget->setFocus();
    }
    CPluginDialog::showEvent(event);
}

bool CSoftClothMaterialTable::eventFilter(QObject* watched, QEvent* event)
{
    QTableWidget* table = m_ui.materialTableWidget;
    if (watched == table && IsSpacePress(*event)) {
        QCheckBox* current = m_checkBoxes.value(table->currentRow());
        if (current && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
            current->click();
        }
        return true;
    }
    if (watched != table && event->type() == QEvent::FocusIn) {
        // The row of the check box that the keys act on is the current one, and in sight.
        const int row = m_checkBoxes.indexOf(static_cast<QCheckBox*>(watched));
        if (row >= 0) {
            table->setCurrentCell(row, TickColumn);
        }
    }
    return CPluginDialog::eventFilter(watched, event);
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
    // A write can bring an event that fills the table again, so the user's choice is kept first.
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
