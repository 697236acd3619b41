#pragma once

#include "host/import/Units.h"
#include "host/scene/Entities.h"

#include <QString>

#include <functional>
#include <optional>

namespace Host {

/// Told now and then during an import: how much is done, 0 to 1. Answering false cancels the import.
using ImportProgress = std::function<bool(double)>;

/// What an import came to.
struct ImportResult
{
    std::optional<Object> object; ///< One object with all meshes and materials of the file.
    bool cancelled = false;
    QString error; ///< A sentence for the user when there is no object and nobody cancelled.
};

/// Reads a model file (glTF 2, OBJ, FBX, Collada, PLY and what else Assimp reads safely, see ImportableSuffixes()).
/// Mesh names, material names, UVs, diffuse and opacity textures, linked or embedded, come along; triangles only,
/// transforms baked in, y upwards, in centimetres.
/// \param chooseUnit  is asked when the file does not name its unit; without it the unit is guessed from the size
ImportResult ImportModel(const QString& path, const ImportProgress& progress = {}, const UnitChoice& chooseUnit = {});

/// Suffixes that ImportModel() can read, lower case without the leading dot, sorted.
QStringList ImportableSuffixes();

} // namespace Host
