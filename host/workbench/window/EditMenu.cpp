#include "host/workbench/window/EditMenu.h"

#include "host/services/HostApplication.h"
#include "host/services/ImageEditor.h"
#include "host/services/UserDialogs.h"
#include "host/workbench/window/FocusedEditor.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QVariant>

namespace Host {

namespace {

const QString imageEditorKey = QStringLiteral("imageEditor");
const QString layoutsKey = QStringLiteral("uvLayouts");

} // namespace

EditMenu::EditMenu(HostApplication& host, QMainWindow& window)
    : QObject(&window)
    , m_host(host)
    , m_window(window)
{
    CreateActions();
    connect(&host, &HostApplication::SceneReplaced, this, &EditMenu::ConnectScene);
    connect(&host.Editor().Layouts(), &UvLayoutFiles::KeptChanged, this,
            [this](const QStringList& files) { Remember(layoutsKey, files); });
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
    const QSettings settings;
    m_host.Editor().SetProgram(settings.value(imageEditorKey).toString());
    m_host.Editor().Layouts().SetKept(settings.value(layoutsKey).toStringList());
}

void EditMenu::Remember(const QString& key, const QVariant& value) const
{
    if (!m_unattended) {
        QSettings().setValue(key, value);
    }
}

void EditMenu::ChooseImageEditor()
{
    const auto program =
        AskForText(&m_window, {tr("Image Editor"),
                               tr("Program that opens weight images; empty for what the desktop opens them with:"),
                               m_host.Editor().Program()});
    if (!program) {
        return;
    }
    m_host.Editor().SetProgram(*program);
    Remember(imageEditorKey, *program);
}

} // namespace Host
