#include "host/viewport/PickRays.h"

#include "host/images/WeightSampling.h"

#include <QImage>

#include <embree3/rtcore.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <utility>

namespace Host {

namespace {

/// A triangle that a ray met.
struct TriangleHit
{
    unsigned shape = RTC_INVALID_GEOMETRY_ID;
    unsigned triangle = 0;
    float way = 0.0F;
    float u = 0.0F;
    float v = 0.0F;
};

const ViewedPart* PartOf(const ViewedMesh& mesh, std::size_t index)
{
    const auto part = std::find_if(mesh.parts.begin(), mesh.parts.end(), [index](const ViewedPart& candidate) {
        return index >= candidate.range.firstIndex && index < candidate.range.firstIndex + candidate.range.indexCount;
    });
    return part == mesh.parts.end() ? nullptr : &*part;
}

/// Whether \p part is cut out by its opacity where \p hit is.
bool IsHole(ViewedScene& scene, const ViewedMesh& mesh, const ViewedPart& part, const TriangleHit& hit)
{
    constexpr int half = 128;
    if (part.opacityImage == ViewedImages::none || !scene.Images().IsReady(part.opacityImage)) {
        return false;
    }
    const QImage image = scene.Images().Get(part.opacityImage);
    if (image.isNull()) {
        return false;
    }
    const MeshGeometry& geometry = *mesh.geometry;
    const auto uv = [&](std::size_t corner) { return geometry.uvs[geometry.indices[hit.triangle * 3 + corner]]; };
    const QPoint pixel = PixelAt(uv(0) * (1.0F - hit.u - hit.v) + uv(1) * hit.u + uv(2) * hit.v, image.size());
    return GrayOfPixel(image, pixel.x(), pixel.y()) < half;
}

} // namespace

/// The scene's triangles as Embree has them, one geometry for each mesh.
class PickRays::Shapes
{
public:
    Shapes()
        : m_device(rtcNewDevice("threads=1"))
        , m_scene(rtcNewScene(m_device))
    {
        // Meshes that move leave the others as they are.
        rtcSetSceneFlags(m_scene, RTC_SCENE_FLAG_DYNAMIC);
        rtcSetSceneBuildQuality(m_scene, RTC_BUILD_QUALITY_LOW);
    }
    ~Shapes()
    {
        rtcReleaseScene(m_scene);
        rtcReleaseDevice(m_device);
    }
    Shapes(const Shapes&) = delete;
    Shapes& operator=(const Shapes&) = delete;

    void Follow(const ViewedScene& scene)
    {
        if (std::exchange(m_sceneRevision, scene.Revision()) == scene.Revision()) {
            return;
        }
        bool hasChanged = false;
        std::unordered_map<Id, Shape> before = std::exchange(m_known, {});
        for (const ViewedMesh& mesh : scene.Meshes()) {
            if (mesh.geometry->indices.empty()) {
                continue;
            }
            auto known = before.find(mesh.mesh);
            Shape shape;
            if (known == before.end()) {
                shape = Attach(mesh);
                hasChanged = true;
            } else {
                shape = known->second;
                before.erase(known);
                hasChanged = Move(mesh, shape) || hasChanged;
            }
            m_known.emplace(mesh.mesh, shape);
        }
        for (const auto& gone : before) {
            rtcDetachGeometry(m_scene, gone.second.number);
            hasChanged = true;
        }
        if (hasChanged) {
            rtcCommitScene(m_scene);
        }
    }

    TriangleHit Find(const Ray& ray, float from) const
    {
        RTCRayHit query{};
        query.ray.org_x = ray.origin.x();
        query.ray.org_y = ray.origin.y();
        query.ray.org_z = ray.origin.z();
        query.ray.dir_x = ray.direction.x();
        query.ray.dir_y = ray.direction.y();
        query.ray.dir_z = ray.direction.z();
        query.ray.tnear = from;
        query.ray.tfar = std::numeric_limits<float>::infinity();
        query.ray.mask = ~0U;
        query.hit.geomID = RTC_INVALID_GEOMETRY_ID;
        RTCIntersectContext context;
        rtcInitIntersectContext(&context);
        rtcIntersect1(m_scene, &context, &query);
        return {query.hit.geomID, query.hit.primID, query.ray.tfar, query.hit.u, query.hit.v};
    }

    const ViewedMesh* MeshOf(const ViewedScene& scene, unsigned number) const
    {
        const auto mesh = std::find_if(scene.Meshes().begin(), scene.Meshes().end(), [&](const ViewedMesh& candidate) {
            const auto known = m_known.find(candidate.mesh);
            return known != m_known.end() && known->second.number == number;
        });
        return mesh == scene.Meshes().end() ? nullptr : &*mesh;
    }

private:
    struct Shape
    {
        unsigned number = RTC_INVALID_GEOMETRY_ID;
        int movedRevision = 0;
    };

    Shape Attach(const ViewedMesh& mesh)
    {
        RTCGeometry geometry = rtcNewGeometry(m_device, RTC_GEOMETRY_TYPE_TRIANGLE);
        rtcSetGeometryBuildQuality(geometry, RTC_BUILD_QUALITY_LOW);
        const std::vector<quint32>& indices = mesh.geometry->indices;
        void* const triangles = rtcSetNewGeometryBuffer(geometry, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3,
                                                        3 * sizeof(quint32), indices.size() / 3);
        std::copy(indices.begin(), indices.end(), static_cast<quint32*>(triangles));
        const std::vector<QVector3D>& positions = mesh.Positions();
        void* const corners = rtcSetNewGeometryBuffer(geometry, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3,
                                                      sizeof(QVector3D), positions.size());
        std::copy(positions.begin(), positions.end(), static_cast<QVector3D*>(corners));
        rtcCommitGeometry(geometry);
        const unsigned number = rtcAttachGeometry(m_scene, geometry);
        rtcReleaseGeometry(geometry);
        return {number, mesh.movedRevision};
    }

    /// \return whether the mesh is elsewhere than it was
    bool Move(const ViewedMesh& mesh, Shape& shape)
    {
        if (shape.movedRevision == mesh.movedRevision) {
            return false;
        }
        shape.movedRevision = mesh.movedRevision;
        RTCGeometry geometry = rtcGetGeometry(m_scene, shape.number);
        const std::vector<QVector3D>& positions = mesh.Positions();
        std::copy(positions.begin(), positions.end(),
                  static_cast<QVector3D*>(rtcGetGeometryBufferData(geometry, RTC_BUFFER_TYPE_VERTEX, 0)));
        rtcUpdateGeometryBuffer(geometry, RTC_BUFFER_TYPE_VERTEX, 0);
        rtcCommitGeometry(geometry);
        return true;
    }

    RTCDevice m_device;
    RTCScene m_scene;
    std::unordered_map<Id, Shape> m_known;
    int m_sceneRevision = -1;
};

PickRays::PickRays() = default;
PickRays::~PickRays() = default;

std::optional<RayHit> PickRays::Find(ViewedScene& scene, const Ray& ray)
{
    if (!m_shapes) {
        m_shapes = std::make_unique<Shapes>();
    }
    m_shapes->Follow(scene);
    float from = 0.0F;
    // Through as many holes as anything woven has one behind the other.
    constexpr int mostHoles = 64;
    for (int hole = 0; hole < mostHoles; ++hole) {
        const TriangleHit hit = m_shapes->Find(ray, from);
        const ViewedMesh* mesh = hit.shape == RTC_INVALID_GEOMETRY_ID ? nullptr : m_shapes->MeshOf(scene, hit.shape);
        const ViewedPart* part = mesh ? PartOf(*mesh, std::size_t(hit.triangle) * 3) : nullptr;
        if (!part) {
            return std::nullopt;
        }
        if (!IsHole(scene, *mesh, *part, hit)) {
            return RayHit{mesh->object, mesh->mesh, part->range.material, ray.origin + ray.direction * hit.way};
        }
        from = std::nextafter(hit.way, std::numeric_limits<float>::infinity());
    }
    return std::nullopt;
}

} // namespace Host
