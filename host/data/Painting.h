#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

#include <algorithm>
#include <cmath>

/// Painting by computation, for the pictures that are made at build time. Gives the same picture on every machine.
namespace Painting {

inline constexpr double pi = 3.14159265358979;

/// A colour with real parts from 0 to 1, to compute with.
struct Paint
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

inline Paint FromColor(QRgb color)
{
    return {qRed(color) / 255.0, qGreen(color) / 255.0, qBlue(color) / 255.0};
}

inline Paint operator*(const Paint& paint, double factor)
{
    return {paint.red * factor, paint.green * factor, paint.blue * factor};
}

inline Paint operator+(const Paint& a, const Paint& b)
{
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

inline Paint Mix(const Paint& a, const Paint& b, double share)
{
    const double s = std::clamp(share, 0.0, 1.0);
    return a * (1.0 - s) + b * s;
}

/// 0 below \p edge, 1 above it, soft over a width of \p softness.
inline double Step(double value, double edge, double softness)
{
    const double t = std::clamp((value - edge) / softness + 0.5, 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

/// What is left of \p value above the whole number below it.
inline double Fraction(double value)
{
    return value - std::floor(value);
}

/// The same number from 0 to 1 for the same two on every machine, without any order.
inline double Noise(int x, int y)
{
    quint32 hash = static_cast<quint32>(x) * 0x9E3779B1U + static_cast<quint32>(y) * 0x85EBCA77U;
    hash = (hash ^ (hash >> 15U)) * 0x2C1B3C6DU;
    hash = (hash ^ (hash >> 12U)) * 0x297A2D39U;
    return (hash ^ (hash >> 15U)) / 4294967295.0;
}

/// Paints each pixel by its u and v, which grow to the right and upwards from 0 to 1.
template <class PaintAt>
QImage PaintImage(int size, PaintAt paintAt)
{
    QImage image(size, size, QImage::Format_RGB32);
    const auto part = [](double value) { return static_cast<int>(std::clamp(value, 0.0, 1.0) * 255.0 + 0.5); };
    for (int y = 0; y < size; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size; ++x) {
            const Paint paint = paintAt((x + 0.5) / size, 1.0 - (y + 0.5) / size);
            line[x] = qRgb(part(paint.red), part(paint.green), part(paint.blue));
        }
    }
    return image;
}

} // namespace Painting
