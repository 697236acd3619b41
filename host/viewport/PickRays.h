#pragma once

#include "host/viewport/Camera.h"
#include "host/viewport/ViewedScene.h"

#include <memory>
#include <optional>

namespace Host {

/// Where a ray meets the scene.
struct RayHit
{
    BF::CHandle* object = nullptr;
    Id mesh = 0;
    Id material = 0;
    QVector3D place;
};

/// Finds what is hit by rays. Takes over a scene when it is first asked after a change.
class PickRays
{
public:
    PickRays();
    ~PickRays();
    PickRays(const PickRays&) = delete;
    PickRays& operator=(const PickRays&) = delete;

    /// The nearest thing on \p ray that is not transparent there; none when there is nothing.
    std::optional<RayHit> Find(ViewedScene& scene, const Ray& ray);

private:
    class Shapes;

    std::unique_ptr<Shapes> m_shapes;
};

} // namespace Host
