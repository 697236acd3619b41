#include "host/simulation/BodyCollider.h"

#include "host/simulation/BodySurface.h"
#include "host/simulation/BodyTravel.h"
#include "host/simulation/TriangleMath.h"

#include <embree3/rtcore.h>

#include <algorithm>
#include <limits>

namespace Host {

namespace {

template <auto Release>
struct Releaser
{
    template <class Handle>
    void operator()(Handle* handle) const
    {
        Release(handle);
    }
};

using Device = std::unique_ptr<RTCDeviceTy, Releaser<rtcReleaseDevice>>;
using EmbreeScene = std::unique_ptr<RTCSceneTy, Releaser<rtcReleaseScene>>;

} // namespace

namespace {

/// The nearest point of each of the nearest pieces, collected triangle by triangle.
struct Search
{
    struct Candidate
    {
        int piece = 0;
        int triangle = 0;
        std::array<float, 3> shares{};
        float square = 0.0F;
    };

    void Add(const Candidate& candidate)
    {
        const auto last = candidates.begin() + std::ptrdiff_t(count);
        auto place = std::find_if(candidates.begin(), last,
                                  [&](const Candidate& known) { return known.piece == candidate.piece; });
        if (place == last) {
            if (count < candidates.size()) {
                ++count;
            } else {
                --place;
            }
        } else if (place->square <= candidate.square) {
            return;
        }
        if (count == candidates.size() && place->piece != candidate.piece && place->square <= candidate.square) {
            return;
        }
        *place = candidate;
        for (; place != candidates.begin() && (place - 1)->square > place->square; --place) {
            std::iter_swap(place, place - 1);
        }
    }

    BodyCollider::Nearest ToNearest(const Candidate& candidate) const
    {
        const auto [a, b, c] = surface.AllTriangles()[std::size_t(candidate.triangle)];
        const auto [shareA, shareB, shareC] = candidate.shares;
        const Vector out =
            point - shareA * places[std::size_t(a)] - shareB * places[std::size_t(b)] - shareC * places[std::size_t(c)];
        const Vector outward = surface.OutwardAt(places, candidate.triangle, candidate.shares);
        const float distance = std::sqrt(candidate.square);
        const float side = out.dot(outward) < 0.0F ? -1.0F : 1.0F;
        // So near to the surface the difference is mostly rounding.
        const Vector normal = distance > 1e-3F ? Vector(out * (side / distance)) : outward;
        return {{candidate.triangle, candidate.shares}, normal, side * distance};
    }

    const Vectors& places;
    const BodySurface& surface;
    Vector point;
    float all = 0.0F;
    std::array<Candidate, BodyCollider::mostPieces> candidates{};
    std::size_t count = 0;
};

bool ConsiderTriangle(RTCPointQueryFunctionArguments* arguments)
{
    auto& search = *static_cast<Search*>(arguments->userPtr);
    const auto triangle = int(arguments->primID);
    const auto [a, b, c] = search.surface.AllTriangles()[std::size_t(triangle)];
    const Vector& pa = search.places[std::size_t(a)];
    const Vector& pb = search.places[std::size_t(b)];
    const Vector& pc = search.places[std::size_t(c)];
    const auto shares = NearestShares(search.point, pa, pb, pc);
    const float square = (search.point - shares[0] * pa - shares[1] * pb - shares[2] * pc).squaredNorm();
    if (square > arguments->query->radius * arguments->query->radius) {
        return false;
    }
    search.Add({search.surface.PieceOf(triangle), triangle, shares, square});
    const float wanted = std::max(std::sqrt(search.candidates[0].square), search.all);
    if (wanted < arguments->query->radius) {
        arguments->query->radius = wanted;
        return true;
    }
    return false;
}

} // namespace

class BodyCollider::Private
{
public:
    Private(const Vectors& all, const IndexTriangles& triangles)
        : surface(all, triangles)
        , places(all)
        , start(all)
        , end(all)
        , travel(all)
        , device(rtcNewDevice("threads=1,set_affinity=0"))
        , scene(rtcNewScene(device.get()))
    {
        // Only a scene of low quality keeps its tree and fits it to the moved triangles; others build it again.
        rtcSetSceneFlags(scene.get(), RTC_SCENE_FLAG_DYNAMIC | RTC_SCENE_FLAG_ROBUST);
        rtcSetSceneBuildQuality(scene.get(), RTC_BUILD_QUALITY_LOW);
        RTCGeometry geometry = rtcNewGeometry(device.get(), RTC_GEOMETRY_TYPE_TRIANGLE);
        rtcSetSharedGeometryBuffer(geometry, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3, places.data(), 0,
                                   sizeof(Vector), places.size());
        rtcSetSharedGeometryBuffer(geometry, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3, surface.AllTriangles().data(),
                                   0, sizeof(std::array<int, 3>), surface.AllTriangles().size());
        rtcSetGeometryBuildQuality(geometry, RTC_BUILD_QUALITY_REFIT);
        rtcCommitGeometry(geometry);
        rtcAttachGeometry(scene.get(), geometry);
        rtcReleaseGeometry(geometry);
        rtcCommitScene(scene.get());
        FindJoints();
    }

    void FindJoints();
    void Find(Search& search, float reach) const;

    void Refit()
    {
        RTCGeometry geometry = rtcGetGeometry(scene.get(), 0);
        rtcUpdateGeometryBuffer(geometry, RTC_BUFFER_TYPE_VERTEX, 0);
        rtcCommitGeometry(geometry);
        rtcCommitScene(scene.get());
    }

    BodySurface surface;
    Vectors places; ///< Shared with Embree, which reads four numbers at a time.
    Vectors start;
    Vectors end;
    float share = 1.0F;
    BodyTravel travel;
    float perSecond = 0.0F;
    Device device;
    EmbreeScene scene;
};

void BodyCollider::Private::Find(Search& search, float reach) const
{
    RTCPointQuery query{};
    query.x = search.point.x();
    query.y = search.point.y();
    query.z = search.point.z();
    query.radius = reach;
    RTCPointQueryContext context;
    rtcInitPointQueryContext(&context);
    rtcPointQuery(scene.get(), &query, &context, ConsiderTriangle, &search);
}

/// Marks the triangles with another piece nearby.
void BodyCollider::Private::FindJoints()
{
    constexpr float near = 4.0F; // cm
    for (std::size_t i = 0; i < surface.AllTriangles().size(); ++i) {
        const auto [a, b, c] = surface.AllTriangles()[i];
        const Vector& corner = places[std::size_t(a)];
        Search search{places, surface, corner, near, {}, 0};
        const float size = std::max((places[std::size_t(b)] - corner).norm(), (places[std::size_t(c)] - corner).norm());
        Find(search, near + size);
        surface.SetAtJoint(int(i), search.count > 1);
    }
}

BodyCollider::BodyCollider(const Vectors& places, const IndexTriangles& triangles)
    : d(std::make_unique<Private>(places, triangles))
{
}

BodyCollider::~BodyCollider() = default;

bool BodyCollider::IsEmpty() const
{
    return d->surface.AllTriangles().empty();
}

void BodyCollider::SetFrame(const Vectors& placesAtEnd, double duration)
{
    d->start.swap(d->end);
    d->end = placesAtEnd;
    d->travel.SetFrame(d->start, d->end);
    d->perSecond = float(1.0 / duration);
    d->share = 0.0F;
}

void BodyCollider::MoveTo(float share)
{
    if (share != d->share && !d->travel.IsStill()) {
        for (std::size_t i = 0; i < d->places.size(); ++i) {
            d->places[i] = d->start[i] + share * (d->end[i] - d->start[i]);
        }
        d->Refit();
    }
    d->share = share;
}

void BodyCollider::Reset(const Vectors& places)
{
    d->places = places;
    d->start = places;
    d->end = places;
    d->travel.SetFrame(places, places);
    d->Refit();
}

float BodyCollider::TravelAt(const Vector& place, float reach) const
{
    return d->travel.At(place, d->share, reach);
}

std::size_t BodyCollider::FindNearest(const Vector& point, float reach, float all,
                                      std::array<Nearest, mostPieces>& found) const
{
    Search search{d->places, d->surface, point, all, {}, 0};
    d->Find(search, reach);
    for (std::size_t i = 0; i < search.count; ++i) {
        found[i] = search.ToNearest(search.candidates[i]);
    }
    return search.count;
}

bool BodyCollider::IsAtJoint(const SurfacePoint& at) const
{
    return d->surface.IsAtJoint(at.triangle);
}

bool BodyCollider::FindEntry(const Vector& from, const Vector& to, SurfacePoint& at) const
{
    Vector way = to - from;
    float done = 0.0F;
    // A few times on: the way may first lead out of pieces.
    for (int i = 0; i < 4; ++i) {
        RTCRayHit hit{};
        hit.ray.org_x = from.x();
        hit.ray.org_y = from.y();
        hit.ray.org_z = from.z();
        hit.ray.dir_x = way.x();
        hit.ray.dir_y = way.y();
        hit.ray.dir_z = way.z();
        hit.ray.tnear = done;
        hit.ray.tfar = 1.0F;
        hit.ray.mask = ~0U;
        hit.hit.geomID = RTC_INVALID_GEOMETRY_ID;
        RTCIntersectContext context;
        rtcInitIntersectContext(&context);
        rtcIntersect1(d->scene.get(), &context, &hit);
        if (hit.hit.geomID == RTC_INVALID_GEOMETRY_ID) {
            return false;
        }
        at.triangle = int(hit.hit.primID);
        at.shares = {1.0F - hit.hit.u - hit.hit.v, hit.hit.u, hit.hit.v};
        if (NormalOf(at).dot(way) < 0.0F) {
            return true;
        }
        done = std::nextafter(hit.ray.tfar, 2.0F) + 1e-4F;
        if (done >= 1.0F) {
            return false;
        }
    }
    return false;
}

Vector BodyCollider::PlaceOf(const SurfacePoint& at) const
{
    const auto [a, b, c] = d->surface.AllTriangles()[std::size_t(at.triangle)];
    return at.shares[0] * d->places[std::size_t(a)] + at.shares[1] * d->places[std::size_t(b)] +
           at.shares[2] * d->places[std::size_t(c)];
}

Vector BodyCollider::VelocityOf(const SurfacePoint& at) const
{
    const auto [a, b, c] = d->surface.AllTriangles()[std::size_t(at.triangle)];
    const auto move = [&](int vertex) -> Vector { return d->end[std::size_t(vertex)] - d->start[std::size_t(vertex)]; };
    return d->perSecond * (at.shares[0] * move(a) + at.shares[1] * move(b) + at.shares[2] * move(c));
}

Vector BodyCollider::NormalOf(const SurfacePoint& at) const
{
    return d->surface.NormalOf(d->places, at.triangle);
}

} // namespace Host
