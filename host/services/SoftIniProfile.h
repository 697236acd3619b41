#pragma once

#include "host/scene/Entities.h"

#include <QString>

#include <functional>
#include <optional>

/// The host's own files of soft cloth settings: INI files whose groups "property", "collision" and "wind" name the
/// fields of the host's records and hold their values as the host has them, beside a key "useGlobalGravity".
namespace Host {

/// Puts into a cloth the values that a file names; the others stay as they are.
using ClothChange = std::function<void(ClothState&)>;

/// \return nothing when there is no readable file at \p path or it names no field
std::optional<ClothChange> ReadSoftIni(const QString& path);

} // namespace Host
