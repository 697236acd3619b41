#pragma once

#include <QtGlobal>

#include <cstddef>

/// What the host takes in at most. Whatever is larger is refused with a message, before any memory is taken for it, and
/// nothing that is there already is touched.
namespace Host::Limits {

// An image, from a file or embedded.
inline constexpr int imageSide = 16384;                  ///< Width and height, in pixels.
inline constexpr qint64 imagePixels = qint64{1} << 27;   ///< In all: as 32-bit colours half a GiB.
inline constexpr qint64 imageFileSize = qint64{1} << 30; ///< Encoded, in bytes.

// A file that is read as a whole, in bytes.
inline constexpr qint64 modelFileSize = qint64{1} << 30;
inline constexpr qint64 sceneFileSize = qint64{1} << 30;

// A scene file as a JSON document.
inline constexpr int jsonDepth = 64;           ///< Lists and groups in each other.
inline constexpr qint64 jsonValues = 30000000; ///< Texts, numbers, lists and groups together.

// All objects of a scene together, those that were deleted and can come back included; also a model on its own.
inline constexpr std::size_t meshes = 100000;
inline constexpr std::size_t materials = 100000;
inline constexpr std::size_t vertices = 16000000;
inline constexpr std::size_t triangles = 16000000;

} // namespace Host::Limits
