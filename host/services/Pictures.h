#pragma once

#include "host/images/ImageStore.h"
#include "host/services/ImageHandles.h"

#include <QSize>

#include <optional>
#include <vector>

namespace Host {

class HostApplication;

/// The textures and weight images of the current scene as pictures: finds, decodes and draws them.
class Pictures
{
public:
    explicit Pictures(const HostApplication& host)
        : m_host(host)
    {
    }

    ImageStore& Store() { return m_store; }
    ImageHandles& Handles() { return m_handles; }
    const ImageHandles& Handles() const { return m_handles; }

    /// A material's texture; neither linked nor embedded when there is none. Of the weight channel it is the first
    /// weight image that the material has on any mesh.
    Texture TextureOf(Id material, MV::ETextureChannel channel) const;
    /// The same for a handle.
    Texture TextureOf(const PictureKey& key) const;
    /// Null for an unknown address.
    const WeightImage* WeightOf(const ClothAddress& address) const;

    /// Whether \p texture can be shown now: it is not still being loaded, and it can be decoded.
    bool IsReadable(const Texture& texture);

    /// The picture of \p handle at \p size; none for an unknown handle and for one whose image is gone. What cannot be
    /// read is drawn as a broken picture.
    std::optional<QImage> Draw(const BF::CHandle* handle, const QSize& size);

    /// Decodes all images of \p object on other threads.
    void LoadInBackground(const Object& object);

private:
    const HostApplication& m_host;
    ImageStore m_store;
    ImageHandles m_handles;
};

/// Whether there is an image at all.
inline bool IsPresent(const Texture& texture)
{
    return !texture.filePath.isEmpty() || !texture.embedded.isEmpty();
}

} // namespace Host
