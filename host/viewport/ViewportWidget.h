#pragma once

#include "host/viewport/Camera.h"
#include "host/viewport/PickRays.h"
#include "host/viewport/ViewInput.h"
#include "host/viewport/ViewedScene.h"

#include <QOpenGLWidget>

#include <memory>
#include <optional>

class QAction;

namespace Host {

class Renderer;
class ViewActions;
class ViewTexts;

/// The view of the scene in the workbench. A click selects the object under the pointer, and chooses its material while
/// materials are being chosen. Needs a display with OpenGL: see HasViewportGl().
class ViewportWidget : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit ViewportWidget(HostApplication& host, QWidget* parent = nullptr);
    ~ViewportWidget() override;

    const Camera& Eye() const { return m_camera; }
    ViewedScene& Shown() { return m_scene; }
    const ViewActions& Actions() const { return *m_actions; }

    /// What is seen at \p pixel; none for the ground.
    std::optional<RayHit> At(const QPointF& pixel);

    /// Shows the same as \p other does, from the same side.
    void TakeOver(const ViewportWidget& other);

    /// How many buffers and textures were uploaded so far.
    int UploadCount() const;

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void ConnectActions();
    void DropRenderer();
    void FrameAll();
    /// Draws anew, after the camera has moved or what it looks at.
    void Show();
    void ShowProblems();
    void Click(const QPoint& pixel, Qt::KeyboardModifiers modifiers);
    void ClickObject(const RayHit& hit);
    bool IsPicking() const;
    void PointAt(const std::optional<RayHit>& hit);

    HostApplication& m_host;
    ViewedScene m_scene;
    Camera m_camera;
    PickRays m_rays;
    ViewActions* m_actions;
    ViewTexts* m_texts;
    std::unique_ptr<Renderer> m_renderer; ///< Null without a context.
    Drag m_drag = Drag::None;
    QPoint m_dragged; ///< Where the pointer was last.
    QPoint m_pressed;
    bool m_mayClick = false;
    Id m_pointedMesh = 0;
    Id m_pointedMaterial = 0;
    int m_shownUploads = 0;
};

} // namespace Host
