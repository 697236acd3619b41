#pragma once

#include "plugin/services/SoftClothRecords.h"

#include <MVPluginQt/ArrayList.h>
#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Handle.h>
#include <MVPluginQt/Result.h>

#include <cstddef>
#include <string>

class QImage;
class QString;
class QWidget;

namespace MV {

/// Queries of the scene, the selection and the soft cloth values.
///
/// Objects are handles; meshes and materials are pointer-sized ids. Soft cloth values are addressed by an object, one
/// of its meshes and one of that mesh's materials. Operations that return BF::Result write their out argument only
/// when they succeed. The order of the functions is part of the contract with the host.
class CSceneService
{
public:
    /// Parent of the plug-in's dialogs.
    virtual QWidget* GetMainWindow() = 0;
    virtual bool IsPlaying() = 0;
    /// \param flag  1
    virtual BF::Result GetSelectedObjects(BF::CArrayList<BF::CHandle*>& objects, int flag) = 0;
    virtual BF::Result GetObjectType(BF::CHandle* object, quint32& type) = 0;
    virtual BF::Result GetObjectKind(BF::CHandle* object, int& kind) = 0;
    /// The \p index-th selected object; null when fewer are selected.
    virtual BF::CHandle* GetSelectedObject(int index) = 0;
    virtual BF::Result GetMeshHandle(std::size_t mesh, BF::CHandle*& handle) = 0;
    virtual int GetSelectedObjectCount() = 0;
    /// Display name of an object; mesh and material ids are passed as handles.
    virtual BF::Result GetObjectName(std::wstring& name, BF::CHandle* objectOrId) = 0;
    virtual EDialogMode GetDialogMode() = 0;
    virtual EPickMode GetCurrentPickMode() = 0;

    /// Picture to show where a channel has no texture.
    virtual BF::Result GetDefaultThumbnail(BF::CHandle*& thumbnail) = 0;
    /// Whether \p thumbnail has a source image, and which.
    virtual bool GetThumbnailSourceImage(BF::CHandle* thumbnail, BF::CHandle*& source) = 0;
    virtual BF::Result GetThumbnailSource(std::size_t material, ETextureChannel channel, BF::CHandle*& source) = 0;
    virtual BF::Result OpenTexture(std::size_t material, ETextureChannel channel, bool load) = 0;
    virtual BF::Result GetMaterialTextureState(std::size_t material, ETextureChannel channel, bool& hasTexture,
                                               bool& hasFile, bool& flag1, bool& flag2) = 0;
    virtual BF::Result GetTextureThumbnail(std::size_t material, ETextureChannel channel, BF::CHandle*& thumbnail,
                                           bool& hasSource) = 0;
    /// Draws a thumbnail into \p image, \p width x \p height pixels; the aspect of the source is kept.
    virtual BF::Result RenderThumbnail(int width, int height, BF::CHandle* thumbnail, BF::CHandle* source,
                                       QImage& image) = 0;
    virtual BF::Result GetTexturePath(BF::CHandle* object, std::size_t materialIndex, ETextureChannel channel,
                                      std::wstring& path) = 0;
    virtual BF::Result GetMaterialIndex(BF::CHandle* object, std::size_t material, std::size_t& index) = 0;
    virtual BF::Result ExportUvTexture(BF::CHandle* object, std::size_t materialIndex, ETextureChannel channel,
                                       BF::CArrayList<std::wstring>& files) = 0;
    virtual BF::Result GetEmbeddedTexture(std::size_t material, ETextureChannel channel) = 0;
    virtual bool LoadTextureSource(std::size_t material, ETextureChannel channel) = 0;
    virtual bool IsTextureEmbedded(std::size_t material) = 0;

    /// Folder of the host's data; kind 3 is the root of the preset files. Ends with a separator.
    virtual BF::Result GetDataFolderPath(std::wstring& path, int kind) = 0;
    virtual BF::Result GetPhysicsEngineType(int& engine) = 0;
    /// \param kind  physics kind; 3 is soft cloth
    virtual BF::Result IsPhysicsActive(BF::CHandle* object, int kind, bool& active) = 0;
    /// Conversion state of an object of type 5 or 6; 3 when nothing is being converted.
    virtual BF::Result GetSoftClothConvertState(BF::CHandle* object, int& state) = 0;
    virtual BF::Result IsSoftClothActive(BF::CHandle* object, std::size_t mesh, std::size_t material, bool& active) = 0;
    virtual bool IsMaterialSoftClothEnabled(std::size_t material) = 0;
    virtual BF::Result GetUseGlobalGravity(BF::CHandle* object, std::size_t mesh, std::size_t material, bool& use,
                                           bool affectAllMaterials) = 0;
    /// The weight image's texture; null when the material has none.
    virtual BF::Result GetWeightTexture(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                        BF::CHandle*& texture) = 0;
    virtual BF::Result GetWeightImageAdjust(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                            WeightImageAdjust& adjust) = 0;
    virtual BF::Result GetWeightImagePath(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                          std::wstring& path) = 0;
    /// A file that an image editor can work on.
    virtual BF::Result GetWeightImageEditFile(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                              std::wstring& path) = 0;
    virtual BF::Result GetWeightImageState(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                           WeightImageState& state) = 0;
    virtual BF::Result GetSoftClothProperty(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                            SoftClothPropertyData& data) = 0;
    virtual BF::Result GetSoftClothCollision(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                             SoftClothCollisionData& data) = 0;
    virtual BF::Result GetSoftClothWind(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                        SoftClothWindData& data) = 0;
    /// The host's save dialog; an empty path when the user cancelled. The three numbers are the host's file-kind codes.
    virtual BF::Result GetSaveImageFileName(QString& path, int kind1, int kind2, int kind3,
                                            const QString& defaultName) = 0;
    virtual BF::Result GetOpenImageFileName(QString& path, int kind1, int kind2, int kind3) = 0;
    virtual BF::Result GetMeshList(BF::CHandle* object, BF::CArrayList<std::size_t>& meshes) = 0;
    /// \param flag  0
    virtual BF::Result GetMaterialList(std::size_t mesh, BF::CArrayList<std::size_t>& materials, int flag) = 0;
    /// Start folder of file dialogs; kind 72 is the one for profiles.
    virtual BF::Result GetDefaultFolder(QString& folder, int kind) = 0;
    virtual BF::Result IsPanelBlockedForObject(BF::CHandle* object, bool& blocked) = 0;
    virtual bool IsPanelBlockedForObjectEx(BF::CHandle* object) = 0;
    /// The material at \p index of the object's materials; 0 when there is none.
    virtual std::size_t GetMaterialIdByIndex(BF::CHandle* object, std::size_t index) = 0;

protected:
    ~CSceneService() = default;
};

} // namespace MV
