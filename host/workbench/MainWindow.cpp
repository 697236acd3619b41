#include "host/workbench/MainWindow.h"

#include "host/services/UserDialogs.h"
#include "host/workbench/HostControls.h"
#include "host/workbench/LanguageMenu.h"
#include "host/workbench/Languages.h"
#include "host/workbench/ModifyPanel.h"
#include "host/workbench/SceneTree.h"
#include "host/workbench/window/Centre.h"
#include "host/workbench/window/DialogPlace.h"
#include "host/workbench/window/EditMenu.h"
#include "host/workbench/window/MovingVertices.h"
#include "host/workbench/window/PanelActions.h"
#include "host/workbench/window/PanelHint.h"
#include "host/workbench/window/PickGuide.h"
#include "host/workbench/window/SceneFiles.h"
#include "host/workbench/window/UndoKeys.h"
#include "host/workbench/window/UserActions.h"
#include "host/workbench/window/WindowState.h"

#include <MVPluginQt/SectionInterface.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QHash>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Host {

namespace {

constexpr MV::ECompatibleApp applications[] = {MV::ECompatibleApp::FamilyA, MV::ECompatibleApp::FamilyB,
                                               MV::ECompatibleApp::None};
constexpr int messageMilliseconds = 5000;

int IndexOf(MV::ECompatibleApp app)
{
    return int(std::find(std::begin(applications), std::end(applications), app) - std::begin(applications));
}

QString ExpandKey(MV::CSectionInterface& section)
{
    return QStringLiteral("sections/expanded_%1").arg(section.GetSectionOrder());
}

} // namespace

MainWindow::MainWindow(std::shared_ptr<HostApplication> host)
    : m_sharedHost(std::move(host))
    , m_host(*m_sharedHost)
    , m_pluginHost(m_host)
    , m_files(new SceneFiles(m_host, *this))
    , m_edit(new EditMenu(m_host, *this))
{
    setObjectName(QStringLiteral("workbench"));
    m_host.SetMainWindow(this);
    CreateDocks();
    CreateStatusBar();
    CreateViewMenu();
    new UserActions(m_host, this);
    new UndoKeys(m_host, this);
    new DialogPlace(m_modifyPanel, this);
    resize(FirstWindowSize(screen()->availableGeometry()));
    connect(&m_host, &HostApplication::ClothRead, this, [this](const ClothAddress& address) { m_shown = address; });
    connect(m_files, &SceneFiles::Failed, this, &MainWindow::Complain);
    connect(m_files, &SceneFiles::Done, this,
            [this](const QString& sentence) { statusBar()->showMessage(sentence, messageMilliseconds); });
    connect(&m_host, &HostApplication::ProblemTold, this, &MainWindow::Complain);
    connect(&m_host, &HostApplication::StateChanged, this, &MainWindow::ShowHint);
    connect(&m_host, &HostApplication::SceneReplaced, this, &MainWindow::ConnectScene);
    ConnectScene();
}

MainWindow::~MainWindow()
{
    if (!m_unattended) {
        KeepExpandStates();
        KeepWindowState(*this);
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
    m_centre = new Centre(m_host, *this);
    if (m_centre->View()) {
        m_edit->DeleteFrom(m_centre->View());
    }
    auto* sceneTree = new SceneTree(m_host);
    m_edit->DeleteFrom(sceneTree);
    QDockWidget* tree = addDock(tr("Scene"), "sceneDock", sceneTree, Qt::LeftDockWidgetArea);
    m_controls = new HostControls(m_host);
    QDockWidget* controls = addDock(tr("Host Controls"), "controlsDock", m_controls, Qt::LeftDockWidgetArea);
    m_modifyPanel = new ModifyPanel;
    QDockWidget* modify = addDock(tr("Modify"), "modifyDock", m_modifyPanel, Qt::RightDockWidgetArea);
    resizeDocks({tree, controls}, {260, 480}, Qt::Vertical);
    resizeDocks({tree, modify}, {270, 376}, Qt::Horizontal);
    connect(m_controls, &HostControls::ApplicationChosen, this, &MainWindow::RestartPlugin);
}

void MainWindow::CreateStatusBar()
{
    new PickGuide(m_host, *this);
    statusBar()->addPermanentWidget(new MovingVertices(m_host, this));
    m_panelPage = new QLabel(this);
    m_panelPage->setObjectName(QStringLiteral("panelPage"));
    m_panelPage->setToolTip(tr("The page of the host's panels that the plug-in asked for last"));
    statusBar()->addPermanentWidget(m_panelPage);
    connect(&m_host, &HostApplication::PanelPageRequested, this, [this](int page, int order, int flags) {
        m_panelPage->setText(tr("Panel page %1, place %2, option %3").arg(page).arg(order).arg(flags));
    });
}

void MainWindow::CreateViewMenu()
{
    m_languageMenu = new LanguageMenu(this);
    m_edit->AddMenu(m_languageMenu);
    connect(m_languageMenu, &LanguageMenu::Chosen, this, &MainWindow::ChooseLanguage);
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->setObjectName(QStringLiteral("viewMenu"));
    view->addAction((new PanelActions(m_host, *this))->WeightMapDialog());
    view->addActions(m_centre->Commands());
    view->addSeparator();
    const auto docks = findChildren<QDockWidget*>();
    for (const QDockWidget* dock : docks) {
        view->addAction(dock->toggleViewAction());
    }
}

bool MainWindow::StartPlugin(const QString& libraryFile, MV::ECompatibleApp app)
{
    m_libraryFile = libraryFile;
    m_app = app;
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
    StartPluginAgain(*this, m_libraryFile, applications[application]);
}

/// Stops the plug-in of \p from, which may be this window, and starts it here: the same object is selected, the same
/// material is edited, and the sections are unfolded that were.
bool MainWindow::StartPluginAgain(MainWindow& from, const QString& libraryFile, MV::ECompatibleApp app)
{
    const QVector<BF::CHandle*> selected = m_host.CurrentScene().Selection();
    const MV::EDialogMode dialogMode = m_host.CurrentScene().dialogMode;
    const ClothAddress shown = from.m_shown;
    QHash<int, bool> expanded;
    const auto before = from.m_pluginHost.Sections();
    for (MV::CSectionInterface* section : before) {
        expanded.insert(section->GetSectionOrder(), section->GetSectionExpandState());
    }
    m_host.Select({});
    from.m_pluginHost.Stop();
    const bool started = StartPlugin(libraryFile, app);
    const auto after = m_pluginHost.Sections();
    for (MV::CSectionInterface* section : after) {
        section->SetSectionExpandState(expanded.value(section->GetSectionOrder(), true));
    }
    m_host.Select(selected);
    ShowMaterialAgain(shown);
    m_host.SetDialogMode(dialogMode);
    return started;
}

/// A panel that has just started edits the first material. The one that was edited before is picked again, which takes
/// the weight map dialog's mode.
void MainWindow::ShowMaterialAgain(const ClothAddress& shown)
{
    const Object* object = m_host.CurrentScene().FindObject(shown.object);
    if (!object || m_shown.object != shown.object || m_shown.material == shown.material) {
        return;
    }
    const auto material = std::find_if(object->materials.begin(), object->materials.end(),
                                       [&shown](const Material& candidate) { return candidate.id == shown.material; });
    if (material != object->materials.end()) {
        m_host.SetDialogMode(MV::EDialogMode::WeightMap);
        m_host.PickMaterial(shown.object, int(material - object->materials.begin()));
    }
}

void MainWindow::OfferLanguages(const Languages& languages)
{
    m_languageMenu->Offer(languages);
}

void MainWindow::ChooseLanguage(const QString& code)
{
    if (!m_unattended) {
        Languages::Remember(code);
    }
    Q_EMIT LanguageChosen(code);
}

void MainWindow::TakeOver(MainWindow& old)
{
    if (old.m_unattended) {
        SetUnattended();
    }
    m_files->TakeOver(*old.m_files);
    restoreGeometry(old.saveGeometry());
    restoreState(old.saveState());
    m_centre->TakeOver(*old.m_centre);
    setVisible(old.isVisible());
    StartPluginAgain(old, old.m_libraryFile, old.m_app);
}

bool MainWindow::ImportModel(const QString& path, const std::optional<LengthUnit>& unit)
{
    return m_files->Import(path, unit);
}

bool MainWindow::OpenScene(const QString& path)
{
    return m_files->Open(path);
}

bool MainWindow::SaveScene(const QString& path)
{
    return m_files->Save(path);
}

void MainWindow::NewScene()
{
    m_files->New();
}

void MainWindow::SetUnattended()
{
    m_unattended = true;
    m_files->SetUnattended();
    m_edit->SetUnattended();
    m_host.Answers().unattended = true;
}

void MainWindow::RestoreSettings()
{
    m_edit->RestoreImageEditor();
    RestoreWindowState(*this);
}

void MainWindow::Complain(const QString& text)
{
    if (m_unattended) {
        qCritical("%s", qUtf8Printable(text));
    } else {
        AskUser(this, {QApplication::applicationDisplayName(), text, QMessageBox::Warning});
    }
}

void MainWindow::ConnectScene()
{
    const Scene& scene = m_host.CurrentScene();
    connect(&scene, &Scene::ObjectsChanged, this, &MainWindow::ShowHint);
    connect(&scene, &Scene::SelectionChanged, this, &MainWindow::ShowHint);
    ShowHint();
}

void MainWindow::ShowHint()
{
    m_modifyPanel->SetHint(PanelHint(m_host));
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
    event->setAccepted(m_files->MayDiscard());
}

} // namespace Host
