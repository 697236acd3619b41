#include "host/simulation/MeshPieces.h"

#include <numeric>

namespace Host {

namespace {

std::size_t RootOf(std::vector<std::size_t>& parents, std::size_t vertex)
{
    while (parents[vertex] != vertex) {
        parents[vertex] = parents[parents[vertex]];
        vertex = parents[vertex];
    }
    return vertex;
}

} // namespace

std::vector<int> PieceOfVertex(std::size_t vertexCount, const IndexTriangles& triangles)
{
    std::vector<std::size_t> parents(vertexCount);
    std::iota(parents.begin(), parents.end(), std::size_t{0});
    for (const auto& triangle : triangles) {
        for (const int vertex : {triangle[1], triangle[2]}) {
            parents[RootOf(parents, std::size_t(vertex))] = RootOf(parents, std::size_t(triangle[0]));
        }
    }
    std::vector<int> numberOfRoot(vertexCount, -1);
    std::vector<int> pieces(vertexCount, -1);
    int count = 0;
    for (const auto& triangle : triangles) {
        int& number = numberOfRoot[RootOf(parents, std::size_t(triangle[0]))];
        if (number < 0) {
            number = count++;
        }
        for (const int vertex : triangle) {
            pieces[std::size_t(vertex)] = number;
        }
    }
    return pieces;
}

} // namespace Host
