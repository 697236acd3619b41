#include "host/workbench/window/UserActions.h"

#include "host/services/HostApplication.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

namespace Host {

UserActions::UserActions(HostApplication& host, QObject* parent)
    : QObject(parent)
    , m_host(host)
{
    QCoreApplication::instance()->installEventFilter(this);
    const QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &UserActions::Begin);
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &UserActions::Begin);
}

bool UserActions::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::Wheel:
    case QEvent::Drop:
        Begin();
        break;
    default:
        break;
    }
    return false;
}

void UserActions::Begin() const
{
    m_host.CurrentScene().BeginUserAction();
    m_host.TakeReason(); // for a box that never came
}

} // namespace Host
