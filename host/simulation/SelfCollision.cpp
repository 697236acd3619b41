#include "host/simulation/SelfCollision.h"

#include "host/simulation/TriangleMath.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Host {

namespace {

constexpr float nearByRest = 0.8F;   ///< Share of the distance at rest that may be kept at most.
constexpr float reachMore = 0.4F;    ///< Beyond the margin: what may come near within two frames, cm.
constexpr float gainPerFrame = 0.5F; ///< Of the margin: how much is won back at most when it was lost.

Vector PointOf(const Vectors& places, const std::array<int, 3>& triangle, const std::array<float, 3>& shares)
{
    return shares[0] * places[std::size_t(triangle[0])] + shares[1] * places[std::size_t(triangle[1])] +
           shares[2] * places[std::size_t(triangle[2])];
}

std::array<float, 3> NearestIn(const Vectors& places, const std::array<int, 3>& triangle, const Vector& point)
{
    return NearestShares(point, places[std::size_t(triangle[0])], places[std::size_t(triangle[1])],
                         places[std::size_t(triangle[2])]);
}

} // namespace

SelfCollision::SelfCollision(const ClothShape& shape)
    : m_rest(shape.rest)
    , m_triangles(shape.triangles)
    , m_sorted(shape.rest.size(), 0)
    , m_sortedPlaces(shape.rest.size(), Vector::Zero())
    , m_vertexCells(shape.rest.size(), 0)
{
    double sum = 0.0;
    for (const auto& triangle : m_triangles) {
        sum += double((m_rest[std::size_t(triangle[0])] - m_rest[std::size_t(triangle[1])]).norm());
    }
    m_usualCellSize = std::max(1e-3F, float(0.8 * sum / std::max<double>(1.0, double(m_triangles.size()))));
    FindNeighbours();
}

/// Remembers for each triangle the vertices of the triangles that it touches. They cannot keep any distance from it.
void SelfCollision::FindNeighbours()
{
    std::vector<std::vector<int>> around(m_rest.size()); // the vertices next to each
    for (const auto& triangle : m_triangles) {
        for (const int vertex : triangle) {
            around[std::size_t(vertex)].insert(around[std::size_t(vertex)].end(), triangle.begin(), triangle.end());
        }
    }
    for (const auto& triangle : m_triangles) {
        std::vector<int> neighbours;
        for (const int vertex : triangle) {
            neighbours.insert(neighbours.end(), around[std::size_t(vertex)].begin(), around[std::size_t(vertex)].end());
        }
        std::sort(neighbours.begin(), neighbours.end());
        neighbours.erase(std::unique(neighbours.begin(), neighbours.end()), neighbours.end());
        m_neighbourStarts.push_back(m_neighbours.size());
        m_neighbours.insert(m_neighbours.end(), neighbours.begin(), neighbours.end());
    }
    m_neighbourStarts.push_back(m_neighbours.size());
}

bool SelfCollision::IsNeighbour(std::size_t triangle, int vertex) const
{
    const auto first = m_neighbours.begin() + std::ptrdiff_t(m_neighbourStarts[triangle]);
    const auto last = m_neighbours.begin() + std::ptrdiff_t(m_neighbourStarts[triangle + 1]);
    return std::find(first, last, vertex) != last;
}

/// The cell of a place, or the nearest one for places beyond the grid.
std::array<int, 3> SelfCollision::CellOf(const Vector& place) const
{
    const Vector at = (place - m_gridCorner) / m_cellSize;
    std::array<int, 3> cell{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        cell[axis] = int(std::clamp(at[Eigen::Index(axis)], 0.0F, float(m_gridSize[axis] - 1)));
    }
    return cell;
}

void SelfCollision::SortIntoCells(const Vectors& places)
{
    Vector low = places[0];
    Vector high = places[0];
    for (const Vector& place : places) {
        low = low.cwiseMin(place);
        high = high.cwiseMax(place);
    }
    // Cloth that is spread out far has larger cells, not more than there is use for.
    const Vector size = high - low;
    const float most = 8.0F * float(places.size()) + 64.0F;
    m_gridCorner = low;
    m_cellSize = m_usualCellSize;
    const auto cellsAlong = [&](Eigen::Index axis) { return 1.0F + std::min(1e6F, size[axis] / m_cellSize); };
    while (cellsAlong(0) * cellsAlong(1) * cellsAlong(2) > most) {
        m_cellSize *= 1.5F;
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        m_gridSize[axis] = int(cellsAlong(Eigen::Index(axis)));
    }
    m_cellStarts.assign(std::size_t(m_gridSize[0] * m_gridSize[1] * m_gridSize[2]) + 1, 0);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto [x, y, z] = CellOf(places[i]);
        m_vertexCells[i] = (z * m_gridSize[1] + y) * m_gridSize[0] + x;
        ++m_cellStarts[std::size_t(m_vertexCells[i]) + 1];
    }
    std::partial_sum(m_cellStarts.begin(), m_cellStarts.end(), m_cellStarts.begin());
    // Backwards, so that each start ends where its cell begins.
    for (std::size_t i = places.size(); i-- > 0;) {
        const int at = --m_cellStarts[std::size_t(m_vertexCells[i]) + 1];
        m_sorted[std::size_t(at)] = int(i);
        m_sortedPlaces[std::size_t(at)] = places[i];
    }
    m_cellStarts.erase(m_cellStarts.begin());
    m_cellStarts.push_back(int(places.size()));
}

void SelfCollision::FindPairs(const ClothParticles& particles, float margin)
{
    m_turn = 1 - m_turn;
    m_pairs[m_turn].clear();
    const auto isSound = [](const Vector& place) { return std::isfinite(place.squaredNorm()); };
    if (margin <= 0.0F || !std::all_of(particles.places.begin(), particles.places.end(), isSound)) {
        m_pairs[1 - m_turn].clear();
        return;
    }
    SortIntoCells(particles.places);
    for (std::size_t i = m_turn; i < m_triangles.size(); i += 2) {
        AddPairsOf(i, particles.places, margin);
    }
}

void SelfCollision::Clear()
{
    m_pairs = {};
    m_turn = 1;
}

void SelfCollision::AddPairsOf(std::size_t number, const Vectors& places, float margin)
{
    const std::array<int, 3>& triangle = m_triangles[number];
    const float reach = margin + reachMore;
    const Vector& corner = places[std::size_t(triangle[0])];
    const Vector& second = places[std::size_t(triangle[1])];
    const Vector& third = places[std::size_t(triangle[2])];
    const Vector low = corner.cwiseMin(second).cwiseMin(third) - Vector::Constant(reach);
    const Vector high = corner.cwiseMax(second).cwiseMax(third) + Vector::Constant(reach);
    const Vector middle = 0.5F * (low + high);
    const Vector half = 0.5F * (high - low);
    const Vector normal = Cross(second - corner, third - corner);
    const float farthest = reach * normal.norm();
    const auto [left, bottom, back] = CellOf(low);
    const auto [right, top, front] = CellOf(high);
    for (int z = back; z <= front; ++z) {
        for (int y = bottom; y <= top; ++y) {
            const int row = (z * m_gridSize[1] + y) * m_gridSize[0];
            const auto last = std::size_t(m_cellStarts[std::size_t(row + right) + 1]);
            for (auto k = std::size_t(m_cellStarts[std::size_t(row + left)]); k < last; ++k) {
                const Vector& place = m_sortedPlaces[k];
                const Vector off = (place - middle).cwiseAbs() - half;
                // Without a branch for each axis: which one it is cannot be foreseen.
                const bool isInside = (off.x() <= 0.0F) & (off.y() <= 0.0F) & (off.z() <= 0.0F);
                if (isInside && std::fabs(normal.dot(place - corner)) < farthest && !IsNeighbour(number, m_sorted[k])) {
                    AddPair(m_sorted[k], triangle, places, margin, reach);
                }
            }
        }
    }
}

void SelfCollision::AddPair(int vertex, const std::array<int, 3>& triangle, const Vectors& places, float margin,
                            float reach)
{
    const Vector& place = places[std::size_t(vertex)];
    const auto shares = NearestIn(places, triangle, place);
    const Vector out = place - PointOf(places, triangle, shares);
    const float distance = out.norm();
    if (distance > reach || distance <= 1e-6F) {
        return;
    }
    const Vector& restPlace = m_rest[std::size_t(vertex)];
    const float restDistance = (restPlace - PointOf(m_rest, triangle, NearestIn(m_rest, triangle, restPlace))).norm();
    const float wanted = std::min(margin, nearByRest * restDistance);
    m_pairs[m_turn].push_back(
        {vertex, triangle, shares, out / distance, std::min(wanted, distance + gainPerFrame * margin)});
}

void SelfCollision::Solve(ClothParticles& particles) const
{
    Solve(m_pairs[1 - m_turn], particles);
    Solve(m_pairs[m_turn], particles);
}

void SelfCollision::Solve(const std::vector<Pair>& pairs, ClothParticles& particles)
{
    Vectors& places = particles.places;
    const std::vector<float>& weights = particles.inverseMasses;
    for (const Pair& pair : pairs) {
        const Vector out = places[std::size_t(pair.vertex)] - PointOf(places, pair.triangle, pair.shares);
        const float missing = pair.distance - out.dot(pair.direction);
        if (missing <= 0.0F) {
            continue;
        }
        float sum = weights[std::size_t(pair.vertex)];
        for (std::size_t i = 0; i < 3; ++i) {
            sum += pair.shares[i] * pair.shares[i] * weights[std::size_t(pair.triangle[i])];
        }
        if (sum <= 0.0F) {
            continue;
        }
        const Vector push = (missing / sum) * pair.direction;
        places[std::size_t(pair.vertex)] += weights[std::size_t(pair.vertex)] * push;
        for (std::size_t i = 0; i < 3; ++i) {
            const auto corner = std::size_t(pair.triangle[i]);
            places[corner] -= (pair.shares[i] * weights[corner]) * push;
        }
    }
}

} // namespace Host
