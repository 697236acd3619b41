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

    BF::Result Initialize(const QString& resourceBase = {});
    /// The same with another host than the fixture's.
    BF::Result InitializeIn(MV::CMoviraInterface& otherHost, const QString& resourceBase = {});
    /// The path that the plug-in object is initialised with.
    static QString PluginPath();
    /// Adds an object and selects it, without a trace in the journal.
    Host::Object& AddSelected(Host::Object object = SampleModels::Hero());

    /// Calls of the host and of the parts since the last time, as "Operation" or "Part.Call(argument)".
    QStringList Take();
    /// The same without the calls of the host.
    QStringList TakeParts();

    /// What the plug-in object lists as its sections.
    QList<MV::CSectionInterface*> Sections() const;
    /// The calls of the parts when all of them are made, and when all of them are destroyed.
    static QStringList PartsMade();
    static QStringList PartsDestroyed();

    /// How often \p eventSignal, as SIGNAL() spells it, is connected.
    int ConnectionCount(const char* eventSignal);

    Host::HostApplication host;
    QWidget mainWindow;
    std::unique_ptr<MV::CPhysicsSoftClothPlugin> plugin;
};

/// A fixture that shows its selected object, with a mesh and a material of it.
struct ShownFixture : PluginFixture
{
    explicit ShownFixture(MV::ECompatibleApp app = MV::ECompatibleApp::FamilyA);

    /// Whether \p calls hold a whole refresh.
    static bool IsRefresh(const QStringList& calls);

    Host::Object* object = nullptr;
};
