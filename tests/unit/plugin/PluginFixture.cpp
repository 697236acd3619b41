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
    FakeParts::journal = &host.Journal();
    FakeParts::results.clear();
    FakeParts::pickChangesMaterial = false;
    host.SetMainWindow(&mainWindow);
    plugin->SetCurrentApp(app);
}

PluginFixture::~PluginFixture()
{
    plugin.reset();
    FakeParts::journal = nullptr;
}

BF::Result PluginFixture::Initialize()
{
    return plugin->Initialize(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), QString(), &host);
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
