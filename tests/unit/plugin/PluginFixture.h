#pragma once

#include "host/services/HostApplication.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "tests/support/SampleModels.h"

#include <QStringList>

#include <memory>

/// The plug-in object with stand-ins for its parts, in the stand-in host.
class PluginFixture
{
public:
    explicit PluginFixture(MV::ECompatibleApp app = MV::ECompatibleApp::FamilyA);
    ~PluginFixture();
    Q_DISABLE_COPY_MOVE(PluginFixture)

    BF::Result Initialize();
    /// Adds an object and selects it, without a trace in the journal.
    Host::Object& AddSelected(Host::Object object = SampleModels::Hero());

    /// Calls of the host and of the parts since the last time, as "Operation" or "Part.Call(argument)".
    QStringList Take();
    /// The same without the calls of the host.
    QStringList TakeParts();

    Host::HostApplication host;
    QWidget mainWindow;
    std::unique_ptr<MV::CPhysicsSoftClothPlugin> plugin;
};
