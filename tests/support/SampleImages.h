#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

/// Small encoded images built by code.
namespace SampleImages {

/// \p image in one of the six formats that the host reads, by suffix: "jpg", "jpeg", "bmp", "gif", "png", "tga". A GIF
/// comes out in 128 grays; a TGA is the kind that image editors write, packed true colour with a footer.
QByteArray Encoded(const QString& suffix, const QImage& image);

/// How a TGA is written.
struct TgaKind
{
    int type = 2;       ///< 1 indexed, 2 true colour, 3 gray; plus 8: packed.
    int depth = 24;     ///< Bits per pixel; of an indexed one the bits of a colour.
    int descriptor = 0; ///< 0x20: the first line is the top one; 0x10: lines run from right to left; 8: alpha bits.
};

/// An indexed TGA has its colours in gray.
QByteArray Tga(const QImage& image, const TgaKind& kind);

/// As many bytes as an image of \p size in that format begins with, with a body that does not fit.
QByteArray HeaderOnly(const QString& suffix, const QSize& size);

QImage Filled(const QSize& size, const QColor& color);

/// Black on the left half, white on the right one.
QImage HalfBlack(const QSize& size);

/// Writes \p bytes into a file; ends the test program when it cannot. \return \p path
QString WriteFile(const QString& path, const QByteArray& bytes);
/// Writes \p image in the format of the path's suffix.
QString WriteImage(const QString& path, const QImage& image);

} // namespace SampleImages
