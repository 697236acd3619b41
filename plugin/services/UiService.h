#pragma once

#include <MVPluginQt/ArrayList.h>
#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Result.h>

#include <string>

class QString;
class QWidget;

namespace MV {

/// Modes, message boxes, panel pages and the external image editor. Mode changes send their events from inside the
/// call. The order of the functions is part of the contract with the host.
class CUiService
{
public:
    virtual BF::Result ChangePickMode(EPickMode mode) = 0;
    virtual BF::Result CancelPickMode() = 0;
    /// EDialogMode::None closes the weight-map dialog mode.
    virtual BF::Result SetDialogMode(EDialogMode mode) = 0;
    /// \param flag  0
    virtual BF::Result RefreshScene(int flag) = 0;
    virtual BF::Result LaunchImageEditor(const BF::CArrayList<std::wstring>& files) = 0;
    /// Shows a message and waits for the user.
    /// \param icon           as QMessageBox::Icon counts; the panel passes 2
    /// \param buttons        a set of Ok (0x400) and Cancel (0x400000)
    /// \param defaultButton  one of \p buttons, or 0
    /// \return the pressed button
    virtual int ShowMessageBox(const QString& text, const QString& title, QWidget* parent, int icon, int buttons,
                               int defaultButton) = 0;
    virtual BF::Result ShowPanelPage(int page, int order, int flags) = 0;

protected:
    ~CUiService() = default;
};

} // namespace MV
