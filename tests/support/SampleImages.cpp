#include "tests/support/SampleImages.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QVector>
#include <QtEndian>

#include <algorithm>

namespace SampleImages {

namespace {

template <class Number>
void AppendLittle(QByteArray& bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof(little));
}

template <class Number>
void PutBig(QByteArray& bytes, int at, Number number)
{
    qToBigEndian(number, bytes.data() + at);
}

template <class Number>
void PutLittle(QByteArray& bytes, int at, Number number)
{
    qToLittleEndian(number, bytes.data() + at);
}

QByteArray WithQt(const char* format, const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format, 100)) {
        qFatal("%s images cannot be written", format);
    }
    return buffer.data();
}

/// Codes of 8 bits each, with the table cleared so often that they never become longer.
QByteArray Gif(const QImage& image)
{
    constexpr quint8 clear = 128;
    constexpr quint8 end = 129;
    constexpr int pixelsPerTable = 100;
    QByteArray bytes("GIF89a");
    AppendLittle<quint16>(bytes, quint16(image.width()));
    AppendLittle<quint16>(bytes, quint16(image.height()));
    bytes.append("\xf6\0\0", 3);
    for (int i = 0; i < 128; ++i) {
        bytes.append(3, char(i * 2 + (i > 63 ? 1 : 0)));
    }
    bytes.append("\x2c\0\0\0\0", 5);
    AppendLittle<quint16>(bytes, quint16(image.width()));
    AppendLittle<quint16>(bytes, quint16(image.height()));
    bytes.append("\0\x07", 2);
    QByteArray codes;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        if (i % pixelsPerTable == 0) {
            codes.append(char(clear));
        }
        codes.append(char(qGray(image.pixel(i % image.width(), i / image.width())) / 2));
    }
    codes.append(char(end));
    for (int at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        bytes.append(char(block.size())).append(block);
    }
    return bytes.append('\0').append('\x3b');
}

QByteArray TgaColor(QRgb color, int depth)
{
    QByteArray bytes;
    if (depth <= 16) {
        const int word = (depth == 16 && qAlpha(color) > 127 ? 0x8000 : 0) | (qRed(color) >> 3) << 10 |
                         (qGreen(color) >> 3) << 5 | qBlue(color) >> 3;
        AppendLittle<quint16>(bytes, quint16(word));
        return bytes;
    }
    bytes.append(char(qBlue(color))).append(char(qGreen(color))).append(char(qRed(color)));
    return depth == 32 ? bytes.append(char(qAlpha(color))) : bytes;
}

} // namespace

QByteArray Encoded(const QString& suffix, const QImage& image)
{
    if (suffix == QLatin1String("gif")) {
        return Gif(image);
    }
    if (suffix == QLatin1String("tga")) {
        return Tga(image, {10, 24, 0}) + QByteArray(8, '\0') + QByteArray("TRUEVISION-XFILE.\0", 18);
    }
    return WithQt(suffix.toLatin1().constData(), image);
}

QByteArray Tga(const QImage& image, const TgaKind& kind)
{
    const bool isIndexed = (kind.type & 7) == 1;
    const bool isGray = (kind.type & 7) == 3;
    QByteArray bytes(18, '\0');
    bytes[0] = 3; // a comment of three letters
    bytes[1] = char(isIndexed ? 1 : 0);
    bytes[2] = char(kind.type);
    PutLittle<quint16>(bytes, 5, isIndexed ? 256 : 0);
    bytes[7] = char(isIndexed ? kind.depth : 0);
    PutLittle<quint16>(bytes, 12, quint16(image.width()));
    PutLittle<quint16>(bytes, 14, quint16(image.height()));
    bytes[16] = char(isIndexed ? 8 : kind.depth);
    bytes[17] = char(kind.descriptor);
    bytes.append("abc");
    for (int i = 0; isIndexed && i < 256; ++i) {
        bytes.append(TgaColor(qRgb(i, i, i), kind.depth));
    }
    QVector<QByteArray> pixels;
    for (int line = 0; line < image.height(); ++line) {
        const int y = (kind.descriptor & 0x20) != 0 ? line : image.height() - 1 - line;
        for (int column = 0; column < image.width(); ++column) {
            const QRgb color = image.pixel((kind.descriptor & 0x10) != 0 ? image.width() - 1 - column : column, y);
            pixels.append(isIndexed || isGray ? QByteArray(1, char(qGray(color))) : TgaColor(color, kind.depth));
        }
    }
    const bool isPacked = (kind.type & 8) != 0;
    for (int i = 0; i < pixels.size();) {
        int run = 1;
        while (isPacked && run < 128 && i + run < pixels.size() && pixels.at(i + run) == pixels.at(i)) {
            ++run;
        }
        if (isPacked) {
            bytes.append(char(run > 1 ? 0x80 | (run - 1) : 0));
        }
        bytes.append(pixels.at(i));
        i += run;
    }
    return bytes;
}

QByteArray HeaderOnly(const QString& suffix, const QSize& size)
{
    QByteArray bytes = Encoded(suffix, Filled({4, 4}, Qt::white));
    if (suffix == QLatin1String("png")) {
        PutBig<quint32>(bytes, 16, quint32(size.width()));
        PutBig<quint32>(bytes, 20, quint32(size.height()));
    } else if (suffix == QLatin1String("bmp")) {
        PutLittle<qint32>(bytes, 18, size.width());
        PutLittle<qint32>(bytes, 22, size.height());
    } else if (suffix == QLatin1String("gif")) {
        PutLittle<quint16>(bytes, 6, quint16(size.width()));
        PutLittle<quint16>(bytes, 8, quint16(size.height()));
        const int picture = bytes.indexOf('\x2c', 13 + 3 * 128); // behind the screen and its colours
        PutLittle<quint16>(bytes, picture + 5, quint16(size.width()));
        PutLittle<quint16>(bytes, picture + 7, quint16(size.height()));
    } else if (suffix == QLatin1String("tga")) {
        PutLittle<quint16>(bytes, 12, quint16(size.width()));
        PutLittle<quint16>(bytes, 14, quint16(size.height()));
    } else {
        const int frame = bytes.indexOf("\xff\xc0"); // its length, its depth, then height and width
        PutBig<quint16>(bytes, frame + 5, quint16(size.height()));
        PutBig<quint16>(bytes, frame + 7, quint16(size.width()));
    }
    return bytes;
}

QImage Filled(const QSize& size, const QColor& color)
{
    QImage image(size, color.alpha() < 255 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QImage HalfBlack(const QSize& size)
{
    QImage image = Filled(size, Qt::white);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width() / 2; ++x) {
            image.setPixelColor(x, y, Qt::black);
        }
    }
    return image;
}

QString WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    return path;
}

QString WriteImage(const QString& path, const QImage& image)
{
    return WriteFile(path, Encoded(QFileInfo(path).suffix(), image));
}

} // namespace SampleImages
