#pragma once

#include "host/services/HostApplication.h"
#include "host/services/PluginHost.h"
#include "host/workbench/ModifyPanel.h"
#include "tests/support/HostCalls.h"

#include <MVPluginQt/Enumerations.h>

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

/// The built library in the stand-in host, with its sections in a Modify panel.
class PanelFixture
{
public:
    /// \param dataFolder  the host's data folder; empty for a host without one
    explicit PanelFixture(MV::ECompatibleApp app = MV::ECompatibleApp::FamilyA, const QString& dataFolder = {});
    ~PanelFixture();
    Q_DISABLE_COPY_MOVE(PanelFixture)

    Host::HostApplication& App() { return m_host; }
    Host::Scene& CurrentScene() { return m_host.CurrentScene(); }
    Host::PluginHost& Plugin() { return m_plugin; }
    QMainWindow& Window() { return *m_window; }

    /// Starts the plug-in, anew if it runs already, and puts its sections into the Modify panel.
    bool Start(MV::ECompatibleApp app);

    // What a host may do in the middle of everything. Window() is not to be used after the first.
    void DestroyWindow() { delete m_window; }
    void DestroyModifyPanel() { delete m_panel; }

    /// Adds \p object with soft cloth switched on for all its materials and selects it.
    Host::Object& AddCloth(Host::Object object);

    /// The cloth of \p object's slot number \p index, over all its meshes.
    Host::ClothState& Cloth(const Host::Object& object, std::size_t index = 0);

    /// The section whose form is called \p formName.
    QWidget* Section(const char* formName);

private:
    Host::HostApplication m_host;
    QPointer<QMainWindow> m_window;
    QPointer<Host::ModifyPanel> m_panel;
    Host::PluginHost m_plugin;
};
