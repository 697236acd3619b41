#include "host/simulation/ClothShape.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <queue>
#include <unordered_map>

namespace Host {

namespace {

constexpr float lightestShare = 0.2F; ///< Of the average mass.

struct Edge
{
    int a = 0; ///< The smaller number.
    int b = 0;
    int tip = 0; ///< Of the triangle that the edge belongs to.
    float area = 0.0F;
};

float AreaOf(const ClothShape& shape, const std::array<int, 3>& triangle)
{
    const Vector& corner = shape.rest[std::size_t(triangle[0])];
    return 0.5F *
           Cross(shape.rest[std::size_t(triangle[1])] - corner, shape.rest[std::size_t(triangle[2])] - corner).norm();
}

/// The three edges of all triangles, those between the same vertices next to each other.
std::vector<Edge> EdgesOf(const ClothShape& shape)
{
    std::vector<Edge> edges;
    edges.reserve(shape.triangles.size() * 3);
    for (const auto& triangle : shape.triangles) {
        const float area = AreaOf(shape, triangle);
        for (std::size_t i = 0; i < 3; ++i) {
            const auto [a, b] = std::minmax(triangle[i], triangle[(i + 1) % 3]);
            edges.push_back({a, b, triangle[(i + 2) % 3], area});
        }
    }
    std::stable_sort(edges.begin(), edges.end(),
                     [](const Edge& x, const Edge& y) { return std::tie(x.a, x.b) < std::tie(y.a, y.b); });
    return edges;
}

/// Calls \p action with each group of edges between the same two vertices.
template <class Action>
void ForEachGroup(const std::vector<Edge>& edges, const Action& action)
{
    for (auto first = edges.begin(); first != edges.end();) {
        const auto last = std::find_if(first, edges.end(),
                                       [&](const Edge& edge) { return edge.a != first->a || edge.b != first->b; });
        action(first, last);
        first = last;
    }
}

/// The cotangent of the angle at \p corner.
float Cotangent(const Vector& corner, const Vector& p, const Vector& q)
{
    const Vector u = p - corner;
    const Vector v = q - corner;
    return u.dot(v) / std::max(Cross(u, v).norm(), 1e-6F * (u.norm() * v.norm()) + 1e-20F);
}

BendLink BendLinkOf(const ClothShape& shape, const Edge& one, const Edge& other)
{
    const auto place = [&](int vertex) -> const Vector& { return shape.rest[std::size_t(vertex)]; };
    const Vector& a = place(one.a);
    const Vector& b = place(one.b);
    const float a1 = Cotangent(a, b, place(one.tip));
    const float a2 = Cotangent(a, b, place(other.tip));
    const float b1 = Cotangent(b, a, place(one.tip));
    const float b2 = Cotangent(b, a, place(other.tip));
    BendLink link;
    link.vertices = {one.a, one.b, one.tip, other.tip};
    link.factors = {b1 + b2, a1 + a2, -a1 - b1, -a2 - b2};
    Vector sum = Vector::Zero();
    for (std::size_t i = 0; i < 4; ++i) {
        sum += link.factors[i] * place(link.vertices[i]);
    }
    link.length = sum.norm();
    link.compliance = (one.area + other.area) / 3.0F;
    return link;
}

bool IsSound(const BendLink& link)
{
    constexpr float sharpest = 50.0F; // needles of triangles
    return link.vertices[2] != link.vertices[3] && link.compliance > 0.0F &&
           std::all_of(link.factors.begin(), link.factors.end(),
                       [](float factor) { return std::fabs(factor) < sharpest; });
}

struct Road
{
    int to = 0;
    float length = 0.0F;
};

/// Where one gets from each vertex: along the edges, and across each edge to the opposite tip.
std::vector<std::vector<Road>> RoadsOf(const ClothShape& shape)
{
    std::vector<std::vector<Road>> roads(shape.rest.size());
    const auto add = [&](int a, int b) {
        const float length = (shape.rest[std::size_t(a)] - shape.rest[std::size_t(b)]).norm();
        roads[std::size_t(a)].push_back({b, length});
        roads[std::size_t(b)].push_back({a, length});
    };
    ForEachGroup(EdgesOf(shape), [&](auto first, auto last) {
        add(first->a, first->b);
        if (last - first == 2) {
            add(first->tip, (first + 1)->tip);
        }
    });
    for (const auto& thread : shape.threads) {
        add(thread[0], thread[1]);
    }
    return roads;
}

} // namespace

std::vector<float> VertexMasses(const ClothShape& shape)
{
    std::vector<float> masses(shape.rest.size(), 0.0F);
    for (const auto& triangle : shape.triangles) {
        for (const int vertex : triangle) {
            masses[std::size_t(vertex)] += AreaOf(shape, triangle) / 3.0F;
        }
    }
    for (const auto& thread : shape.threads) {
        for (const int vertex : thread) {
            masses[std::size_t(vertex)] +=
                0.5F * (shape.rest[std::size_t(thread[0])] - shape.rest[std::size_t(thread[1])]).norm();
        }
    }
    const float average = std::accumulate(masses.begin(), masses.end(), 0.0F) / std::max(1.0F, float(masses.size()));
    for (float& mass : masses) {
        mass = std::max({mass, lightestShare * average, 1e-6F});
    }
    return masses;
}

std::vector<StretchLink> StretchLinks(const ClothShape& shape)
{
    std::vector<StretchLink> links;
    const auto lengthOf = [&](int a, int b) {
        return (shape.rest[std::size_t(a)] - shape.rest[std::size_t(b)]).norm();
    };
    ForEachGroup(EdgesOf(shape), [&](auto first, auto last) {
        const float area = std::accumulate(first, last, 0.0F, [](float sum, const Edge& e) { return sum + e.area; });
        const float length = lengthOf(first->a, first->b);
        links.push_back({first->a, first->b, length, length * length / std::max(area, 1e-3F * length * length)});
    });
    for (const auto& thread : shape.threads) {
        links.push_back({thread[0], thread[1], lengthOf(thread[0], thread[1]), lengthOf(thread[0], thread[1])});
    }
    links.erase(std::remove_if(links.begin(), links.end(), [](const StretchLink& l) { return !(l.length > 0.0F); }),
                links.end());
    return Interleaved(links);
}

std::vector<BendLink> BendLinks(const ClothShape& shape)
{
    std::vector<BendLink> links;
    ForEachGroup(EdgesOf(shape), [&](auto first, auto last) {
        if (last - first == 2) {
            const BendLink link = BendLinkOf(shape, *first, *(first + 1));
            if (IsSound(link)) {
                links.push_back(link);
            }
        }
    });
    return Interleaved(links);
}

std::vector<Tether> Tethers(const ClothShape& shape)
{
    const auto roads = RoadsOf(shape);
    std::vector<Tether> nearest(shape.rest.size(), {0, -1, std::numeric_limits<float>::infinity()});
    using Reached = std::tuple<float, int>;
    std::priority_queue<Reached, std::vector<Reached>, std::greater<>> queue;
    for (std::size_t i = 0; i < shape.rest.size(); ++i) {
        nearest[i].vertex = int(i);
        if (shape.freedom[i] <= 0.0F) {
            nearest[i].anchor = int(i);
            nearest[i].length = 0.0F;
            queue.emplace(0.0F, int(i));
        }
    }
    while (!queue.empty()) {
        const auto [length, vertex] = queue.top();
        queue.pop();
        if (length > nearest[std::size_t(vertex)].length) {
            continue;
        }
        for (const Road& road : roads[std::size_t(vertex)]) {
            Tether& next = nearest[std::size_t(road.to)];
            if (length + road.length < next.length) {
                next.length = length + road.length;
                next.anchor = nearest[std::size_t(vertex)].anchor;
                queue.emplace(next.length, road.to);
            }
        }
    }
    nearest.erase(
        std::remove_if(nearest.begin(), nearest.end(),
                       [&](const Tether& t) { return t.anchor < 0 || shape.freedom[std::size_t(t.vertex)] <= 0.0F; }),
        nearest.end());
    return nearest;
}

WeldedVertices Weld(const std::vector<QVector3D>& positions, const std::vector<quint32>& indices)
{
    struct Hash
    {
        std::size_t operator()(const std::array<float, 3>& place) const
        {
            std::array<quint32, 3> bits{};
            std::memcpy(bits.data(), place.data(), sizeof(bits));
            return (std::size_t(bits[0]) * 73856093U) ^ (std::size_t(bits[1]) * 19349663U) ^
                   (std::size_t(bits[2]) * 83492791U);
        }
    };
    WeldedVertices welded;
    welded.particle.assign(positions.size(), -1);
    std::unordered_map<std::array<float, 3>, int, Hash> known;
    for (const quint32 vertex : indices) {
        int& particle = welded.particle[vertex];
        if (particle < 0) {
            const QVector3D& place = positions[vertex];
            // Adding 0 makes one zero of the two.
            const auto [found, isNew] =
                known.try_emplace({place.x() + 0.0F, place.y() + 0.0F, place.z() + 0.0F}, int(welded.vertex.size()));
            particle = found->second;
            if (isNew) {
                welded.vertex.push_back(vertex);
            }
        }
    }
    return welded;
}

} // namespace Host
