#include "host/data/presets/Thumbnails.h"

#include "host/data/Painting.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

#include <functional>

// Each wind is shown by streaks in the air and by what it does to a flag.
namespace Presets {

namespace {

using namespace Painting;

/// What a flag does in a wind.
struct Flag
{
    double reach = 1.0;  ///< How far it reaches out from its pole, from 0 to 1.
    double drop = 0.0;   ///< How far its free end hangs down, in parts of the picture.
    double waves = 1.0;  ///< How many waves run through it.
    double height = 0.0; ///< How high the waves are, in parts of the picture.
};

QImage Sky(QRgb top, QRgb bottom)
{
    QImage image(paintedSize, paintedSize, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, 0, paintedSize);
    gradient.setColorAt(0.0, QColor(top));
    gradient.setColorAt(1.0, QColor(bottom));
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

/// Draws a line that swells from nothing and dwindles to nothing. \p at gives its points, 0 to 1 from end to end.
void DrawStreak(QPainter& painter, const std::function<QPointF(double)>& at, double width, double strength)
{
    constexpr int pieces = 96;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(1.0, 1.0, 1.0, strength));
    QPolygonF left;
    QPolygonF right;
    for (int i = 0; i <= pieces; ++i) {
        const double t = double(i) / pieces;
        const QPointF along = at(std::min(1.0, t + 0.01)) - at(std::max(0.0, t - 0.01));
        const double length = std::max(1e-6, std::hypot(along.x(), along.y()));
        const QPointF aside(-along.y() / length, along.x() / length);
        const double half = 0.5 * width * std::pow(std::sin(pi * t), 0.7);
        left.append((at(t) + aside * half) * paintedSize);
        right.prepend((at(t) - aside * half) * paintedSize);
    }
    painter.drawPolygon(left + right, Qt::WindingFill);
}

/// A streak from left to right at height \p y that rises and falls by \p sway.
void DrawGust(QPainter& painter, double x, double y, double length, double sway, double width, double strength)
{
    const auto at = [=](double t) {
        return QPointF(x + length * t, y + sway * std::sin(2.0 * pi * (0.9 * t + 3.0 * y)));
    };
    DrawStreak(painter, at, width, strength);
}

/// A streak that rolls up at its end.
void DrawCurl(QPainter& painter, double x, double y, double length, double radius, double width, double strength)
{
    const auto at = [=](double t) {
        const double straight = length / (length + 4.6 * radius);
        if (t < straight) {
            return QPointF(x + length * t / straight, y);
        }
        const double turn = (t - straight) / (1.0 - straight);
        const double angle = 0.5 * pi - 1.7 * pi * turn;
        const double shrunk = radius * (1.0 - 0.35 * turn);
        return QPointF(x + length + shrunk * std::cos(angle), y - radius + shrunk * std::sin(angle));
    };
    DrawStreak(painter, at, width, strength);
}

void DrawFlag(QPainter& painter, const Flag& flag)
{
    constexpr double poleX = 0.16;
    constexpr double top = 0.26;
    constexpr double flagHeight = 0.30;
    constexpr double flagLength = 0.62;
    const auto edge = [&](double s) {
        const double wave = flag.height * s * std::sin(2.0 * pi * (flag.waves * s + 0.1));
        return QPointF(poleX + flagLength * flag.reach * s, top + flag.drop * s * (2.0 - s) + wave);
    };
    constexpr int columns = 120;
    for (int i = 0; i < columns; ++i) {
        const double s = double(i) / columns;
        const QPointF from = edge(s) * paintedSize;
        const QPointF to = edge(s + 1.3 / columns) * paintedSize;
        const double light = 0.86 + 0.34 * std::sin(2.0 * pi * (flag.waves * s + 0.35));
        const QPointF down(0.0, flagHeight * paintedSize);
        const auto band = [&](double upper, double lower, const Paint& cloth) {
            const Paint lit = cloth * light;
            const auto part = [](double value) { return std::clamp(value, 0.0, 1.0); };
            painter.setBrush(QColor::fromRgbF(part(lit.red), part(lit.green), part(lit.blue)));
            painter.drawPolygon(QPolygonF(
                QVector<QPointF>{from + down * upper, to + down * upper, to + down * lower, from + down * lower}));
        };
        painter.setPen(Qt::NoPen);
        band(0.0, 1.0, FromColor(qRgb(226, 116, 40)));
        band(0.80, 0.92, FromColor(qRgb(250, 226, 150)));
    }
    painter.setBrush(QColor(92, 84, 78));
    painter.drawRoundedRect(QRectF((poleX - 0.022) * paintedSize, 0.16 * paintedSize, 0.024 * paintedSize, paintedSize),
                            6, 6);
    painter.setBrush(QColor(226, 190, 96));
    painter.drawEllipse(QPointF(poleX - 0.010, 0.15) * paintedSize, 0.024 * paintedSize, 0.024 * paintedSize);
}

QImage PaintWind(QRgb top, QRgb bottom, const Flag& flag, const std::function<void(QPainter&)>& drawAir)
{
    QImage image = Sky(top, bottom);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawAir(painter);
    DrawFlag(painter, flag);
    return image;
}

QImage PaintCalm()
{
    return PaintWind(qRgb(120, 172, 214), qRgb(206, 226, 238), {0.20, 0.30, 1.4, 0.015}, [](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 238, 178));
        painter.drawEllipse(QPointF(0.72, 0.30) * paintedSize, 0.13 * paintedSize, 0.13 * paintedSize);
    });
}

QImage PaintBreeze()
{
    return PaintWind(qRgb(104, 160, 206), qRgb(190, 216, 232), {0.66, 0.17, 1.2, 0.03}, [](QPainter& painter) {
        DrawCurl(painter, 0.34, 0.20, 0.30, 0.055, 0.022, 0.8);
        DrawGust(painter, 0.24, 0.82, 0.52, 0.015, 0.020, 0.7);
        DrawCurl(painter, 0.30, 0.93, 0.38, 0.045, 0.018, 0.7);
    });
}

QImage PaintSteadyWind()
{
    return PaintWind(qRgb(88, 136, 180), qRgb(168, 196, 216), {0.92, 0.06, 1.5, 0.035}, [](QPainter& painter) {
        for (int i = 0; i < 9; ++i) {
            const double y = i < 3 ? 0.06 + 0.065 * i : 0.66 + 0.058 * (i - 3);
            DrawGust(painter, 0.20 * Noise(i, 1), y, 0.55 + 0.3 * Noise(i, 2), 0.010, 0.018, 0.62);
        }
    });
}

QImage PaintGale()
{
    return PaintWind(qRgb(56, 74, 96), qRgb(124, 142, 156), {1.12, -0.02, 2.6, 0.022}, [](QPainter& painter) {
        for (int i = 0; i < 46; ++i) {
            const double thick = 0.006 + 0.014 * Noise(i, 13);
            DrawGust(painter, -0.2 + 0.7 * Noise(i, 11), Noise(i, 12), 0.5 + 0.6 * Noise(i, 14), 0.004, thick,
                     0.25 + 0.4 * Noise(i, 15));
        }
    });
}

QImage PaintGusts()
{
    return PaintWind(qRgb(72, 104, 138), qRgb(152, 172, 186), {0.84, -0.09, 1.7, 0.075}, [](QPainter& painter) {
        // Bursts of streaks with still air between them.
        for (int burst = 0; burst < 4; ++burst) {
            const double x = 0.02 + 0.24 * burst;
            const double y = burst % 2 == 0 ? 0.78 : 0.10;
            for (int i = 0; i < 7; ++i) {
                DrawGust(painter, x + 0.10 * Noise(i, burst), y + 0.028 * i, 0.16 + 0.20 * Noise(burst, i + 9), 0.020,
                         0.020, 0.68);
            }
        }
    });
}

QImage PaintWhirl()
{
    QImage image = Sky(qRgb(64, 82, 104), qRgb(150, 150, 138));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // A funnel: turns that grow wider towards the top, the far half of each fainter than the near one.
    constexpr int turns = 17;
    for (int i = 0; i < turns; ++i) {
        const double up = double(i) / (turns - 1);
        const QPointF middle(0.50 + 0.07 * std::sin(5.0 * up), 0.92 - 0.80 * up);
        const double radius = 0.035 + 0.37 * up * up + 0.06 * up;
        const auto turn = [=](double start) {
            return [=](double t) {
                const double angle = pi * (start + t + 0.5 * Noise(i, 5));
                return middle + QPointF(radius * std::cos(angle), 0.24 * radius * std::sin(angle) - 0.02 * t);
            };
        };
        DrawStreak(painter, turn(1.0), 0.014 + 0.012 * up, 0.30);
        DrawStreak(painter, turn(-0.2), 0.020 + 0.016 * up, 0.78);
    }
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 40; ++i) {
        painter.setBrush(QColor(88, 74, 58, 150));
        const double spread = 0.06 + 0.34 * Noise(i, 21);
        const QPointF at(0.5 + spread * std::cos(7.0 * i),
                         0.93 + 0.05 * std::sin(7.0 * i) - 0.12 * Noise(i, 22) * spread);
        const double size = paintedSize * (0.005 + 0.008 * Noise(i, 23));
        painter.drawEllipse(at * paintedSize, size, 0.7 * size);
    }
    return image;
}

} // namespace

std::vector<Thumbnail> WindThumbnails()
{
    return {{"1_Calm", PaintCalm}, {"2_Breeze", PaintBreeze}, {"3_Steady", PaintSteadyWind},
            {"4_Gale", PaintGale}, {"5_Gusts", PaintGusts},   {"6_Whirl", PaintWhirl}};
}

} // namespace Presets
