#pragma once

#include <MVPluginQt/Result.h>

class QGroupBox;

namespace MV {

class CMoviraInterface;
struct SoftClothSelection;

/// First half of every section's refresh: whether there is an active soft cloth to show.
/// \return 0 when there is; 1 when not, with \p sectionGroupBox disabled; or the host's failure, widgets untouched
BF::Result CheckSoftClothShown(const SoftClothSelection& selection, CMoviraInterface& host, QGroupBox* sectionGroupBox);

} // namespace MV
