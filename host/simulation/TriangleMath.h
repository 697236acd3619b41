#pragma once

#include "host/simulation/Vector.h"

#include <array>

namespace Host {

/// The shares of the three corners in the point of a triangle that is nearest to \p p. A share is exactly 0 where the
/// point is on the opposite edge.
inline std::array<float, 3> NearestShares(const Vector& p, const Vector& a, const Vector& b, const Vector& c)
{
    // One region after the other: the corners first, then the edges, then the inside.
    const Vector ab = b - a;
    const Vector ac = c - a;
    const Vector ap = p - a;
    const float d1 = ab.dot(ap);
    const float d2 = ac.dot(ap);
    if (d1 <= 0.0F && d2 <= 0.0F) {
        return {1.0F, 0.0F, 0.0F};
    }
    const Vector bp = p - b;
    const float d3 = ab.dot(bp);
    const float d4 = ac.dot(bp);
    if (d3 >= 0.0F && d4 <= d3) {
        return {0.0F, 1.0F, 0.0F};
    }
    const float vc = d1 * d4 - d3 * d2;
    if (vc <= 0.0F && d1 >= 0.0F && d3 <= 0.0F) {
        const float v = d1 > d3 ? d1 / (d1 - d3) : 0.0F;
        return {1.0F - v, v, 0.0F};
    }
    const Vector cp = p - c;
    const float d5 = ab.dot(cp);
    const float d6 = ac.dot(cp);
    if (d6 >= 0.0F && d5 <= d6) {
        return {0.0F, 0.0F, 1.0F};
    }
    const float vb = d5 * d2 - d1 * d6;
    if (vb <= 0.0F && d2 >= 0.0F && d6 <= 0.0F) {
        const float w = d2 > d6 ? d2 / (d2 - d6) : 0.0F;
        return {1.0F - w, 0.0F, w};
    }
    const float va = d3 * d6 - d5 * d4;
    const float toC = d4 - d3;
    const float toB = d5 - d6;
    if (va <= 0.0F && toC >= 0.0F && toB >= 0.0F) {
        const float w = toC + toB > 0.0F ? toC / (toC + toB) : 0.0F;
        return {0.0F, 1.0F - w, w};
    }
    const float sum = va + vb + vc;
    const float v = vb / sum;
    const float w = vc / sum;
    return {1.0F - v - w, v, w};
}

} // namespace Host
