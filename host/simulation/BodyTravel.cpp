#include "host/simulation/BodyTravel.h"

#include <algorithm>
#include <cmath>

namespace Host {

namespace {

constexpr float regionSize = 16.0F; ///< cm; more than the reach, so that the regions around one are all that matter.
constexpr int mostRegions = 64;     ///< Along each axis.

} // namespace

BodyTravel::BodyTravel(const Vectors& places)
{
    if (!places.empty()) {
        m_corner = places[0];
        Vector high = places[0];
        for (const Vector& place : places) {
            m_corner = m_corner.cwiseMin(place);
            high = high.cwiseMax(place);
        }
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const float size = high[Eigen::Index(axis)] - m_corner[Eigen::Index(axis)];
            m_size[axis] = size > 0.0F ? int(std::min(size / regionSize, float(mostRegions - 1))) + 1 : 1;
        }
    }
    m_regions.resize(std::size_t(m_size[0] * m_size[1] * m_size[2]));
}

/// Beyond the grid the nearest cell.
std::array<int, 3> BodyTravel::CellOf(const Vector& place) const
{
    std::array<int, 3> cell{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const float at = (place[Eigen::Index(axis)] - m_corner[Eigen::Index(axis)]) / regionSize;
        // What is no number is nowhere, which may be anywhere.
        cell[axis] = at > 0.0F ? int(std::min(at, float(m_size[axis] - 1))) : 0;
    }
    return cell;
}

std::size_t BodyTravel::NumberOf(const std::array<int, 3>& cell) const
{
    return std::size_t((cell[2] * m_size[1] + cell[1]) * m_size[0] + cell[0]);
}

void BodyTravel::SetFrame(const Vectors& start, const Vectors& end)
{
    std::vector<float> squares(m_regions.size(), 0.0F);
    for (std::size_t i = 0; i < start.size(); ++i) {
        float& square = squares[NumberOf(CellOf(start[i]))];
        square = std::max(square, (end[i] - start[i]).squaredNorm());
    }
    m_whole.before += m_whole.frame;
    m_whole.frame = std::sqrt(*std::max_element(squares.begin(), squares.end()));
    std::array<int, 3> cell{};
    for (cell[2] = 0; cell[2] < m_size[2]; ++cell[2]) {
        for (cell[1] = 0; cell[1] < m_size[1]; ++cell[1]) {
            for (cell[0] = 0; cell[0] < m_size[0]; ++cell[0]) {
                float most = 0.0F;
                for (int k = 0; k < 27; ++k) {
                    const std::array<int, 3> near{cell[0] + k % 3 - 1, cell[1] + k / 3 % 3 - 1, cell[2] + k / 9 - 1};
                    if (near == std::array<int, 3>{std::clamp(near[0], 0, m_size[0] - 1),
                                                   std::clamp(near[1], 0, m_size[1] - 1),
                                                   std::clamp(near[2], 0, m_size[2] - 1)}) {
                        most = std::max(most, squares[NumberOf(near)]);
                    }
                }
                Region& region = m_regions[NumberOf(cell)];
                region.before += region.frame;
                region.frame = std::sqrt(most);
            }
        }
    }
}

float BodyTravel::At(const Vector& place, float share, float reach) const
{
    const Region& region = reach <= regionalReach ? m_regions[NumberOf(CellOf(place))] : m_whole;
    return region.before + share * region.frame;
}

} // namespace Host
