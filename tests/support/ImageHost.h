#pragma once

#include "host/services/HostApplication.h"

#include <MVPluginQt/Enumerations.h>

#include <QString>
#include <QStringList>

#include <map>
#include <memory>

/// What the image operations of an ImageHost return.
struct ImagePlan
{
    struct Texture
    {
        bool hasTexture = false;
        bool hasFile = false;
        bool hasSource = false;
        QString path;
    };

    std::map<MV::ETextureChannel, Texture> textures;
    bool texturesEmbedded = false;
    bool textureSourcesLoad = false;
    QStringList uvFiles;

    bool hasWeightTexture = false;
    bool weightHasSource = false;
    MV::WeightImageState weightState;
    MV::WeightImageAdjust weightAdjust;
    QString weightPath;
    QString weightEditFile;

    // The handles that the operations hand out; the journal shows them as "unknown 0x…".
    static constexpr Host::Id defaultThumbnail = 0xd0;
    static constexpr Host::Id weightTexture = 0xe0;
    static constexpr Host::Id weightSource = 0xe1;
    static constexpr Host::Id textureThumbnail = 0xa0; ///< Plus the channel.
    static constexpr Host::Id textureSource = 0xb0;    ///< Plus the channel.

    /// The colour of what is drawn from a thumbnail handle.
    static QColor Colour(Host::Id thumbnail);
};

/// The stand-in host with planned answers in place of all image work. Every operation succeeds unless the fault plan
/// says otherwise, and is recorded as always.
class ImageHost : public Host::HostApplication
{
public:
    ImageHost();
    ~ImageHost() override;

    MV::CSceneService* GetSceneService() override;
    MV::CEditService* GetEditService() override;
    MV::CFileService* GetFileService() override;
    MV::CUiService* GetUiService() override;

    ImagePlan plan;

private:
    class Scene;
    class Edit;
    class File;
    class Ui;

    std::unique_ptr<Scene> m_planScene;
    std::unique_ptr<Edit> m_planEdit;
    std::unique_ptr<File> m_planFile;
    std::unique_ptr<Ui> m_planUi;
};
