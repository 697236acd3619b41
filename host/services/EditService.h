#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/EditService.h"

namespace Host {

/// MV::CEditService over the scene: every successful write is one undo step. The interface documents the operations.
class EditService final : public MV::CEditService, private ServiceBase
{
public:
    explicit EditService(HostApplication& host);

    BF::Result ConvertToRigidBody(BF::CHandle* object) override;
    BF::Result CancelMultiMaterialSoftCloth(BF::CHandle* object) override;
    BF::Result SetPhysicsActive(BF::CHandle* object, int kind, bool active, bool flag1, bool flag2) override;
    BF::Result SetUseGlobalGravity(BF::CHandle* object, Id mesh, Id material, bool use,
                                   bool affectAllMaterials) override;
    BF::Result DeleteWeightImage(BF::CHandle* object, Id mesh, Id material) override;
    BF::Result EmbedWeightImage(BF::CHandle* object, Id mesh, Id material) override;
    BF::Result SetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material, const MV::WeightImageAdjust& adjust,
                                    bool flag1, bool flag2) override;
    BF::Result SetIgnoredMaterialNames(BF::CHandle* object,
                                       const std::map<std::wstring, BF::CArrayList<std::wstring>>& names) override;
    BF::Result SetSoftClothProperty(BF::CHandle* object, Id mesh, Id material, MV::ESoftClothPropertyType type,
                                    const MV::SoftClothPropertyData& data, bool affectAllMaterials) override;
    BF::Result SetSoftClothCollision(BF::CHandle* object, Id mesh, Id material, MV::ESoftClothCollisionType type,
                                     const MV::SoftClothCollisionData& data, bool affectAllMaterials) override;
    BF::Result SetSoftClothWind(BF::CHandle* object, Id mesh, Id material, MV::ESoftClothWindType type,
                                const MV::SoftClothWindData& data, bool affectAllMaterials) override;
    BF::Result UndoLastEdit() override;
    BF::Result SetMaterialSoftClothEnabled(Id material, bool enabled) override;

private:
    /// Applies \p change to the addressed cloth, or to all cloths of the object, as one undo step.
    template <class Change>
    BF::Result EditCloths(const ClothAddress& address, bool affectAllMaterials, const QString& text, Change change);
    /// Applies \p change to the object's state, as one undo step, and sends its event.
    template <class Change>
    BF::Result EditObject(BF::CHandle* object, const QString& text, MV::EObjectChangedDataType changedData,
                          Change change);
};

} // namespace Host
