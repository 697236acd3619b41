#pragma once

#include "host/import/Units.h"
#include "host/services/HostApplication.h"
#include "host/services/PluginHost.h"

#include <MVPluginQt/Enumerations.h>

#include <QMainWindow>

#include <memory>
#include <optional>

class QLabel;

namespace Host {

class Centre;
class EditMenu;
class HostControls;
class LanguageMenu;
class Languages;
class ModifyPanel;
class SceneFiles;

/// The workbench's window: the scene tree, the Modify panel with the plug-in's sections, the host controls and the
/// live call journal.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(std::shared_ptr<HostApplication> host = std::make_shared<HostApplication>());
    ~MainWindow() override;

    HostApplication& Application() { return m_host; }
    const std::shared_ptr<HostApplication>& SharedApplication() const { return m_sharedHost; }
    PluginHost& Plugin() { return m_pluginHost; }

    /// Starts the plug-in of \p libraryFile and embeds its sections. \return false, after a message, when it fails
    bool StartPlugin(const QString& libraryFile, MV::ECompatibleApp app);

    // Files: see SceneFiles.
    /// \param unit  of a model whose file does not name one; without it the user is asked
    bool ImportModel(const QString& path, const std::optional<LengthUnit>& unit = {});
    bool OpenScene(const QString& path);
    bool SaveScene(const QString& path);
    void NewScene();

    /// With nobody to click, messages go to the standard error output instead of a box, and nothing is remembered
    /// from one run to the next.
    void SetUnattended();
    /// Goes on with what the user chose in an earlier run: place, size and docks of the window, the program for images.
    void RestoreSettings();

    /// Fills the menu from which the user chooses a language.
    void OfferLanguages(const Languages& languages);
    /// Shows what \p old shows, in its place, with the plug-in started again. Both are over the same host; \p old has
    /// no plug-in any more afterwards.
    void TakeOver(MainWindow& old);

Q_SIGNALS:
    /// The user has chosen a language of those offered; empty for the system's.
    void LanguageChosen(const QString& code);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void CreateDocks();
    void CreateStatusBar();
    void CreateViewMenu();
    void ChooseLanguage(const QString& code);
    void RestartPlugin(int application);
    bool StartPluginAgain(MainWindow& from, const QString& libraryFile, MV::ECompatibleApp app);
    void ShowMaterialAgain(const ClothAddress& shown);
    void Complain(const QString& text);
    void ShowHint();
    void ConnectScene();
    void KeepExpandStates() const;
    void RestoreExpandStates();

    std::shared_ptr<HostApplication> m_sharedHost;
    HostApplication& m_host;
    PluginHost m_pluginHost; ///< Dies before the host and before the panel that shows its sections.
    SceneFiles* m_files;
    EditMenu* m_edit;
    Centre* m_centre = nullptr;
    ModifyPanel* m_modifyPanel = nullptr;
    HostControls* m_controls = nullptr;
    QLabel* m_panelPage = nullptr;
    LanguageMenu* m_languageMenu = nullptr;
    MV::ECompatibleApp m_app = MV::ECompatibleApp::None;
    ClothAddress m_shown; ///< What the panel read last.
    QString m_libraryFile;
    bool m_unattended = false;
};

} // namespace Host
