#pragma once

#include "host/simulation/MeshPieces.h"
#include "host/simulation/Vector.h"

#include <array>
#include <vector>

namespace Host {

/// Triangles that hang together, and who is next to whom.
class BodySurface
{
public:
    /// Takes over the pieces that are solids. See BodyCollider.
    BodySurface(const Vectors& places, const IndexTriangles& triangles);

    const IndexTriangles& AllTriangles() const { return m_triangles; }
    /// The number of the piece that a triangle belongs to.
    int PieceOf(int triangle) const { return m_pieces[std::size_t(triangle)]; }

    /// A mark for the user of the surface; at first there is none.
    bool IsAtJoint(int triangle) const { return m_joints[std::size_t(triangle)]; }
    void SetAtJoint(int triangle, bool on) { m_joints[std::size_t(triangle)] = on; }

    /// The direction out of the body at a point of a triangle; at edges and corners the mean of all sides, so that what
    /// is nearest to them is outside exactly if it is on that side.
    /// \param shares of the corners in the point; exactly 0 marks points on edges and corners
    Vector OutwardAt(const Vectors& places, int triangle, const std::array<float, 3>& shares) const;
    Vector NormalOf(const Vectors& places, int triangle) const;

private:
    void FindNeighbours(std::size_t vertexCount);

    IndexTriangles m_triangles;
    std::vector<int> m_pieces; ///< Of each triangle.
    std::vector<bool> m_joints;
    std::vector<std::array<int, 3>> m_across; ///< The triangle beyond the edge opposite of each corner; -1 for none.
    std::vector<int> m_cornerStarts;          ///< Into m_corners, for each vertex, and one more.
    std::vector<int> m_corners;               ///< The triangles at each vertex.
};

} // namespace Host
