#pragma once

#include "host/services/HostApplication.h"
#include "host/services/PluginHost.h"
#include "host/workbench/ModifyPanel.h"

#include <MVPluginQt/Enumerations.h>

#include <QMainWindow>
#include <QStringList>

/// The texts of the journal's calls, events left out, and empties the journal.
QStringList TakeCalls(Host::CallJournal& journal);

/// The names of the operations of the journal's calls, in order, and empties the journal.
QStringList TakeOperations(Host::CallJournal& journal);

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
    QMainWindow& Window() { return m_window; }

    /// Adds \p object with soft cloth switched on for all its materials and selects it.
    Host::Object& AddCloth(Host::Object object);

    /// The cloth of \p object's slot number \p index, over all its meshes.
    Host::ClothState& Cloth(const Host::Object& object, std::size_t index = 0);

    /// The section whose form is called \p formName.
    QWidget* Section(const char* formName);

private:
    Host::HostApplication m_host;
    QMainWindow m_window;
    Host::ModifyPanel* m_panel;
    Host::PluginHost m_plugin; ///< Dies first.
};
