#include "host/services/FileService.h"

namespace Host {

FileService::FileService(HostApplication& host)
    : ServiceBase(host, "File")
{
}

BF::Result FileService::LoadWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path, int mode)
{
    return Record("LoadWeightImage", {In(object), InId(mesh), InId(material), In(path), In(mode)},
                  [] { return BF::Results::Refused; });
}

BF::Result FileService::LoadSoftIniProfile(const std::wstring& path)
{
    return Record("LoadSoftIniProfile", {In(path)}, [] { return BF::Results::Refused; });
}

BF::Result FileService::SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path)
{
    return Record("SaveWeightImage", {In(object), InId(mesh), InId(material), In(path)},
                  [] { return BF::Results::Refused; });
}

} // namespace Host
