#include "host/services/SceneServiceReads.h"

#include "host/images/ImageDecode.h"
#include "host/images/UvLayout.h"
#include "host/services/ImageEditor.h"
#include "host/services/UvLayoutFiles.h"

#include <QFileInfo>
#include <QImage>

#include <algorithm>

// Queries of materials' textures and of what they look like.
namespace Host {

namespace {

constexpr int largestThumbnail = 4096;

/// Whether there are bytes to decode, be they any good or not.
bool HasContent(const Texture& texture)
{
    return texture.filePath.isEmpty() ? !texture.embedded.isEmpty() : QFileInfo(texture.filePath).isFile();
}

bool IsEmbedded(const Texture& texture)
{
    return texture.filePath.isEmpty() && !texture.embedded.isEmpty();
}

/// The slots of \p material on \p object, or on the one mesh that \p objectOrMesh stands for.
std::vector<SlotOfMesh> SlotsWith(Id material, const Object& object, const BF::CHandle* objectOrMesh)
{
    std::vector<SlotOfMesh> found;
    for (const Mesh& mesh : object.meshes) {
        if (objectOrMesh != object.handle && ToId(objectOrMesh) != mesh.id) {
            continue;
        }
        for (const MaterialSlot& slot : mesh.materialSlots) {
            if (slot.material == material) {
                found.push_back({&mesh, &slot});
            }
        }
    }
    return found;
}

} // namespace

const Object* SceneService::FindOwner(const BF::CHandle* objectOrMesh) const
{
    const Object* object = CurrentScene().FindObject(objectOrMesh);
    return object ? object : CurrentScene().OwnerOfMesh(ToId(objectOrMesh));
}

BF::Result SceneService::GetDefaultThumbnail(BF::CHandle*& thumbnail)
{
    return Record("GetDefaultThumbnail", {Out(thumbnail)}, [&] {
        thumbnail = App().Images().Handles().Of({});
        return BF::Results::Success;
    });
}

bool SceneService::GetThumbnailSourceImage(BF::CHandle* thumbnail, BF::CHandle*& source)
{
    return RecordValue("GetThumbnailSourceImage", {In(thumbnail), Out(source)}, [&] {
        Pictures& pictures = App().Images();
        const auto key = pictures.Handles().Find(thumbnail);
        if (!key || !pictures.IsReadable(pictures.TextureOf(*key))) {
            return false;
        }
        source = pictures.Handles().Of(key->Source());
        return true;
    });
}

BF::Result SceneService::GetThumbnailSource(Id material, MV::ETextureChannel channel, BF::CHandle*& source)
{
    return UseTexture("GetThumbnailSource", material, channel, {Out(source)}, [&](const Texture& texture) {
        if (!App().Images().IsReadable(texture)) {
            return BF::Results::Refused;
        }
        source = App().Images().Handles().Of(PictureKey::OfTexture(material, channel).Source());
        return BF::Results::Success;
    });
}

/// A file that cannot be decoded is no failure: its thumbnail shows that, and the others are still to be seen.
BF::Result SceneService::OpenTexture(Id material, MV::ETextureChannel channel, bool load)
{
    return UseTexture("OpenTexture", material, channel, {In(load)}, [&](const Texture& texture) {
        if (!IsPresent(texture)) {
            return BF::Results::Refused;
        }
        return load && App().Images().IsReadable(texture) ? BF::Results::Success : BF::Results::NothingDone;
    });
}

BF::Result SceneService::GetMaterialTextureState(Id material, MV::ETextureChannel channel, bool& hasTexture,
                                                 bool& hasFile, bool& flag1, bool& flag2)
{
    return UseTexture("GetMaterialTextureState", material, channel,
                      {Out(hasTexture), Out(hasFile), Out(flag1), Out(flag2)}, [&](const Texture& texture) {
                          hasTexture = IsPresent(texture);
                          hasFile = HasContent(texture);
                          flag1 = IsEmbedded(texture);
                          flag2 = App().Images().Store().IsLoading(texture);
                          return BF::Results::Success;
                      });
}

BF::Result SceneService::GetTextureThumbnail(Id material, MV::ETextureChannel channel, BF::CHandle*& thumbnail,
                                             bool& hasSource)
{
    return UseTexture("GetTextureThumbnail", material, channel, {Out(thumbnail), Out(hasSource)},
                      [&](const Texture& texture) {
                          if (!IsPresent(texture)) {
                              return BF::Results::Refused;
                          }
                          thumbnail = App().Images().Handles().Of(PictureKey::OfTexture(material, channel));
                          hasSource = App().Images().IsReadable(texture);
                          return BF::Results::Success;
                      });
}

BF::Result SceneService::RenderThumbnail(int width, int height, BF::CHandle* thumbnail, BF::CHandle* source,
                                         QImage& image)
{
    return Record("RenderThumbnail", {In(width), In(height), In(thumbnail), In(source)}, [&] {
        Pictures& pictures = App().Images();
        if (width < 1 || height < 1 || width > largestThumbnail || height > largestThumbnail ||
            !pictures.Handles().Find(thumbnail)) {
            return BF::Results::InvalidArgument;
        }
        const auto drawn = pictures.Draw(source ? source : thumbnail, {width, height});
        if (!drawn) {
            return BF::Results::InvalidArgument;
        }
        image = *drawn;
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetTexturePath(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                                        std::wstring& path)
{
    return Record("GetTexturePath", {In(object), In(quint64(materialIndex)), In(channel), Out(path)}, [&] {
        const Object* found = FindOwner(object);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        if (materialIndex >= found->materials.size()) {
            return BF::Results::IndexOutOfRange;
        }
        const Texture texture = App().Images().TextureOf(found->materials[materialIndex].id, channel);
        if (texture.filePath.isEmpty()) {
            return BF::Results::Refused;
        }
        path = texture.filePath.toStdWString();
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetMaterialIndex(BF::CHandle* object, Id material, std::size_t& index)
{
    return Record("GetMaterialIndex", {In(object), InId(material), Out(index)}, [&] {
        const Object* found = FindOwner(object);
        const auto position = found ? CurrentScene().PositionOfMaterial(*found, material) : std::nullopt;
        if (!position) {
            return BF::Results::InvalidArgument;
        }
        index = *position;
        return BF::Results::Success;
    });
}

BF::Result SceneService::ExportUvTexture(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                                         BF::CArrayList<std::wstring>& files)
{
    return Record("ExportUvTexture", {In(object), In(quint64(materialIndex)), In(channel), Out(files)}, [&] {
        const Object* found = FindOwner(object);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        if (materialIndex >= found->materials.size()) {
            return BF::Results::IndexOutOfRange;
        }
        QString file;
        const BF::Result written = WriteUvTexture(object, found->materials[materialIndex], channel, file);
        if (!written.IsFailure()) {
            files.Clear();
        }
        if (!file.isEmpty()) {
            files = {file.toStdWString()};
        }
        return written;
    });
}

BF::Result SceneService::WriteUvTexture(const BF::CHandle* objectOrMesh, const Material& material,
                                        MV::ETextureChannel channel, QString& file) const
{
    const Texture texture = App().Images().TextureOf(material.id, channel);
    if (!IsPresent(texture)) {
        return BF::Results::Refused;
    }
    const Object& owner = *FindOwner(objectOrMesh);
    const std::vector<SlotOfMesh> drawn = SlotsWith(material.id, owner, objectOrMesh);
    UvLayoutFiles::Slots addresses;
    for (const SlotOfMesh& each : drawn) {
        addresses.push_back({owner.handle, each.mesh->id, material.id});
    }
    UvLayoutFiles& layouts = App().Editor().Layouts();
    file = layouts.FileOf(addresses);
    if (!file.isEmpty()) {
        return BF::Results::Success; // with what was painted in it
    }
    const ImageStore::Image stored = App().Images().Store().Get(texture);
    if (stored->image.isNull()) {
        App().ExplainNextBox(UnreadableImageText(texture.filePath.isEmpty()
                                                     ? HostApplication::tr("embedded texture of %1").arg(material.name)
                                                     : texture.filePath,
                                                 stored->error));
        return BF::Results::ResourceFailure;
    }
    const QImage layout = DrawUvLayout(stored->image, drawn);
    return layouts.Keep(owner.name + QLatin1Char('-') + material.name + QLatin1String("-uv"), layout, addresses, file);
}

/// Opens the texture where it is, also where that is a file: the materials' other textures may be the embedded ones.
BF::Result SceneService::GetEmbeddedTexture(Id material, MV::ETextureChannel channel)
{
    return UseTexture("GetEmbeddedTexture", material, channel, {}, [&](const Texture& texture) {
        if (!IsPresent(texture)) {
            return BF::Results::Refused;
        }
        return App().Images().IsReadable(texture) ? BF::Results::Success : BF::Results::NothingDone;
    });
}

bool SceneService::LoadTextureSource(Id material, MV::ETextureChannel channel)
{
    return RecordValue("LoadTextureSource", {InId(material), In(channel)},
                       [&] { return App().Images().IsReadable(App().Images().TextureOf(material, channel)); });
}

bool SceneService::IsTextureEmbedded(Id material)
{
    return RecordValue("IsTextureEmbedded", {InId(material)}, [&] {
        const Material* found = CurrentScene().FindMaterial(material);
        return found && std::any_of(found->textures.begin(), found->textures.end(),
                                    [](const auto& texture) { return IsEmbedded(texture.second); });
    });
}

} // namespace Host
