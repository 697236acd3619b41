#include "host/images/WeightAdjust.h"

#include "host/images/WeightSampling.h"

#include <QImage>

#include <algorithm>
#include <cmath>

namespace Host {

GrayTable AdjustTable(int brightness, int contrast)
{
    constexpr double middle = 127.5;
    const double shift = qBound(-100, brightness, 100) * 2.55;
    const double share = qBound(-100, contrast, 100) / 100.0;
    GrayTable table;
    for (int gray = 0; gray < 256; ++gray) {
        const double distance = gray - middle; // never 0
        // A slope from 0 through 1 to infinity; within the range of grays one of 1000 is as steep as infinity.
        const double slope = share <= 0.0 ? 1.0 + share : 1.0 / std::max(1.0 - share, 0.001);
        const double spread = std::clamp(middle + distance * slope, 0.0, 255.0);
        table[std::size_t(gray)] = quint8(std::clamp(std::lround(spread + shift), 0L, 255L));
    }
    return table;
}

QImage AdjustedGray(const QImage& image, const GrayTable& table)
{
    QImage result(image.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < result.height(); ++y) {
        uchar* const line = result.scanLine(y);
        for (int x = 0; x < result.width(); ++x) {
            line[x] = table[GrayOfPixel(image, x, y)];
        }
    }
    return result;
}

} // namespace Host
