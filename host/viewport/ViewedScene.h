#pragma once

#include "host/scene/SceneEdit.h"
#include "host/viewport/ModelGeometry.h"
#include "host/viewport/ViewedImages.h"

#include <QColor>
#include <QObject>
#include <QTimer>

#include <memory>
#include <unordered_map>
#include <vector>

namespace Host {

class HostApplication;

/// One material of one mesh as the view shows it.
struct ViewedPart
{
    GeometryPart range;
    QColor diffuse;
    int diffuseImage = ViewedImages::none;
    int opacityImage = ViewedImages::none;
};

/// A mesh as the view shows it. A revision changes when what it stands for does, and never comes again.
struct ViewedMesh
{
    BF::CHandle* object = nullptr;
    Id mesh = 0;
    bool isSelected = false;
    std::shared_ptr<const MeshGeometry> geometry;
    std::vector<ViewedPart> parts; ///< One for each of the geometry's.
    /// In place of the geometry's, each with as many elements; empty while the mesh stands as it was modelled.
    std::vector<QVector3D> movedPositions;
    std::vector<QVector3D> movedNormals;
    int movedRevision = 0;

    const std::vector<QVector3D>& Positions() const
    {
        return movedPositions.empty() ? geometry->positions : movedPositions;
    }
    const std::vector<QVector3D>& Normals() const { return movedNormals.empty() ? geometry->normals : movedNormals; }
};

/// What there is to be seen of the host's scene. Follows the host by itself; only looks.
class ViewedScene : public QObject
{
    Q_OBJECT

public:
    explicit ViewedScene(HostApplication& host, QObject* parent = nullptr);

    const std::vector<ViewedMesh>& Meshes() const { return m_meshes; }
    ViewedImages& Images() { return m_images; }
    /// Of all that is seen, or of what is selected; moved meshes count where they were modelled.
    Bounds BoundsOfAll() const;
    Bounds BoundsOfSelection() const;

    /// What the panel shows: the current material.
    const ClothAddress& Current() const { return m_current; }

    /// Shows a mesh elsewhere than it was modelled: one position and one normal for each of its vertices. Nothing
    /// happens for an unknown mesh and other numbers of vertices.
    void SetPositions(BF::CHandle* object, Id mesh, const std::vector<QVector3D>& positions,
                      const std::vector<QVector3D>& normals);
    /// Shows all meshes as they were modelled.
    void ResetPositions();

    /// Brings everything up to date at once that would be soon.
    void Refresh();

Q_SIGNALS:
    /// Something is to be seen differently.
    void Changed();
    /// Objects came into view that were not there before.
    void ObjectsCame();

private:
    void ConnectScene();
    void RefreshMeshes();
    ViewedMesh NewMesh(const Object& object, const Mesh& mesh) const;
    void RefreshParts(const Object& object, ViewedMesh& viewed);

    HostApplication& m_host;
    ViewedImages m_images;
    std::vector<ViewedMesh> m_meshes;
    ClothAddress m_current;
    QTimer m_later; ///< Events come in heaps.
    int m_revision = 0;
};

} // namespace Host
