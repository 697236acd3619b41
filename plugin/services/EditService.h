#pragma once

#include "plugin/services/SoftClothRecords.h"

#include <MVPluginQt/ArrayList.h>
#include <MVPluginQt/Handle.h>
#include <MVPluginQt/Result.h>

#include <cstddef>
#include <map>
#include <string>

namespace MV {

/// Writes of soft cloth and physics settings. Each successful write is one undo step of the host.
/// The order of the functions is part of the contract with the host.
class CEditService
{
public:
    virtual BF::Result ConvertToRigidBody(BF::CHandle* object) = 0;
    virtual BF::Result CancelMultiMaterialSoftCloth(BF::CHandle* object) = 0;
    /// \param kind  physics kind; 3 is soft cloth
    virtual BF::Result SetPhysicsActive(BF::CHandle* object, int kind, bool active, bool flag1, bool flag2) = 0;
    virtual BF::Result SetUseGlobalGravity(BF::CHandle* object, std::size_t mesh, std::size_t material, bool use,
                                           bool affectAllMaterials) = 0;
    virtual BF::Result DeleteWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material) = 0;
    virtual BF::Result EmbedWeightImage(BF::CHandle* object, std::size_t mesh, std::size_t material) = 0;
    virtual BF::Result SetWeightImageAdjust(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                            const WeightImageAdjust& adjust, bool flag1, bool flag2) = 0;
    /// Materials that are not offered any more: from mesh name to material names.
    virtual BF::Result SetIgnoredMaterialNames(BF::CHandle* object,
                                               const std::map<std::wstring, BF::CArrayList<std::wstring>>& names) = 0;
    /// Only the field that \p type names is taken from \p data; the same holds for the next two.
    virtual BF::Result SetSoftClothProperty(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                            ESoftClothPropertyType type, const SoftClothPropertyData& data,
                                            bool affectAllMaterials) = 0;
    virtual BF::Result SetSoftClothCollision(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                             ESoftClothCollisionType type, const SoftClothCollisionData& data,
                                             bool affectAllMaterials) = 0;
    virtual BF::Result SetSoftClothWind(BF::CHandle* object, std::size_t mesh, std::size_t material,
                                        ESoftClothWindType type, const SoftClothWindData& data,
                                        bool affectAllMaterials) = 0;
    virtual BF::Result UndoLastEdit() = 0;
    virtual BF::Result SetMaterialSoftClothEnabled(std::size_t material, bool enabled) = 0;

protected:
    ~CEditService() = default;
};

} // namespace MV
