#pragma once

#include "MVPluginQt/Enumerations.h"
#include "MVPluginQt/Export.h"

namespace MV {

/// What every part of a plug-in knows of the application that runs it.
class MVPLUGINQT_EXPORT CCoreBase
{
public:
    /// The running application; one value for the whole process.
    ECompatibleApp GetCurrentAp() const;

protected:
    CCoreBase() = default;
    ~CCoreBase() = default;

    /// Stores the application for all parts of the process.
    static void SetProcessApp(ECompatibleApp app);
};

} // namespace MV
