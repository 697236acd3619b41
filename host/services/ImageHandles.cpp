#include "host/services/ImageHandles.h"

#include "host/scene/Handles.h"
#include "host/scene/Scene.h"

namespace Host {

PictureKey PictureKey::OfTexture(Id material, MV::ETextureChannel channel)
{
    PictureKey key;
    key.kind = Kind::Texture;
    key.material = material;
    key.channel = channel;
    return key;
}

PictureKey PictureKey::OfWeight(const ClothAddress& address)
{
    PictureKey key;
    key.kind = Kind::Weight;
    key.address = address;
    return key;
}

PictureKey PictureKey::Source() const
{
    PictureKey key = *this;
    key.isSource = true;
    return key;
}

BF::CHandle* ImageHandles::Of(const PictureKey& key)
{
    BF::CHandle*& handle = m_handles[key];
    if (!handle) {
        handle = ToHandle(NewId());
        m_keys.emplace(handle, key);
    }
    return handle;
}

std::optional<PictureKey> ImageHandles::Find(const BF::CHandle* handle) const
{
    const auto found = m_keys.find(handle);
    return found == m_keys.end() ? std::nullopt : std::make_optional(found->second);
}

QString ImageHandles::NameOf(const BF::CHandle* handle, const Scene& scene) const
{
    const std::optional<PictureKey> key = Find(handle);
    if (!key) {
        return {};
    }
    const QString kind = key->isSource ? QStringLiteral("image") : QStringLiteral("thumbnail");
    switch (key->kind) {
    case PictureKey::Kind::Texture:
        return QStringLiteral("%1 of channel %2 of \"%3\"")
            .arg(kind, QString::number(int(key->channel)), scene.NameOf(ToHandle(key->material)));
    case PictureKey::Kind::Weight:
        return QStringLiteral("weight %1 of \"%2\" on \"%3\"")
            .arg(kind, scene.NameOf(ToHandle(key->address.material)), scene.NameOf(ToHandle(key->address.mesh)));
    case PictureKey::Kind::Default:
        break;
    }
    return QStringLiteral("default ") + kind;
}

void ImageHandles::Clear()
{
    m_handles.clear();
    m_keys.clear();
}

} // namespace Host
