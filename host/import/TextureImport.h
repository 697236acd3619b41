#pragma once

#include "host/scene/Entities.h"

#include <QDir>
#include <QString>

#include <map>

struct aiMaterial;
struct aiScene;

namespace Host {

/// The file that a model in \p folder means by \p asked. Model files are written on other machines, so a path with
/// backslashes, percent escapes, other letter case or a folder that only the author had is understood, too; of a file
/// that is nowhere the path stays as it was asked, made absolute.
QString ResolveTexturePath(const QString& asked, const QDir& folder);

/// The diffuse and opacity textures of \p material; linked ones are looked for from \p folder.
std::map<MV::ETextureChannel, Texture> ImportTextures(const aiMaterial& material, const aiScene& scene,
                                                      const QDir& folder);

} // namespace Host
