#pragma once

#include <QVariant>

#include <cmath>
#include <type_traits>

namespace MV {

/// A number as it is read from a profile. What cannot be read as a finite number is 0, like a missing key.
template <class Number>
Number ProfileNumber(const QVariant& value)
{
    const auto number = value.value<Number>();
    if constexpr (std::is_floating_point_v<Number>) {
        return std::isfinite(number) ? number : Number(0);
    } else {
        return number;
    }
}

} // namespace MV
