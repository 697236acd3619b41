#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/SceneService.h"

namespace Host {

/// MV::CSceneService over the scene. The interface documents the operations.
class SceneService final : public MV::CSceneService, private ServiceBase
{
public:
    explicit SceneService(HostApplication& host);

    QWidget* GetMainWindow() override;
    bool IsPlaying() override;
    BF::Result GetSelectedObjects(BF::CArrayList<BF::CHandle*>& objects, int flag) override;
    BF::Result GetObjectType(BF::CHandle* object, quint32& type) override;
    BF::Result GetObjectKind(BF::CHandle* object, int& kind) override;
    BF::CHandle* GetSelectedObject(int index) override;
    BF::Result GetMeshHandle(Id mesh, BF::CHandle*& handle) override;
    int GetSelectedObjectCount() override;
    BF::Result GetObjectName(std::wstring& name, BF::CHandle* objectOrId) override;
    MV::EDialogMode GetDialogMode() override;
    MV::EPickMode GetCurrentPickMode() override;
    BF::Result GetDefaultThumbnail(BF::CHandle*& thumbnail) override;
    bool GetThumbnailSourceImage(BF::CHandle* thumbnail, BF::CHandle*& source) override;
    BF::Result GetThumbnailSource(Id material, MV::ETextureChannel channel, BF::CHandle*& source) override;
    BF::Result OpenTexture(Id material, MV::ETextureChannel channel, bool load) override;
    BF::Result GetMaterialTextureState(Id material, MV::ETextureChannel channel, bool& hasTexture, bool& hasFile,
                                       bool& flag1, bool& flag2) override;
    BF::Result GetTextureThumbnail(Id material, MV::ETextureChannel channel, BF::CHandle*& thumbnail,
                                   bool& hasSource) override;
    BF::Result RenderThumbnail(int width, int height, BF::CHandle* thumbnail, BF::CHandle* source,
                               QImage& image) override;
    BF::Result GetTexturePath(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                              std::wstring& path) override;
    BF::Result GetMaterialIndex(BF::CHandle* object, Id material, std::size_t& index) override;
    BF::Result ExportUvTexture(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                               BF::CArrayList<std::wstring>& files) override;
    BF::Result GetEmbeddedTexture(Id material, MV::ETextureChannel channel) override;
    bool LoadTextureSource(Id material, MV::ETextureChannel channel) override;
    bool IsTextureEmbedded(Id material) override;
    BF::Result GetDataFolderPath(std::wstring& path, int kind) override;
    BF::Result GetPhysicsEngineType(int& engine) override;
    BF::Result IsPhysicsActive(BF::CHandle* object, int kind, bool& active) override;
    BF::Result GetSoftClothConvertState(BF::CHandle* object, int& state) override;
    BF::Result IsSoftClothActive(BF::CHandle* object, Id mesh, Id material, bool& active) override;
    bool IsMaterialSoftClothEnabled(Id material) override;
    BF::Result GetUseGlobalGravity(BF::CHandle* object, Id mesh, Id material, bool& use,
                                   bool affectAllMaterials) override;
    BF::Result GetWeightTexture(BF::CHandle* object, Id mesh, Id material, BF::CHandle*& texture) override;
    BF::Result GetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material, MV::WeightImageAdjust& adjust) override;
    BF::Result GetWeightImagePath(BF::CHandle* object, Id mesh, Id material, std::wstring& path) override;
    BF::Result GetWeightImageEditFile(BF::CHandle* object, Id mesh, Id material, std::wstring& path) override;
    BF::Result GetWeightImageState(BF::CHandle* object, Id mesh, Id material, MV::WeightImageState& state) override;
    BF::Result GetSoftClothProperty(BF::CHandle* object, Id mesh, Id material,
                                    MV::SoftClothPropertyData& data) override;
    BF::Result GetSoftClothCollision(BF::CHandle* object, Id mesh, Id material,
                                     MV::SoftClothCollisionData& data) override;
    BF::Result GetSoftClothWind(BF::CHandle* object, Id mesh, Id material, MV::SoftClothWindData& data) override;
    BF::Result GetSaveImageFileName(QString& path, int kind1, int kind2, int kind3,
                                    const QString& defaultName) override;
    BF::Result GetOpenImageFileName(QString& path, int kind1, int kind2, int kind3) override;
    BF::Result GetMeshList(BF::CHandle* object, BF::CArrayList<Id>& meshes) override;
    BF::Result GetMaterialList(Id mesh, BF::CArrayList<Id>& materials, int flag) override;
    BF::Result GetDefaultFolder(QString& folder, int kind) override;
    BF::Result IsPanelBlockedForObject(BF::CHandle* object, bool& blocked) override;
    bool IsPanelBlockedForObjectEx(BF::CHandle* object) override;
    Id GetMaterialIdByIndex(BF::CHandle* object, std::size_t index) override;

private:
    /// Records \p operation and returns what \p read makes of the object, or a failure for an unknown one.
    template <class Read>
    BF::Result ReadObject(const char* operation, const std::vector<JournalArgument>& arguments, BF::CHandle* object,
                          Read read) const;
    template <class Read>
    BF::Result ReadSlot(const char* operation, BF::CHandle* object, Id mesh, Id material,
                        std::vector<JournalArgument> furtherArguments, Read read) const;
    /// Records an operation on a texture of a material and returns what \p use makes of it, or a failure for an
    /// unknown material.
    template <class Use>
    BF::Result UseTexture(const char* operation, Id material, MV::ETextureChannel channel,
                          std::vector<JournalArgument> furtherArguments, Use use) const;
    /// The object of that handle, or the one that the mesh of that handle belongs to; null for an unknown handle.
    const Object* FindOwner(const BF::CHandle* objectOrMesh) const;
    /// The file of the UV layout of a material over one of its textures: the one in which the user paints, or a new
    /// one.
    BF::Result WriteUvTexture(const BF::CHandle* objectOrMesh, const Material& material, MV::ETextureChannel channel,
                              QString& file) const;
};

} // namespace Host
