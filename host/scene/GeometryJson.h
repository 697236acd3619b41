#pragma once

#include "host/scene/JsonNode.h"

#include <QJsonObject>
#include <QVector2D>
#include <QVector3D>

#include <vector>

namespace Host {

// Arrays of a mesh as text: little-endian 32-bit words, compressed, in base64, with a check sum. All bits come back.

/// Writes \p items, which are QVector2D, QVector3D or quint32.
template <class Item>
QJsonObject ArrayToJson(const std::vector<Item>& items);

/// How many items an array says that it holds. Throws SceneFormatError.
std::size_t CountOfArray(const JsonNode& node);

/// What ArrayToJson() wrote. Throws SceneFormatError. Nothing is unpacked that is larger than the count says.
template <class Item>
std::vector<Item> ArrayFromJson(const JsonNode& node);

} // namespace Host
