#include "host/images/ImageDecode.h"

#include "host/images/ImageFormat.h"
#include "host/images/TgaReader.h"
#include "host/scene/Limits.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <new>

namespace Host {

namespace {

/// Where the reasons are translated.
class ImageText
{
    Q_DECLARE_TR_FUNCTIONS(ImageText)
};

/// Why there is no use in decoding; a null string when there is.
QString ReasonToRefuse(const ImageHeader& header)
{
    if (header.format == ImageFormat::None) {
        return ImageText::tr("it is no JPEG, BMP, GIF, PNG or TGA image");
    }
    const QSize& size = header.size;
    if (size.width() > Limits::imageSide || size.height() > Limits::imageSide) {
        return ImageText::tr("it has %1 x %2 pixels, and more than %3 on a side are too many")
            .arg(size.width())
            .arg(size.height())
            .arg(Limits::imageSide);
    }
    if (!size.isEmpty() && qint64(size.width()) * size.height() > Limits::imagePixels) {
        return ImageText::tr("it has %1 x %2 pixels, and more than %3 in all are too many")
            .arg(size.width())
            .arg(size.height())
            .arg(Limits::imagePixels);
    }
    if (!header.isComplete) {
        return ImageText::tr("it is truncated");
    }
    return header.size.isEmpty() ? ImageText::tr("it is damaged") : QString();
}

/// The few formats that the host works with. Samples of 16 bits lose their lower halves.
QImage ToWorkingFormat(QImage image)
{
    switch (image.format()) {
    case QImage::Format_Grayscale8:
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
        return image;
    default:
        break;
    }
    const QImage::Format format = image.hasAlphaChannel() ? QImage::Format_ARGB32
                                  : image.isGrayscale()   ? QImage::Format_Grayscale8
                                                          : QImage::Format_RGB32;
    return std::move(image).convertToFormat(format);
}

QImage ReadWithQt(const QByteArray& bytes, ImageFormat format)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, SuffixOf(format));
    reader.setAutoTransform(false); // UVs are meant for the pixels as they are stored
    return reader.read();
}

} // namespace

DecodedImage DecodeImage(const QByteArray& bytes)
{
    if (bytes.isEmpty()) {
        return {{}, ImageText::tr("it is empty")};
    }
    const ImageHeader header = ReadImageHeader(bytes);
    const QString refusal = ReasonToRefuse(header);
    if (!refusal.isNull()) {
        return {{}, refusal};
    }
    QImage image = header.format == ImageFormat::Tga ? ReadTga(bytes) : ReadWithQt(bytes, header.format);
    image = ToWorkingFormat(std::move(image));
    return image.isNull() ? DecodedImage{{}, ImageText::tr("it is damaged")} : DecodedImage{std::move(image), {}};
}

QByteArray ReadImageFile(const QString& path, QString& error)
{
    error.clear();
    const QFileInfo info(path);
    QFile file(path);
    if (!info.exists()) {
        error = ImageText::tr("there is no such file");
    } else if (!info.isFile()) {
        error = ImageText::tr("it is not a file");
    } else if (info.size() > Limits::imageFileSize) {
        error = ImageText::tr("the file is too large");
    } else if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
    }
    if (!error.isEmpty()) {
        return {};
    }
    try {
        QByteArray bytes = file.readAll();
        if (file.error() != QFileDevice::NoError) {
            error = file.errorString();
            return {};
        }
        return bytes;
    } catch (const std::bad_alloc&) {
        error = ImageText::tr("there is not enough memory");
        return {};
    }
}

DecodedImage DecodeImageFile(const QString& path)
{
    QString error;
    const QByteArray bytes = ReadImageFile(path, error);
    return error.isEmpty() ? DecodeImage(bytes) : DecodedImage{{}, error};
}

QString UnreadableImageText(const QString& path, const QString& error)
{
    return ImageText::tr("The image \"%1\" could not be read: %2.").arg(QDir::toNativeSeparators(path), error);
}

} // namespace Host
