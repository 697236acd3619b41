#include "panel/MessageBox.h"

#include "plugin/services/MoviraInterface.h"
#include "plugin/services/UiService.h"

#include <QCoreApplication>

namespace MV {

QString MessageTitle()
{
    return QCoreApplication::translate("Message Title", "[Physics Soft Cloth Section] Movira 6");
}

void ShowInformation(CMoviraInterface& host, const QString& text, const QString& title, QWidget* parent)
{
    host.GetUiService()->ShowMessageBox(text, title, parent, messageIcon, okButton, 0);
}

bool AskOkOrCancel(CMoviraInterface& host, const QString& text, const QString& title, QWidget* parent)
{
    return host.GetUiService()->ShowMessageBox(text, title, parent, messageIcon, okAndCancelButtons, okButton) ==
           okButton;
}

} // namespace MV
