#include "host/workbench/window/EditMenu.h"

#include "host/services/HostApplication.h"
#include "host/services/ImageEditor.h"
#include "host/workbench/window/FocusedEditor.h"

#include <QInputDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

namespace Host {

namespace {

const QString imageEditorKey = QStringLiteral("imageEditor");

} // namespace

EditMenu::EditMenu(HostApplication& host, QMainWindow& window)
    : QObject(&window)
    , m_host(host)
    , m_window(window)
{
    CreateActions();
    connect(&host, &HostApplication::SceneReplaced, this, &EditMenu::ConnectScene);
    ConnectScene();
}

void EditMenu::CreateActions()
{
    m_menu = m_window.menuBar()->addMenu(tr("&Edit"));
    m_menu->setObjectName(QStringLiteral("editMenu"));
    const auto add = [&](const QString& text, const char* name, const QKeySequence& key, Qt::ShortcutContext reach,
                         auto run) {
        QAction* action = m_menu->addAction(text, this, run);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        action->setShortcutContext(reach);
        return action;
    };
    m_undo = add(tr("&Undo"), "undoAction", QKeySequence::Undo, Qt::ApplicationShortcut, [this] { m_host.Undo(); });
    m_redo = add(tr("&Redo"), "redoAction", QKeySequence::Redo, Qt::ApplicationShortcut, [this] { m_host.Redo(); });
    m_menu->addSeparator();
    m_delete = add(tr("&Delete Object"), "deleteAction", QKeySequence::Delete, Qt::WidgetWithChildrenShortcut,
                   [this] { DeleteSelected(); });
    m_menu->addSeparator();
    add(tr("Image &Editor…"), "imageEditorAction", {}, Qt::WindowShortcut, [this] { ChooseImageEditor(); });
}

void EditMenu::DeleteFrom(QWidget* view)
{
    view->addAction(m_delete);
}

void EditMenu::AddMenu(QMenu* menu)
{
    m_menu->addMenu(menu);
}

void EditMenu::ConnectScene()
{
    connect(&m_host.CurrentScene().UndoStack(), &QUndoStack::indexChanged, this, &EditMenu::ShowSteps);
    ShowSteps();
}

void EditMenu::ShowSteps()
{
    const QUndoStack& stack = m_host.CurrentScene().UndoStack();
    m_undo->setEnabled(stack.canUndo());
    m_undo->setText(stack.canUndo() ? tr("&Undo %1").arg(stack.undoText()) : tr("&Undo"));
    m_redo->setEnabled(stack.canRedo());
    m_redo->setText(stack.canRedo() ? tr("&Redo %1").arg(stack.redoText()) : tr("&Redo"));
}

void EditMenu::DeleteSelected()
{
    CommitFocusedEditor();
    m_host.DeleteObjects(m_host.CurrentScene().Selection());
}

void EditMenu::RestoreImageEditor()
{
    m_host.Editor().SetProgram(QSettings().value(imageEditorKey).toString());
}

void EditMenu::ChooseImageEditor()
{
    bool chosen = false;
    const QString program =
        QInputDialog::getText(&m_window, tr("Image Editor"),
                              tr("Program that opens weight images; empty for what the desktop opens them with:"),
                              QLineEdit::Normal, m_host.Editor().Program(), &chosen);
    if (!chosen) {
        return;
    }
    m_host.Editor().SetProgram(program);
    if (!m_unattended) {
        QSettings().setValue(imageEditorKey, program);
    }
}

} // namespace Host
