#pragma once

#include "plugin/services/SoftClothRecords.h"

/// Taking single fields over from one record into another, as the selectors of the host's writes name them.
namespace Host {

/// Copies into \p to the field of \p from that \p type names. \return false for a selector that names none
bool TakeField(MV::SoftClothPropertyData& to, const MV::SoftClothPropertyData& from, MV::ESoftClothPropertyType type);
bool TakeField(MV::SoftClothCollisionData& to, const MV::SoftClothCollisionData& from,
               MV::ESoftClothCollisionType type);
bool TakeField(MV::SoftClothWindData& to, const MV::SoftClothWindData& from, MV::ESoftClothWindType type);

} // namespace Host
