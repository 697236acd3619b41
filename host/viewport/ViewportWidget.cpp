#include "host/viewport/ViewportWidget.h"

#include "host/viewport/GlProbe.h"
#include "host/viewport/Renderer.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QWheelEvent>

#include <utility>

namespace Host {

ViewportWidget::ViewportWidget(HostApplication& host, QWidget* parent)
    : QOpenGLWidget(parent)
    , m_scene(host)
{
    setObjectName(QStringLiteral("viewport"));
    setAccessibleName(tr("View of the model"));
    setFormat(ViewportFormat());
    setFocusPolicy(Qt::StrongFocus);
    constexpr int least = 80;
    setMinimumSize(least, least);
    connect(&m_scene, &ViewedScene::Changed, this, [this] {
        m_camera.SetReach(m_scene.BoundsOfAll());
        update();
    });
    connect(&m_scene, &ViewedScene::ObjectsCame, this, &ViewportWidget::FrameAll);
}

ViewportWidget::~ViewportWidget()
{
    DropRenderer();
}

void ViewportWidget::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &ViewportWidget::DropRenderer);
    m_renderer = std::make_unique<Renderer>();
}

/// What is on the graphics processor goes with the context, which is another one after the view has moved to another
/// window.
void ViewportWidget::DropRenderer()
{
    if (m_renderer) {
        makeCurrent();
        m_renderer.reset();
        doneCurrent();
    }
}

void ViewportWidget::resizeGL(int width, int height)
{
    m_camera.SetSize(QSizeF(width, height));
}

void ViewportWidget::paintGL()
{
    const double scale = devicePixelRatioF();
    if (m_renderer && !m_renderer->Draw(m_scene, m_camera, defaultFramebufferObject(), size() * scale, scale)) {
        update();
    }
}

void ViewportWidget::FrameAll()
{
    m_camera.Frame(m_scene.BoundsOfAll());
    update();
}

void ViewportWidget::mousePressEvent(QMouseEvent* event)
{
    m_dragged = event->pos();
}

void ViewportWidget::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint moved = event->pos() - std::exchange(m_dragged, event->pos());
    if (event->buttons() == Qt::MiddleButton ||
        (event->buttons() == Qt::LeftButton && event->modifiers() == Qt::AltModifier)) {
        m_camera.Orbit(moved);
        update();
    }
}

void ViewportWidget::wheelEvent(QWheelEvent* event)
{
    constexpr double step = 120.0;
    m_camera.Zoom(event->angleDelta().y() / step, event->position());
    update();
}

} // namespace Host
