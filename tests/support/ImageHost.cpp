#include "tests/support/ImageHost.h"

#include "host/scene/Handles.h"
#include "host/services/ServiceBase.h"
#include "tests/support/ForwardingServices.h"

#include <QImage>

#include <algorithm>

namespace {

using Host::Id;
using Host::ToHandle;

/// The way into the journal and the fault plan.
class Recorder : public Host::ServiceBase
{
public:
    Recorder(Host::HostApplication& host, const char* service)
        : ServiceBase(host, service)
    {
    }
    using ServiceBase::In;
    using ServiceBase::InId;
    using ServiceBase::Out;
    using ServiceBase::Record;
    using ServiceBase::RecordValue;
};

BF::Result Done()
{
    return BF::Results::Success;
}

Id ForChannel(Id first, MV::ETextureChannel channel)
{
    return first + Id(int(channel));
}

} // namespace

QColor ImagePlan::Colour(Host::Id thumbnail)
{
    return QColor(QColor::fromHsv(int(thumbnail * 37 % 360), 200, 200).rgb());
}

class ImageHost::Scene : public Forwarding::SceneService
{
public:
    explicit Scene(ImageHost& host)
        : SceneService(*host.HostApplication::GetSceneService())
        , m_host(host)
        , m_call(host, "Scene")
    {
    }

    BF::Result GetDefaultThumbnail(BF::CHandle*& thumbnail) override
    {
        return m_call.Record("GetDefaultThumbnail", {m_call.Out(thumbnail)}, [&] {
            thumbnail = ToHandle(ImagePlan::defaultThumbnail);
            return Done();
        });
    }

    bool GetThumbnailSourceImage(BF::CHandle* thumbnail, BF::CHandle*& source) override
    {
        return m_call.RecordValue("GetThumbnailSourceImage", {m_call.In(thumbnail), m_call.Out(source)}, [&] {
            source = ToHandle(ImagePlan::weightSource);
            return m_host.plan.weightHasSource;
        });
    }

    BF::Result GetThumbnailSource(Id material, MV::ETextureChannel channel, BF::CHandle*& source) override
    {
        return m_call.Record("GetThumbnailSource", {m_call.InId(material), m_call.In(channel), m_call.Out(source)},
                             [&] {
                                 source = ToHandle(ForChannel(ImagePlan::textureSource, channel));
                                 return Done();
                             });
    }

    BF::Result OpenTexture(Id material, MV::ETextureChannel channel, bool load) override
    {
        return m_call.Record("OpenTexture", {m_call.InId(material), m_call.In(channel), m_call.In(load)}, Done);
    }

    BF::Result GetMaterialTextureState(Id material, MV::ETextureChannel channel, bool& hasTexture, bool& hasFile,
                                       bool& flag1, bool& flag2) override
    {
        return m_call.Record("GetMaterialTextureState",
                             {m_call.InId(material), m_call.In(channel), m_call.Out(hasTexture), m_call.Out(hasFile),
                              m_call.Out(flag1), m_call.Out(flag2)},
                             [&] {
                                 hasTexture = m_host.plan.textures[channel].hasTexture;
                                 hasFile = m_host.plan.textures[channel].hasFile;
                                 return Done();
                             });
    }

    BF::Result GetTextureThumbnail(Id material, MV::ETextureChannel channel, BF::CHandle*& thumbnail,
                                   bool& hasSource) override
    {
        return m_call.Record("GetTextureThumbnail",
                             {m_call.InId(material), m_call.In(channel), m_call.Out(thumbnail), m_call.Out(hasSource)},
                             [&] {
                                 thumbnail = ToHandle(ForChannel(ImagePlan::textureThumbnail, channel));
                                 hasSource = m_host.plan.textures[channel].hasSource;
                                 return Done();
                             });
    }

    BF::Result RenderThumbnail(int width, int height, BF::CHandle* thumbnail, BF::CHandle* source,
                               QImage& image) override
    {
        return m_call.Record("RenderThumbnail",
                             {m_call.In(width), m_call.In(height), m_call.In(thumbnail), m_call.In(source)}, [&] {
                                 image = QImage(width, height, image.format());
                                 image.fill(ImagePlan::Colour(Host::ToId(thumbnail)));
                                 return Done();
                             });
    }

    BF::Result GetTexturePath(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                              std::wstring& path) override
    {
        return m_call.Record(
            "GetTexturePath",
            {m_call.In(object), m_call.In(quint64(materialIndex)), m_call.In(channel), m_call.Out(path)}, [&] {
                path = m_host.plan.textures[channel].path.toStdWString();
                return Done();
            });
    }

    /// Takes the handle of a mesh as well as that of an object.
    BF::Result GetMaterialIndex(BF::CHandle* object, Id material, std::size_t& index) override
    {
        return m_call.Record("GetMaterialIndex", {m_call.In(object), m_call.InId(material), m_call.Out(index)}, [&] {
            const Host::Object* owner = m_host.CurrentScene().OwnerOfMaterial(material);
            if (!object || !owner) {
                return BF::Results::InvalidArgument;
            }
            const auto isIt = [material](const Host::Material& candidate) { return candidate.id == material; };
            const auto& all = owner->materials;
            index = std::size_t(std::find_if(all.begin(), all.end(), isIt) - all.begin());
            return Done();
        });
    }

    BF::Result ExportUvTexture(BF::CHandle* object, std::size_t materialIndex, MV::ETextureChannel channel,
                               BF::CArrayList<std::wstring>& files) override
    {
        return m_call.Record(
            "ExportUvTexture",
            {m_call.In(object), m_call.In(quint64(materialIndex)), m_call.In(channel), m_call.Out(files)}, [&] {
                for (const QString& file : qAsConst(m_host.plan.uvFiles)) {
                    files.Add(file.toStdWString());
                }
                return Done();
            });
    }

    BF::Result GetEmbeddedTexture(Id material, MV::ETextureChannel channel) override
    {
        return m_call.Record("GetEmbeddedTexture", {m_call.InId(material), m_call.In(channel)}, Done);
    }

    bool LoadTextureSource(Id material, MV::ETextureChannel channel) override
    {
        return m_call.RecordValue("LoadTextureSource", {m_call.InId(material), m_call.In(channel)},
                                  [&] { return m_host.plan.textureSourcesLoad; });
    }

    bool IsTextureEmbedded(Id material) override
    {
        return m_call.RecordValue("IsTextureEmbedded", {m_call.InId(material)},
                                  [&] { return m_host.plan.texturesEmbedded; });
    }

    BF::Result GetWeightTexture(BF::CHandle* object, Id mesh, Id material, BF::CHandle*& texture) override
    {
        return Weight("GetWeightTexture", object, mesh, material, texture,
                      ToHandle(m_host.plan.hasWeightTexture ? ImagePlan::weightTexture : 0));
    }

    BF::Result GetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material, MV::WeightImageAdjust& adjust) override
    {
        return Weight("GetWeightImageAdjust", object, mesh, material, adjust, m_host.plan.weightAdjust);
    }

    BF::Result GetWeightImagePath(BF::CHandle* object, Id mesh, Id material, std::wstring& path) override
    {
        return Weight("GetWeightImagePath", object, mesh, material, path, m_host.plan.weightPath.toStdWString());
    }

    BF::Result GetWeightImageEditFile(BF::CHandle* object, Id mesh, Id material, std::wstring& path) override
    {
        return Weight("GetWeightImageEditFile", object, mesh, material, path,
                      m_host.plan.weightEditFile.toStdWString());
    }

    BF::Result GetWeightImageState(BF::CHandle* object, Id mesh, Id material, MV::WeightImageState& state) override
    {
        return Weight("GetWeightImageState", object, mesh, material, state, m_host.plan.weightState);
    }

private:
    template <class Value>
    BF::Result Weight(const char* operation, BF::CHandle* object, Id mesh, Id material, Value& answer,
                      const Value& planned)
    {
        return m_call.Record(operation,
                             {m_call.In(object), m_call.InId(mesh), m_call.InId(material), m_call.Out(answer)}, [&] {
                                 answer = planned;
                                 return Done();
                             });
    }

    ImageHost& m_host;
    Recorder m_call;
};

class ImageHost::Edit : public Forwarding::EditService
{
public:
    explicit Edit(ImageHost& host)
        : EditService(*host.HostApplication::GetEditService())
        , m_call(host, "Edit")
    {
    }

    BF::Result DeleteWeightImage(BF::CHandle* object, Id mesh, Id material) override
    {
        return m_call.Record("DeleteWeightImage", {m_call.In(object), m_call.InId(mesh), m_call.InId(material)}, Done);
    }

    BF::Result EmbedWeightImage(BF::CHandle* object, Id mesh, Id material) override
    {
        return m_call.Record("EmbedWeightImage", {m_call.In(object), m_call.InId(mesh), m_call.InId(material)}, Done);
    }

    BF::Result SetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material, const MV::WeightImageAdjust& adjust,
                                    bool flag1, bool flag2) override
    {
        return m_call.Record("SetWeightImageAdjust",
                             {m_call.In(object), m_call.InId(mesh), m_call.InId(material), m_call.In(adjust.zero),
                              m_call.In(adjust), m_call.In(flag1), m_call.In(flag2)},
                             Done);
    }

    BF::Result UndoLastEdit() override { return m_call.Record("UndoLastEdit", {}, Done); }

private:
    Recorder m_call;
};

class ImageHost::File : public Forwarding::FileService
{
public:
    explicit File(ImageHost& host)
        : FileService(*host.HostApplication::GetFileService())
        , m_call(host, "File")
    {
    }

    BF::Result LoadWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path, int mode) override
    {
        return m_call.Record(
            "LoadWeightImage",
            {m_call.In(object), m_call.InId(mesh), m_call.InId(material), m_call.In(path), m_call.In(mode)}, Done);
    }

    BF::Result SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path) override
    {
        return m_call.Record("SaveWeightImage",
                             {m_call.In(object), m_call.InId(mesh), m_call.InId(material), m_call.In(path)}, Done);
    }

private:
    Recorder m_call;
};

class ImageHost::Ui : public Forwarding::UiService
{
public:
    explicit Ui(ImageHost& host)
        : UiService(*host.HostApplication::GetUiService())
        , m_call(host, "Ui")
    {
    }

    BF::Result LaunchImageEditor(const BF::CArrayList<std::wstring>& files) override
    {
        return m_call.Record("LaunchImageEditor", {m_call.In(files)}, Done);
    }

private:
    Recorder m_call;
};

ImageHost::ImageHost()
    : m_planScene(std::make_unique<Scene>(*this))
    , m_planEdit(std::make_unique<Edit>(*this))
    , m_planFile(std::make_unique<File>(*this))
    , m_planUi(std::make_unique<Ui>(*this))
{
}

ImageHost::~ImageHost() = default;

MV::CSceneService* ImageHost::GetSceneService()
{
    return m_planScene.get();
}

MV::CEditService* ImageHost::GetEditService()
{
    return m_planEdit.get();
}

MV::CFileService* ImageHost::GetFileService()
{
    return m_planFile.get();
}

MV::CUiService* ImageHost::GetUiService()
{
    return m_planUi.get();
}
