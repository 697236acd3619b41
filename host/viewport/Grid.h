#pragma once

#include "host/viewport/Camera.h"

#include <QOpenGLBuffer>
#include <QOpenGLShaderProgram>
#include <QOpenGLVertexArrayObject>

namespace Host {

/// How far the lines of the ground are apart, in units of the scene, where \p camera looks: a power of ten that leaves
/// some room between them.
double GridSpacing(const Camera& camera);

/// The lines of the ground, the plane y = 0.
class Grid
{
public:
    /// Needs the current context, as all of this does.
    Grid();

    void Draw(const Camera& camera);

private:
    QOpenGLShaderProgram m_program;
    QOpenGLVertexArrayObject m_arrays;
    QOpenGLBuffer m_lines{QOpenGLBuffer::VertexBuffer};
    int m_vertexCount = 0;
};

} // namespace Host
