#include "host/data/presets/Thumbnails.h"

#include "host/data/Painting.h"

#include <QVector3D>

#include <cmath>

namespace Presets {

namespace {

using namespace Painting;

/// How a swatch of cloth takes the light.
struct Sheen
{
    double relief = 1.0;  ///< How steep its ups and downs are.
    double shine = 0.0;   ///< Share of the light that is thrown back as a highlight.
    double polish = 10.0; ///< How small the highlights are.
    double rim = 0.0;     ///< Share of the light on what is seen from the side.
};

/// Paints a swatch from its height and its colour at each (u, v), lit from the upper left.
template <class HeightAt, class ColorAt>
QImage PaintSwatch(const Sheen& sheen, HeightAt heightAt, ColorAt colorAt)
{
    const QVector3D light = QVector3D(-0.55F, 0.60F, 0.75F).normalized();
    const QVector3D halfway = (light + QVector3D(0, 0, 1)).normalized();
    constexpr double step = 1.0 / paintedSize;
    return PaintImage(paintedSize, [&](double u, double v) {
        const double slopeU = (heightAt(u + step, v) - heightAt(u - step, v)) / (2.0 * step);
        const double slopeV = (heightAt(u, v + step) - heightAt(u, v - step)) / (2.0 * step);
        const QVector3D normal =
            QVector3D(float(-slopeU * sheen.relief), float(-slopeV * sheen.relief), 1.0F).normalized();
        const double diffuse = std::max(0.0, double(QVector3D::dotProduct(normal, light)));
        const double mirrored = std::max(0.0, double(QVector3D::dotProduct(normal, halfway)));
        const double highlight = sheen.shine * std::pow(mirrored, sheen.polish);
        const double side = 1.0 - double(normal.z());
        const Paint lit = colorAt(u, v) * (0.28 + 0.85 * diffuse + sheen.rim * side * side);
        return lit + Paint{1.0, 0.98, 0.94} * highlight;
    });
}

/// Noise that runs smoothly from one whole number to the next.
double SmoothNoise(double x, double y)
{
    const int column = static_cast<int>(std::floor(x));
    const int row = static_cast<int>(std::floor(y));
    const double s = Step(Fraction(x), 0.5, 1.0);
    const double t = Step(Fraction(y), 0.5, 1.0);
    const double below = Noise(column, row) * (1.0 - s) + Noise(column + 1, row) * s;
    const double above = Noise(column, row + 1) * (1.0 - s) + Noise(column + 1, row + 1) * s;
    return below * (1.0 - t) + above * t;
}

/// Height of folds that fall across the swatch, from 0 to 1.
double Folds(double u, double v, double count, double sway)
{
    const double place = count * (u + 0.35 * v) + sway * std::sin(2.0 * pi * (0.7 * v + 0.4 * u));
    return 0.5 + 0.5 * std::sin(2.0 * pi * place);
}

/// Height of a round thread; \p across runs from 0 to 1 over its width.
double Thread(double across)
{
    const double t = 2.0 * across - 1.0;
    return std::sqrt(std::max(0.0, 1.0 - t * t));
}

/// Height of a plain weave of \p threads threads each way: at each crossing the one lies over the other in turn.
double PlainWeave(double u, double v, double threads)
{
    const double x = u * threads;
    const double y = v * threads;
    const bool warpOver = (static_cast<int>(std::floor(x)) + static_cast<int>(std::floor(y))) % 2 == 0;
    const double across = warpOver ? Fraction(x) : Fraction(y);
    const double along = warpOver ? Fraction(y) : Fraction(x);
    return Thread(across) * (0.4 + 0.6 * Thread(along));
}

QImage PaintCotton()
{
    constexpr double threads = 44.0;
    const auto height = [](double u, double v) {
        return 0.030 * Folds(u, v, 0.9, 0.25) + 0.006 * PlainWeave(u, v, threads);
    };
    // Gingham: stripes of dyed thread both ways, which cross in full colour.
    const auto color = [](double u, double v) {
        const auto dyed = [](double place) { return std::fmod(std::floor(place * threads), 11.0) < 5.0 ? 0.5 : 0.0; };
        return Mix(FromColor(qRgb(238, 238, 232)), FromColor(qRgb(44, 96, 160)), dyed(u) + dyed(v));
    };
    return PaintSwatch({2.6}, height, color);
}

QImage PaintDenim()
{
    constexpr double threads = 52.0;
    const auto seam = [](double u) { return Step(u, 0.60, 0.02) - Step(u, 0.82, 0.02); };
    const auto stitch = [](double u, double v) {
        const double beside = std::min(std::fabs(u - 0.64), std::fabs(u - 0.78));
        return Step(0.010 - beside, 0.0, 0.004) * Step(0.36 - std::fabs(Fraction(v * 9.0) - 0.5), 0.0, 0.05);
    };
    // Twill: each thread starts a step further, which gives the slanting ribs.
    const auto rib = [](double u, double v) { return Thread(Fraction((u + v) * threads * 0.5)); };
    const auto height = [=](double u, double v) {
        return 0.012 * rib(u, v) + 0.030 * seam(u) + 0.020 * stitch(u, v) + 0.02 * Folds(u, v, 0.6, 0.2);
    };
    const auto color = [=](double u, double v) {
        const int column = static_cast<int>(u * threads * 2.0);
        const int row = static_cast<int>(v * threads * 2.0);
        const double worn = 0.35 * SmoothNoise(u * 4.0, v * 3.0) + 0.25 * Noise(column, row);
        const Paint ground = Mix(FromColor(qRgb(30, 52, 98)), FromColor(qRgb(122, 152, 192)), worn);
        const Paint ribbed = Mix(ground, FromColor(qRgb(176, 192, 214)), 0.45 * (1.0 - Step(rib(u, v), 0.5, 0.5)));
        return Mix(ribbed, FromColor(qRgb(222, 146, 58)), stitch(u, v));
    };
    return PaintSwatch({2.2}, height, color);
}

/// Distance to the edge between the two nearest of points that are strewn over cells.
double PebbleEdge(double x, double y)
{
    double nearest = 9.0;
    double second = 9.0;
    for (int row = static_cast<int>(std::floor(y)) - 1; row <= std::floor(y) + 1; ++row) {
        for (int column = static_cast<int>(std::floor(x)) - 1; column <= std::floor(x) + 1; ++column) {
            const double distance =
                std::hypot(column + Noise(column, row) - x, row + Noise(column + 57, row + 131) - y);
            second = std::min(second, std::max(distance, nearest));
            nearest = std::min(nearest, distance);
        }
    }
    return second - nearest;
}

QImage PaintLeather()
{
    const auto height = [](double u, double v) {
        return 0.0045 * Step(PebbleEdge(u * 26.0, v * 26.0), 0.22, 0.7) + 0.09 * Folds(u, v, 0.55, 0.18);
    };
    const auto color = [](double u, double v) {
        const double patch = 0.7 * SmoothNoise(u * 3.0, v * 3.0) + 0.3 * SmoothNoise(u * 12.0, v * 12.0);
        const Paint hide = Mix(FromColor(qRgb(96, 52, 26)), FromColor(qRgb(158, 92, 46)), patch);
        return Mix(hide * 0.72, hide, Step(PebbleEdge(u * 26.0, v * 26.0), 0.10, 0.3));
    };
    return PaintSwatch({2.4, 0.34, 22.0}, height, color);
}

QImage PaintSilk()
{
    const auto height = [](double u, double v) {
        const double flow = 0.16 * std::sin(2.0 * pi * (0.8 * v - 0.3 * u)) + 0.07 * std::sin(2.0 * pi * (1.7 * v + u));
        const double wave = std::sin(2.0 * pi * (1.15 * u + 0.55 * v + flow));
        return 0.085 * wave + 0.03 * std::sin(2.0 * pi * (2.3 * u - 0.6 * v + 1.6 * flow));
    };
    const auto color = [](double u, double v) {
        return Mix(FromColor(qRgb(150, 38, 96)), FromColor(qRgb(196, 74, 128)), SmoothNoise(u * 2.0, v * 2.0));
    };
    return PaintSwatch({1.9, 0.72, 9.0}, height, color);
}

QImage PaintRubber()
{
    // A mat with round studs in staggered rows.
    const auto height = [](double u, double v) {
        const double row = v * 6.0;
        const double column = u * 6.0 + (static_cast<int>(std::floor(row)) % 2 == 0 ? 0.0 : 0.5);
        const double distance = std::hypot(Fraction(column) - 0.5, Fraction(row) - 0.5);
        return 0.022 * (1.0 - Step(distance, 0.28, 0.14)) + 0.05 * Folds(u, v, 0.45, 0.1);
    };
    const auto color = [](double u, double v) {
        const int grain = paintedSize / 2;
        const double speck = Noise(static_cast<int>(u * grain), static_cast<int>(v * grain));
        return FromColor(qRgb(104, 110, 116)) * (0.92 + 0.16 * speck);
    };
    return PaintSwatch({2.0, 0.55, 34.0}, height, color);
}

/// Height of knitted stitches: each is a V of two legs, one row hooked into the next.
double Knit(double u, double v)
{
    const double x = Fraction(u * 8.0) * 2.0 - 1.0;
    const double leg = 1.0 - 2.0 * std::fabs(std::fabs(x) - 0.5);
    const double along = Fraction(v * 9.0 - 0.75 * std::fabs(x));
    return Thread(along) * std::sqrt(std::max(0.0, leg));
}

QImage PaintWool()
{
    const auto height = [](double u, double v) {
        const double fuzz = SmoothNoise(u * 160.0, v * 160.0);
        return 0.045 * Knit(u, v) + 0.004 * fuzz;
    };
    const auto color = [](double u, double v) {
        const double strand = Noise(static_cast<int>((u * 8.0 + v * 9.0) * 14.0), static_cast<int>(u * 40.0));
        const Paint yarn = Mix(FromColor(qRgb(196, 176, 140)), FromColor(qRgb(238, 224, 194)), strand);
        return Mix(yarn * 0.35, yarn, 0.15 + Knit(u, v));
    };
    return PaintSwatch({1.2}, height, color);
}

QImage PaintLinen()
{
    constexpr double threads = 30.0;
    // Threads of uneven thickness: each one has a tone of its own that changes slowly along it.
    const auto slub = [](double along, double across) {
        return SmoothNoise(along * 6.0 + 31.0 * std::floor(across * threads), std::floor(across * threads) + 0.5);
    };
    const auto height = [=](double u, double v) {
        const double bent = 0.004 * std::sin(2.0 * pi * (2.0 * v + u));
        return 0.012 * PlainWeave(u + bent, v, threads) * (0.6 + 0.5 * slub(u, v)) + 0.035 * Folds(v, u, 0.5, 0.15);
    };
    const auto color = [=](double u, double v) {
        const double tone = 0.5 * slub(u, v) + 0.5 * slub(v + 3.0, u);
        return Mix(FromColor(qRgb(150, 132, 98)), FromColor(qRgb(224, 210, 178)), tone);
    };
    return PaintSwatch({2.0}, height, color);
}

QImage PaintVelvet()
{
    const auto height = [](double u, double v) {
        return 0.15 * Folds(u, v, 1.5, 0.16) + 0.05 * std::sin(2.0 * pi * (0.9 * u - 1.1 * v));
    };
    const auto color = [](double u, double v) {
        const int pile = paintedSize / 2;
        const double nap = Noise(static_cast<int>(u * pile), static_cast<int>(v * pile));
        return FromColor(qRgb(110, 14, 30)) * (0.85 + 0.3 * nap);
    };
    return PaintSwatch({1.5, 0.0, 1.0, 6.0}, height, color);
}

} // namespace

std::vector<Thumbnail> ClothThumbnails()
{
    return {{"1_Cotton", PaintCotton}, {"2_Denim", PaintDenim}, {"3_Leather", PaintLeather}, {"4_Silk", PaintSilk},
            {"5_Rubber", PaintRubber}, {"6_Wool", PaintWool},   {"7_Linen", PaintLinen},     {"8_Velvet", PaintVelvet}};
}

} // namespace Presets
