#pragma once

#include "host/viewport/Bounds.h"

#include <QMatrix4x4>
#include <QPointF>
#include <QSizeF>
#include <QVector3D>

#include <optional>

namespace Host {

/// A half line in the scene.
struct Ray
{
    QVector3D origin;
    QVector3D direction; ///< Of length 1.
};

/// From where and how the view looks at the scene: at a target, from a distance, with the y axis upwards. Points of the
/// view are in its pixels, from its upper left corner.
class Camera
{
public:
    enum class View
    {
        Front,
        Side,
        Top
    };

    /// The size of the view. Less than a pixel counts as one.
    void SetSize(const QSizeF& size);
    const QSizeF& Size() const { return m_size; }

    /// Nothing of the scene lies outside of \p bounds. They decide what is near and what is far.
    void SetReach(const Bounds& bounds);

    /// Turns about the target as if the scene were dragged by \p pixels.
    void Orbit(const QPointF& pixels);
    /// Moves so that the target follows a pointer that moves by \p pixels.
    void Pan(const QPointF& pixels);
    /// Comes nearer by \p steps, or goes away where they are negative. What is at \p pixel stays there.
    void Zoom(double steps, const QPointF& pixel);

    /// Comes so near that all of \p bounds is just seen, from where it looks now. Empty ones change nothing.
    void Frame(const Bounds& bounds);
    /// Looks from another side at the same target from the same distance.
    void Look(View view);

    QMatrix4x4 ViewMatrix() const;
    QMatrix4x4 ProjectionMatrix() const;

    const QVector3D& Target() const { return m_target; }
    float Distance() const { return m_distance; }
    QVector3D Eye() const;

    Ray RayThrough(const QPointF& pixel) const;
    /// Where \p place is seen; none for what is behind the eye.
    std::optional<QPointF> Project(const QVector3D& place) const;
    /// How long a line through the target is, in units of the scene, that takes up a pixel.
    float UnitsPerPixel() const;

private:
    float TangentOfHalfHeight() const;
    float TangentOfHalfWidth() const;
    QVector3D Direction(float x, float y, float z) const;

    QSizeF m_size{1.0, 1.0};
    QVector3D m_target{0.0F, 0.0F, 0.0F};
    float m_distance = 300.0F;
    float m_yaw = 25.0F;   ///< Degrees about the y axis; 0 looks along the z axis from its positive end.
    float m_pitch = 15.0F; ///< Degrees, from -90 (from below) to 90 (from above).
    Bounds m_reach;
};

} // namespace Host
