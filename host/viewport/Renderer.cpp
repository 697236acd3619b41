#include "host/viewport/Renderer.h"

#include "host/viewport/Camera.h"
#include "host/viewport/ModelShaders.h"
#include "host/viewport/WeightColours.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Host {

namespace {

const QColor background(48, 48, 50);
constexpr float objectMark = 0.5F;
constexpr float materialMark = 1.0F;
constexpr int imageMilliseconds = 40; ///< Spent on new images before a picture.

std::unique_ptr<QOpenGLTexture> NewWeightColours()
{
    const std::array<QRgb, 256> colours = WeightColours();
    QImage line(int(colours.size()), 1, QImage::Format_RGB32);
    std::copy(colours.begin(), colours.end(), reinterpret_cast<QRgb*>(line.scanLine(0)));
    auto texture = std::make_unique<QOpenGLTexture>(line, QOpenGLTexture::DontGenerateMipMaps);
    texture->setMinMagFilters(QOpenGLTexture::Linear, QOpenGLTexture::Linear);
    texture->setWrapMode(QOpenGLTexture::ClampToEdge);
    return texture;
}

} // namespace

bool Renderer::Draw(ViewedScene& scene, const Camera& camera, unsigned target, const QSize& size, double scale)
{
    // The first picture comes without images: they take longest.
    const bool isFirst = m_meshes.empty() && !scene.Meshes().empty();
    const bool isComplete = !isFirst && m_images.Update(scene.Images(), imageMilliseconds);
    if (std::exchange(m_sceneRevision, scene.Revision()) != scene.Revision()) {
        Upload(scene);
    }

    QOpenGLFunctions& gl = *QOpenGLContext::currentContext()->functions();
    m_frame.Begin(size);
    gl.glClearColor(float(background.redF()), float(background.greenF()), float(background.blueF()), 0.0F);
    gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    gl.glEnable(GL_DEPTH_TEST);
    gl.glDisable(GL_CULL_FACE);
    gl.glDisable(GL_BLEND);
    constexpr float stripeWidth = 6.0F;
    DrawMeshes(scene, {camera.ViewMatrix(), camera.ProjectionMatrix(), stripeWidth * float(scale)});
    m_grid.Draw(camera);
    m_frame.Finish(target, m_isAnySelected ? std::max(1, int(std::lround(1.5 * scale))) : 0);
    return isComplete;
}

void Renderer::Upload(const ViewedScene& scene)
{
    std::unordered_map<Id, std::unique_ptr<GpuMesh>> before = std::exchange(m_meshes, {});
    for (const ViewedMesh& mesh : scene.Meshes()) {
        std::unique_ptr<GpuMesh>& known = before[mesh.mesh];
        if (!known) {
            known = std::make_unique<GpuMesh>(*mesh.geometry);
            m_uploads += 2;
        }
        m_uploads += known->Update(mesh);
        m_meshes[mesh.mesh] = std::move(known);
    }
    m_isAnySelected = !scene.BoundsOfSelection().isEmpty;
}

void Renderer::DrawMeshes(const ViewedScene& scene, const ModelProgram::Frame& frame)
{
    const ModelProgram* bound = nullptr;
    for (const ViewedMesh& mesh : scene.Meshes()) {
        for (const ViewedPart& part : mesh.parts) {
            ModelProgram& program = Program(scene.AreWeightsShown() ? BindWeights(part) : BindImages(part));
            if (bound != &program) {
                program.Bind(frame);
                bound = &program;
            }
            program.SetSurface(SurfaceOf(mesh, part));
            m_meshes[mesh.mesh]->Draw(part.range);
        }
    }
}

ModelProgram::Surface Renderer::SurfaceOf(const ViewedMesh& mesh, const ViewedPart& part) const
{
    ModelProgram::Surface surface;
    surface.diffuse = part.diffuse;
    surface.mark = part.isCurrent ? materialMark : mesh.isSelected ? objectMark : 0.0F;
    if (m_pointedMesh == mesh.mesh && m_pointedMaterial == part.range.material) {
        surface.glow = {0.55F, 0.50F, 0.25F};
    }
    return surface;
}

void Renderer::Point(Id mesh, Id material)
{
    m_pointedMesh = mesh;
    m_pointedMaterial = material;
}

/// \return the features that the program needs for them
unsigned Renderer::BindImages(const ViewedPart& part)
{
    unsigned features = Shaders::Plain;
    if (QOpenGLTexture* diffuse = m_images.Find(part.diffuseImage)) {
        diffuse->bind(Shaders::DiffuseUnit);
        features |= Shaders::DiffuseImage;
    }
    if (QOpenGLTexture* opacity = m_images.Find(part.opacityImage)) {
        opacity->bind(Shaders::OpacityUnit);
        features |= Shaders::OpacityImage;
    }
    return features;
}

unsigned Renderer::BindWeights(const ViewedPart& part)
{
    if (!part.hasWeights) {
        return Shaders::NoWeights;
    }
    if (!m_weightColours) {
        m_weightColours = NewWeightColours();
    }
    m_weightColours->bind(Shaders::WeightUnit);
    return Shaders::Weights;
}

ModelProgram& Renderer::Program(unsigned features)
{
    std::unique_ptr<ModelProgram>& program = m_programs[features];
    if (!program) {
        program = std::make_unique<ModelProgram>(features);
    }
    return *program;
}

} // namespace Host
