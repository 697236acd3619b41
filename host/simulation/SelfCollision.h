#pragma once

#include "host/simulation/ClothParticles.h"
#include "host/simulation/ClothShape.h"

#include <array>
#include <vector>

namespace Host {

/// Keeps the surfaces of a cloth apart: each vertex from each triangle that is not next to it. What is near is
/// found once a frame; a substep pushes along the directions found then.
class SelfCollision
{
public:
    explicit SelfCollision(const ClothShape& shape);

    /// Finds what is or may come nearer than \p margin (cm) until the next call but one. What lies closer together at
    /// rest is not driven apart.
    void FindPairs(const ClothParticles& particles, float margin);
    void Solve(ClothParticles& particles) const;
    /// Forgets what was found.
    void Clear();

private:
    struct Pair
    {
        int vertex = 0;
        std::array<int, 3> triangle{};
        std::array<float, 3> shares{}; ///< The triangle's nearest point.
        Vector direction = Vector::Zero();
        float distance = 0.0F; ///< To be kept.
    };

    static void Solve(const std::vector<Pair>& pairs, ClothParticles& particles);
    void SortIntoCells(const Vectors& places);
    void FindNeighbours();
    bool IsNeighbour(std::size_t triangle, int vertex) const;
    void AddPairsOf(std::size_t number, const Vectors& places, float margin);
    void AddPair(int vertex, const std::array<int, 3>& triangle, const Vectors& places, float margin, float reach);
    std::array<int, 3> CellOf(const Vector& place) const;

    Vectors m_rest;
    IndexTriangles m_triangles;
    std::vector<int> m_neighbours; ///< Of all triangles, one after the other.
    std::vector<std::size_t> m_neighbourStarts;
    float m_usualCellSize = 1.0F;
    // A grid over the cloth as it is now. Cells next to each other along x are next to each other in the lists.
    float m_cellSize = 1.0F;
    Vector m_gridCorner = Vector::Zero();
    std::array<int, 3> m_gridSize{};
    std::vector<int> m_cellStarts; ///< Into m_sorted, of each cell, and one more.
    std::vector<int> m_sorted;     ///< The vertices, cell by cell.
    Vectors m_sortedPlaces;
    std::vector<int> m_vertexCells;
    std::array<std::vector<Pair>, 2> m_pairs; ///< Of every other triangle each.
    std::size_t m_turn = 1;                   ///< Which of them is the newer one.
};

} // namespace Host
