#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Host {

/// What decoding came to.
struct DecodedImage
{
    QImage image;  ///< 8-bit gray, or 32-bit colour with or without alpha (not premultiplied); null when it failed.
    QString error; ///< Then: why, as a clause that ends a sentence ("it is truncated").
};

/// Decodes a JPEG, BMP, GIF, PNG or TGA image; of an animation the first picture. The content decides what it is.
/// One that is larger than Limits allow is refused before any memory is taken for it.
/// Needs no GUI thread.
DecodedImage DecodeImage(const QByteArray& bytes);

/// Reads an image file without decoding it.
/// \param error  empty, or why the file cannot be read
QByteArray ReadImageFile(const QString& path, QString& error);

/// The two above in one.
DecodedImage DecodeImageFile(const QString& path);

/// "The image "flag.png" could not be read: it is truncated."
QString UnreadableImageText(const QString& path, const QString& error);

} // namespace Host
