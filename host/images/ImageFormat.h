#pragma once

#include <QByteArray>
#include <QSize>

namespace Host {

/// The image formats that the host reads.
enum class ImageFormat
{
    None, ///< None of the others.
    Bmp,
    Gif,
    Jpeg,
    Png,
    Tga,
};

/// What the beginning of an image says about it. Nothing is decoded for it.
struct ImageHeader
{
    ImageFormat format = ImageFormat::None;
    QSize size;              ///< In pixels; empty when the header is damaged.
    bool isComplete = false; ///< The picture's data are all there, up to the end that the format marks or counts.
};

/// Looks at encoded bytes. The content alone decides, not the name of the file that it came from.
ImageHeader ReadImageHeader(const QByteArray& bytes);

/// The usual suffix, lower case without a dot; empty for none.
QByteArray SuffixOf(ImageFormat format);

} // namespace Host
