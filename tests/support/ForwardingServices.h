#pragma once

#include "plugin/services/EditService.h"
#include "plugin/services/FileService.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"

/// Services that pass every call on to another one; a test double derives from these and acts by itself where it
/// has something to say.
namespace Forwarding {

class SceneService : public MV::CSceneService
{
public:
    explicit SceneService(MV::CSceneService& inner)
        : m_inner(inner)
    {
    }
    virtual ~SceneService() = default;

    QWidget* GetMainWindow() override { return m_inner.GetMainWindow(); }
    bool IsPlaying() override { return m_inner.IsPlaying(); }
    BF::Result GetSelectedObjects(BF::CArrayList<BF::CHandle*>& objects, int flag) override
    {
        return m_inner.GetSelectedObjects(objects, flag);
    }
    BF::Result GetObjectType(BF::CHandle* object, quint32& type) override
    {
        return m_inner.GetObjectType(object, type);
    }
    BF::Result GetObjectKind(BF::CHandle* object, int& kind) override { return m_inner.GetObjectKind(object, kind); }
    BF::CHandle* GetSelectedObject(int index) override { return m_inner.GetSelectedObject(index); }
    BF::Result GetMeshHandle(std::size_t mesh, BF::CHandle*& handle) override
    {
        return m_inner.GetMeshHandle(mesh, handle);
    }
    int GetSelectedObjectCount() override { return m_inner.GetSelectedObjectCount(); }
    BF::Result GetObjectName(std::wstring& name, BF::CHandle* objectOrId) override
    {
        return m_inner.GetObjectName(name, objectOrId);
    }
    MV::EDialogMode GetDialogMode() override { return m_inner.GetDialogMode(); }
    MV::EPickMode GetCurrentPickMode() override { return m_inner.GetCurrentPickMode(); }
    BF::Result GetDefaultThumbnail(BF::CHandle*& thumbnail) override { return m_inner.GetDefaultThumbnail(thumbnail); }
    bool GetThumbnailSourceImage(BF::CHandle* thumbnail, BF::CHandle*& source) override
    {
        return m_inner.GetThumbnailSourceImage(thumbnail, source);
    }
    BF::Result GetThumbnailSource(std::size_t material, MV::ETextureChannel channel, BF::CHandle*& source) override
    {
        return m_inner.GetThumbnailSource(material, channel, source);
    }
    BF::Result OpenTexture(std::size_t material, MV::ETextureChannel channel, bool load) override
    {
        return m_inner.OpenTexture(material, channel, load);
    }
    BF::Result GetMaterialTextureState(std::size_t material, MV::ETextureChannel channel, bool& hasTexture,
                                       bool& hasFile, bool& flag1, bool& flag2) override
    {
        return m_inner.GetMaterialTextureState(material, channel, hasTexture, hasFile, flag1, flag2);
    }
    BF::Result GetTextureThumbnail(std::size_t material, MV::ETextureChannel channel, BF::CHandle*& thumbnail,
                                   bool& hasSource) override
    {
        return m_inner.GetTextureThumbnail(material, channel, thumbnail, hasSource);
    }
    BF::Result RenderThumbnail(int width, int height, BF::CHandle* thumbnail, BF::CHandle* source,
                               QImage& image) override
    {
        return m_inner.RenderThumbnail(width, height, thumbnail, source, image);
    }
    BF::Result GetTexturePath(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                              std::wstring& path) override
    {
        return m_inner.GetTexturePath(object, materialIndex, channel, path);
    }
    BF::Result GetMaterialIndex(BF::CHandle* object, std::size_t material, std::size_t& index) override
    {
        return m_inner.GetMaterialIndex(object, material, index);
    }
    BF::Result ExportUvTexture(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                               BF::CArrayList<std::wstring>& files) override
    {
        return m_inner.ExportUvTexture(object, materialIndex, channel, files);
    }
    BF::Result GetEmbeddedTexture(std::size_t material, MV::ETextureChannel channel) override
    {
        return m_inner.GetEmbeddedTexture(material, channel);
    }
    bool LoadTextureSource(std::size_t material, MV::ETextureChannel channel) override
    {
        return m_inner.LoadTextureSource(material, channel);
    }
    bool IsTextureEmbedded(std::size_t material) override { return m_inner.IsTextureEmbedded(material); }
    BF::Result GetDataFolderPath(std::wstring& path, int kind) override
    {
        return m_inner.GetDataFolderPath(path, kind);
    }
    BF::Result GetPhysicsEngineType(int& engine) override { return m_inner.GetPhysicsEngineType(engine); }
    BF::Result IsPhysicsActive(BF::CHandle* object, int kind, bool& active) override
    {
        return m_inner.IsPhysicsActive(object, kind, active);
    }
    BF::Result GetSoftClothConvertState(BF::CHandle* object, int& state) override
    {
        return m_inner.GetSoftClothConvertState(object, state);
    }
    BF::Result IsSoftClothActive(BF::CHandle* object, std::size_t mesh, std::size_t material, bool& active) override
    {
        return m_inner.IsSoftClothActive(object, mesh, material, active);
    }
    bool IsMaterialSoftClothEnabled(std::size_t material) override
    {
        return m_inner.IsMaterialSoftClothEnabled(material);
    }
    BF::Result GetUseGlobalGravity(BF::CHandle* object, std::size_t mesh, std::size_t material, bool& use,
                                   bool affectAllMaterials) override
    {
        return m_inner.GetUseGlobalGravity(object, mesh, material, use, affectAllMaterials);
    }
    BF::Result GetWeightTexture(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                BF::CHandle*& texture) override
    {
        return m_inner.GetWeightTexture(object, mesh, material, texture);
    }
    BF::Result GetWeightImageAdjust(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                    MV::WeightImageAdjust& adjust) override
    {
        return m_inner.GetWeightImageAdjust(object, mesh, material, adjust);
    }
    BF::Result GetWeightImagePath(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                  std::wstring& path) override
    {
        return m_inner.GetWeightImagePath(object, mesh, material, path);
    }
    BF::Result GetWeightImageEditFile(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                      std::wstring& path) override
    {
        return m_inner.GetWeightImageEditFile(object, mesh, material, path);
    }
    BF::Result GetWeightImageState(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                   MV::WeightImageState& state) override
    {
        return m_inner.GetWeightImageState(object, mesh, material, state);
    }
    BF::Result GetSoftClothProperty(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                    MV::SoftClothPropertyData& data) override
    {
        return m_inner.GetSoftClothProperty(object, mesh, material, data);
    }
    BF::Result GetSoftClothCollision(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                     MV::SoftClothCollisionData& data) override
    {
        return m_inner.GetSoftClothCollision(object, mesh, material, data);
    }
    BF::Result GetSoftClothWind(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                MV::SoftClothWindData& data) override
    {
        return m_inner.GetSoftClothWind(object, mesh, material, data);
    }
    BF::Result GetSaveImageFileName(QString& path, int kind1, int kind2, int kind3, const QString& defaultName) override
    {
        return m_inner.GetSaveImageFileName(path, kind1, kind2, kind3, defaultName);
    }
    BF::Result GetOpenImageFileName(QString& path, int kind1, int kind2, int kind3) override
    {
        return m_inner.GetOpenImageFileName(path, kind1, kind2, kind3);
    }
    BF::Result GetMeshList(BF::CHandle* object, BF::CArrayList<std::size_t>& meshes) override
    {
        return m_inner.GetMeshList(object, meshes);
    }
    BF::Result GetMaterialList(std::size_t mesh, BF::CArrayList<std::size_t>& materials, int flag) override
    {
        return m_inner.GetMaterialList(mesh, materials, flag);
    }
    BF::Result GetDefaultFolder(QString& folder, int kind) override { return m_inner.GetDefaultFolder(folder, kind); }
    BF::Result IsPanelBlockedForObject(BF::CHandle* object, bool& blocked) override
    {
        return m_inner.IsPanelBlockedForObject(object, blocked);
    }
    bool IsPanelBlockedForObjectEx(BF::CHandle* object) override { return m_inner.IsPanelBlockedForObjectEx(object); }
    std::size_t GetMaterialIdByIndex(BF::CHandle* object, std::size_t index) override
    {
        return m_inner.GetMaterialIdByIndex(object, index);
    }

private:
    MV::CSceneService& m_inner;
};

class EditService : public MV::CEditService
{
public:
    explicit EditService(MV::CEditService& inner)
        : m_inner(inner)
    {
    }
    virtual ~EditService() = default;

    BF::Result ConvertToRigidBody(BF::CHandle* object) override { return m_inner.ConvertToRigidBody(object); }
    BF::Result CancelMultiMaterialSoftCloth(BF::CHandle* object) override
    {
        return m_inner.CancelMultiMaterialSoftCloth(object);
    }
    BF::Result SetPhysicsActive(BF::CHandle* object, int kind, bool active, bool flag1, bool flag2) override
    {
        return m_inner.SetPhysicsActive(object, kind, active, flag1, flag2);
    }
    BF::Result SetUseGlobalGravity(BF::CHandle* object, std::size_t mesh, std::size_t material, bool use,
                                   bool affectAllMaterials) override
    {
        return m_inner.SetUseGlobalGravity(object, mesh, material, use, affectAllMaterials);
    }
    BF::Result DeleteWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material) override
    {
        return m_inner.DeleteWeightImage(object, mesh, material);
    }
    BF::Result EmbedWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material) override
    {
        return m_inner.EmbedWeightImage(object, mesh, material);
    }
    BF::Result SetWeightImageAdjust(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                    const MV::WeightImageAdjust& adjust, bool flag1, bool flag2) override
    {
        return m_inner.SetWeightImageAdjust(object, mesh, material, adjust, flag1, flag2);
    }
    BF::Result SetIgnoredMaterialNames(BF::CHandle* object,
                                       const std::map<std::wstring, BF::CArrayList<std::wstring>>& names) override
    {
        return m_inner.SetIgnoredMaterialNames(object, names);
    }
    BF::Result SetSoftClothProperty(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                    MV::ESoftClothPropertyType type, const MV::SoftClothPropertyData& data,
                                    bool affectAllMaterials) override
    {
        return m_inner.SetSoftClothProperty(object, mesh, material, type, data, affectAllMaterials);
    }
    BF::Result SetSoftClothCollision(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                     MV::ESoftClothCollisionType type, const MV::SoftClothCollisionData& data,
                                     bool affectAllMaterials) override
    {
        return m_inner.SetSoftClothCollision(object, mesh, material, type, data, affectAllMaterials);
    }
    BF::Result SetSoftClothWind(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                MV::ESoftClothWindType type, const MV::SoftClothWindData& data,
                                bool affectAllMaterials) override
    {
        return m_inner.SetSoftClothWind(object, mesh, material, type, data, affectAllMaterials);
    }
    BF::Result UndoLastEdit() override { return m_inner.UndoLastEdit(); }
    BF::Result SetMaterialSoftClothEnabled(std::size_t material, bool enabled) override
    {
        return m_inner.SetMaterialSoftClothEnabled(material, enabled);
    }

private:
    MV::CEditService& m_inner;
};

class FileService : public MV::CFileService
{
public:
    explicit FileService(MV::CFileService& inner)
        : m_inner(inner)
    {
    }
    virtual ~FileService() = default;

    BF::Result LoadWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material, const std::wstring& path,
                               int mode) override
    {
        return m_inner.LoadWeightImage(object, mesh, material, path, mode);
    }
    BF::Result LoadSoftIniProfile(const std::wstring& path) override { return m_inner.LoadSoftIniProfile(path); }
    BF::Result SaveWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material,
                               const std::wstring& path) override
    {
        return m_inner.SaveWeightImage(object, mesh, material, path);
    }

private:
    MV::CFileService& m_inner;
};

class UiService : public MV::CUiService
{
public:
    explicit UiService(MV::CUiService& inner)
        : m_inner(inner)
    {
    }
    virtual ~UiService() = default;

    BF::Result ChangePickMode(MV::EPickMode mode) override { return m_inner.ChangePickMode(mode); }
    BF::Result CancelPickMode() override { return m_inner.CancelPickMode(); }
    BF::Result SetDialogMode(MV::EDialogMode mode) override { return m_inner.SetDialogMode(mode); }
    BF::Result RefreshScene(int flag) override { return m_inner.RefreshScene(flag); }
    BF::Result LaunchImageEditor(const BF::CArrayList<std::wstring>& files) override
    {
        return m_inner.LaunchImageEditor(files);
    }
    int ShowMessageBox(const QString& text, const QString& title, QWidget* parent, int icon, int buttons,
                       int defaultButton) override
    {
        return m_inner.ShowMessageBox(text, title, parent, icon, buttons, defaultButton);
    }
    BF::Result ShowPanelPage(int page, int order, int flags) override
    {
        return m_inner.ShowPanelPage(page, order, flags);
    }

private:
    MV::CUiService& m_inner;
};

} // namespace Forwarding
