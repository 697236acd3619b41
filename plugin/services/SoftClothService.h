#pragma once

#include <MVPluginQt/Handle.h>
#include <MVPluginQt/Result.h>

#include <cstddef>

namespace MV {

/// Conversions to soft cloth.
class CSoftClothService
{
public:
    /// Turns the one material of an object into soft cloth.
    virtual BF::Result ApplySingleMaterialSoftCloth(BF::CHandle* object, std::size_t mesh, std::size_t material) = 0;

protected:
    ~CSoftClothService() = default;
};

} // namespace MV
