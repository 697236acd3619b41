#pragma once

#include "host/scene/Entities.h"

#include <QString>

/// What must hold for every object that comes out of an import.
namespace GeometryChecks {

/// What is wrong with \p object; empty when it is sound: arrays fit together, indices and materials are in range, all
/// numbers are finite, every slot has triangles, every material has a slot and everything has a name.
QString Faults(const Host::Object& object);

/// The share of triangles, 0 to 1, that face the side to which their normals point.
double FacingShare(const Host::Mesh& mesh);

/// The triangles whose corners do not span any area, in space or in the texture.
int DegenerateTriangles(const Host::Mesh& mesh);

std::size_t TriangleCount(const Host::Mesh& mesh);

} // namespace GeometryChecks
