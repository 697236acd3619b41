#include "host/services/SceneServiceReads.h"

// Queries of soft cloth values.
namespace Host {

BF::Result SceneService::IsSoftClothActive(BF::CHandle* object, Id mesh, Id material, bool& active)
{
    return ReadSlot("IsSoftClothActive", object, mesh, material, {Out(active)}, [&](const MaterialSlot& slot) {
        // It stays soft cloth while the object's physics is off, and goes on as it was once that is on again.
        active = slot.cloth.active && CurrentScene().MayTakePart(material);
    });
}

bool SceneService::IsMaterialSoftClothEnabled(Id material)
{
    return RecordValue("IsMaterialSoftClothEnabled", {InId(material)},
                       [&] { return CurrentScene().MayTakePart(material); });
}

BF::Result SceneService::GetUseGlobalGravity(BF::CHandle* object, Id mesh, Id material, bool& use,
                                             bool affectAllMaterials)
{
    return ReadSlot("GetUseGlobalGravity", object, mesh, material, {Out(use), In(affectAllMaterials)},
                    [&](const MaterialSlot& slot) { use = slot.cloth.useGlobalGravity; });
}

BF::Result SceneService::GetSoftClothProperty(BF::CHandle* object, Id mesh, Id material,
                                              MV::SoftClothPropertyData& data)
{
    return ReadSlot("GetSoftClothProperty", object, mesh, material, {Out(data)}, [&](const MaterialSlot& slot) {
        data = slot.cloth.property;
        Q_EMIT App().ClothRead({object, mesh, material});
    });
}

BF::Result SceneService::GetSoftClothCollision(BF::CHandle* object, Id mesh, Id material,
                                               MV::SoftClothCollisionData& data)
{
    return ReadSlot("GetSoftClothCollision", object, mesh, material, {Out(data)},
                    [&](const MaterialSlot& slot) { data = slot.cloth.collision; });
}

BF::Result SceneService::GetSoftClothWind(BF::CHandle* object, Id mesh, Id material, MV::SoftClothWindData& data)
{
    return ReadSlot("GetSoftClothWind", object, mesh, material, {Out(data)},
                    [&](const MaterialSlot& slot) { data = slot.cloth.wind; });
}

} // namespace Host
