#include "host/data/demo/DemoTextures.h"

#include "host/data/Painting.h"
#include "host/data/demo/DemoCharacter.h"

#include <QPointF>

namespace Demo {

namespace {

constexpr int textureSize = 512;
using namespace Painting;

/// Below 1 inside an ellipse.
double InEllipse(const QPointF& at, const QPointF& center, const QPointF& radii)
{
    return std::hypot((at.x() - center.x()) / radii.x(), (at.y() - center.y()) / radii.y());
}

/// \p at in the coordinates of \p area, 0 to 1 each.
QPointF Within(const QRectF& area, const QPointF& at)
{
    return {(at.x() - area.x()) / area.width(), (at.y() - area.y()) / area.height()};
}

const Paint skinTone = FromColor(qRgb(232, 190, 160));
const Paint suitTone = FromColor(qRgb(38, 92, 104));
const Paint suitTrim = FromColor(qRgb(216, 176, 92));
const Paint bootTone = FromColor(qRgb(92, 58, 40));

Paint Disc(const Paint& ground, const Paint& tone, const QPointF& at, const QPointF& center, const QPointF& radii)
{
    return Mix(tone, ground, Step(InEllipse(at, center, radii), 1.0, 0.12));
}

/// The face looks to u = 0.5; left and right are alike.
Paint FaceAt(QPointF at)
{
    at.setX(0.5 - std::fabs(at.x() - 0.5));
    Paint paint = skinTone;
    paint = Mix(FromColor(qRgb(226, 140, 124)), paint, Step(InEllipse(at, {0.410, 0.40}, {0.045, 0.055}), 0.6, 0.8));
    paint = Disc(paint, FromColor(qRgb(250, 248, 244)), at, {0.432, 0.515}, {0.030, 0.026});
    paint = Disc(paint, FromColor(qRgb(60, 96, 70)), at, {0.435, 0.515}, {0.015, 0.023});
    paint = Disc(paint, FromColor(qRgb(20, 18, 20)), at, {0.436, 0.515}, {0.008, 0.013});
    paint = Disc(paint, FromColor(qRgb(70, 44, 30)), at, {0.428, 0.595}, {0.034, 0.007});
    paint = Disc(paint, FromColor(qRgb(70, 44, 30)), at, {0.431, 0.545}, {0.033, 0.007});
    paint = Disc(paint, FromColor(qRgb(206, 152, 126)), at, {0.492, 0.435}, {0.006, 0.008});
    return Disc(paint, FromColor(qRgb(186, 84, 84)), at, {0.500, 0.335}, {0.035, 0.013});
}

/// A suit that ends in a round neckline under a trim.
Paint TorsoAt(const QPointF& at)
{
    const double neckline = 0.690 - 0.05 * (0.5 - 0.5 * std::cos(2.0 * pi * at.x()));
    const Paint suit = Mix(suitTone, suitTone * 1.25, 0.5 + 0.5 * std::sin(2.0 * pi * at.x() * 40.0));
    const Paint trimmed = Mix(suit, suitTrim, Step(at.y(), neckline - 0.015, 0.004));
    return Mix(trimmed, skinTone, Step(at.y(), neckline, 0.004));
}

Paint ArmAt(const QPointF& at)
{
    const bool bracelet = at.y() > 0.345 && at.y() < 0.375;
    return bracelet ? suitTrim : skinTone;
}

Paint LegAt(const QPointF& at)
{
    const Paint boot = Mix(bootTone, suitTrim, Step(at.y(), 0.37, 0.006));
    return Mix(boot, skinTone, Step(at.y(), 0.40, 0.006));
}

Paint SkinAt(const QPointF& at)
{
    if (SkinAreas::torso.contains(at)) {
        return TorsoAt(Within(SkinAreas::torso, at));
    }
    if (SkinAreas::head.contains(at)) {
        return FaceAt(Within(SkinAreas::head, at));
    }
    if (SkinAreas::arms.contains(at)) {
        return ArmAt(Within(SkinAreas::arms, at));
    }
    return SkinAreas::legs.contains(at) ? LegAt(Within(SkinAreas::legs, at)) : bootTone;
}

/// Streaks along v: the brightness of the hair at u, from 0 to 1.
double StreakAt(double u, int width)
{
    const double place = u * textureSize / width;
    const int below = static_cast<int>(place);
    const int around = textureSize / width;
    const double t = place - below;
    return Noise(below % around, width) * (1.0 - t) + Noise((below + 1) % around, width) * t;
}

/// \p weightAt from 0 to 1; a rim of the first twentieth is black.
template <class WeightAt>
QImage PaintWeights(WeightAt weightAt)
{
    constexpr double rim = 0.05;
    return PaintImage(textureSize,
                      [weightAt](double u, double v) {
                          const double weight = std::max(0.0, weightAt(u, v) - rim) / (1.0 - rim);
                          return Paint{weight, weight, weight};
                      })
        .convertToFormat(QImage::Format_Grayscale8);
}

double HairShade(double u)
{
    return 0.5 * StreakAt(u, 16) + 0.3 * StreakAt(u, 4) + 0.2 * StreakAt(u, 2);
}

} // namespace

QImage PaintSkin()
{
    return PaintImage(textureSize, [](double u, double v) {
        const double grain = Noise(static_cast<int>(u * textureSize), static_cast<int>(v * textureSize));
        return SkinAt({u, v}) * (0.975 + 0.05 * grain);
    });
}

QImage PaintHair()
{
    return PaintImage(textureSize, [](double u, double v) {
        const Paint root = FromColor(qRgb(70, 34, 20));
        const Paint shine = FromColor(qRgb(190, 108, 58));
        const double band = std::exp(-std::pow((v - 0.80) / 0.06, 2.0));
        return Mix(root, shine, 0.15 + 0.6 * HairShade(u) + 0.25 * band);
    });
}

QImage PaintHairOpacity()
{
    return PaintImage(textureSize, [](double u, double v) {
        // The tips end at different heights; everything above them is solid.
        const double tip = 0.04 + 0.30 * hairTextureSplit * 2.0 * HairShade(u);
        const double solid = Step(v, tip, 0.03);
        return Paint{solid, solid, solid};
    });
}

QImage PaintSkirt()
{
    return PaintImage(textureSize, [](double u, double v) {
        const Paint ground = FromColor(qRgb(120, 28, 44));
        const Paint stripe = FromColor(qRgb(34, 38, 66));
        const Paint thread = FromColor(qRgb(226, 204, 150));
        const auto band = [](double place, double repeats, double middle, double half) {
            const double t = place * repeats - std::floor(place * repeats);
            return 1.0 - Step(std::fabs(t - middle), half, 0.03);
        };
        Paint cloth = Mix(ground, stripe, 0.55 * band(u, 16.0, 0.3, 0.18) + 0.55 * band(v, 6.0, 0.3, 0.18));
        cloth = Mix(cloth, thread, 0.8 * std::max(band(u, 16.0, 0.78, 0.03), band(v, 6.0, 0.78, 0.03)));
        // Over and under: every other crossing of the threads shows the one that runs along u.
        const int column = static_cast<int>(u * textureSize / 2.0);
        const int row = static_cast<int>(v * textureSize / 2.0);
        const double weave = (column + row) % 2 == 0 ? 1.08 : 0.88;
        return cloth * (weave * (0.96 + 0.08 * Noise(column, row)));
    });
}

QImage PaintCape()
{
    return PaintImage(textureSize, [](double u, double v) {
        const Paint ground = FromColor(qRgb(44, 40, 96));
        const Paint figure = FromColor(qRgb(74, 70, 140));
        const Paint gold = FromColor(qRgb(222, 182, 96));
        const double column = u * 10.0;
        const double row = v * 10.0;
        const double rhomb = std::fabs(column - std::floor(column) - 0.5) + std::fabs(row - std::floor(row) - 0.5);
        Paint cloth = Mix(figure, ground, Step(rhomb, 0.36, 0.03));
        cloth = Mix(gold, cloth, Step(rhomb, 0.10, 0.03));
        const double border = std::min({u, 1.0 - u, v, 1.0 - v});
        cloth = Mix(Mix(gold, ground, Step(border, 0.03, 0.004)), cloth, Step(border, 0.045, 0.004));
        const double thread = 0.96 + 0.08 * Noise(static_cast<int>(u * textureSize), static_cast<int>(v * textureSize));
        return cloth * thread;
    });
}

QImage PaintFlag()
{
    return PaintImage(textureSize, [](double u, double v) {
        const Paint upper = FromColor(qRgb(206, 214, 222));
        const Paint lower = FromColor(qRgb(34, 74, 122));
        const Paint ground = Mix(lower, upper, Step(v, 0.5, 0.004));
        const double thread = 0.96 + 0.08 * Noise(static_cast<int>(u * textureSize), static_cast<int>(v * textureSize));
        return Disc(ground, FromColor(qRgb(196, 64, 52)), {u, v}, {0.5, 0.5}, {0.18, 0.27}) * thread;
    });
}

QImage PaintHangingWeights()
{
    return PaintWeights([](double, double v) { return 1.0 - v; });
}

QImage PaintFlagWeights()
{
    return PaintWeights([](double u, double) { return u; });
}

QImage PaintNoWeights()
{
    return PaintWeights([](double, double) { return 0.0; });
}

} // namespace Demo
