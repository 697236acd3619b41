#include "host/services/FileService.h"

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
        App().Weights().PushRefusal(App().tr("Load weight image"));
    }
    return result;
}

BF::Result FileService::LoadSoftIniProfile(const std::wstring& path)
{
    return Record("LoadSoftIniProfile", {In(path)}, [] { return BF::Results::Refused; });
}

BF::Result FileService::SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path)
{
    return Record("SaveWeightImage", {In(object), InId(mesh), InId(material), In(path)},
                  [&] { return App().Weights().Save({object, mesh, material}, QString::fromStdWString(path)); });
}

} // namespace Host
