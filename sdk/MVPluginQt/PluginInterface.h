#pragma once

#include "MVPluginQt/Enumerations.h"
#include "MVPluginQt/Result.h"

#include <QList>
#include <QString>
#include <QtPlugin>

class QAction;
class QDialog;
class QDockWidget;
class QMenu;
class QToolBar;

namespace MV {

class CMoviraInterface;
class CSectionInterface;

/// The interface under which the host loads a plug-in. The order of the functions is part of the contract.
class CPluginInterface
{
public:
    /// Starts the plug-in. Called once, before anything else.
    /// \param pluginPath    the library file or the folder that holds it; the plug-in's resource file lies beside it
    /// \param resourceBase  a further folder for the plug-in's resources, empty for none
    /// \param host          the host application; must outlive the plug-in
    virtual BF::Result Initialize(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host) = 0;

    /// The lists that a plug-in contributes to the host. Each appends to its argument; 0 when it has such a list,
    /// 1 when it has none.
    virtual BF::Result GetContextList(QList<QAction*>& actions) = 0;
    virtual BF::Result GetDockWidgetList(QList<QDockWidget*>& docks) = 0;
    virtual BF::Result GetSectionList(QList<CSectionInterface*>& sections) = 0;
    virtual BF::Result GetDialogList(QList<QDialog*>& dialogs) = 0;
    virtual BF::Result GetMenusList(QList<QMenu*>& menus) = 0;
    virtual BF::Result GetToolBarsList(QList<QToolBar*>& toolBars) = 0;

    /// Whether the plug-in can work in \p host.
    virtual bool IsValid(CMoviraInterface* host) = 0;

    /// The applications that the plug-in is made for.
    virtual ECompatibleApp GetCompatibleApps() = 0;
    virtual ECompatibleApp GetCurrentApp() = 0;
    virtual void SetCurrentApp(ECompatibleApp app) = 0;

    /// Puts tool bars and menus back to where the user left them.
    virtual BF::Result RestoreLayout() = 0;

protected:
    ~CPluginInterface() = default;
};

} // namespace MV

Q_DECLARE_INTERFACE(MV::CPluginInterface, "Brightfold.Movira.CPluginInterface/7.0")
