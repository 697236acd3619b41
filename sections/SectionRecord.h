#pragma once

#include "panel/SoftClothSelection.h"
#include "plugin/services/EditService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"

#include <MVPluginQt/Result.h>

#include <cstddef>

class QGroupBox;

/// A section's way to its record in the host. The selection is passed by reference and read at each use: a host call
/// can change it.
namespace MV {

template <class Record>
using GetRecord = BF::Result (CSceneService::*)(BF::CHandle*, std::size_t, std::size_t, Record&);
template <class Record, class Type>
using SetRecord = BF::Result (CEditService::*)(BF::CHandle*, std::size_t, std::size_t, Type, const Record&, bool);

/// Whether there is an active soft cloth to show.
/// \return 0 when there is; 1 when not, with \p sectionGroupBox disabled; or the host's failure, widgets untouched
BF::Result CheckSoftClothShown(const SoftClothSelection& selection, CMoviraInterface& host, QGroupBox* sectionGroupBox);

/// The first half of every section's refresh: reads the record that is to be shown.
/// \return 0; 0x80000003 without a host; or as CheckSoftClothShown()
template <class Record>
BF::Result ReadShownRecord(const SoftClothSelection& selection, CMoviraInterface* host, QGroupBox* sectionGroupBox,
                           GetRecord<Record> get, Record& record)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    const BF::Result shown = CheckSoftClothShown(selection, *host, sectionGroupBox);
    if (!shown.IsSuccess()) {
        return shown;
    }
    const BF::Result read =
        (host->GetSceneService()->*get)(selection.object, selection.mesh, selection.material, record);
    return read.IsFailure() ? read : BF::Results::Success;
}

/// Writes what \p type names of \p record, to all materials of the object where the selection says so. Without a host
/// nothing is written.
template <class Record, class Type>
void WriteRecord(const SoftClothSelection& selection, CMoviraInterface* host, SetRecord<Record, Type> set, Type type,
                 const Record& record)
{
    if (host) {
        (host->GetEditService()->*set)(selection.object, selection.mesh, selection.material, type, record,
                                       selection.affectAllMaterials);
    }
}

} // namespace MV
