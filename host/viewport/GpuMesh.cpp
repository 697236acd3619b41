#include "host/viewport/GpuMesh.h"

#include "host/viewport/ModelShaders.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace Host {

namespace {

/// Gives a buffer new content; the graphics processor may still be at work with the old one, which is let go.
template <class Value>
void Fill(QOpenGLBuffer& buffer, const std::vector<Value>& values)
{
    buffer.bind();
    buffer.allocate(values.data(), int(values.size() * sizeof(Value)));
}

void CreateBuffer(QOpenGLBuffer& buffer, QOpenGLBuffer::UsagePattern usage)
{
    buffer.create();
    buffer.setUsagePattern(usage);
    buffer.bind();
}

void SetAttribute(Shaders::Attribute attribute, int size, GLenum type, bool isNormalized)
{
    QOpenGLExtraFunctions* gl = QOpenGLContext::currentContext()->extraFunctions();
    gl->glEnableVertexAttribArray(attribute);
    gl->glVertexAttribPointer(attribute, size, type, GLboolean(isNormalized ? GL_TRUE : GL_FALSE), 0, nullptr);
}

} // namespace

GpuMesh::GpuMesh(const MeshGeometry& geometry)
{
    m_arrays.create();
    m_arrays.bind();
    CreateBuffer(m_positions, QOpenGLBuffer::StreamDraw);
    SetAttribute(Shaders::Position, 3, GL_FLOAT, false);
    CreateBuffer(m_normals, QOpenGLBuffer::StreamDraw);
    SetAttribute(Shaders::Normal, 3, GL_FLOAT, false);
    CreateBuffer(m_uvs, QOpenGLBuffer::StaticDraw);
    SetAttribute(Shaders::Uv, 2, GL_FLOAT, false);
    Fill(m_uvs, geometry.uvs);
    CreateBuffer(m_weights, QOpenGLBuffer::DynamicDraw);
    SetAttribute(Shaders::Weight, 1, GL_UNSIGNED_BYTE, true);
    Fill(m_weights, std::vector<quint8>(geometry.positions.size()));
    CreateBuffer(m_indices, QOpenGLBuffer::StaticDraw);
    Fill(m_indices, geometry.indices);
    m_arrays.release();
}

int GpuMesh::Update(const ViewedMesh& mesh)
{
    int uploads = 0;
    if (m_movedRevision != mesh.movedRevision) {
        Fill(m_positions, mesh.Positions());
        Fill(m_normals, mesh.Normals());
        m_movedRevision = mesh.movedRevision;
        uploads += 2;
    }
    if (m_weightsRevision != mesh.weightsRevision) {
        Fill(m_weights, mesh.weights);
        m_weightsRevision = mesh.weightsRevision;
        ++uploads;
    }
    return uploads;
}

void GpuMesh::Draw(const GeometryPart& part)
{
    const QOpenGLVertexArrayObject::Binder binder(&m_arrays);
    QOpenGLContext::currentContext()->functions()->glDrawElements(
        GL_TRIANGLES, GLsizei(part.indexCount), GL_UNSIGNED_INT,
        reinterpret_cast<const void*>(part.firstIndex * sizeof(quint32))); // NOLINT: an offset, as the call has it
}

} // namespace Host
