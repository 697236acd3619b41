#pragma once

#include "host/scene/Entities.h"
#include "host/scene/SceneSize.h"

#include <QDir>
#include <QMatrix4x4>

#include <functional>
#include <optional>

struct aiScene;

namespace Host {

/// True when a face has no corners or one that is no vertex. Not all of Assimp's readers see to that, and what comes
/// after them aborts the process.
bool HasBrokenFaces(const aiScene& scene);

/// True when the scene has anything that can be cut into triangles.
bool HasSurfaces(const aiScene& scene);

/// How much there is in the scene, all repetitions of a mesh counted; faces count as triangles.
SceneSize SizeOf(const aiScene& scene);

/// The largest side of the box around all surfaces, along an axis; 0 when there are none.
double LargestSide(const aiScene& scene);

/// What turns the scene of an FBX file, whose settings name the directions, into one with y upwards and z to the front;
/// any other scene has them already.
QMatrix4x4 Uprighting(const aiScene& scene);

/// Turns what Assimp read, already cut into triangles, into an object without a name: every node with triangles becomes
/// a mesh in the place where the node puts it. Slots name their materials as Scene::AddObject() wants them.
/// \param placement is applied to the whole: turns it upright and brings it to the unit of the scene
/// \param folder where the model file is, for linked textures
/// \param goOn is asked before each mesh with the share that is done, 0 to 1
/// \return none when \p goOn returned false
std::optional<Object> ToObject(const aiScene& scene, const QMatrix4x4& placement, const QDir& folder,
                               const std::function<bool(double)>& goOn);

} // namespace Host
