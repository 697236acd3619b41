#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/SoftClothService.h"

namespace Host {

/// MV::CSoftClothService over the scene.
class SoftClothService final : public MV::CSoftClothService, private ServiceBase
{
public:
    explicit SoftClothService(HostApplication& host);

    BF::Result ApplySingleMaterialSoftCloth(BF::CHandle* object, Id mesh, Id material) override;
};

} // namespace Host
