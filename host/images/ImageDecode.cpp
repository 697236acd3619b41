#include "host/images/ImageDecode.h"

#include "host/images/ImageFormat.h"
#include "host/images/TgaReader.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <new>

namespace Host {

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("ImageDecode", text);
}

/// Why there is no use in decoding; a null string when there is.
QString ReasonToRefuse(const ImageHeader& header)
{
    if (header.format == ImageFormat::None) {
        return Tr("it is no JPEG, BMP, GIF, PNG or TGA image");
    }
    if (header.size.width() > ImageLimits::side || header.size.height() > ImageLimits::side) {
        return Tr("it has %1 x %2 pixels, and more than %3 on a side are too many")
            .arg(header.size.width())
            .arg(header.size.height())
            .arg(ImageLimits::side);
    }
    if (!header.isComplete) {
        return Tr("it is truncated");
    }
    return header.size.isEmpty() ? Tr("it is damaged") : QString();
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
        return {{}, Tr("it is empty")};
    }
    const ImageHeader header = ReadImageHeader(bytes);
    const QString refusal = ReasonToRefuse(header);
    if (!refusal.isNull()) {
        return {{}, refusal};
    }
    QImage image = header.format == ImageFormat::Tga ? ReadTga(bytes) : ReadWithQt(bytes, header.format);
    image = ToWorkingFormat(std::move(image));
    return image.isNull() ? DecodedImage{{}, Tr("it is damaged")} : DecodedImage{std::move(image), {}};
}

QByteArray ReadImageFile(const QString& path, QString& error)
{
    error.clear();
    const QFileInfo info(path);
    QFile file(path);
    if (!info.exists()) {
        error = Tr("there is no such file");
    } else if (!info.isFile()) {
        error = Tr("it is not a file");
    } else if (info.size() > ImageLimits::fileSize) {
        error = Tr("the file is too large");
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
        error = Tr("there is not enough memory");
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
    return Tr("The image \"%1\" could not be read: %2.").arg(QDir::toNativeSeparators(path), error);
}

} // namespace Host
