#include "host/workbench/window/PanelActions.h"

#include "host/services/HostApplication.h"
#include "host/workbench/window/FocusedEditor.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>

namespace Host {

PanelActions::PanelActions(HostApplication& host, QMainWindow& window)
    : QObject(&window)
    , m_host(host)
    , m_weightMap(new QAction(tr("&Weight Map Dialog"), this))
{
    m_weightMap->setObjectName(QStringLiteral("weightMapAction"));
    m_weightMap->setCheckable(true);
    m_weightMap->setShortcut(Qt::CTRL + Qt::Key_M);
    m_weightMap->setShortcutContext(Qt::ApplicationShortcut);
    m_weightMap->setToolTip(tr("Opens or closes the dialog that chooses the material and its weight image"));
    connect(m_weightMap, &QAction::triggered, this, [this](bool open) {
        CommitFocusedEditor();
        m_host.SetDialogMode(open ? MV::EDialogMode::WeightMap : MV::EDialogMode::None);
        ShowMode();
    });
    QToolBar* bar = window.addToolBar(tr("Soft Cloth"));
    bar->setObjectName(QStringLiteral("softClothToolBar"));
    bar->addAction(m_weightMap);
    connect(&host, &HostApplication::StateChanged, this, &PanelActions::ShowMode);
    connect(&host, &HostApplication::SceneReplaced, this, &PanelActions::ShowMode);
}

void PanelActions::ShowMode()
{
    m_weightMap->setChecked(m_host.CurrentScene().dialogMode == MV::EDialogMode::WeightMap);
}

} // namespace Host
