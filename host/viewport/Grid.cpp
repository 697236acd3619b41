#include "host/viewport/Grid.h"

#include "host/viewport/ModelProgram.h"
#include "host/viewport/ModelShaders.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QVector4D>

#include <cmath>
#include <vector>

namespace Host {

namespace {

/// Lines to each side of the middle.
constexpr int reach = 60;
constexpr double leastPixels = 14.0; ///< Between two lines.

struct LineEnd
{
    QVector3D place;
    QVector4D colour;
};

/// Lines a unit apart around the origin; each tenth is stronger, and the axes have their colours.
std::vector<LineEnd> Lines()
{
    std::vector<LineEnd> ends;
    for (int i = -reach; i <= reach; ++i) {
        const QVector4D colour =
            i % 10 == 0 ? QVector4D(0.72F, 0.72F, 0.72F, 0.42F) : QVector4D(0.72F, 0.72F, 0.72F, 0.17F);
        ends.push_back({{float(i), 0.0F, -float(reach)}, colour});
        ends.push_back({{float(i), 0.0F, float(reach)}, colour});
        ends.push_back({{-float(reach), 0.0F, float(i)}, colour});
        ends.push_back({{float(reach), 0.0F, float(i)}, colour});
    }
    return ends;
}

} // namespace

double GridSpacing(const Camera& camera)
{
    return std::pow(10.0, std::ceil(std::log10(double(camera.UnitsPerPixel()) * leastPixels)));
}

Grid::Grid()
{
    BuildProgram(m_program, Shaders::GridVertex(), Shaders::GridFragment());
    const std::vector<LineEnd> lines = Lines();
    m_vertexCount = int(lines.size());
    m_arrays.create();
    const QOpenGLVertexArrayObject::Binder binder(&m_arrays);
    m_lines.create();
    m_lines.bind();
    m_lines.allocate(lines.data(), int(lines.size() * sizeof(LineEnd)));
    m_program.enableAttributeArray(0);
    m_program.setAttributeBuffer(0, GL_FLOAT, 0, 3, int(sizeof(LineEnd)));
    m_program.enableAttributeArray(1);
    m_program.setAttributeBuffer(1, GL_FLOAT, int(offsetof(LineEnd, colour)), 4, int(sizeof(LineEnd)));
}

void Grid::Draw(const Camera& camera)
{
    const auto spacing = float(GridSpacing(camera));
    // The lines go with the viewer, by ten of them at a time, so that strong ones stay where they are.
    const float step = spacing * 10.0F;
    const QVector3D middle(std::round(camera.Target().x() / step) * step, 0.0F,
                           std::round(camera.Target().z() / step) * step);
    QMatrix4x4 toEye = camera.ViewMatrix();
    toEye.translate(middle);
    toEye.scale(spacing);
    QOpenGLFunctions& gl = *QOpenGLContext::currentContext()->functions();
    gl.glEnable(GL_BLEND);
    // Alpha marks what is outlined.
    gl.glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
    gl.glDepthMask(GL_FALSE);
    m_program.bind();
    m_program.setUniformValue("toEye", toEye);
    m_program.setUniformValue("toScreen", camera.ProjectionMatrix());
    m_program.setUniformValue("radius", float(reach));
    const QOpenGLVertexArrayObject::Binder binder(&m_arrays);
    gl.glDrawArrays(GL_LINES, 0, m_vertexCount);
    gl.glDepthMask(GL_TRUE);
    gl.glDisable(GL_BLEND);
}

} // namespace Host
