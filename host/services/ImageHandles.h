#pragma once

#include "host/scene/SceneEdit.h"

#include <map>
#include <optional>
#include <tuple>

namespace Host {

class Scene;

/// What an image handle means: no pixels, but a place in the scene whose picture may change.
struct PictureKey
{
    enum class Kind
    {
        Default, ///< The picture to show for none.
        Texture, ///< A channel of a material.
        Weight,  ///< The weight image of a material on a mesh.
    };

    Kind kind = Kind::Default;
    bool isSource = false; ///< The image in all its pixels, not its thumbnail.
    Id material = 0;       ///< Of a texture.
    MV::ETextureChannel channel = MV::ETextureChannel::Diffuse;
    ClothAddress address; ///< Of a weight image.

    static PictureKey OfTexture(Id material, MV::ETextureChannel channel);
    static PictureKey OfWeight(const ClothAddress& address);
    PictureKey Source() const;

    friend bool operator<(const PictureKey& a, const PictureKey& b) { return a.Tie() < b.Tie(); }

private:
    std::tuple<Kind, bool, Id, MV::ETextureChannel, const BF::CHandle*, Id, Id> Tie() const
    {
        return {kind, isSource, material, channel, address.object, address.mesh, address.material};
    }
};

/// The image handles that the host has given out. They are numbers: looked up, never dereferenced.
class ImageHandles
{
public:
    /// The handle of a picture; the same one whenever it is asked for.
    BF::CHandle* Of(const PictureKey& key);
    /// What \p handle means; none for an unknown handle.
    std::optional<PictureKey> Find(const BF::CHandle* handle) const;
    /// How the journal names \p handle; a null string for an unknown one.
    QString NameOf(const BF::CHandle* handle, const Scene& scene) const;

    /// Makes all handles unknown.
    void Clear();

private:
    std::map<PictureKey, BF::CHandle*> m_handles;
    std::map<const BF::CHandle*, PictureKey> m_keys;
};

} // namespace Host
