#include "plugin/PhysicsSoftClothPlugin.h"

#include "plugin/services/MoviraInterface.h"

#include <MVPluginQt/EventSender.h>

#include <QMenu>
#include <QToolBar>

namespace MV {

namespace {

/// Copies guarded pointers; one whose target was destroyed gives null.
template <class T>
void AppendGuarded(const QList<QPointer<T>>& from, QList<T*>& to)
{
    to.reserve(to.size() + from.size());
    for (const QPointer<T>& item : from) {
        to.append(item.data());
    }
}

} // namespace

CPhysicsSoftClothPlugin::CPhysicsSoftClothPlugin(QWidget* parent)
    : QWidget(parent)
{
}

CPhysicsSoftClothPlugin::~CPhysicsSoftClothPlugin()
{
    ReleaseParts();
}

void CPhysicsSoftClothPlugin::ReleaseParts()
{
    // Nothing destroyed below may bring host events to an object that has lost some of its parts.
    if (m_eventSender) {
        m_eventSender->disconnect(this);
    }
    m_materialTable.clear();
    m_windSection.clear();
    m_collisionSection.clear();
    m_propertySection.clear();
    m_materialDlg.clear();
    m_presetSection.clear();
}

CSceneService& CPhysicsSoftClothPlugin::Scene() const
{
    return *Host()->GetSceneService();
}

BF::Result CPhysicsSoftClothPlugin::GetMenusList(QList<QMenu*>& menus)
{
    AppendGuarded(Menus(), menus);
    return BF::Results::Success;
}

BF::Result CPhysicsSoftClothPlugin::GetToolBarsList(QList<QToolBar*>& toolBars)
{
    AppendGuarded(ToolBars(), toolBars);
    return BF::Results::Success;
}

BF::Result CPhysicsSoftClothPlugin::GetContextList(QList<QAction*>& /*actions*/)
{
    return BF::Results::NothingDone;
}

BF::Result CPhysicsSoftClothPlugin::GetDockWidgetList(QList<QDockWidget*>& /*docks*/)
{
    return BF::Results::NothingDone;
}

BF::Result CPhysicsSoftClothPlugin::GetDialogList(QList<QDialog*>& /*dialogs*/)
{
    return BF::Results::NothingDone;
}

bool CPhysicsSoftClothPlugin::IsValid(CMoviraInterface* /*host*/)
{
    return true;
}

ECompatibleApp CPhysicsSoftClothPlugin::GetCompatibleApps()
{
    return ECompatibleApp::Both;
}

} // namespace MV
