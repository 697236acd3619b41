#pragma once

#include <MVPluginQt/Result.h>

namespace MV {

/// Asked by the panel gate of application family B.
class CAuxService
{
public:
    virtual BF::Result QueryAuxState(int& state) = 0;

protected:
    ~CAuxService() = default;
};

} // namespace MV
