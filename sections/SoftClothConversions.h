#pragma once

#include "sections/Rounding.h"

#include <QtGlobal>

/// What a box shows and what the host holds: a pair of functions for each kind of value. All arithmetic is in single
/// precision. A profile holds what the box shows and is read as the pair's type Profile.
namespace MV {

/// A whole number on both sides; the host's is wider.
struct WholeNumber
{
    using Profile = quint32;
    static qint64 ToHost(int box) { return box; }
    static qint64 ToHost(quint32 profile) { return profile; }
    /// The low 32 bits.
    static int ToBox(qint64 host) { return static_cast<int>(host); }
};

/// A decimal number on both sides.
struct Decimal
{
    using Profile = float;
    static float ToHost(double box) { return static_cast<float>(box); }
    static float ToHost(float profile) { return profile; }
    static double ToBox(float host) { return static_cast<double>(host); }
};

/// Percent of what is removed: 0 is the host's 1.0, 100 is its 0.0.
struct TakenPercent
{
    using Profile = int;
    static float ToHost(int box) { return 1.0F - static_cast<float>(box) * 0.01F; }
    static int ToBox(float host) { return RoundHalfAway((1.0F - host) * 100.0F); }
};

/// The same counted from one: 1 is the host's 1.0, 101 is its 0.0.
struct TakenPercentFromOne
{
    using Profile = int;
    static float ToHost(int box) { return 1.0F - (static_cast<float>(box) - 1.0F) * 0.01F; }
    static int ToBox(float host) { return TakenPercent::ToBox(host) + 1; }
};

/// Tenths: 10 is the host's 1.0. What is below a tenth is lost in the box.
struct Tenths
{
    using Profile = int;
    static float ToHost(int box) { return ToHost(static_cast<float>(box)); }
    static float ToHost(float profile) { return profile / 10.0F; }
    static int ToBox(float host) { return TruncateToInt(host * 10.0F); }
};

/// A whole number whose decimals, which only the host has, are lost in the box.
struct WholeFloat
{
    using Profile = int;
    static float ToHost(int box) { return static_cast<float>(box); }
    static int ToBox(float host) { return TruncateToInt(host); }
};

} // namespace MV
