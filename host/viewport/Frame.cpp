#include "host/viewport/Frame.h"

#include "host/viewport/ModelProgram.h"
#include "host/viewport/ModelShaders.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace Host {

namespace {

constexpr int samples = 4;

QOpenGLExtraFunctions& Gl()
{
    return *QOpenGLContext::currentContext()->extraFunctions();
}

void Copy(unsigned from, unsigned to, const QSize& size)
{
    Gl().glBindFramebuffer(GL_READ_FRAMEBUFFER, from);
    Gl().glBindFramebuffer(GL_DRAW_FRAMEBUFFER, to);
    Gl().glBlitFramebuffer(0, 0, size.width(), size.height(), 0, 0, size.width(), size.height(), GL_COLOR_BUFFER_BIT,
                           GL_NEAREST);
}

} // namespace

Frame::Frame()
{
    m_noArrays.create();
}

void Frame::Begin(const QSize& size)
{
    if (!m_smooth || m_smooth->size() != size) {
        QOpenGLFramebufferObjectFormat format;
        format.setAttachment(QOpenGLFramebufferObject::Depth);
        format.setInternalTextureFormat(GL_RGBA8);
        format.setSamples(samples);
        m_smooth = std::make_unique<QOpenGLFramebufferObject>(size, format);
        m_flat = std::make_unique<QOpenGLFramebufferObject>(size, QOpenGLFramebufferObject::NoAttachment, GL_TEXTURE_2D,
                                                            GL_RGBA8);
    }
    m_smooth->bind();
    Gl().glViewport(0, 0, size.width(), size.height());
}

void Frame::Finish(unsigned target, int outlineWidth)
{
    if (outlineWidth == 0) {
        Copy(m_smooth->handle(), target, m_smooth->size());
        Gl().glBindFramebuffer(GL_FRAMEBUFFER, target);
        return;
    }
    Copy(m_smooth->handle(), m_flat->handle(), m_smooth->size());
    DrawOutlined(target, outlineWidth);
}

void Frame::DrawOutlined(unsigned target, int outlineWidth)
{
    if (!m_outline) {
        m_outline = std::make_unique<QOpenGLShaderProgram>();
        BuildProgram(*m_outline, Shaders::OutlineVertex(), Shaders::OutlineFragment());
    }
    Gl().glBindFramebuffer(GL_FRAMEBUFFER, target);
    Gl().glDisable(GL_DEPTH_TEST);
    Gl().glDisable(GL_BLEND);
    Gl().glActiveTexture(GL_TEXTURE0);
    Gl().glBindTexture(GL_TEXTURE_2D, m_flat->texture());
    m_outline->bind();
    m_outline->setUniformValue("picture", 0);
    m_outline->setUniformValue("width", outlineWidth);
    m_outline->setUniformValue("objectColour", QVector3D(1.0F, 0.62F, 0.16F));
    m_outline->setUniformValue("materialColour", QVector3D(1.0F, 0.90F, 0.55F));
    const QOpenGLVertexArrayObject::Binder binder(&m_noArrays);
    Gl().glDrawArrays(GL_TRIANGLES, 0, 3);
    Gl().glBindTexture(GL_TEXTURE_2D, 0);
    m_outline->release();
}

} // namespace Host
