#include "tests/support/PanelFixture.h"

#include "tests/support/Children.h"

PanelFixture::PanelFixture(MV::ECompatibleApp app, const QString& dataFolder)
    : m_window(new QMainWindow)
    , m_panel(new Host::ModifyPanel)
    , m_plugin(m_host)
{
    m_window->setObjectName(QStringLiteral("mainWindow"));
    m_window->setCentralWidget(m_panel);
    m_window->resize(360, 700);
    m_host.SetMainWindow(m_window);
    m_host.SetDataFolder(dataFolder);
    m_host.Answers().unattended = true;
    if (!Start(app)) {
        qFatal("%s", qPrintable(m_plugin.Error()));
    }
    m_window->show();
}

PanelFixture::~PanelFixture()
{
    m_plugin.Stop();
    delete m_window;
}

bool PanelFixture::Start(MV::ECompatibleApp app)
{
    const bool started = m_plugin.Start(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), app);
    if (started && m_panel) {
        m_panel->SetSections(m_plugin.Sections());
    }
    return started;
}

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
    return Child<QWidget>(m_window, formName);
}
