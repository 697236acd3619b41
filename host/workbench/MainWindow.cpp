#include "host/workbench/MainWindow.h"

#include "host/import/ModelImport.h"
#include "host/scene/SceneFile.h"
#include "host/services/ImageEditor.h"
#include "host/workbench/HostCallsView.h"
#include "host/workbench/HostControls.h"
#include "host/workbench/ModifyPanel.h"
#include "host/workbench/SceneTree.h"

#include <MVPluginQt/SectionInterface.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSettings>
#include <QStatusBar>

#include <algorithm>
#include <iterator>

namespace Host {

namespace {

constexpr MV::ECompatibleApp applications[] = {MV::ECompatibleApp::FamilyA, MV::ECompatibleApp::FamilyB,
                                               MV::ECompatibleApp::None};

int IndexOf(MV::ECompatibleApp app)
{
    return int(std::find(std::begin(applications), std::end(applications), app) - std::begin(applications));
}

QString SceneFilter()
{
    return MainWindow::tr("Soft cloth scenes (*.clothscene)");
}

const QString imageEditorKey = QStringLiteral("imageEditor");

QString ExpandKey(MV::CSectionInterface& section)
{
    return QStringLiteral("sections/expanded_%1").arg(section.GetSectionOrder());
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_pluginHost(m_host)
{
    setObjectName(QStringLiteral("workbench"));
    m_host.SetMainWindow(this);
    CreateDocks();
    CreateActions();
    resize(1440, 860);
    connect(&m_host, &HostApplication::SceneReplaced, this, [this] {
        connect(&m_host.CurrentScene().UndoStack(), &QUndoStack::cleanChanged, this, &MainWindow::ShowTitle);
        ShowTitle();
    });
    connect(&m_host.CurrentScene().UndoStack(), &QUndoStack::cleanChanged, this, &MainWindow::ShowTitle);
    connect(&m_host, &HostApplication::ProblemTold, this, &MainWindow::Complain);
    ShowTitle();
}

MainWindow::~MainWindow()
{
    if (!m_unattended) {
        KeepExpandStates();
    }
}

void MainWindow::CreateDocks()
{
    const auto addDock = [this](const QString& title, const char* name, QWidget* widget, Qt::DockWidgetArea area) {
        auto* dock = new QDockWidget(title, this);
        dock->setObjectName(QLatin1String(name));
        dock->setWidget(widget);
        addDockWidget(area, dock);
        return dock;
    };
    setCentralWidget(new HostCallsView(m_host.Journal(), this));
    QDockWidget* tree = addDock(tr("Scene"), "sceneDock", new SceneTree(m_host), Qt::LeftDockWidgetArea);
    m_controls = new HostControls(m_host);
    QDockWidget* controls = addDock(tr("Host Controls"), "controlsDock", m_controls, Qt::LeftDockWidgetArea);
    m_modifyPanel = new ModifyPanel;
    QDockWidget* modify = addDock(tr("Modify"), "modifyDock", m_modifyPanel, Qt::RightDockWidgetArea);
    resizeDocks({tree, controls}, {260, 480}, Qt::Vertical);
    resizeDocks({tree, modify}, {270, 376}, Qt::Horizontal);
    connect(m_controls, &HostControls::ApplicationChosen, this, &MainWindow::RestartPlugin);
    m_panelPage = new QLabel(this);
    m_panelPage->setObjectName(QStringLiteral("panelPage"));
    m_panelPage->setToolTip(tr("The page of the host's panels that the plug-in asked for last"));
    statusBar()->addPermanentWidget(m_panelPage);
    connect(&m_host, &HostApplication::PanelPageRequested, this, [this](int page, int order, int flags) {
        m_panelPage->setText(tr("Panel page %1, place %2, option %3").arg(page).arg(order).arg(flags));
    });
}

void MainWindow::CreateActions()
{
    CreateFileActions();
    CreateEditActions();
    QMenu* view = menuBar()->addMenu(tr("&View"));
    const auto docks = findChildren<QDockWidget*>();
    for (const QDockWidget* dock : docks) {
        view->addAction(dock->toggleViewAction());
    }
}

void MainWindow::CreateFileActions()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    const auto add = [&](const QString& text, const QKeySequence& key, auto run) {
        QAction* action = file->addAction(text, this, run);
        action->setShortcut(key);
    };
    add(tr("&New Scene"), QKeySequence::New, [this] {
        if (MayDiscardScene()) {
            NewScene();
        }
    });
    add(tr("&Open Scene…"), QKeySequence::Open, [this] { ChooseScene(); });
    add(tr("&Save Scene"), QKeySequence::Save, [this] { SaveOrChoose(); });
    add(tr("Save Scene &As…"), QKeySequence::SaveAs, [this] { ChooseAndSave(); });
    file->addSeparator();
    add(tr("&Import Model…"), QKeySequence(Qt::CTRL + Qt::Key_I), [this] { ChooseModel(); });
    file->addSeparator();
    add(tr("&Quit"), QKeySequence::Quit, [this] { close(); });
}

void MainWindow::CreateEditActions()
{
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = edit->addAction(tr("&Undo"), this, [this] { m_host.Undo(); });
    undo->setObjectName(QStringLiteral("undoAction"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = edit->addAction(tr("&Redo"), this, [this] { m_host.Redo(); });
    redo->setObjectName(QStringLiteral("redoAction"));
    redo->setShortcut(QKeySequence::Redo);
    const auto follow = [this, undo, redo] {
        const QUndoStack& stack = m_host.CurrentScene().UndoStack();
        undo->setEnabled(stack.canUndo());
        undo->setText(stack.canUndo() ? tr("&Undo %1").arg(stack.undoText()) : tr("&Undo"));
        redo->setEnabled(stack.canRedo());
        redo->setText(stack.canRedo() ? tr("&Redo %1").arg(stack.redoText()) : tr("&Redo"));
    };
    const auto connectStack = [this, follow] {
        connect(&m_host.CurrentScene().UndoStack(), &QUndoStack::indexChanged, this, follow);
        follow();
    };
    connect(&m_host, &HostApplication::SceneReplaced, this, connectStack);
    connectStack();

    edit->addSeparator();
    QAction* remove = edit->addAction(tr("&Delete Object"), this, [this] {
        const QVector<BF::CHandle*> selected = m_host.CurrentScene().Selection();
        for (BF::CHandle* object : selected) {
            m_host.DeleteObject(object);
        }
    });
    remove->setShortcut(QKeySequence::Delete);

    edit->addSeparator();
    edit->addAction(tr("Image &Editor…"), this, &MainWindow::ChooseImageEditor)
        ->setObjectName(QStringLiteral("imageEditorAction"));
}

bool MainWindow::StartPlugin(const QString& libraryFile, MV::ECompatibleApp app)
{
    m_libraryFile = libraryFile;
    m_controls->ShowApplication(IndexOf(app));
    const bool started = m_pluginHost.Start(libraryFile, app);
    m_modifyPanel->SetSections(m_pluginHost.Sections());
    if (!m_unattended) {
        RestoreExpandStates();
    }
    if (!started) {
        Complain(m_pluginHost.Error());
    }
    return started;
}

void MainWindow::RestartPlugin(int application)
{
    const QVector<BF::CHandle*> selected = m_host.CurrentScene().Selection();
    m_host.Select({});
    StartPlugin(m_libraryFile, applications[application]);
    m_host.Select(selected);
}

bool MainWindow::ImportModel(const QString& path)
{
    QProgressDialog progress(tr("Reading %1…").arg(QFileInfo(path).fileName()), tr("Cancel"), 0, 100, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(500);
    ImportResult result = Host::ImportModel(path, [&progress](double done) {
        progress.setValue(int(done * 100));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        return !progress.wasCanceled();
    });
    progress.reset();
    if (result.cancelled) {
        statusBar()->showMessage(tr("Import cancelled"), 5000);
        return false;
    }
    if (!result.object) {
        Complain(result.error);
        return false;
    }
    m_host.LoadImages(m_host.AddModel(std::move(*result.object)));
    return true;
}

bool MainWindow::OpenScene(const QString& path)
{
    std::unique_ptr<Scene> scene;
    const SceneFileResult result = LoadScene(path, scene);
    if (!result.ok) {
        Complain(result.error);
        return false;
    }
    m_scenePath = path;
    m_host.ReplaceScene(std::move(scene), MV::EFileType::Scene);
    for (const Object* object : m_host.CurrentScene().Objects()) {
        m_host.LoadImages(object->handle);
    }
    return true;
}

bool MainWindow::SaveScene(const QString& path)
{
    const SceneFileResult result = Host::SaveScene(m_host.CurrentScene(), path);
    if (!result.ok) {
        Complain(result.error);
        return false;
    }
    m_scenePath = path;
    m_host.CurrentScene().UndoStack().setClean();
    ShowTitle();
    statusBar()->showMessage(tr("Saved %1").arg(QFileInfo(path).fileName()), 5000);
    return true;
}

void MainWindow::NewScene()
{
    m_scenePath.clear();
    m_host.ReplaceScene(std::make_unique<Scene>(), MV::EFileType::Scene);
}

void MainWindow::ChooseModel()
{
    const QString suffixes = ImportableSuffixes().join(QLatin1String(" *."));
    const QString path = QFileDialog::getOpenFileName(this, tr("Import Model"), {}, tr("Models (*.%1)").arg(suffixes));
    if (!path.isEmpty()) {
        ImportModel(path);
    }
}

void MainWindow::ChooseScene()
{
    if (!MayDiscardScene()) {
        return;
    }
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Scene"), m_scenePath, SceneFilter());
    if (!path.isEmpty()) {
        OpenScene(path);
    }
}

bool MainWindow::SaveOrChoose()
{
    return m_scenePath.isEmpty() ? ChooseAndSave() : SaveScene(m_scenePath);
}

bool MainWindow::ChooseAndSave()
{
    QFileDialog dialog(this, tr("Save Scene"), m_scenePath, SceneFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("clothscene"));
    return dialog.exec() == QDialog::Accepted && SaveScene(dialog.selectedFiles().constFirst());
}

bool MainWindow::MayDiscardScene()
{
    if (m_unattended || m_host.CurrentScene().UndoStack().isClean()) {
        return true;
    }
    const auto answer =
        QMessageBox::warning(this, tr("Unsaved changes"), tr("The scene has changes that are not saved."),
                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && SaveOrChoose());
}

void MainWindow::RestoreImageEditor()
{
    m_host.Editor().SetProgram(QSettings().value(imageEditorKey).toString());
}

void MainWindow::ChooseImageEditor()
{
    bool chosen = false;
    const QString program = QInputDialog::getText(
        this, tr("Image Editor"), tr("Program that opens weight images; empty for what the desktop opens them with:"),
        QLineEdit::Normal, m_host.Editor().Program(), &chosen);
    if (!chosen) {
        return;
    }
    m_host.Editor().SetProgram(program);
    if (!m_unattended) {
        QSettings().setValue(imageEditorKey, program);
    }
}

void MainWindow::SetUnattended()
{
    m_unattended = true;
    m_host.Answers().unattended = true;
}

void MainWindow::Complain(const QString& text)
{
    if (m_unattended) {
        qCritical("%s", qUtf8Printable(text));
    } else {
        QMessageBox::warning(this, QApplication::applicationDisplayName(), text);
    }
}

void MainWindow::ShowTitle()
{
    const QString name = m_scenePath.isEmpty() ? tr("Untitled") : QFileInfo(m_scenePath).fileName();
    setWindowTitle(QStringLiteral("%1[*] - %2").arg(name, QApplication::applicationDisplayName()));
    setWindowModified(!m_host.CurrentScene().UndoStack().isClean());
}

void MainWindow::KeepExpandStates() const
{
    QSettings settings;
    const auto sections = m_pluginHost.Sections();
    for (MV::CSectionInterface* section : sections) {
        settings.setValue(ExpandKey(*section), section->GetSectionExpandState());
    }
}

void MainWindow::RestoreExpandStates()
{
    const QSettings settings;
    const auto sections = m_pluginHost.Sections();
    for (MV::CSectionInterface* section : sections) {
        section->SetSectionExpandState(settings.value(ExpandKey(*section), true).toBool());
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(MayDiscardScene());
}

} // namespace Host
