#pragma once

#include "host/scene/SceneEdit.h"
#include "host/viewport/ModelGeometry.h"
#include "host/viewport/ViewedImages.h"

#include <QColor>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

namespace Host {

class HostApplication;

/// The state of a weight image; when it is another one, the vertices' weights are others.
struct WeightState
{
    ImageStore::Key key;
    int brightness = 0;
    int contrast = 0;
    int touch = 0; ///< Of the files as a whole.

    bool operator==(const WeightState& other) const
    {
        return key == other.key && brightness == other.brightness && contrast == other.contrast && touch == other.touch;
    }
};

/// One material of one mesh as the view shows it.
struct ViewedPart
{
    GeometryPart range;
    QColor diffuse;
    int diffuseImage = ViewedImages::none;
    int opacityImage = ViewedImages::none;
    bool isCurrent = false;                  ///< The panel shows it.
    bool hasWeights = false;                 ///< It has a weight image that can be read.
    std::optional<WeightState> weightsState; ///< What the weights were found from.
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
    /// The gray of the weight images at each vertex; empty until weights are shown.
    std::vector<quint8> weights;
    int weightsRevision = 0;

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
    /// Changes with anything that is seen but the images.
    int Revision() const { return m_revision; }
    ViewedImages& Images() { return m_images; }
    /// Of all that is seen, or of what is selected; moved meshes count where they were modelled.
    Bounds BoundsOfAll() const;
    Bounds BoundsOfSelection() const;

    /// Shows the weight images in place of the materials.
    void ShowWeights(bool areShown);
    bool AreWeightsShown() const { return m_areWeightsShown; }

    /// Shows a mesh elsewhere than it was modelled: one position and one normal for each of its vertices. Nothing
    /// happens for an unknown mesh and other numbers of vertices.
    void SetPositions(BF::CHandle* object, Id mesh, const std::vector<QVector3D>& positions,
                      const std::vector<QVector3D>& normals);
    /// Shows all meshes as they were modelled.
    void ResetPositions();

    /// What cannot be shown, in sentences for the user; empty when all is there.
    QString Problems() const;

    /// Brings everything up to date at once that would be soon.
    void Refresh();

Q_SIGNALS:
    /// Something is to be seen differently.
    void Changed();
    /// Objects came into view that were not there before.
    void ObjectsCame();

private:
    void ConnectScene();
    void Announce();
    void RefreshMeshes();
    static ViewedMesh NewMesh(const Object& object, const Mesh& mesh);
    void RefreshPart(const Mesh& mesh, ViewedMesh& viewed, ViewedPart& part);
    void RefreshWeights(const Mesh& mesh, ViewedMesh& viewed, ViewedPart& part);

    HostApplication& m_host;
    ViewedImages m_images;
    std::vector<ViewedMesh> m_meshes;
    ClothAddress m_current;        ///< What the panel shows.
    QTimer m_later;                ///< Events come in heaps.
    std::unordered_set<Id> m_seen; ///< All meshes that were shown.
    bool m_areWeightsShown = false;
    int m_touch = 0;
    int m_revision = 0;
};

} // namespace Host
