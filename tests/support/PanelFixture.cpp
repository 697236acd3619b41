#include "tests/support/PanelFixture.h"

#include "tests/support/Children.h"

namespace {

template <class TextOf>
QStringList Take(Host::CallJournal& journal, TextOf textOf)
{
    QStringList texts;
    for (const Host::JournalEntry& entry : journal.Entries()) {
        if (entry.kind == Host::JournalEntry::Kind::Call) {
            texts.append(textOf(entry));
        }
    }
    journal.Clear();
    return texts;
}

} // namespace

QStringList TakeCalls(Host::CallJournal& journal)
{
    return Take(journal, [](const Host::JournalEntry& entry) { return entry.ToString(); });
}

QStringList TakeOperations(Host::CallJournal& journal)
{
    return Take(journal, [](const Host::JournalEntry& entry) { return entry.operation; });
}

PanelFixture::PanelFixture(MV::ECompatibleApp app, const QString& dataFolder)
    : m_panel(new Host::ModifyPanel)
    , m_plugin(m_host)
{
    m_window.setObjectName(QStringLiteral("mainWindow"));
    m_window.setCentralWidget(m_panel);
    m_window.resize(360, 700);
    m_host.SetMainWindow(&m_window);
    m_host.SetDataFolder(dataFolder);
    m_host.Answers().unattended = true;
    if (!m_plugin.Start(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), app)) {
        qFatal("%s", qPrintable(m_plugin.Error()));
    }
    m_panel->SetSections(m_plugin.Sections());
    m_window.show();
}

PanelFixture::~PanelFixture() = default;

Host::Object& PanelFixture::AddCloth(Host::Object object)
{
    BF::CHandle* handle = m_host.AddModel(std::move(object));
    m_host.SetSoftClothActive(handle, true);
    m_host.Journal().Clear();
    return *m_host.CurrentScene().FindObject(handle);
}

Host::ClothState& PanelFixture::Cloth(const Host::Object& object, std::size_t index)
{
    return m_host.CurrentScene().FindSlot(Host::Scene::SlotsOf(object).at(index))->cloth;
}

QWidget* PanelFixture::Section(const char* formName)
{
    return Child<QWidget>(&m_window, formName);
}
