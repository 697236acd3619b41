#pragma once

#include <QOpenGLFramebufferObject>
#include <QOpenGLShaderProgram>
#include <QOpenGLVertexArrayObject>

#include <memory>

namespace Host {

/// Where a picture is drawn with smooth edges before it gets to the screen. What is to be outlined is marked in its
/// alpha: nothing 0, an object a half, a material 1.
class Frame
{
public:
    Frame();

    /// Begins a picture of \p size pixels.
    void Begin(const QSize& size);
    /// Puts the picture into the framebuffer \p target.
    /// \param outlineWidth  in pixels; 0 for no outlines
    void Finish(unsigned target, int outlineWidth);

private:
    void DrawOutlined(unsigned target, int outlineWidth);

    std::unique_ptr<QOpenGLFramebufferObject> m_smooth;
    std::unique_ptr<QOpenGLFramebufferObject> m_flat; ///< Of one sample a pixel, which a shader can read.
    std::unique_ptr<QOpenGLShaderProgram> m_outline;
    QOpenGLVertexArrayObject m_noArrays;
};

} // namespace Host
