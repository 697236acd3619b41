#include "host/workbench/window/SceneFiles.h"

#include "host/scene/SceneFile.h"
#include "host/services/HostApplication.h"
#include "host/services/UserDialogs.h"
#include "host/workbench/UnitDialog.h"
#include "host/workbench/window/DroppedFiles.h"
#include "host/workbench/window/FocusedEditor.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressDialog>
#include <QTimer>

namespace Host {

namespace {

QString SceneFilter()
{
    return SceneFiles::tr("Soft cloth scenes (*.clothscene)");
}

bool IsSceneFile(const QString& path)
{
    return path.endsWith(QLatin1String(".clothscene"), Qt::CaseInsensitive);
}

} // namespace

SceneFiles::SceneFiles(HostApplication& host, QMainWindow& window)
    : QObject(&window)
    , m_host(host)
    , m_window(window)
{
    CreateMenu();
    m_window.setAcceptDrops(true);
    m_window.installEventFilter(this);
    connect(&m_recent, &RecentFiles::Chosen, this, &SceneFiles::OpenOrImport);
    connect(&host, &HostApplication::SceneReplaced, this, &SceneFiles::ConnectScene);
    ConnectScene();
}

void SceneFiles::CreateMenu()
{
    QMenu* file = m_window.menuBar()->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("fileMenu"));
    const auto add = [&](const QString& text, const char* name, const QKeySequence& key, auto run) {
        QAction* action = file->addAction(text, this, run);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        // The plug-in's dialog is a window of its own.
        action->setShortcutContext(Qt::ApplicationShortcut);
    };
    add(tr("&New Scene"), "newSceneAction", QKeySequence::New, [this] {
        if (MayDiscard()) {
            New();
        }
    });
    add(tr("&Open Scene…"), "openSceneAction", QKeySequence::Open, [this] { ChooseScene(); });
    add(tr("&Import Model…"), "importAction", QKeySequence(Qt::CTRL + Qt::Key_I), [this] { ChooseModel(); });
    QMenu* recent = file->addMenu(tr("&Recent Files"));
    recent->setObjectName(QStringLiteral("recentMenu"));
    m_recent.ShowIn(recent);
    file->addSeparator();
    add(tr("&Save Scene"), "saveSceneAction", QKeySequence::Save, [this] { SaveOrChoose(); });
    add(tr("Save Scene &As…"), "saveSceneAsAction", QKeySequence::SaveAs, [this] { ChooseAndSave(); });
    file->addSeparator();
    add(tr("&Quit"), "quitAction", QKeySequence::Quit, [this] { m_window.close(); });
}

bool SceneFiles::Import(const QString& path, const std::optional<LengthUnit>& unit)
{
    const bool isFirst = m_scenePath.isEmpty() && m_host.CurrentScene().Objects().empty();
    QString unitKey;
    const QPointer<SceneFiles> self = this;
    ImportResult result = Read(path, [&](double size) {
        const auto chosen = unit || !self ? unit : ChooseUnit(QFileInfo(path).fileName(), size);
        unitKey = chosen ? chosen->key : QString();
        return chosen;
    });
    if (!self) {
        return false;
    }
    if (result.cancelled) {
        Q_EMIT Done(tr("Import cancelled"));
        return false;
    }
    if (!result.object) {
        Q_EMIT Failed(result.error);
        return false;
    }
    BF::CHandle* const added = m_host.AddModel(std::move(*result.object));
    if (!added) {
        return false; // the user has been told why
    }
    m_host.LoadImages(added);
    if (isFirst) {
        m_host.CurrentScene().UndoStack().setClean();
    }
    Remember(path, unitKey);
    return true;
}

/// Reads a model behind a progress dialog. Events are handled meanwhile: the window may be closed, and this destroyed,
/// which cancels.
ImportResult SceneFiles::Read(const QString& path, const UnitChoice& unit)
{
    // On the heap and watched: the window that is destroyed frees it.
    const QPointer<QProgressDialog> progress =
        new QProgressDialog(tr("Reading %1…").arg(QFileInfo(path).fileName()), tr("Cancel"), 0, 100, &m_window);
    progress->setWindowModality(Qt::WindowModal);
    progress->setMinimumDuration(500);
    const auto report = [&progress](double done) {
        if (progress) {
            progress->setValue(int(done * 100));
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        return progress && !progress->wasCanceled();
    };
    ImportResult result = Host::ImportModel(path, report, unit);
    delete progress;
    return result;
}

/// With nobody to ask it is what it looks like.
std::optional<LengthUnit> SceneFiles::ChooseUnit(const QString& file, double size)
{
    return m_unattended ? GuessUnit(size) : UnitDialog::Choose(file, size, &m_window);
}

bool SceneFiles::Open(const QString& path)
{
    std::unique_ptr<Scene> scene;
    const SceneFileResult result = LoadScene(path, scene);
    if (!result.ok) {
        Q_EMIT Failed(result.error);
        return false;
    }
    m_scenePath = path;
    m_host.ReplaceScene(std::move(scene), MV::EFileType::Scene);
    for (const Object* object : m_host.CurrentScene().Objects()) {
        m_host.LoadImages(object->handle);
    }
    Remember(path);
    return true;
}

bool SceneFiles::Save(const QString& path)
{
    const SceneFileResult result = Host::SaveScene(m_host.CurrentScene(), path);
    if (!result.ok) {
        Q_EMIT Failed(result.error);
        return false;
    }
    m_scenePath = path;
    m_host.CurrentScene().UndoStack().setClean();
    ShowTitle();
    Remember(path);
    Q_EMIT Done(tr("Saved %1").arg(QFileInfo(path).fileName()));
    return true;
}

void SceneFiles::New()
{
    m_scenePath.clear();
    m_host.ReplaceScene(std::make_unique<Scene>(), MV::EFileType::Scene);
}

bool SceneFiles::OpenOrImport(const QString& path)
{
    CommitFocusedEditor();
    if (!QFileInfo::exists(path)) {
        RecentFiles::Remove(path);
    }
    return IsSceneFile(path) ? MayDiscard() && Open(path) : Import(path, UnitCalled(RecentFiles::UnitOf(path)));
}

void SceneFiles::ChooseModel()
{
    CommitFocusedEditor();
    const QString suffixes = ImportableSuffixes().join(QLatin1String(" *."));
    const QString path = AskForFile(&m_window, {tr("Import Model"), tr("Models (*.%1)").arg(suffixes), false, {}, {}});
    if (!path.isEmpty()) {
        Import(path);
    }
}

void SceneFiles::ChooseScene()
{
    if (!MayDiscard()) {
        return;
    }
    const QString path = AskForFile(&m_window, {tr("Open Scene"), SceneFilter(), false, {}, m_scenePath});
    if (!path.isEmpty()) {
        Open(path);
    }
}

bool SceneFiles::SaveOrChoose()
{
    CommitFocusedEditor();
    return m_scenePath.isEmpty() ? ChooseAndSave() : Save(m_scenePath);
}

bool SceneFiles::ChooseAndSave()
{
    CommitFocusedEditor();
    const QString path =
        AskForFile(&m_window, {tr("Save Scene"), SceneFilter(), true, QStringLiteral("clothscene"), m_scenePath});
    return !path.isEmpty() && Save(path);
}

bool SceneFiles::MayDiscard()
{
    CommitFocusedEditor();
    if (m_unattended || !IsModified()) {
        return true;
    }
    const auto answer = AskUser(
        &m_window, {tr("Unsaved changes"), tr("The scene has changes that are not saved."), QMessageBox::Warning,
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save});
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && SaveOrChoose());
}

/// An untitled scene that is empty, as after an import that was undone, holds nothing to save.
bool SceneFiles::IsModified() const
{
    const Scene& scene = m_host.CurrentScene();
    return !scene.UndoStack().isClean() && !(m_scenePath.isEmpty() && scene.Objects().empty());
}

void SceneFiles::TakeOver(const SceneFiles& old)
{
    m_scenePath = old.m_scenePath;
    ShowTitle();
}

void SceneFiles::Remember(const QString& path, const QString& unit) const
{
    if (!m_unattended) {
        RecentFiles::Add(path, unit);
    }
}

void SceneFiles::OpenDropped(const QStringList& files)
{
    const QPointer<SceneFiles> self = this;
    for (const QString& file : files) {
        if (self) {
            OpenOrImport(file);
        }
    }
}

void SceneFiles::ConnectScene()
{
    connect(&m_host.CurrentScene().UndoStack(), &QUndoStack::indexChanged, this, &SceneFiles::ShowTitle);
    connect(&m_host.CurrentScene().UndoStack(), &QUndoStack::cleanChanged, this, &SceneFiles::ShowTitle);
    ShowTitle();
}

void SceneFiles::ShowTitle()
{
    const QString name = m_scenePath.isEmpty() ? tr("Untitled") : QFileInfo(m_scenePath).fileName();
    m_window.setWindowTitle(QStringLiteral("%1[*] - %2").arg(name, QApplication::applicationDisplayName()));
    m_window.setWindowModified(IsModified());
}

bool SceneFiles::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        const QStringList files = DroppedModels(*drop->mimeData());
        if (files.isEmpty()) {
            return false;
        }
        drop->acceptProposedAction();
        if (event->type() == QEvent::Drop) {
            // The program that the files come from waits until this returns.
            QTimer::singleShot(0, this, [this, files] { OpenDropped(files); });
        }
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Host
