#pragma once

#include "MVPluginQt/Export.h"

class QWidget;

namespace MV {

/// A collapsible part of one of the host's panels. The order of the functions is part of the contract.
class MVPLUGINQT_EXPORT CSectionInterface
{
public:
    /// The panel page that the section belongs to.
    virtual int GetSectionPage() = 0;
    /// Place among the sections of its page, ascending from the top.
    virtual int GetSectionOrder() = 0;
    /// Mask of the applications that show the section.
    virtual int GetSectionApplications() = 0;
    /// The widget that the host embeds.
    virtual QWidget* GetSectionWidget() = 0;
    virtual bool GetSectionExpandState() = 0;
    virtual void SetSectionExpandState(bool expanded) = 0;
    /// Whether the section has something to show.
    virtual bool AbleToShowSection() = 0;
    virtual ~CSectionInterface();
};

} // namespace MV
