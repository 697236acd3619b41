#include "host/viewport/ViewActions.h"

#include <QAction>
#include <QWidget>

namespace Host {

namespace {

QAction* NewAction(QWidget& view, const QString& text, const char* name, int key)
{
    auto* action = new QAction(text, &view);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    view.addAction(action);
    return action;
}

void AddSeparator(QWidget& view)
{
    auto* separator = new QAction(&view);
    separator->setSeparator(true);
    view.addAction(separator);
}

} // namespace

ViewActions::ViewActions(QWidget& view)
    : QObject(&view)
    , m_frameSelection(NewAction(view, tr("&Frame Selection"), "frameSelectionAction", Qt::Key_F))
    , m_frameAll(NewAction(view, tr("Frame &All"), "frameAllAction", Qt::Key_A))
    , m_front(NewAction(view, tr("F&ront"), "frontViewAction", Qt::Key_1))
    , m_side(NewAction(view, tr("&Side"), "sideViewAction", Qt::Key_3))
    , m_top(NewAction(view, tr("&Top"), "topViewAction", Qt::Key_7))
    , m_showWeights(nullptr)
{
    AddSeparator(view);
    m_showWeights = NewAction(view, tr("Show Wei&ghts"), "showWeightsAction", Qt::Key_W);
    m_showWeights->setCheckable(true);
    m_showWeights->setToolTip(tr("Shows the weight images on the model: what is held and what moves freely"));
    AddSeparator(view);
}

} // namespace Host
