#include "host/viewport/ViewedScene.h"

#include "host/services/HostApplication.h"
#include "host/services/Pictures.h"
#include "host/viewport/WeightColours.h"

#include <QSet>

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace Host {

ViewedScene::ViewedScene(HostApplication& host, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_images(host.Images().Store())
{
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &ViewedScene::Refresh);
    const auto soon = [this] { m_later.start(); };
    connect(&host, &HostApplication::StateChanged, this, soon);
    connect(&host, &HostApplication::SceneRefreshRequested, this, soon);
    connect(&host, &HostApplication::SceneReplaced, this, &ViewedScene::ConnectScene);
    connect(&host, &HostApplication::ClothRead, this, [this](const ClothAddress& address) {
        m_current = address;
        m_later.start();
    });
    connect(&host.Images().Store(), &ImageStore::LoadingDone, this, soon);
    connect(host.GetEventSender(), &MV::CEventSender::LaunchedImageChanged, this, [this] {
        m_images.Touch();
        ++m_touch;
        m_later.start();
    });
    ConnectScene();
}

void ViewedScene::ConnectScene()
{
    const auto soon = [this] { m_later.start(); };
    const Scene& scene = m_host.CurrentScene();
    connect(&scene, &Scene::ObjectsChanged, this, soon);
    connect(&scene, &Scene::SelectionChanged, this, soon);
    connect(&scene, &Scene::EditApplied, this, soon);
    m_meshes.clear();
    m_seen.clear();
    m_images.Clear();
    m_current = {};
    m_later.start();
}

void ViewedScene::Refresh()
{
    m_later.stop();
    const std::size_t before = m_seen.size();
    m_images.Refresh();
    RefreshMeshes();
    if (m_seen.size() > before) {
        Q_EMIT ObjectsCame();
    }
    Announce();
}

void ViewedScene::Announce()
{
    ++m_revision;
    Q_EMIT Changed();
}

/// Keeps what is there already: a mesh never changes its shape.
void ViewedScene::RefreshMeshes()
{
    std::unordered_map<Id, ViewedMesh> known;
    for (ViewedMesh& mesh : m_meshes) {
        known.emplace(mesh.mesh, std::move(mesh));
    }
    m_meshes.clear();
    const QVector<BF::CHandle*>& selection = m_host.CurrentScene().Selection();
    const QSet<BF::CHandle*> selected(selection.cbegin(), selection.cend());
    for (const Object* object : m_host.CurrentScene().Objects()) {
        for (const Mesh& mesh : object->meshes) {
            const auto found = known.find(mesh.id);
            ViewedMesh viewed = found == known.end() ? NewMesh(*object, mesh) : std::move(found->second);
            viewed.isSelected = selected.contains(object->handle);
            for (ViewedPart& part : viewed.parts) {
                RefreshPart(mesh, viewed, part);
            }
            m_seen.insert(mesh.id);
            m_meshes.push_back(std::move(viewed));
        }
    }
}

ViewedMesh ViewedScene::NewMesh(const Object& object, const Mesh& mesh)
{
    ViewedMesh viewed;
    viewed.object = object.handle;
    viewed.mesh = mesh.id;
    viewed.geometry = std::make_shared<const MeshGeometry>(BuildGeometry(mesh));
    for (const GeometryPart& range : viewed.geometry->parts) {
        viewed.parts.emplace_back();
        viewed.parts.back().range = range;
    }
    return viewed;
}

void ViewedScene::RefreshPart(const Mesh& mesh, ViewedMesh& viewed, ViewedPart& part)
{
    part.isCurrent = viewed.isSelected && m_current.object == viewed.object && m_current.mesh == viewed.mesh &&
                     m_current.material == part.range.material;
    if (const Material* material = m_host.CurrentScene().FindMaterial(part.range.material)) {
        const auto imageOf = [&](MV::ETextureChannel channel) {
            const auto texture = material->textures.find(channel);
            return texture == material->textures.end() ? ViewedImages::none : m_images.Add(texture->second);
        };
        part.diffuse = material->diffuse;
        part.diffuseImage = imageOf(MV::ETextureChannel::Diffuse);
        part.opacityImage = imageOf(MV::ETextureChannel::Opacity);
    }
    if (m_areWeightsShown) {
        RefreshWeights(mesh, viewed, part);
    }
}

void ViewedScene::RefreshWeights(const Mesh& mesh, ViewedMesh& viewed, ViewedPart& part)
{
    const WeightImage& weight = mesh.materialSlots[part.range.slot].cloth.weight;
    ImageStore& store = m_host.Images().Store();
    if (weight.IsNone()) {
        part.hasWeights = false;
        part.weightsState.reset();
        return;
    }
    const WeightState state{ImageStore::Key(weight.image), weight.brightness, weight.contrast, m_touch};
    // What others load at the moment comes with LoadingDone().
    if (part.weightsState == state || store.IsLoading(weight.image)) {
        return;
    }
    const QImage image = store.Get(weight.image)->image;
    part.hasWeights = !image.isNull();
    part.weightsState = state;
    if (part.hasWeights) {
        SetWeights(viewed.weights, part.range, *viewed.geometry, mesh, image,
                   AdjustTable(weight.brightness, weight.contrast));
        viewed.weightsRevision = ++m_revision;
    }
}

void ViewedScene::ShowWeights(bool areShown)
{
    m_areWeightsShown = areShown;
    Refresh();
}

QString ViewedScene::Problems() const
{
    std::size_t lost = 0;
    for (const ViewedMesh& mesh : m_meshes) {
        lost += mesh.geometry->lostTriangles;
    }
    QStringList sentences;
    if (lost > 0) {
        sentences.append(tr("Triangles that cannot be shown, because a corner is nowhere: %L1").arg(lost));
    }
    const QStringList unreadable = m_images.Unreadable();
    if (!unreadable.isEmpty()) {
        sentences.append(tr("Textures that cannot be read: %1").arg(unreadable.join(QLatin1String(", "))));
    }
    return sentences.join(QLatin1Char('\n'));
}

Bounds ViewedScene::BoundsOfAll() const
{
    Bounds bounds;
    for (const ViewedMesh& mesh : m_meshes) {
        bounds.Add(mesh.geometry->bounds);
    }
    return bounds;
}

Bounds ViewedScene::BoundsOfSelection() const
{
    Bounds bounds;
    for (const ViewedMesh& mesh : m_meshes) {
        if (mesh.isSelected) {
            bounds.Add(mesh.geometry->bounds);
        }
    }
    return bounds;
}

void ViewedScene::SetPositions(BF::CHandle* object, Id mesh, const std::vector<QVector3D>& positions,
                               const std::vector<QVector3D>& normals)
{
    const auto found = std::find_if(m_meshes.begin(), m_meshes.end(), [&](const ViewedMesh& candidate) {
        return candidate.object == object && candidate.mesh == mesh;
    });
    const Mesh* const source = m_host.CurrentScene().FindMesh(mesh);
    if (found == m_meshes.end() || !source || positions.size() != source->positions.size() ||
        normals.size() != positions.size()) {
        return;
    }
    const std::vector<quint32>& sources = found->geometry->sources;
    found->movedPositions.resize(sources.size());
    found->movedNormals.resize(sources.size());
    for (std::size_t i = 0; i < sources.size(); ++i) {
        found->movedPositions[i] = positions[sources[i]];
        found->movedNormals[i] = normals[sources[i]];
    }
    found->movedRevision = ++m_revision;
    Announce();
}

void ViewedScene::ResetPositions()
{
    for (ViewedMesh& mesh : m_meshes) {
        if (!mesh.movedPositions.empty()) {
            mesh.movedPositions.clear();
            mesh.movedNormals.clear();
            mesh.movedRevision = ++m_revision;
        }
    }
    Announce();
}

} // namespace Host
