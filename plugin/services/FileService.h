#pragma once

#include <MVPluginQt/Handle.h>
#include <MVPluginQt/Result.h>

#include <cstddef>
#include <string>

namespace MV {

/// File-based loads and saves. The order of the functions is part of the contract with the host.
class CFileService
{
public:
    /// \param mode  2
    /// \return 0; 1 when more vertices move than the host allows; 0x80000006 when none moves
    virtual BF::Result LoadWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                       const std::wstring& path, int mode) = 0;
    virtual BF::Result LoadSoftIniProfile(const std::wstring& path) = 0;
    /// \return 0; 0x80000006 when the image cannot be written
    virtual BF::Result SaveWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                       const std::wstring& path) = 0;

protected:
    ~CFileService() = default;
};

} // namespace MV
