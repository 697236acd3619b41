#include "host/viewport/GpuImages.h"

#include "host/viewport/ViewedImages.h"

#include <QElapsedTimer>
#include <QImage>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <iterator>

namespace Host {

namespace {

/// As fine as is seen in a view, and four of them for the memory of one more step.
constexpr int mostSide = 4096;

std::unique_ptr<QOpenGLTexture> NewTexture(const QImage& image)
{
    if (image.isNull()) {
        return nullptr;
    }
    GLint most = 0;
    QOpenGLContext::currentContext()->functions()->glGetIntegerv(GL_MAX_TEXTURE_SIZE, &most);
    most = std::min(most, mostSide);
    const bool isLarge = image.width() > most || image.height() > most;
    // The first line of a texture is the lowest one.
    const QImage picture =
        (isLarge ? image.scaled(most, most, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image).mirrored();
    auto texture = std::make_unique<QOpenGLTexture>(picture, QOpenGLTexture::GenerateMipMaps);
    texture->setMinMagFilters(QOpenGLTexture::LinearMipMapLinear, QOpenGLTexture::Linear);
    texture->setWrapMode(QOpenGLTexture::Repeat);
    return texture;
}

} // namespace

QOpenGLTexture* GpuImages::Find(int image) const
{
    const auto found = m_textures.find(image);
    return found == m_textures.end() ? nullptr : found->second.texture.get();
}

bool GpuImages::Update(ViewedImages& images, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    for (auto known = m_textures.begin(); known != m_textures.end();) {
        known = known->first < images.Count() ? std::next(known) : m_textures.erase(known);
    }
    for (int image = 0; image < images.Count(); ++image) {
        Entry& entry = m_textures[image];
        if (entry.revision == images.Revision(image) || !images.IsReady(image)) {
            continue;
        }
        if (timer.elapsed() > milliseconds) {
            return false;
        }
        entry.texture = NewTexture(images.Get(image));
        entry.revision = images.Revision(image);
        ++m_uploads;
    }
    return true;
}

} // namespace Host
