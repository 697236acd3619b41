#pragma once

#include <QDir>
#include <QJsonObject>

#include <memory>

namespace Host {

class Scene;

/// What a scene file says of itself.
namespace SceneFormat {
inline constexpr const char* name = "softcloth-scene";
/// 1: no weight images and no ignored materials. Files of all versions can be opened.
inline constexpr int version = 2;
} // namespace SceneFormat

/// The document of a scene file that lies in \p folder. Ids in it are numbers that mean nothing outside.
QJsonObject SceneToJson(const Scene& scene, const QDir& folder);

/// Builds a scene from what SceneToJson() wrote. Throws SceneFormatError.
std::unique_ptr<Scene> SceneFromJson(const QJsonObject& document, const QDir& folder);

} // namespace Host
