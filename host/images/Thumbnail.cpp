#include "host/images/Thumbnail.h"

#include <QPainter>

#include <algorithm>

namespace Host {

namespace {

const QColor lightField(0x6a, 0x6a, 0x6a);
const QColor darkField(0x5a, 0x5a, 0x5a);
const QColor symbolColor(0x90, 0x90, 0x90);
const QColor brokenColor(0xc0, 0x60, 0x50);

QImage Ground(const QSize& size)
{
    constexpr int field = 8;
    QImage ground(size, QImage::Format_ARGB32);
    ground.fill(lightField);
    QPainter painter(&ground);
    for (int y = 0; y < size.height(); y += field) {
        for (int x = y / field % 2 == 0 ? 0 : field; x < size.width(); x += 2 * field) {
            painter.fillRect(x, y, field, field, darkField);
        }
    }
    return ground;
}

/// A line width that fits a picture of \p size.
qreal StrokeFor(const QSize& size)
{
    return std::max(1.0, std::min(size.width(), size.height()) / 40.0);
}

QImage RenderSymbol(const QSize& size, const QColor& color, bool isCross)
{
    QImage image = Ground(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal stroke = StrokeFor(size);
    painter.setPen(QPen(color, stroke));
    const QRectF frame = QRectF(image.rect()).adjusted(stroke, stroke, -stroke, -stroke);
    painter.drawRect(frame);
    painter.drawLine(frame.bottomLeft(), frame.topRight());
    if (isCross) {
        painter.drawLine(frame.topLeft(), frame.bottomRight());
    }
    return image;
}

} // namespace

QImage RenderThumbnail(const QImage& picture, const QSize& size)
{
    QImage image = Ground(size);
    const QSize fitting = picture.size().scaled(size, Qt::KeepAspectRatio).expandedTo({1, 1});
    const QImage scaled = Reduced(picture, 2 * std::max(fitting.width(), fitting.height()))
                              .scaled(fitting, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&image);
    painter.drawImage((size.width() - fitting.width()) / 2, (size.height() - fitting.height()) / 2, scaled);
    return image;
}

QImage RenderNoPicture(const QSize& size)
{
    return RenderSymbol(size, symbolColor, false);
}

QImage RenderBrokenPicture(const QSize& size)
{
    return RenderSymbol(size, brokenColor, true);
}

QImage Reduced(const QImage& picture, int side)
{
    if (picture.width() <= side && picture.height() <= side) {
        return picture;
    }
    const auto fitting = [&picture](int most) {
        return picture.size().scaled(most, most, Qt::KeepAspectRatio).expandedTo({1, 1});
    };
    // Blending a large picture takes longer than decoding it: first leave pixels out, then blend.
    const bool isLarge = std::max(picture.width(), picture.height()) > 4 * side;
    const QImage coarse = isLarge ? picture.scaled(fitting(2 * side)) : picture;
    return coarse.scaled(fitting(side), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace Host
