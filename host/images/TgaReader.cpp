#include "host/images/TgaReader.h"

#include <QtEndian>

#include <array>
#include <vector>

namespace Host {

namespace {

constexpr int headerSize = 18;

enum class Coding
{
    Indexed = 1,
    TrueColor = 2,
    Gray = 3,
};

/// The fields of the header that matter here.
struct TgaHeader
{
    explicit TgaHeader(const QByteArray& bytes)
        : idLength(At(bytes, 0))
        , hasMap(At(bytes, 1))
        , isPacked((At(bytes, 2) & 0x08) != 0)
        , coding(Coding(At(bytes, 2) & ~0x08))
        , mapStart(Word(bytes, 3))
        , mapLength(Word(bytes, 5))
        , mapDepth(At(bytes, 7))
        , width(Word(bytes, 12))
        , height(Word(bytes, 14))
        , depth(At(bytes, 16))
        , descriptor(At(bytes, 17))
    {
    }

    bool MakesSense() const
    {
        if (width == 0 || height == 0 || hasMap > 1 || (descriptor & 0xc0) != 0) {
            return false;
        }
        const auto isColorDepth = [](int bits) { return bits == 15 || bits == 16 || bits == 24 || bits == 32; };
        switch (coding) {
        case Coding::Indexed:
            return hasMap == 1 && depth == 8 && mapLength > 0 && isColorDepth(mapDepth);
        case Coding::TrueColor:
            return isColorDepth(depth);
        case Coding::Gray:
            return depth == 8 || depth == 16;
        }
        return false;
    }

    static int BytesOf(int bits) { return (bits + 7) / 8; }
    int PixelBytes() const { return BytesOf(depth); }
    int MapAt() const { return headerSize + idLength; }
    int PixelsAt() const { return MapAt() + (hasMap != 0 ? mapLength * BytesOf(mapDepth) : 0); }
    bool HasAlpha() const { return (descriptor & 0x0f) != 0; }

    int idLength;
    int hasMap;
    bool isPacked;
    Coding coding;
    int mapStart;
    int mapLength;
    int mapDepth;
    int width;
    int height;
    int depth;
    int descriptor;

private:
    static int At(const QByteArray& bytes, int position) { return quint8(bytes.at(position)); }
    static int Word(const QByteArray& bytes, int position)
    {
        return qFromLittleEndian<quint16>(bytes.constData() + position);
    }
};

/// The colour of \p bits bits at \p at, which are there.
QRgb ColorAt(const char* at, int bits, bool hasAlpha)
{
    const auto byte = [at](int i) { return int(quint8(at[i])); };
    if (bits >= 24) {
        return qRgba(byte(2), byte(1), byte(0), bits == 32 && hasAlpha ? byte(3) : 0xff);
    }
    const int word = qFromLittleEndian<quint16>(at);
    const auto part = [word](int shift) { return ((word >> shift) & 0x1f) * 255 / 31; };
    return qRgba(part(10), part(5), part(0), bits == 16 && hasAlpha && (word & 0x8000) == 0 ? 0 : 0xff);
}

/// Hands out the pixels one after the other, unpacked.
class PixelStream
{
public:
    PixelStream(const QByteArray& bytes, const TgaHeader& header)
        : m_at(bytes.constData() + std::min(header.PixelsAt(), bytes.size()))
        , m_end(bytes.constData() + bytes.size())
        , m_pixelBytes(header.PixelBytes())
        , m_isPacked(header.isPacked)
    {
    }

    /// The next pixel's bytes; null at the end of the data.
    const char* Next()
    {
        if (m_isPacked && m_left == 0 && !BeginPacket()) {
            return nullptr;
        }
        --m_left;
        if (m_isRepeating) {
            return m_repeated;
        }
        return Take();
    }

private:
    const char* Take()
    {
        if (m_end - m_at < m_pixelBytes) {
            return nullptr;
        }
        const char* const pixel = m_at;
        m_at += m_pixelBytes;
        return pixel;
    }

    bool BeginPacket()
    {
        if (m_at == m_end) {
            return false;
        }
        const auto head = quint8(*m_at++);
        m_left = (head & 0x7f) + 1;
        m_isRepeating = (head & 0x80) != 0;
        m_repeated = m_isRepeating ? Take() : nullptr;
        return !m_isRepeating || m_repeated;
    }

    const char* m_at;
    const char* m_end;
    int m_pixelBytes;
    bool m_isPacked;
    bool m_isRepeating = false;
    int m_left = 0;
    const char* m_repeated = nullptr;
};

/// The colours of indices; empty when the data end before them.
std::vector<QRgb> ColorMap(const QByteArray& bytes, const TgaHeader& header)
{
    if (header.PixelsAt() > bytes.size()) {
        return {};
    }
    std::vector<QRgb> colors(256, qRgb(0, 0, 0));
    const int entryBytes = TgaHeader::BytesOf(header.mapDepth);
    for (int i = 0; i < header.mapLength && header.mapStart + i < int(colors.size()); ++i) {
        colors[std::size_t(header.mapStart + i)] = ColorAt(bytes.constData() + header.MapAt() + qint64(i) * entryBytes,
                                                           header.mapDepth, header.mapDepth == 32);
    }
    return colors;
}

/// Fills one line. \return false when the data end before
bool ReadLine(PixelStream& pixels, const TgaHeader& header, const std::vector<QRgb>& colors, QImage& image, int y)
{
    uchar* const line = image.scanLine(y);
    auto* const colored = reinterpret_cast<QRgb*>(line);
    for (int x = 0; x < header.width; ++x) {
        const char* const pixel = pixels.Next();
        if (!pixel) {
            return false;
        }
        switch (header.coding) {
        case Coding::Gray:
            line[x] = uchar(*pixel);
            break;
        case Coding::Indexed:
            colored[x] = colors[quint8(*pixel)];
            break;
        case Coding::TrueColor:
            colored[x] = ColorAt(pixel, header.depth, header.HasAlpha());
            break;
        }
    }
    return true;
}

} // namespace

ImageHeader ReadTgaHeader(const QByteArray& bytes)
{
    if (bytes.size() < headerSize) {
        return {};
    }
    const TgaHeader header(bytes);
    if (!header.MakesSense()) {
        return {};
    }
    const qint64 plainSize = qint64(header.width) * header.height * header.PixelBytes();
    return {ImageFormat::Tga,
            {header.width, header.height},
            header.isPacked || bytes.size() - header.PixelsAt() >= plainSize};
}

QImage ReadTga(const QByteArray& bytes)
{
    const TgaHeader header(bytes);
    const std::vector<QRgb> colors = header.coding == Coding::Indexed ? ColorMap(bytes, header) : std::vector<QRgb>{};
    if (header.coding == Coding::Indexed && colors.empty()) {
        return {};
    }
    QImage image(header.width, header.height,
                 header.coding == Coding::Gray ? QImage::Format_Grayscale8 : QImage::Format_ARGB32);
    if (image.isNull()) {
        return {};
    }
    PixelStream pixels(bytes, header);
    const bool isTopDown = (header.descriptor & 0x20) != 0;
    for (int i = 0; i < header.height; ++i) {
        if (!ReadLine(pixels, header, colors, image, isTopDown ? i : header.height - 1 - i)) {
            return {};
        }
    }
    const bool isRightToLeft = (header.descriptor & 0x10) != 0;
    return isRightToLeft ? image.mirrored(true, false) : image;
}

} // namespace Host
