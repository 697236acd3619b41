#include "host/data/presets/Thumbnails.h"

#include "host/data/Painting.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>

#include <functional>

// Each haircut is seen from behind, on the same head; its strands are drawn one by one.
namespace Presets {

namespace {

using namespace Painting;

/// The course of a strand: its points in parts of the picture, from root (0) to tip (1).
using Course = std::function<QPointF(double)>;

/// The colours of a head of hair and where light falls on it.
struct Tone
{
    QRgb dark;
    QRgb bright;
    double shineHeight; ///< Down from the top of the picture, in parts of it.
};

const QPointF headMiddle(0.50, 0.36);
constexpr double headWidth = 0.20;
constexpr double headHeight = 0.25;

QImage PaintBust(const std::function<void(QPainter&)>& drawHair)
{
    QImage image(paintedSize, paintedSize, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(paintedSize, paintedSize);
    QLinearGradient ground(0, 0, 0, 1);
    ground.setColorAt(0.0, QColor(122, 136, 148));
    ground.setColorAt(1.0, QColor(62, 72, 84));
    painter.fillRect(QRectF(0, 0, 1, 1), ground);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(196, 148, 118));
    painter.drawRoundedRect(QRectF(0.42, 0.48, 0.16, 0.30), 0.05, 0.05);
    QPainterPath shoulders(QPointF(0.08, 1.02));
    shoulders.cubicTo(0.10, 0.80, 0.24, 0.76, 0.40, 0.72);
    shoulders.quadTo(0.50, 0.76, 0.60, 0.72);
    shoulders.cubicTo(0.76, 0.76, 0.90, 0.80, 0.92, 1.02);
    painter.setBrush(QColor(70, 104, 112));
    painter.drawPath(shoulders);
    painter.setBrush(QColor(206, 158, 128));
    for (const double side : {-1.0, 1.0}) {
        painter.drawEllipse(headMiddle + QPointF(side * headWidth, 0.04), 0.026, 0.045);
    }
    painter.drawEllipse(headMiddle, headWidth, headHeight);
    drawHair(painter);
    return image;
}

/// \p brightness from 0 to 1 distinguishes the strands of a head.
void DrawStrand(QPainter& painter, const Course& at, const Tone& tone, double brightness, double width)
{
    constexpr int pieces = 28;
    QPainterPath path(at(0.0));
    for (int i = 1; i <= pieces; ++i) {
        path.lineTo(at(double(i) / pieces));
    }
    const auto shade = [&](double share) {
        const Paint paint = Mix(FromColor(tone.dark), FromColor(tone.bright), share) * (0.65 + 0.45 * brightness);
        const auto part = [](double value) { return std::clamp(value, 0.0, 1.0); };
        return QColor::fromRgbF(part(paint.red), part(paint.green), part(paint.blue));
    };
    QLinearGradient light(0, 0, 0, 1);
    light.setColorAt(0.0, shade(0.25));
    light.setColorAt(tone.shineHeight - 0.09, shade(0.35));
    light.setColorAt(tone.shineHeight, shade(0.55 + 0.45 * brightness));
    light.setColorAt(tone.shineHeight + 0.10, shade(0.35));
    light.setColorAt(1.0, shade(0.20));
    painter.strokePath(path, QPen(light, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

/// Covers the head, so that no skin shows between the strands.
void DrawScalp(QPainter& painter, const Tone& tone)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(tone.dark));
    painter.drawEllipse(headMiddle, 0.985 * headWidth, 0.985 * headHeight);
}

/// Draws \p count strands, the outer and dark ones first. \p course gives the course of one from where it starts
/// across the head, -1 to 1, and its number.
void DrawHair(QPainter& painter, int count, const Tone& tone, double width,
              const std::function<Course(double, int)>& course)
{
    DrawScalp(painter, tone);
    for (int i = 0; i < count; ++i) {
        const double layer = double(i) / count;
        const double across = (2.0 * Noise(i, 31) - 1.0) * (1.0 - 0.10 * layer);
        DrawStrand(painter, course(across, i), tone, 0.25 * layer + 0.75 * Noise(i, 32), width);
    }
}

/// From \p start to \p end by way of two points that pull, as cubic curves go.
Course Curve(const QPointF& start, const QPointF& pull1, const QPointF& pull2, const QPointF& end)
{
    return [=](double t) {
        const double s = 1.0 - t;
        return start * (s * s * s) + pull1 * (3 * s * s * t) + pull2 * (3 * s * t * t) + end * (t * t * t);
    };
}

/// A point of the head's outline or within it; both numbers run from -1 to 1.
QPointF OnHead(double across, double down)
{
    const double width = headWidth * std::sqrt(std::max(0.0, 1.0 - down * down));
    return headMiddle + QPointF(across * width, down * headHeight);
}

/// A strand that falls from the crown over the side of the head to \p end.
Course FallTo(double across, const QPointF& end, double fullness)
{
    const QPointF crown = headMiddle + QPointF(0.05 * across, -1.01 * headHeight);
    const QPointF over = headMiddle + QPointF(across * headWidth * fullness, -1.10 * headHeight);
    const QPointF side(headMiddle.x() + across * headWidth * fullness * 1.08, 0.5 * (headMiddle.y() + end.y()) - 0.06);
    return Curve(crown, over, side, end);
}

const Tone chestnut{qRgb(52, 28, 16), qRgb(176, 108, 62), 0.27};
const Tone blond{qRgb(126, 88, 40), qRgb(246, 214, 140), 0.30};
const Tone black{qRgb(16, 16, 22), qRgb(104, 112, 132), 0.26};
const Tone red{qRgb(98, 32, 14), qRgb(222, 110, 54), 0.32};

QImage PaintShort()
{
    return PaintBust([](QPainter& painter) {
        constexpr int count = 2600;
        DrawScalp(painter, chestnut);
        for (int i = 0; i < count; ++i) {
            // Rows from the nape upwards, so that each lies over the one below it.
            const double down = 0.72 - 1.68 * i / count + 0.06 * Noise(i, 41);
            const double across = 2.0 * Noise(i, 42) - 1.0;
            const QPointF root = OnHead(across * 1.02, std::clamp(down, -1.0, 1.0));
            const double length = 0.055 + 0.035 * Noise(i, 43);
            const double lean = 0.75 * across + 0.5 * (Noise(i, 44) - 0.5);
            const QPointF tip = root + QPointF(length * lean, length * (down < -0.75 ? 0.25 : 0.9));
            DrawStrand(painter, Curve(root, root + QPointF(0.010 * lean, -0.012), tip, tip), chestnut, Noise(i, 45),
                       0.0065);
        }
    });
}

QImage PaintBob()
{
    return PaintBust([](QPainter& painter) {
        DrawHair(painter, 900, black, 0.008, [](double across, int i) {
            const double bottom = 0.655 + 0.012 * Noise(i, 51) - 0.02 * across * across;
            const Course fall = FallTo(across, {headMiddle.x() + across * 0.245, bottom - 0.05}, 1.45);
            return Course([=](double t) {
                // The ends turn inwards.
                const double inwards = Step(t, 0.88, 0.24);
                return fall(t) + QPointF(-0.055 * across * inwards, 0.05 * inwards);
            });
        });
    });
}

QImage PaintLong()
{
    return PaintBust([](QPainter& painter) {
        DrawHair(painter, 900, blond, 0.008, [](double across, int i) {
            const QPointF end(headMiddle.x() + across * 0.25 + 0.02 * (Noise(i, 61) - 0.5), 0.93 + 0.05 * Noise(i, 62));
            const Course fall = FallTo(across, end, 1.42);
            const double sway = 0.010 * std::sin(9.0 * across);
            return Course([=](double t) { return fall(t) + QPointF(sway * t * std::sin(2.4 * pi * t), 0.0); });
        });
    });
}

QImage PaintCurly()
{
    return PaintBust([](QPainter& painter) {
        DrawHair(painter, 340, red, 0.0085, [](double across, int i) {
            const double length = 0.70 + 0.16 * Noise(i, 71) - 0.10 * across * across;
            const Course fall = FallTo(across, {headMiddle.x() + across * 0.36, length}, 1.75);
            const double phase = 2.0 * pi * Noise(i / 3, 72);
            return Course([=](double t) {
                // Ringlets: each strand winds around the line that it would fall along.
                const double winding = 2.0 * pi * 7.0 * t + phase;
                const double radius = 0.026 * std::min(1.0, 3.0 * t);
                return fall(t) + QPointF(radius * std::cos(winding), 0.55 * radius * std::sin(winding));
            });
        });
    });
}

void DrawBand(QPainter& painter, const QPointF& middle, double halfWidth)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(206, 62, 78));
    painter.drawRoundedRect(QRectF(middle.x() - halfWidth, middle.y() - 0.018, 2.0 * halfWidth, 0.036), 0.015, 0.015);
}

/// Hair that is combed from all around the head to \p knot.
void DrawCombed(QPainter& painter, const Tone& tone, const QPointF& knot)
{
    constexpr int count = 1200;
    DrawScalp(painter, tone);
    for (int i = 0; i < count; ++i) {
        const double angle = pi * (0.86 - 2.72 * Noise(i, 81));
        const double depth = 1.0 - 0.9 * double(i) / count;
        const QPointF root =
            headMiddle + QPointF(depth * headWidth * std::cos(angle), -depth * headHeight * std::sin(angle) * 1.02);
        const QPointF pull = 0.45 * root + 0.55 * knot + QPointF(0.35 * (root.x() - knot.x()), -0.02);
        DrawStrand(painter, Curve(root, pull, pull, knot), tone, Noise(i, 82), 0.0075);
    }
}

QImage PaintPonytail()
{
    return PaintBust([](QPainter& painter) {
        const QPointF knot(0.50, 0.30);
        DrawCombed(painter, chestnut, knot);
        constexpr int count = 420;
        const Tone tail{chestnut.dark, chestnut.bright, 0.48};
        for (int i = 0; i < count; ++i) {
            const double across = 2.0 * Noise(i, 91) - 1.0;
            const QPointF end(0.50 + 0.030 * across + 0.02 * Noise(i, 92), 0.84 + 0.08 * Noise(i, 93));
            const Course fall = Curve(knot, {0.50 + 0.13 * across, 0.30}, {0.50 + 0.17 * across, 0.66}, end);
            DrawStrand(painter, fall, tail, Noise(i, 94), 0.0075);
        }
        DrawBand(painter, knot, 0.045);
    });
}

QImage PaintBraid()
{
    return PaintBust([](QPainter& painter) {
        const QPointF nape(0.50, 0.56);
        DrawCombed(painter, blond, nape);
        constexpr int links = 9;
        constexpr int strands = 26;
        for (int link = 0; link < links; ++link) {
            // Locks come from the right and from the left in turn, each over the one before it.
            const double side = link % 2 == 0 ? 1.0 : -1.0;
            const double shrink = 1.0 - 0.045 * link;
            const double y = nape.y() + 0.037 * link;
            const Tone lock{blond.dark, blond.bright, std::min(0.88, y + 0.035)};
            for (int i = 0; i < strands; ++i) {
                const double place = double(i) / (strands - 1);
                const double edge = 4.0 * place * (1.0 - place);
                const QPointF outer(0.50 + side * shrink * (0.070 - 0.030 * place), y - 0.022 + 0.050 * place);
                const QPointF inner(0.50 - side * shrink * 0.032, y + 0.022 + 0.050 * place);
                const QPointF pull = 0.5 * (outer + inner) + QPointF(side * 0.026 * shrink, 0.002);
                DrawStrand(painter, Curve(outer, pull, pull, inner), lock, 0.15 + 0.7 * edge + 0.15 * Noise(i, link),
                           0.0065);
            }
        }
        const QPointF end(0.50, nape.y() + 0.037 * links + 0.030);
        for (int i = 0; i < 90; ++i) {
            const double across = 2.0 * Noise(i, 96) - 1.0;
            const QPointF tip = end + QPointF(0.035 * across, 0.050 + 0.02 * Noise(i, 97));
            DrawStrand(painter, Curve(end, end + QPointF(0.03 * across, 0.01), tip, tip), blond, Noise(i, 98), 0.007);
        }
        DrawBand(painter, end, 0.030);
    });
}

} // namespace

std::vector<Thumbnail> HairThumbnails()
{
    return {{"1_Short", PaintShort}, {"2_Bob", PaintBob},           {"3_Long", PaintLong},
            {"4_Curly", PaintCurly}, {"5_Ponytail", PaintPonytail}, {"6_Braid", PaintBraid}};
}

} // namespace Presets
