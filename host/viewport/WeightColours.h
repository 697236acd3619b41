#pragma once

#include "host/images/WeightAdjust.h"
#include "host/viewport/ModelGeometry.h"

#include <QRgb>

#include <array>

class QImage;

namespace Host {

/// How freely a vertex moves as a colour: blue where it is held (0, black in the weight image), through green to red
/// where it is free (255, white).
std::array<QRgb, 256> WeightColours();

/// Sets, in \p weights, the gray that the host finds at each vertex of one material: as many values as the geometry has
/// vertices, of which only those of \p part are set.
void SetWeights(std::vector<quint8>& weights, const GeometryPart& part, const MeshGeometry& geometry, const Mesh& mesh,
                const QImage& image, const GrayTable& table);

} // namespace Host
