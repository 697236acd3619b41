#include "host/services/SoftClothService.h"

namespace Host {

SoftClothService::SoftClothService(HostApplication& host)
    : ServiceBase(host, "SoftCloth")
{
}

BF::Result SoftClothService::ApplySingleMaterialSoftCloth(BF::CHandle* object, Id mesh, Id material)
{
    return Record("ApplySingleMaterialSoftCloth", {In(object), InId(mesh), InId(material)}, [&] {
        const ClothAddress address{object, mesh, material};
        const MaterialSlot* slot = CurrentScene().FindSlot(address);
        if (!slot) {
            return BF::Results::InvalidArgument;
        }
        SceneEdit edit;
        edit.text = HostApplication::tr("Make soft cloth");
        ClothState cloth = slot->cloth;
        cloth.active = true;
        edit.cloths.push_back({address, {}, cloth});
        CurrentScene().Push(std::move(edit));
        return BF::Results::Success;
    });
}

} // namespace Host
