#pragma once

#include "host/viewport/ViewedScene.h"

#include <QOpenGLBuffer>
#include <QOpenGLVertexArrayObject>

namespace Host {

/// The buffers of one mesh on the graphics processor. What moves is apart from what never changes.
class GpuMesh
{
public:
    /// Needs the current context, as all of this does.
    explicit GpuMesh(const MeshGeometry& geometry);

    /// Uploads what is new of \p mesh. \return how many buffers that were
    int Update(const ViewedMesh& mesh);
    /// Draws one material of it.
    void Draw(const GeometryPart& part);

private:
    QOpenGLVertexArrayObject m_arrays;
    QOpenGLBuffer m_positions{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_normals{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_uvs{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_weights{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_indices{QOpenGLBuffer::IndexBuffer};
    int m_movedRevision = -1;
    int m_weightsRevision = 0;
};

} // namespace Host
