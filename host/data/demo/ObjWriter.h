#pragma once

#include "host/data/demo/DemoMesh.h"

#include <QByteArray>

#include <vector>

namespace Demo {

/// A material of a Wavefront file; textures are file names beside it, an empty one is none.
struct MaterialLook
{
    QByteArray name;
    QByteArray diffuseTexture;
    QByteArray opacityTexture;
};

/// \p meshes as a Wavefront OBJ file that names \p materialFile. The same meshes give the same bytes.
QByteArray ToObj(const std::vector<Mesh>& meshes, const QByteArray& materialFile);

QByteArray ToMtl(const std::vector<MaterialLook>& materials);

} // namespace Demo
