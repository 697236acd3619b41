#include "host/services/FileService.h"

#include "host/services/SoftIniProfile.h"
#include "host/services/WeightImages.h"

namespace Host {

FileService::FileService(HostApplication& host)
    : ServiceBase(host, "File")
{
}

BF::Result FileService::LoadWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path, int mode)
{
    bool wasRun = false;
    const BF::Result result =
        Record("LoadWeightImage", {In(object), InId(mesh), InId(material), In(path), In(mode)}, [&] {
            wasRun = true;
            return App().Weights().Load({object, mesh, material}, QString::fromStdWString(path));
        });
    if (!wasRun && result.IsFailure()) {
        App().Weights().PushRefusal(HostApplication::tr("Load weight image"));
    }
    return result;
}

BF::Result FileService::LoadSoftIniProfile(const std::wstring& path)
{
    return Record("LoadSoftIniProfile", {In(path)}, [&] {
        const auto change = ReadSoftIni(QString::fromStdWString(path));
        const Object* object = CurrentScene().FindObject(CurrentScene().Selection().value(0));
        return change && object ? ChangeCloths(*object, *change) : BF::Results::InvalidArgument;
    });
}

/// Applies \p change to all soft cloth of \p object as one undo step.
BF::Result FileService::ChangeCloths(const Object& object, const std::function<void(ClothState&)>& change)
{
    SceneEdit edit;
    edit.text = HostApplication::tr("Load soft cloth settings");
    for (const ClothAddress& address : Scene::SlotsOf(object)) {
        ClothState cloth = CurrentScene().FindSlot(address)->cloth;
        if (cloth.active) {
            change(cloth);
            edit.cloths.push_back({address, {}, cloth});
        }
    }
    if (!CurrentScene().Push(std::move(edit))) {
        return BF::Results::NothingDone;
    }
    // Like an undo: the panel is to read the values again and to stay at its material.
    App().Send("LaunchedImageChanged", &MV::CEventSender::LaunchedImageChanged,
               BF::CArrayList<BF::CHandle*>{object.handle});
    return BF::Results::Success;
}

BF::Result FileService::SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path)
{
    return Record("SaveWeightImage", {In(object), InId(mesh), InId(material), In(path)}, [&] {
        return App().Weights().Save({object, mesh, material}, QString::fromStdWString(path));
    });
}

} // namespace Host
