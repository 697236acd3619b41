#include "host/viewport/WeightColours.h"

#include "host/images/WeightSampling.h"

#include <algorithm>
#include <cmath>

namespace Host {

namespace {

struct Stop
{
    int gray;
    std::array<int, 3> colour;
};

/// The ends are as far apart for every eye as blue and red can be; in between it gets lighter and darker again.
constexpr std::array<Stop, 5> stops{
    {{0, {36, 74, 204}}, {64, {40, 164, 214}}, {128, {88, 190, 104}}, {192, {238, 186, 56}}, {255, {214, 44, 40}}}};

} // namespace

std::array<QRgb, 256> WeightColours()
{
    std::array<QRgb, 256> colours{};
    for (std::size_t i = 0; i + 1 < stops.size(); ++i) {
        const Stop& from = stops[i];
        const Stop& to = stops[i + 1];
        for (int gray = from.gray; gray <= to.gray; ++gray) {
            const double share = double(gray - from.gray) / double(to.gray - from.gray);
            const auto mixed = [&](std::size_t channel) {
                return int(std::lround(from.colour[channel] + share * (to.colour[channel] - from.colour[channel])));
            };
            colours[std::size_t(gray)] = qRgb(mixed(0), mixed(1), mixed(2));
        }
    }
    return colours;
}

void SetWeights(std::vector<quint8>& weights, const GeometryPart& part, const MeshGeometry& geometry, const Mesh& mesh,
                const QImage& image, const GrayTable& table)
{
    weights.resize(geometry.positions.size());
    for (std::size_t i = part.firstVertex; i < part.firstVertex + part.vertexCount; ++i) {
        weights[i] = GrayAtVertex(mesh, geometry.sources[i], image, table);
    }
}

} // namespace Host
