#pragma once

#include "host/services/HostApplication.h"
#include "host/services/PluginHost.h"

#include <MVPluginQt/Enumerations.h>

#include <QMainWindow>

class QLabel;

namespace Host {

class HostControls;
class ModifyPanel;

/// The workbench's window: the scene tree, the Modify panel with the plug-in's sections, the host controls and the
/// live call journal.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    HostApplication& Application() { return m_host; }
    PluginHost& Plugin() { return m_pluginHost; }

    /// Starts the plug-in of \p libraryFile and embeds its sections. \return false, after a message, when it fails
    bool StartPlugin(const QString& libraryFile, MV::ECompatibleApp app);

    /// Reads a model into the current scene and selects it, with a progress dialog that can cancel it.
    /// \return false when it failed, after a message, or was cancelled
    bool ImportModel(const QString& path);
    /// Exchanges the scene for one that was saved before. \return false, after a message, when the file is no good
    bool OpenScene(const QString& path);
    bool SaveScene(const QString& path);
    void NewScene();

    /// With nobody to click, messages go to the standard error output instead of a box, and nothing is remembered
    /// from one run to the next.
    void SetUnattended();
    /// Sets the program that the user chose for images in an earlier run.
    void RestoreImageEditor();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void CreateDocks();
    void CreateActions();
    void CreateFileActions();
    void CreateEditActions();
    void RestartPlugin(int application);

    void ChooseModel();
    void ChooseImageEditor();
    void ChooseScene();
    bool SaveOrChoose();
    bool ChooseAndSave();
    /// Lets the user save unsaved changes. \return false when the user would rather stay
    bool MayDiscardScene();

    void Complain(const QString& text);
    void ShowTitle();
    void KeepExpandStates() const;
    void RestoreExpandStates();

    HostApplication m_host;
    PluginHost m_pluginHost; ///< Dies before the host and before the panel that shows its sections.
    ModifyPanel* m_modifyPanel = nullptr;
    HostControls* m_controls = nullptr;
    QLabel* m_panelPage = nullptr;
    QString m_libraryFile;
    QString m_scenePath;
    bool m_unattended = false;
};

} // namespace Host
