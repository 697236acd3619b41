#include "host/workbench/SceneTree.h"

#include "host/scene/Handles.h"
#include "host/services/HostApplication.h"

#include <QHeaderView>
#include <QPixmap>
#include <QScopedValueRollback>

#include <algorithm>

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

void AddMaterialRow(QTreeWidgetItem* parent, const Object& object, Id material)
{
    const auto found = std::find_if(object.materials.begin(), object.materials.end(),
                                    [material](const Material& candidate) { return candidate.id == material; });
    if (found != object.materials.end()) {
        QTreeWidgetItem* row = NewRow(parent, found->name, object);
        row->setIcon(0, Swatch(found->diffuse));
        row->setData(0, materialIndexRole, int(found - object.materials.begin()));
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
    for (const Object* object : m_host.CurrentScene().Objects()) {
        QTreeWidgetItem* objectRow = NewRow(invisibleRootItem(), object->name, *object);
        for (const Mesh& mesh : object->meshes) {
            QTreeWidgetItem* meshRow = NewRow(objectRow, mesh.name, *object);
            for (const MaterialSlot& slot : mesh.materialSlots) {
                AddMaterialRow(meshRow, *object, slot.material);
            }
        }
        objectRow->setExpanded(true);
    }
    ShowSelection();
}

void SceneTree::ShowSelection()
{
    const QScopedValueRollback<bool> showing(m_showing, true);
    const QVector<BF::CHandle*>& selected = m_host.CurrentScene().Selection();
    const QList<QTreeWidgetItem*> current = selectedItems();
    QVector<BF::CHandle*> shown;
    for (const QTreeWidgetItem* item : current) {
        shown.append(ObjectOf(item));
    }
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = topLevelItem(i);
        const bool isSelected = selected.contains(ObjectOf(row));
        if (isSelected && !shown.contains(ObjectOf(row))) {
            row->setSelected(true);
        }
    }
    for (QTreeWidgetItem* item : current) {
        if (!selected.contains(ObjectOf(item))) {
            item->setSelected(false);
        }
    }
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
    const Scene& scene = m_host.CurrentScene();
    const int index = item->data(0, materialIndexRole).toInt();
    const bool choosesMaterials =
        scene.dialogMode == MV::EDialogMode::WeightMap || scene.pickMode == MV::EPickMode::Material;
    if (index >= 0 && choosesMaterials) {
        m_host.PickMaterial(ObjectOf(item), index);
    } else if (!m_clickSelected && item->isSelected()) {
        m_host.SelectAgain();
    }
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
