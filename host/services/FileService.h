#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/FileService.h"

namespace Host {

/// MV::CFileService. The host keeps no weight images and no profiles of its own: every operation is refused.
class FileService final : public MV::CFileService, private ServiceBase
{
public:
    explicit FileService(HostApplication& host);

    BF::Result LoadWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path, int mode) override;
    BF::Result LoadSoftIniProfile(const std::wstring& path) override;
    BF::Result SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path) override;
};

} // namespace Host
