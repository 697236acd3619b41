#pragma once

#include <QVector3D>

#include <array>
#include <vector>

namespace Host {

using IndexTriangles = std::vector<std::array<int, 3>>;

/// For each vertex the number of the piece that it hangs together with by triangles; pieces are numbered in the order
/// of their first triangles, and a vertex without triangles has -1.
std::vector<int> PieceOfVertex(std::size_t vertexCount, const IndexTriangles& triangles);

} // namespace Host
