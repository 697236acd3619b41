#pragma once

#include "host/simulation/Vector.h"

#include <array>
#include <vector>

namespace Host {

/// How far a body has moved, region by region: legs that walk do not concern what hangs from the shoulders.
class BodyTravel
{
public:
    /// The largest reach for which regions are told apart, cm; for a larger one the body counts as a whole.
    static constexpr float regionalReach = 12.0F;

    explicit BodyTravel(const Vectors& places);

    /// The next frame, in which vertices move from \p start to \p end.
    void SetFrame(const Vectors& start, const Vectors& end);

    /// How far at most any vertex within \p reach of \p place has moved since the beginning. Grows steadily; the
    /// difference of two answers for one place tells what happened in between.
    /// \param share of the current frame, 0 to 1
    float At(const Vector& place, float share, float reach) const;
    /// True when nothing moves in the current frame.
    bool IsStill() const { return m_whole.frame <= 0.0F; }

private:
    struct Region
    {
        float before = 0.0F; ///< Up to the current frame.
        float frame = 0.0F;  ///< In the current frame.
    };

    std::array<int, 3> CellOf(const Vector& place) const;
    std::size_t NumberOf(const std::array<int, 3>& cell) const;

    Vector m_corner = Vector::Zero();
    std::array<int, 3> m_size{1, 1, 1};
    Region m_whole;
    std::vector<Region> m_regions; ///< Each with what moves in the regions around it.
};

} // namespace Host
