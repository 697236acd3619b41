#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/AuxService.h"

namespace Host {

/// MV::CAuxService. The state that it reports is always 0.
class AuxService final : public MV::CAuxService, private ServiceBase
{
public:
    explicit AuxService(HostApplication& host)
        : ServiceBase(host, "Aux")
    {
    }

    BF::Result QueryAuxState(int& state) override
    {
        return Record("QueryAuxState", {Out(state)}, [&] {
            state = 0;
            return BF::Results::Success;
        });
    }
};

} // namespace Host
