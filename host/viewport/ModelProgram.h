#pragma once

#include <QColor>
#include <QMatrix4x4>
#include <QOpenGLShaderProgram>
#include <QVector3D>

namespace Host {

/// A shader program out of the sources of \p vertex and \p fragment, with its values on the graphics processor.
class ModelProgram
{
public:
    /// \param features  several of Shaders::Feature
    explicit ModelProgram(unsigned features);

    /// What goes for all triangles of a picture.
    struct Frame
    {
        QMatrix4x4 toEye;
        QMatrix4x4 toScreen;
        float stripe = 8.0F; ///< How wide the stripes of what has no weights are, in pixels.
    };
    /// What goes for a material.
    struct Surface
    {
        QColor diffuse;
        QVector3D glow;
        float mark = 0.0F;
    };

    /// From here on triangles are drawn with this program.
    void Bind(const Frame& frame);
    void SetSurface(const Surface& surface);

private:
    QOpenGLShaderProgram m_program;
    int m_toEye = -1;
    int m_toScreen = -1;
    int m_stripe = -1;
    int m_diffuse = -1;
    int m_glow = -1;
    int m_mark = -1;
};

/// Compiles and links \p vertex and \p fragment into \p program; a driver that refuses them is told in the log.
void BuildProgram(QOpenGLShaderProgram& program, const QByteArray& vertex, const QByteArray& fragment);

/// A colour as the shaders have it.
inline QVector3D ToVector(const QColor& color)
{
    return {float(color.redF()), float(color.greenF()), float(color.blueF())};
}

} // namespace Host
