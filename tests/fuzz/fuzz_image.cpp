// Images: headers, the TGA reader, and whole images up to a moderate size.
#include "tests/fuzz/Fuzz.h"

#include "host/images/ImageDecode.h"
#include "host/images/ImageFormat.h"
#include "host/images/TgaReader.h"
#include "tests/support/SampleImages.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::StartApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = Fuzz::Bytes(data, size);
    const auto isModerate = [](const QSize& pixels) { return qint64(pixels.width()) * pixels.height() <= 1 << 18; };
    const Host::ImageHeader tga = Host::ReadTgaHeader(bytes);
    if (tga.format == Host::ImageFormat::Tga && isModerate(tga.size)) {
        const QImage image = Host::ReadTga(bytes);
        if (!image.isNull() && image.size() != tga.size) {
            Fuzz::Fail(QStringLiteral("a TGA of another size than its header's"));
        }
    }
    const Host::ImageHeader header = Host::ReadImageHeader(bytes);
    if (!isModerate(header.size)) {
        return 0;
    }
    const Host::DecodedImage decoded = Host::DecodeImage(bytes);
    if (decoded.image.isNull() == decoded.error.isEmpty()) {
        Fuzz::Fail(QStringLiteral("neither an image nor an error, or both"));
    }
    return 0;
}

QVector<QByteArray> FuzzSeeds()
{
    using namespace SampleImages;
    QVector<QByteArray> seeds;
    const QImage image = HalfBlack({7, 5});
    for (const char* suffix : {"jpg", "bmp", "gif", "png", "tga"}) {
        seeds.append(Encoded(QLatin1String(suffix), image));
        seeds.append(HeaderOnly(QLatin1String(suffix), {300, 200}));
    }
    for (const int type : {1, 2, 3, 9, 10, 11}) {
        for (const int depth : {8, 16, 24, 32}) {
            if ((type % 8 == 3) == (depth == 8)) {
                seeds.append(Tga(image, {type, depth, 0x20}));
            }
        }
    }
    return seeds;
}
