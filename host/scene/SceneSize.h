#pragma once

#include <QString>

#include <cstddef>

namespace Host {

struct Object;

/// How much there is of everything in a scene or a model that has a limit.
struct SceneSize
{
    std::size_t meshes = 0;
    std::size_t materials = 0;
    std::size_t vertices = 0;
    std::size_t triangles = 0;

    static SceneSize Of(const Object& object);
    SceneSize& operator+=(const SceneSize& other);

    /// "it has 16000001 vertices, and more than 16000000 are too many"; a null string when all is within Limits.
    QString ReasonToRefuse() const;
};

} // namespace Host
