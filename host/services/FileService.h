#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/FileService.h"

#include <functional>

namespace Host {

/// MV::CFileService: weight images from and to files, and the values of profiles.
class FileService final : public MV::CFileService, private ServiceBase
{
public:
    explicit FileService(HostApplication& host);

    /// After every failure there is one undo step to take back, whatever went wrong: the caller undoes it unseen.
    BF::Result LoadWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path, int mode) override;
    BF::Result LoadSoftIniProfile(const std::wstring& path) override;
    BF::Result SaveWeightImage(BF::CHandle* object, Id mesh, Id material, const std::wstring& path) override;

private:
    BF::Result ChangeCloths(const Object& object, const std::function<void(ClothState&)>& change);
};

} // namespace Host
