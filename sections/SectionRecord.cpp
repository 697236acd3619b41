#include "sections/SectionRecord.h"

#include "ui/WidgetAccess.h"

#include <QGroupBox>

namespace MV {

BF::Result CheckSoftClothShown(const SoftClothSelection& selection, CMoviraInterface& host, QGroupBox* sectionGroupBox)
{
    bool active = false;
    if (selection.softClothActive && selection.mesh != 0 && selection.material != 0) {
        const BF::Result known =
            host.GetSceneService()->IsSoftClothActive(selection.object, selection.mesh, selection.material, active);
        if (known.IsFailure()) {
            return known;
        }
    }
    if (!active) {
        EnableWidget(sectionGroupBox, false);
        return BF::Results::NothingDone;
    }
    return BF::Results::Success;
}

} // namespace MV
