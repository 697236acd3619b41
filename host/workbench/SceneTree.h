#pragma once

#include <QHash>
#include <QTreeWidget>

namespace BF {
class CHandle;
} // namespace BF

namespace Host {

class HostApplication;

/// The scene as a tree: objects, their meshes, their materials. Selecting rows selects their objects; in the material
/// pick mode a click on a material row picks it.
class SceneTree : public QTreeWidget
{
    Q_OBJECT

public:
    SceneTree(HostApplication& host, QWidget* parent = nullptr);

private:
    void ConnectScene();
    void Rebuild();
    void ShowSelection();
    void OnSelectionChanged();
    void OnItemClicked(QTreeWidgetItem* item);

    HostApplication& m_host;
    bool m_showing = false; ///< The tree is being set from the scene.
};

} // namespace Host
