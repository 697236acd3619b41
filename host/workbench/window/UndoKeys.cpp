#include "host/workbench/window/UndoKeys.h"

#include "host/services/HostApplication.h"
#include "host/workbench/window/FocusedEditor.h"

#include <MVPluginQt/PluginDialog.h>

#include <QApplication>
#include <QKeyEvent>

namespace Host {

UndoKeys::UndoKeys(HostApplication& host, QObject* parent)
    : QObject(parent)
    , m_host(host)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if ((!isOverride && event->type() != QEvent::KeyPress) || !watched->isWidgetType()) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool redo = key->matches(QKeySequence::Redo);
    if ((!redo && !key->matches(QKeySequence::Undo)) || FocusedTextTakesUndo(redo)) {
        return false;
    }
    if (isOverride) {
        // Nobody takes the key for text, so it is left to the menu's command.
        event->ignore();
        return true;
    }
    // The command of the main window's menu is out of reach behind a modal dialog.
    if (!qobject_cast<MV::CDialogEx*>(QApplication::activeModalWidget())) {
        return false;
    }
    if (redo) {
        m_host.Redo();
    } else {
        m_host.Undo();
    }
    return true;
}

} // namespace Host
