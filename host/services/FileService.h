#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/FileService.h"

#include <functional>

namespace Host {

/// MV::CFileService. The host keeps no weight images: their operations are refused.
class FileService final : public MV::CFileService, private ServiceBase
{
public:
    explicit FileService(HostApplication& host);

    BF::Result LoadWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path, int mode) override;
    BF::Result LoadSoftIniProfile(const std::wstring& path) override;
    BF::Result SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path) override;

private:
    BF::Result ChangeCloths(const Object& object, const std::function<void(ClothState&)>& change);
};

} // namespace Host
