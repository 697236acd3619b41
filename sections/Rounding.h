#pragma once

#include <QtGlobal>

#include <limits>

/// From single precision to whole numbers.
namespace MV {

/// \p value without its decimals. What an int cannot hold gives the nearest float that it can; NaN gives 0.
inline int TruncateToInt(float value)
{
    constexpr float lowest = -2147483648.0F;
    constexpr float highest = 2147483520.0F;
    static_assert(std::numeric_limits<int>::digits == 31 && std::numeric_limits<float>::digits == 24);
    return qIsNaN(value) ? 0 : static_cast<int>(qBound(lowest, value, highest));
}

/// \p value rounded half away from zero; out of range as above.
inline int RoundHalfAway(float value)
{
    return TruncateToInt(value > 0.0F ? value + 0.5F : value - 0.5F);
}

} // namespace MV
