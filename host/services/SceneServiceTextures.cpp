#include "host/services/SceneServiceReads.h"

#include <QImage>

#include <algorithm>

// Queries of materials' textures and weight images. Drawing and decoding are answered with a failure.
namespace Host {

BF::Result SceneService::Unavailable(const char* operation, const std::vector<JournalArgument>& arguments) const
{
    return Record(operation, arguments, [] { return BF::Results::Refused; });
}

BF::Result SceneService::GetDefaultThumbnail(BF::CHandle*& thumbnail)
{
    return Unavailable("GetDefaultThumbnail", {Out(thumbnail)});
}

bool SceneService::GetThumbnailSourceImage(BF::CHandle* thumbnail, BF::CHandle*& source)
{
    return RecordValue("GetThumbnailSourceImage", {In(thumbnail), Out(source)}, [] { return false; });
}

BF::Result SceneService::GetThumbnailSource(Id material, MV::ETextureChannel channel, BF::CHandle*& source)
{
    return Unavailable("GetThumbnailSource", {InId(material), In(channel), Out(source)});
}

BF::Result SceneService::OpenTexture(Id material, MV::ETextureChannel channel, bool load)
{
    return Unavailable("OpenTexture", {InId(material), In(channel), In(load)});
}

BF::Result SceneService::GetMaterialTextureState(Id material, MV::ETextureChannel channel, bool& hasTexture,
                                                 bool& hasFile, bool& flag1, bool& flag2)
{
    return Unavailable("GetMaterialTextureState",
                       {InId(material), In(channel), Out(hasTexture), Out(hasFile), Out(flag1), Out(flag2)});
}

BF::Result SceneService::GetTextureThumbnail(Id material, MV::ETextureChannel channel, BF::CHandle*& thumbnail,
                                             bool& hasSource)
{
    return Unavailable("GetTextureThumbnail", {InId(material), In(channel), Out(thumbnail), Out(hasSource)});
}

BF::Result SceneService::RenderThumbnail(int width, int height, BF::CHandle* thumbnail, BF::CHandle* source,
                                         QImage& /*image*/)
{
    return Unavailable("RenderThumbnail", {In(width), In(height), In(thumbnail), In(source)});
}

BF::Result SceneService::GetTexturePath(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                                        std::wstring& path)
{
    return Record("GetTexturePath", {In(object), In(quint64(materialIndex)), In(channel), Out(path)}, [&] {
        const Object* found = CurrentScene().FindObject(object);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        if (materialIndex >= found->materials.size()) {
            return BF::Results::IndexOutOfRange;
        }
        const auto& textures = found->materials[materialIndex].textures;
        const auto texture = textures.find(channel);
        if (texture == textures.end() || texture->second.filePath.isEmpty()) {
            return BF::Results::Refused;
        }
        path = texture->second.filePath.toStdWString();
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetMaterialIndex(BF::CHandle* object, Id material, std::size_t& index)
{
    return Record("GetMaterialIndex", {In(object), InId(material), Out(index)}, [&] {
        const Object* found = CurrentScene().FindObject(object);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        const auto position = std::find_if(found->materials.begin(), found->materials.end(),
                                           [&](const Material& candidate) { return candidate.id == material; });
        if (position == found->materials.end()) {
            return BF::Results::InvalidArgument;
        }
        index = std::size_t(position - found->materials.begin());
        return BF::Results::Success;
    });
}

BF::Result SceneService::ExportUvTexture(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                                         BF::CArrayList<std::wstring>& files)
{
    return Unavailable("ExportUvTexture", {In(object), In(quint64(materialIndex)), In(channel), Out(files)});
}

BF::Result SceneService::GetEmbeddedTexture(Id material, MV::ETextureChannel channel)
{
    return Unavailable("GetEmbeddedTexture", {InId(material), In(channel)});
}

bool SceneService::LoadTextureSource(Id material, MV::ETextureChannel channel)
{
    return RecordValue("LoadTextureSource", {InId(material), In(channel)}, [] { return false; });
}

bool SceneService::IsTextureEmbedded(Id material)
{
    return RecordValue("IsTextureEmbedded", {InId(material)}, [&] {
        const Material* found = CurrentScene().FindMaterial(material);
        if (!found) {
            return false;
        }
        return std::any_of(found->textures.begin(), found->textures.end(), [](const auto& texture) {
            return texture.second.filePath.isEmpty() && !texture.second.embedded.isEmpty();
        });
    });
}

BF::Result SceneService::GetWeightTexture(BF::CHandle* object, Id mesh, Id material, BF::CHandle*& texture)
{
    return Unavailable("GetWeightTexture", {In(object), InId(mesh), InId(material), Out(texture)});
}

BF::Result SceneService::GetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material, MV::WeightImageAdjust& adjust)
{
    return Unavailable("GetWeightImageAdjust", {In(object), InId(mesh), InId(material), Out(adjust)});
}

BF::Result SceneService::GetWeightImagePath(BF::CHandle* object, Id mesh, Id material, std::wstring& path)
{
    return Unavailable("GetWeightImagePath", {In(object), InId(mesh), InId(material), Out(path)});
}

BF::Result SceneService::GetWeightImageEditFile(BF::CHandle* object, Id mesh, Id material, std::wstring& path)
{
    return Unavailable("GetWeightImageEditFile", {In(object), InId(mesh), InId(material), Out(path)});
}

BF::Result SceneService::GetWeightImageState(BF::CHandle* object, Id mesh, Id material, MV::WeightImageState& state)
{
    return Unavailable("GetWeightImageState", {In(object), InId(mesh), InId(material), Out(state)});
}

} // namespace Host
