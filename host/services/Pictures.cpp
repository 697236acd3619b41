#include "host/services/Pictures.h"

#include "host/images/Thumbnail.h"
#include "host/images/WeightAdjust.h"
#include "host/services/HostApplication.h"

namespace Host {

Texture Pictures::TextureOf(Id material, MV::ETextureChannel channel) const
{
    const Scene& scene = m_host.CurrentScene();
    const Material* found = scene.FindMaterial(material);
    if (!found) {
        return {};
    }
    if (channel != MV::ETextureChannel::Weight) {
        const auto texture = found->textures.find(channel);
        return texture == found->textures.end() ? Texture() : texture->second;
    }
    const Object& owner = *scene.OwnerOfMaterial(material);
    for (const Mesh& mesh : owner.meshes) {
        const WeightImage* weight = WeightOf({owner.handle, mesh.id, material});
        if (weight && !weight->IsNone()) {
            return weight->image;
        }
    }
    return {};
}

Texture Pictures::TextureOf(const PictureKey& key) const
{
    if (key.kind == PictureKey::Kind::Weight) {
        const WeightImage* weight = WeightOf(key.address);
        return weight ? weight->image : Texture();
    }
    return key.kind == PictureKey::Kind::Texture ? TextureOf(key.material, key.channel) : Texture();
}

const WeightImage* Pictures::WeightOf(const ClothAddress& address) const
{
    const MaterialSlot* slot = m_host.CurrentScene().FindSlot(address);
    return slot ? &slot->cloth.weight : nullptr;
}

bool Pictures::IsReadable(const Texture& texture)
{
    return IsPresent(texture) && !m_store.IsLoading(texture) && !m_store.Get(texture)->image.isNull();
}

std::optional<QImage> Pictures::Draw(const BF::CHandle* handle, const QSize& size)
{
    const std::optional<PictureKey> key = m_handles.Find(handle);
    if (!key) {
        return std::nullopt;
    }
    if (key->kind == PictureKey::Kind::Default) {
        return RenderNoPicture(size);
    }
    const Texture texture = TextureOf(*key);
    if (!IsPresent(texture)) {
        return std::nullopt;
    }
    if (m_store.IsLoading(texture)) {
        return RenderNoPicture(size);
    }
    const ImageStore::Image stored = m_store.Get(texture);
    if (stored->image.isNull()) {
        return RenderBrokenPicture(size);
    }
    const bool isPreviewEnough =
        !key->isSource || (size.width() <= stored->preview.width() && size.height() <= stored->preview.height());
    const QImage& picture = isPreviewEnough ? stored->preview : stored->image;
    if (key->kind == PictureKey::Kind::Texture) {
        return RenderThumbnail(picture, size);
    }
    const WeightImage& weight = *WeightOf(key->address);
    return RenderThumbnail(AdjustedGray(picture, AdjustTable(weight.brightness, weight.contrast)), size);
}

void Pictures::LoadInBackground(const Object& object)
{
    std::vector<Texture> textures;
    for (const Material& material : object.materials) {
        for (const auto& texture : material.textures) {
            textures.push_back(texture.second);
        }
    }
    for (const Mesh& mesh : object.meshes) {
        for (const MaterialSlot& slot : mesh.materialSlots) {
            if (!slot.cloth.weight.IsNone()) {
                textures.push_back(slot.cloth.weight.image);
            }
        }
    }
    m_store.LoadInBackground(textures);
}

} // namespace Host
