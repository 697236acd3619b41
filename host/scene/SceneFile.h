#pragma once

#include <QString>

#include <memory>

namespace Host {

class Scene;

/// What a scene file operation came to; on failure \p error is a sentence for the user.
struct SceneFileResult
{
    bool ok = false;
    QString error;
};

/// Writes \p scene with all geometry, textures, values and undo steps as one JSON file. The file is replaced only
/// when everything was written.
SceneFileResult SaveScene(const Scene& scene, const QString& path);

/// Reads a scene file into \p scene, which stays null unless the whole file is sound: a file that is damaged, written
/// by a newer version, or no scene at all is refused with the reason.
SceneFileResult LoadScene(const QString& path, std::unique_ptr<Scene>& scene);

} // namespace Host
