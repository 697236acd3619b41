#pragma once

#include "host/simulation/MeshPieces.h"
#include "host/simulation/Vector.h"

#include <array>
#include <memory>
#include <vector>

namespace Host {

/// What cloth stays out of: the closed pieces of a body, each a solid of its own; they may overlap. A piece may have
/// holes as long as what is missing is small, as at the neck of a body without a head; sheets are left out.
class BodyCollider
{
public:
    /// A point of the surface.
    struct SurfacePoint
    {
        int triangle = -1;
        std::array<float, 3> shares{}; ///< Of the triangle's corners.
    };

    /// The nearest point of one piece.
    struct Nearest
    {
        SurfacePoint at;
        Vector normal = Vector::Zero(); ///< The direction out of the body, of length 1.
        float distance = 0.0F;          ///< To the surface; below 0 inside, cm.
    };
    static constexpr std::size_t mostPieces = 3;

    /// \param places where the vertices are, no two in the same place
    BodyCollider(const Vectors& places, const IndexTriangles& triangles);
    ~BodyCollider();
    BodyCollider(const BodyCollider&) = delete;
    BodyCollider& operator=(const BodyCollider&) = delete;

    /// True when there is nothing to collide with.
    bool IsEmpty() const;

    /// Where the vertices will be when MoveTo() comes to 1; they begin where they ended before.
    void SetFrame(const Vectors& placesAtEnd, double duration);
    /// Moves to a share of the frame, 0 to 1.
    void MoveTo(float share);
    /// Puts the vertices to \p places, at rest.
    void Reset(const Vectors& places);

    /// How far anything within \p reach of \p place has moved at most; see BodyTravel.
    float TravelAt(const Vector& place, float reach) const;

    /// The nearest pieces within \p reach of \p point, nearest first. Pieces beyond \p all are only looked for until
    /// one is found.
    /// \return how many
    std::size_t FindNearest(const Vector& point, float reach, float all, std::array<Nearest, mostPieces>& found) const;

    /// True where another piece was nearby when the body was made: what is outside of one may be deep in the other.
    bool IsAtJoint(const SurfacePoint& at) const;

    /// Where the way from \p from to \p to first enters a piece.
    bool FindEntry(const Vector& from, const Vector& to, SurfacePoint& at) const;

    Vector PlaceOf(const SurfacePoint& at) const;
    Vector VelocityOf(const SurfacePoint& at) const;
    /// Of the triangle itself, out of the body.
    Vector NormalOf(const SurfacePoint& at) const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Host
