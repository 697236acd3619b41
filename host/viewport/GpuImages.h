#pragma once

#include <QOpenGLTexture>

#include <memory>
#include <unordered_map>

namespace Host {

class ViewedImages;

/// The model's images as textures on the graphics processor.
class GpuImages
{
public:
    /// The texture of an image; null while it has none. A picture that changes shows the old one until then.
    QOpenGLTexture* Find(int image) const;

    /// Uploads images that are new until \p milliseconds are over, at least one. \return whether all are there
    bool Update(ViewedImages& images, int milliseconds);

    int UploadCount() const { return m_uploads; }

private:
    struct Entry
    {
        std::unique_ptr<QOpenGLTexture> texture; ///< Null for an image that cannot be read.
        int revision = 0;
    };

    std::unordered_map<int, Entry> m_textures;
    int m_uploads = 0;
};

} // namespace Host
