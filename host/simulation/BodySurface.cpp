#include "host/simulation/BodySurface.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace Host {

namespace {

/// The share of a piece's surface that has no counterpart on its other side: 0 for solids, more for sheets.
constexpr float mostOpen = 0.3F;

/// Twice the area, along the normal.
Vector AreaOf(const Vectors& places, const std::array<int, 3>& triangle)
{
    const Vector& corner = places[std::size_t(triangle[0])];
    return Cross(places[std::size_t(triangle[1])] - corner, places[std::size_t(triangle[2])] - corner);
}

bool IsSolid(const Vectors& places, const IndexTriangles& piece)
{
    Vector sum = Vector::Zero();
    float area = 0.0F;
    for (const auto& triangle : piece) {
        sum += AreaOf(places, triangle);
        area += AreaOf(places, triangle).norm();
    }
    return area > 0.0F && sum.norm() <= mostOpen * area;
}

/// The triangles of each piece that hangs together, without those that have no area.
std::vector<IndexTriangles> PiecesOf(const Vectors& places, const IndexTriangles& triangles)
{
    const std::vector<int> pieceOf = PieceOfVertex(places.size(), triangles);
    std::vector<IndexTriangles> pieces;
    for (const auto& triangle : triangles) {
        const auto piece = std::size_t(pieceOf[std::size_t(triangle[0])]);
        pieces.resize(std::max(pieces.size(), piece + 1));
        if (AreaOf(places, triangle).squaredNorm() > 0.0F) {
            pieces[piece].push_back(triangle);
        }
    }
    return pieces;
}

float AngleAt(const Vectors& places, const std::array<int, 3>& triangle, int vertex)
{
    const auto at = std::size_t(std::find(triangle.begin(), triangle.end(), vertex) - triangle.begin());
    const Vector& corner = places[std::size_t(triangle[at])];
    const Vector u = (places[std::size_t(triangle[(at + 1) % 3])] - corner).normalized();
    const Vector v = (places[std::size_t(triangle[(at + 2) % 3])] - corner).normalized();
    return std::acos(std::clamp(u.dot(v), -1.0F, 1.0F));
}

} // namespace

BodySurface::BodySurface(const Vectors& places, const IndexTriangles& triangles)
{
    int number = 0;
    for (const IndexTriangles& piece : PiecesOf(places, triangles)) {
        if (IsSolid(places, piece)) {
            m_triangles.insert(m_triangles.end(), piece.begin(), piece.end());
            m_pieces.resize(m_triangles.size(), number++);
        }
    }
    m_joints.assign(m_triangles.size(), false);
    FindNeighbours(places.size());
}

void BodySurface::FindNeighbours(std::size_t vertexCount)
{
    m_across.assign(m_triangles.size(), {-1, -1, -1});
    std::map<std::pair<int, int>, std::pair<std::size_t, std::size_t>> open;
    m_cornerStarts.assign(vertexCount + 1, 0);
    for (std::size_t t = 0; t < m_triangles.size(); ++t) {
        for (std::size_t i = 0; i < 3; ++i) {
            ++m_cornerStarts[std::size_t(m_triangles[t][i]) + 1];
            const std::pair<int, int> edge = std::minmax(m_triangles[t][(i + 1) % 3], m_triangles[t][(i + 2) % 3]);
            const auto [found, isNew] = open.try_emplace(edge, t, i);
            if (!isNew) {
                const auto [other, j] = found->second;
                m_across[t][i] = int(other);
                m_across[other][j] = int(t);
            }
        }
    }
    std::partial_sum(m_cornerStarts.begin(), m_cornerStarts.end(), m_cornerStarts.begin());
    std::vector<int> next(m_cornerStarts.begin(), m_cornerStarts.end() - 1);
    m_corners.resize(m_triangles.size() * 3);
    for (std::size_t t = 0; t < m_triangles.size(); ++t) {
        for (const int vertex : m_triangles[t]) {
            m_corners[std::size_t(next[std::size_t(vertex)]++)] = int(t);
        }
    }
}

Vector BodySurface::NormalOf(const Vectors& places, int triangle) const
{
    return AreaOf(places, m_triangles[std::size_t(triangle)]).normalized();
}

Vector BodySurface::OutwardAt(const Vectors& places, int triangle, const std::array<float, 3>& shares) const
{
    const auto t = std::size_t(triangle);
    const auto zeros = std::count(shares.begin(), shares.end(), 0.0F);
    if (zeros == 2) {
        const auto corner = std::size_t(std::max_element(shares.begin(), shares.end()) - shares.begin());
        const int vertex = m_triangles[t][corner];
        Vector sum = Vector::Zero();
        for (int k = m_cornerStarts[std::size_t(vertex)]; k < m_cornerStarts[std::size_t(vertex) + 1]; ++k) {
            const int other = m_corners[std::size_t(k)];
            sum += AngleAt(places, m_triangles[std::size_t(other)], vertex) * NormalOf(places, other);
        }
        return sum.normalized();
    }
    Vector normal = NormalOf(places, triangle);
    if (zeros == 1) {
        const auto opposite = std::size_t(std::find(shares.begin(), shares.end(), 0.0F) - shares.begin());
        if (m_across[t][opposite] >= 0) {
            normal = (normal + NormalOf(places, m_across[t][opposite])).normalized();
        }
    }
    return normal;
}

} // namespace Host
