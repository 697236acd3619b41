#pragma once

#include "host/viewport/Frame.h"
#include "host/viewport/GpuImages.h"
#include "host/viewport/GpuMesh.h"
#include "host/viewport/Grid.h"
#include "host/viewport/ModelProgram.h"

#include <map>
#include <memory>
#include <unordered_map>

namespace Host {

/// Draws a scene into the current context. Keeps there what it has uploaded, so it lives no longer than the context,
/// and is made and destroyed while that is current.
class Renderer
{
public:
    /// Draws into the framebuffer \p target of \p size pixels.
    /// \param scale  pixels of the screen in one of the window system's
    /// \return whether all images are shown; if not, it is to be drawn once more
    bool Draw(ViewedScene& scene, const Camera& camera, unsigned target, const QSize& size, double scale);

    /// Lights up what the pointer is at; a material of 0 for nothing.
    void Point(Id mesh, Id material);

    /// How many buffers and textures were uploaded so far.
    int UploadCount() const { return m_uploads + m_images.UploadCount(); }

private:
    ModelProgram::Surface SurfaceOf(const ViewedMesh& mesh, const ViewedPart& part) const;
    void Upload(const ViewedScene& scene);
    void DrawMeshes(const ViewedScene& scene, const ModelProgram::Frame& frame);
    ModelProgram& Program(unsigned features);
    unsigned BindImages(const ViewedPart& part);
    unsigned BindWeights(const ViewedPart& part);

    std::unordered_map<Id, std::unique_ptr<GpuMesh>> m_meshes;
    GpuImages m_images;
    std::map<unsigned, std::unique_ptr<ModelProgram>> m_programs;
    Frame m_frame;
    Grid m_grid;
    std::unique_ptr<QOpenGLTexture> m_weightColours;
    Id m_pointedMesh = 0;
    Id m_pointedMaterial = 0;
    int m_uploads = 0;
    int m_sceneRevision = -1;
    bool m_isAnySelected = false;
};

} // namespace Host
