#pragma once

#include "host/viewport/Camera.h"
#include "host/viewport/ViewedScene.h"

#include <QOpenGLWidget>

#include <memory>

namespace Host {

class Renderer;

/// The view of the scene in the workbench. Needs a display with OpenGL: see HasViewportGl().
class ViewportWidget : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit ViewportWidget(HostApplication& host, QWidget* parent = nullptr);
    ~ViewportWidget() override;

    const Camera& Eye() const { return m_camera; }
    ViewedScene& Shown() { return m_scene; }

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void DropRenderer();
    void FrameAll();

    ViewedScene m_scene;
    Camera m_camera;
    std::unique_ptr<Renderer> m_renderer; ///< Null without a context.
    QPoint m_dragged;                     ///< Where the pointer was last.
};

} // namespace Host
