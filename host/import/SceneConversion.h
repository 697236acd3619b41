#pragma once

#include "host/scene/Entities.h"

#include <QDir>

#include <functional>
#include <optional>

struct aiScene;

namespace Host {

/// True when a face has no corners or one that is no vertex. Not all of Assimp's readers see to that, and what comes
/// after them aborts the process.
bool HasBrokenFaces(const aiScene& scene);

/// True when the scene has anything that can be cut into triangles.
bool HasSurfaces(const aiScene& scene);

/// True when the scene has more vertices or triangles than an object may have, all repetitions of a mesh counted.
bool IsTooLarge(const aiScene& scene);

/// Turns what Assimp read, already cut into triangles, into an object without a name: every node with triangles becomes
/// a mesh in the place where the node puts it. Slots name their materials as Scene::AddObject() wants them.
/// \param folder where the model file is, for linked textures
/// \param goOn is asked before each mesh with the share that is done, 0 to 1
/// \return none when \p goOn answered false
std::optional<Object> ToObject(const aiScene& scene, const QDir& folder, const std::function<bool(double)>& goOn);

} // namespace Host
