#include "host/workbench/SceneTree.h"

#include "host/scene/Handles.h"
#include "host/services/HostApplication.h"

#include <QHeaderView>
#include <QPixmap>
#include <QScopedValueRollback>
#include <QSet>

namespace Host {

namespace {

constexpr int objectRole = Qt::UserRole;
constexpr int materialIndexRole = Qt::UserRole + 1;

BF::CHandle* ObjectOf(const QTreeWidgetItem* item)
{
    return ToHandle(Id(item->data(0, objectRole).toULongLong()));
}

QIcon Swatch(const QColor& color)
{
    QPixmap pixmap(12, 12);
    pixmap.fill(color);
    return QIcon(pixmap);
}

QTreeWidgetItem* NewRow(QTreeWidgetItem* parent, const QString& text, const Object& object)
{
    auto* row = new QTreeWidgetItem(parent, {text});
    row->setData(0, objectRole, qulonglong(ToId(object.handle)));
    row->setData(0, materialIndexRole, -1);
    return row;
}

void AddMaterialRow(QTreeWidgetItem* parent, const Object& object, std::size_t index)
{
    const Material& material = object.materials[index];
    QTreeWidgetItem* row = NewRow(parent, material.name, object);
    row->setIcon(0, Swatch(material.diffuse));
    row->setData(0, materialIndexRole, int(index));
}

/// Rows that follow each other become one range: Qt takes the longer the more ranges there are.
void AppendRow(QItemSelection& selection, const QModelIndex& row)
{
    if (!selection.isEmpty() && selection.last().bottom() + 1 == row.row()) {
        selection.last() = QItemSelectionRange(selection.last().topLeft(), row);
    } else {
        selection.append(QItemSelectionRange(row));
    }
}

} // namespace

SceneTree::SceneTree(HostApplication& host, QWidget* parent)
    : QTreeWidget(parent)
    , m_host(host)
{
    setObjectName(QStringLiteral("sceneTree"));
    setAccessibleName(tr("Objects of the scene"));
    setHeaderHidden(true);
    setSelectionMode(ExtendedSelection);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &SceneTree::OnSelectionChanged);
    connect(this, &QTreeWidget::itemClicked, this, &SceneTree::OnItemClicked);
    connect(&host, &HostApplication::SceneReplaced, this, &SceneTree::ConnectScene);
    connect(&host, &HostApplication::StateChanged, this, &SceneTree::OpenMeshesForPicking);
    ConnectScene();
}

void SceneTree::ConnectScene()
{
    const Scene& scene = m_host.CurrentScene();
    connect(&scene, &Scene::ObjectsChanged, this, &SceneTree::Rebuild);
    connect(&scene, &Scene::SelectionChanged, this, &SceneTree::ShowSelection);
    Rebuild();
}

void SceneTree::Rebuild()
{
    const QScopedValueRollback<bool> showing(m_showing, true);
    clear();
    const Scene& scene = m_host.CurrentScene();
    for (const Object* object : scene.Objects()) {
        QTreeWidgetItem* objectRow = NewRow(invisibleRootItem(), object->name, *object);
        for (const Mesh& mesh : object->meshes) {
            QTreeWidgetItem* meshRow = NewRow(objectRow, mesh.name, *object);
            for (const MaterialSlot& slot : mesh.materialSlots) {
                if (const auto index = scene.PositionOfMaterial(*object, slot.material)) {
                    AddMaterialRow(meshRow, *object, *index);
                }
            }
        }
        objectRow->setExpanded(true);
    }
    ShowSelection();
}

void SceneTree::ShowSelection()
{
    const QScopedValueRollback<bool> showing(m_showing, true);
    const QVector<BF::CHandle*>& selection = m_host.CurrentScene().Selection();
    const QSet<BF::CHandle*> selected(selection.begin(), selection.end());
    const QList<QTreeWidgetItem*> current = selectedItems();
    QSet<BF::CHandle*> shown;
    QItemSelection gone;
    for (const QTreeWidgetItem* item : current) {
        shown.insert(ObjectOf(item));
        if (!selected.contains(ObjectOf(item))) {
            const QModelIndex row = indexFromItem(item);
            gone.append(QItemSelectionRange(row));
        }
    }
    QItemSelection added;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        BF::CHandle* const object = ObjectOf(topLevelItem(i));
        if (selected.contains(object) && !shown.contains(object)) {
            AppendRow(added, model()->index(i, 0));
        }
    }
    selectionModel()->select(added, QItemSelectionModel::Select);
    selectionModel()->select(gone, QItemSelectionModel::Deselect);
}

void SceneTree::OnSelectionChanged()
{
    if (m_showing) {
        return;
    }
    QVector<BF::CHandle*> objects;
    const QList<QTreeWidgetItem*> items = selectedItems();
    for (const QTreeWidgetItem* item : items) {
        objects.append(ObjectOf(item));
    }
    const QVector<BF::CHandle*> before = m_host.CurrentScene().Selection();
    m_host.Select(objects);
    m_clickSelected = m_clickSelected || m_host.CurrentScene().Selection() != before;
}

void SceneTree::mousePressEvent(QMouseEvent* event)
{
    m_clickSelected = false;
    QTreeWidget::mousePressEvent(event);
}

void SceneTree::OnItemClicked(QTreeWidgetItem* item)
{
    // A row that the click has taken out of the selection selects nothing again.
    m_host.Click(ObjectOf(item), item->data(0, materialIndexRole).toInt(), m_clickSelected || !item->isSelected());
}

void SceneTree::OpenMeshesForPicking()
{
    if (m_host.CurrentScene().pickMode != MV::EPickMode::Material) {
        return;
    }
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* object = topLevelItem(i);
        if (m_host.CurrentScene().Selection().contains(ObjectOf(object))) {
            object->setExpanded(true);
            for (int mesh = 0; mesh < object->childCount(); ++mesh) {
                object->child(mesh)->setExpanded(true);
            }
        }
    }
}

} // namespace Host
