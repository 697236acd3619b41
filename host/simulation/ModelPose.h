#pragma once

#include "host/simulation/ObjectMotion.h"
#include "host/simulation/PreviewModel.h"
#include "host/simulation/WalkPose.h"

#include <vector>

namespace Host {

/// The model's own motion in the preview: where its vertices would be without any cloth. In coordinates of the object,
/// whose origin is on the floor below the middle of the model.
class ModelPose
{
public:
    explicit ModelPose(const PreviewModel& model);

    /// The motion begins again; what the model did before fades out within a moment.
    void SetMotion(const MotionChoice& motion);
    const MotionChoice& Motion() const { return m_motion; }

    /// Moves on by \p duration seconds. \return true when vertices have moved
    bool MoveOn(double duration);
    /// Back to the beginning.
    void Restart();

    /// Takes over the motion of \p other; the vertices, too, if both have the same.
    void GoOnFrom(const ModelPose& other);

    /// The vertices of each mesh of the model.
    const std::vector<Vectors>& Places() const { return m_places; }
    /// Seconds since the motion began.
    double Time() const { return m_time; }
    float Height() const { return m_height; }
    /// The object's origin in the scene.
    const QVector3D& Origin() const { return m_origin; }

private:
    bool Deforms() const { return m_motion.kind == MotionKind::Walk; }

    QVector3D m_origin;
    float m_height = 0.0F;
    std::vector<Vectors> m_rest;
    std::vector<WalkPose> m_walks; ///< One for each mesh.
    std::vector<Vectors> m_places;
    std::vector<Vectors> m_fadingPlaces; ///< What fades out.
    double m_fading = 0.0;               ///< Seconds left of it.
    MotionChoice m_motion;
    double m_time = 0.0;
};

} // namespace Host
