#include "tests/unit/plugin/PluginFixture.h"

#include "tests/unit/plugin/fakes/FakeParts.h"

namespace {

QStringList TakeLines(Host::CallJournal& journal, bool withHost)
{
    QStringList lines;
    for (const Host::JournalEntry& entry : journal.Entries()) {
        const bool isPart = entry.service == QLatin1String("Part");
        if (isPart) {
            lines.append(entry.arguments.isEmpty()
                             ? entry.operation
                             : entry.operation + QLatin1Char('(') + entry.arguments.first() + QLatin1Char(')'));
        } else if (withHost && entry.kind == Host::JournalEntry::Kind::Call) {
            lines.append(entry.operation);
        }
    }
    journal.Clear();
    return lines;
}

} // namespace

PluginFixture::PluginFixture(MV::ECompatibleApp app)
    : plugin(std::make_unique<MV::CPhysicsSoftClothPlugin>())
{
    FakeParts::Reset(&host.Journal());
    host.SetMainWindow(&mainWindow);
    plugin->SetCurrentApp(app);
}

PluginFixture::~PluginFixture()
{
    plugin.reset();
    FakeParts::Reset(nullptr);
}

BF::Result PluginFixture::Initialize(const QString& resourceBase)
{
    return InitializeIn(host, resourceBase);
}

BF::Result PluginFixture::InitializeIn(MV::CMoviraInterface& otherHost, const QString& resourceBase)
{
    return plugin->Initialize(PluginPath(), resourceBase, &otherHost);
}

QString PluginFixture::PluginPath()
{
    return QStringLiteral(SOFTCLOTH_PLUGIN_FILE);
}

Host::Object& PluginFixture::AddSelected(Host::Object object)
{
    Host::Object& added = host.CurrentScene().AddObject(std::move(object));
    host.CurrentScene().SetSelection({added.handle});
    host.Journal().Clear();
    return added;
}

QStringList PluginFixture::Take()
{
    return TakeLines(host.Journal(), true);
}

QStringList PluginFixture::TakeParts()
{
    return TakeLines(host.Journal(), false);
}

QList<MV::CSectionInterface*> PluginFixture::Sections() const
{
    QList<MV::CSectionInterface*> sections;
    plugin->GetSectionList(sections);
    return sections;
}

QStringList PluginFixture::PartsMade()
{
    QStringList calls;
    for (const char* part : {"Table", "Dialog", "Preset", "Property", "Collision", "Wind"}) {
        calls += {QLatin1String(part) + QStringLiteral(".create"), QLatin1String(part) + QStringLiteral(".Init")};
    }
    return calls;
}

QStringList PluginFixture::PartsDestroyed()
{
    return {QStringLiteral("Table.destroy"),    QStringLiteral("Wind.destroy"),   QStringLiteral("Collision.destroy"),
            QStringLiteral("Property.destroy"), QStringLiteral("Dialog.destroy"), QStringLiteral("Preset.destroy")};
}

int PluginFixture::ConnectionCount(const char* eventSignal)
{
    class Access : public MV::CEventSender
    {
    public:
        using QObject::receivers;
    };
    const MV::CEventSender& sender = *host.GetEventSender();
    if (sender.metaObject()->indexOfSignal(QMetaObject::normalizedSignature(eventSignal + 1)) < 0) {
        qFatal("there is no signal %s", eventSignal);
    }
    // Only the protected counter is used, which needs no other layout than the base's.
    return (sender.*(&Access::receivers))(eventSignal);
}

ShownFixture::ShownFixture(MV::ECompatibleApp app)
    : PluginFixture(app)
{
    Initialize();
    object = &AddSelected();
    plugin->UpdateUi();
    plugin->Selection().mesh = 11;
    plugin->Selection().material = 12;
    Take();
}

bool ShownFixture::IsRefresh(const QStringList& calls)
{
    return calls.contains(QStringLiteral("GetPhysicsEngineType")) && calls.contains(QStringLiteral("Dialog.UpdateUi"));
}
