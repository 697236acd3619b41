#include "host/simulation/ModelPose.h"

#include <algorithm>
#include <limits>

namespace Host {

namespace {

constexpr double fadeTime = 0.4; // s

/// The triangles of what does not simulate.
IndexTriangles BodyTriangles(const PreviewMesh& mesh)
{
    IndexTriangles triangles;
    for (const PreviewSlot& slot : mesh.materialSlots) {
        for (std::size_t i = 0; !slot.simulates && i + 2 < slot.indices.size(); i += 3) {
            triangles.push_back({int(slot.indices[i]), int(slot.indices[i + 1]), int(slot.indices[i + 2])});
        }
    }
    return triangles;
}

} // namespace

ModelPose::ModelPose(const PreviewModel& model)
{
    constexpr float far = std::numeric_limits<float>::max();
    QVector3D low(far, far, far);
    QVector3D high = -low;
    for (const PreviewMesh& mesh : model.meshes) {
        for (const QVector3D& place : mesh.positions) {
            low = {std::min(low.x(), place.x()), std::min(low.y(), place.y()), std::min(low.z(), place.z())};
            high = {std::max(high.x(), place.x()), std::max(high.y(), place.y()), std::max(high.z(), place.z())};
        }
    }
    if (low.x() <= high.x()) {
        m_origin = {0.5F * (low.x() + high.x()), low.y(), 0.5F * (low.z() + high.z())};
        m_height = high.y() - low.y();
    }
    for (const PreviewMesh& mesh : model.meshes) {
        Vectors rest;
        rest.reserve(mesh.positions.size());
        for (const QVector3D& place : mesh.positions) {
            rest.push_back(ToVector(place - m_origin));
        }
        m_walks.emplace_back(rest, BodyTriangles(mesh), std::max(m_height, 1e-3F));
        m_rest.push_back(std::move(rest));
    }
    m_places = m_rest;
}

void ModelPose::SetMotion(const MotionChoice& motion)
{
    m_motion = motion;
    m_time = 0.0;
    m_fadingPlaces = m_places;
    m_fading = fadeTime;
}

void ModelPose::Restart()
{
    m_time = 0.0;
    m_fading = 0.0;
    m_places = m_rest;
}

void ModelPose::GoOnFrom(const ModelPose& other)
{
    m_motion = other.m_motion;
    m_time = other.m_time;
    if (m_rest == other.m_rest) {
        m_places = other.m_places;
        m_fadingPlaces = other.m_fadingPlaces;
        m_fading = other.m_fading;
    }
}

bool ModelPose::MoveOn(double duration)
{
    m_time += duration;
    if (!Deforms() && m_fading <= 0.0) {
        return false;
    }
    m_fading = std::max(0.0, m_fading - duration);
    const auto old = float(m_fading / fadeTime);
    for (std::size_t i = 0; i < m_rest.size(); ++i) {
        m_places[i] = m_rest[i];
        if (Deforms()) {
            m_walks[i].Apply(PhaseAt(m_motion, m_time), m_places[i]);
        }
        for (std::size_t k = 0; old > 0.0F && k < m_places[i].size(); ++k) {
            m_places[i][k] += old * (m_fadingPlaces[i][k] - m_places[i][k]);
        }
    }
    return true;
}

} // namespace Host
