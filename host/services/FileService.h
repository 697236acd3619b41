#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/FileService.h"

namespace Host {

/// MV::CFileService: weight images from and to files. The host has no profiles of its own and refuses to load any.
class FileService final : public MV::CFileService, private ServiceBase
{
public:
    explicit FileService(HostApplication& host);

    /// After every failure there is one undo step to take back, whatever went wrong: the caller undoes it unseen.
    BF::Result LoadWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path, int mode) override;
    BF::Result LoadSoftIniProfile(const std::wstring& path) override;
    BF::Result SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path) override;
};

} // namespace Host
