#pragma once

#include <QHash>
#include <QTreeWidget>

namespace BF {
class CHandle;
} // namespace BF

namespace Host {

class HostApplication;

/// The scene as a tree: objects, their meshes, their materials. Selecting rows selects their objects, and a click on
/// what is selected already selects it again. While the weight map dialog is open or a material is being picked, a
/// click on a material's row makes it the current material.
class SceneTree : public QTreeWidget
{
    Q_OBJECT

public:
    SceneTree(HostApplication& host, QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void ConnectScene();
    void Rebuild();
    void ShowSelection();
    void OnSelectionChanged();
    void OnItemClicked(QTreeWidgetItem* item);
    /// Shows the materials while one is to be picked.
    void OpenMeshesForPicking();

    HostApplication& m_host;
    bool m_showing = false;       ///< The tree is being set from the scene.
    bool m_clickSelected = false; ///< The mouse click has changed the selection.
};

} // namespace Host
