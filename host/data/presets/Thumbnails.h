#pragma once

#include <QImage>
#include <QString>

#include <vector>

/// The pictures of the preset gallery, painted by code.
namespace Presets {

/// Side of a thumbnail in pixels.
inline constexpr int thumbnailSize = 256;

/// Pictures are painted twice as large and then reduced, which smooths them.
inline constexpr int paintedSize = 2 * thumbnailSize;

/// A picture and its name in its folder, without suffix: its place in the gallery, counted from 1, and what it shows.
struct Thumbnail
{
    const char* name;
    QImage (*paint)();
};

std::vector<Thumbnail> ClothThumbnails();
std::vector<Thumbnail> HairThumbnails();
std::vector<Thumbnail> WindThumbnails();

} // namespace Presets
