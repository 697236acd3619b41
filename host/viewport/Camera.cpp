#include "host/viewport/Camera.h"

#include <QQuaternion>
#include <QVector4D>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Host {

namespace {

constexpr float fieldOfView = 35.0F; ///< Degrees, of the shorter side.
constexpr float degreesPerPixel = 0.4F;
constexpr double shareOfStep = 0.88; ///< Of the distance that is left after a step of zooming.
constexpr float roomAround = 1.08F;  ///< About what is framed.
constexpr float nearest = 1e-3F;
constexpr float furthest = 1e13F;

} // namespace

void Camera::SetSize(const QSizeF& size)
{
    m_size = size.expandedTo({1.0, 1.0});
}

void Camera::SetReach(const Bounds& bounds)
{
    m_reach = bounds;
}

void Camera::Orbit(const QPointF& pixels)
{
    m_yaw = std::remainder(m_yaw - float(pixels.x()) * degreesPerPixel, 360.0F);
    m_pitch = std::clamp(m_pitch + float(pixels.y()) * degreesPerPixel, -90.0F, 90.0F);
}

void Camera::Pan(const QPointF& pixels)
{
    m_target += Direction(-float(pixels.x()), float(pixels.y()), 0.0F) * UnitsPerPixel();
}

void Camera::Zoom(double steps, const QPointF& pixel)
{
    const float distance = std::clamp(m_distance * float(std::pow(shareOfStep, steps)), nearest, furthest);
    const QPointF fromCenter = pixel - QPointF(m_size.width() / 2.0, m_size.height() / 2.0);
    const QVector3D held =
        Direction(float(fromCenter.x()), -float(fromCenter.y()), 0.0F) * UnitsPerPixel(); // from the target
    m_target += held * (1.0F - distance / m_distance);
    m_distance = distance;
}

void Camera::Frame(const Bounds& bounds)
{
    if (bounds.isEmpty) {
        return;
    }
    m_target = bounds.Center();
    const QVector3D right = Direction(1.0F, 0.0F, 0.0F);
    const QVector3D up = Direction(0.0F, 1.0F, 0.0F);
    const QVector3D back = Direction(0.0F, 0.0F, 1.0F);
    float distance = bounds.Diagonal() > 0.0F ? 0.0F : 1.0F;
    for (const QVector3D& corner : bounds.Corners()) {
        const QVector3D place = corner - m_target;
        const float across = std::abs(QVector3D::dotProduct(place, right)) / TangentOfHalfWidth();
        const float upwards = std::abs(QVector3D::dotProduct(place, up)) / TangentOfHalfHeight();
        const float depth = QVector3D::dotProduct(place, back);
        distance = std::max(distance, depth + roomAround * std::max(across, upwards));
    }
    m_distance = std::clamp(distance, nearest, furthest);
}

void Camera::Look(View view)
{
    m_yaw = view == View::Side ? 90.0F : 0.0F;
    m_pitch = view == View::Top ? 90.0F : 0.0F;
}

/// A direction of the view (right, up, towards the viewer) as one of the scene.
QVector3D Camera::Direction(float x, float y, float z) const
{
    const QQuaternion turn = QQuaternion::fromAxisAndAngle(0.0F, 1.0F, 0.0F, m_yaw) *
                             QQuaternion::fromAxisAndAngle(1.0F, 0.0F, 0.0F, -m_pitch);
    return turn.rotatedVector({x, y, z});
}

float Camera::TangentOfHalfHeight() const
{
    const auto ratio = float(m_size.height() / m_size.width());
    return std::tan(qDegreesToRadians(fieldOfView) / 2.0F) * std::max(1.0F, ratio);
}

float Camera::TangentOfHalfWidth() const
{
    return TangentOfHalfHeight() * float(m_size.width() / m_size.height());
}

QVector3D Camera::Eye() const
{
    return m_target + Direction(0.0F, 0.0F, m_distance);
}

float Camera::UnitsPerPixel() const
{
    return 2.0F * m_distance * TangentOfHalfHeight() / float(m_size.height());
}

QMatrix4x4 Camera::ViewMatrix() const
{
    QMatrix4x4 matrix;
    matrix.translate(0.0F, 0.0F, -m_distance);
    matrix.rotate(m_pitch, 1.0F, 0.0F, 0.0F);
    matrix.rotate(-m_yaw, 0.0F, 1.0F, 0.0F);
    matrix.translate(-m_target);
    return matrix;
}

QMatrix4x4 Camera::ProjectionMatrix() const
{
    // The ground's grid goes on beyond the scene.
    float beyond = m_distance * 20.0F;
    if (!m_reach.isEmpty) {
        beyond = std::max(beyond, (m_reach.Center() - Eye()).length() + m_reach.Diagonal());
    }
    // Nearer than that share, and what is far would not be told apart any more.
    const float closest = std::max(m_distance / 50.0F, beyond / 50000.0F);
    const float height = closest * TangentOfHalfHeight();
    const float width = closest * TangentOfHalfWidth();
    QMatrix4x4 matrix;
    matrix.frustum(-width, width, -height, height, closest, beyond);
    return matrix;
}

Ray Camera::RayThrough(const QPointF& pixel) const
{
    const float x = float(pixel.x() / m_size.width()) * 2.0F - 1.0F;
    const float y = 1.0F - float(pixel.y() / m_size.height()) * 2.0F;
    return {Eye(), Direction(x * TangentOfHalfWidth(), y * TangentOfHalfHeight(), -1.0F).normalized()};
}

std::optional<QPointF> Camera::Project(const QVector3D& place) const
{
    const QVector4D clip = ProjectionMatrix() * (ViewMatrix() * QVector4D(place, 1.0F));
    if (!(clip.w() > 0.0F)) {
        return std::nullopt;
    }
    return QPointF((double(clip.x() / clip.w()) + 1.0) / 2.0 * m_size.width(),
                   (1.0 - double(clip.y() / clip.w())) / 2.0 * m_size.height());
}

} // namespace Host
