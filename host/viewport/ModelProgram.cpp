#include "host/viewport/ModelProgram.h"

#include "host/viewport/ModelShaders.h"

namespace Host {

void BuildProgram(QOpenGLShaderProgram& program, const QByteArray& vertex, const QByteArray& fragment)
{
    const bool isBuilt = program.addShaderFromSourceCode(QOpenGLShader::Vertex, vertex) &&
                         program.addShaderFromSourceCode(QOpenGLShader::Fragment, fragment) && program.link();
    if (!isBuilt) {
        qWarning("A shader of the view was refused: %s", qPrintable(program.log()));
    }
}

ModelProgram::ModelProgram(unsigned features)
{
    BuildProgram(m_program, Shaders::ModelVertex(), Shaders::ModelFragment(features));
    m_toEye = m_program.uniformLocation("toEye");
    m_toScreen = m_program.uniformLocation("toScreen");
    m_stripe = m_program.uniformLocation("stripe");
    m_diffuse = m_program.uniformLocation("diffuse");
    m_glow = m_program.uniformLocation("glow");
    m_mark = m_program.uniformLocation("mark");
    m_program.bind();
    m_program.setUniformValue("diffuseImage", int(Shaders::DiffuseUnit));
    m_program.setUniformValue("opacityImage", int(Shaders::OpacityUnit));
    m_program.setUniformValue("weightColours", int(Shaders::WeightUnit));
}

void ModelProgram::Bind(const Frame& frame)
{
    m_program.bind();
    m_program.setUniformValue(m_toEye, frame.toEye);
    m_program.setUniformValue(m_toScreen, frame.toScreen);
    m_program.setUniformValue(m_stripe, frame.stripe);
}

void ModelProgram::SetSurface(const Surface& surface)
{
    m_program.setUniformValue(m_diffuse, ToVector(surface.diffuse));
    m_program.setUniformValue(m_glow, surface.glow);
    m_program.setUniformValue(m_mark, surface.mark);
}

} // namespace Host
