#include <MVPluginQt/AbstractPlugin.h>

#include "tests/support/EmptyHost.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sdk/FormFolder.h"

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QToolBar>

#include <memory>

namespace {

const QString g_rccName = QStringLiteral("Sample.rcc");
const QString g_resource = QStringLiteral(":/sample/content.txt");

/// A plug-in that offers what it has from its base.
class Plugin final : public MV::CAbstractPlugin
{
public:
    using MV::CAbstractPlugin::AddMenu;
    using MV::CAbstractPlugin::AddToolBar;
    using MV::CAbstractPlugin::Host;
    using MV::CAbstractPlugin::InitResource;
    using MV::CAbstractPlugin::Menus;
    using MV::CAbstractPlugin::ToolBars;

    BF::Result Initialize(const QString&, const QString&, MV::CMoviraInterface*) override { return {}; }
    BF::Result GetContextList(QList<QAction*>&) override { return {}; }
    BF::Result GetDockWidgetList(QList<QDockWidget*>&) override { return {}; }
    BF::Result GetSectionList(QList<MV::CSectionInterface*>&) override { return {}; }
    BF::Result GetDialogList(QList<QDialog*>&) override { return {}; }
    BF::Result GetMenusList(QList<QMenu*>&) override { return {}; }
    BF::Result GetToolBarsList(QList<QToolBar*>&) override { return {}; }
    bool IsValid(MV::CMoviraInterface*) override { return true; }
    MV::ECompatibleApp GetCompatibleApps() override { return MV::ECompatibleApp::Both; }
};

/// Another part of a plug-in.
class Part : public MV::CCoreBase
{
};

/// What the registered resource holds; empty when none is registered.
QString Content()
{
    QFile file(g_resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

} // namespace

/// A library folder "library" with a library file "plugin.so" and a further folder "base".
class TestAbstractPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void resourceFileIsFound_data();
    void resourceFileIsFound();
    void unusableResourceFileIsAFailure_data();
    void unusableResourceFileIsAFailure();
    void missingArgumentIsRefused_data();
    void missingArgumentIsRefused();
    void hostIsKept();
    void resourceGoesWithThePlugin();
    void resourceStaysForAnotherPlugin();
    void laterResourceReplacesTheFirst();
    void failureKeepsTheFirstResource();

    void menusAndToolBarsAreKeptUntilTheyGo();
    void currentAppIsOneForTheProcess();
    void layoutIsRestoredToNothing();
    void interfaceHasItsIdentifier();

protected:
    void SetUp() override;

private:
    FormFolder m_folder;
    QByteArray m_first; ///< A resource file that says "first".
    QByteArray m_second;
    EmptyHost m_host;
};

void TestAbstractPlugin::initTestCase()
{
    for (const auto& [name, content] : {std::make_pair("first", &m_first), std::make_pair("second", &m_second)}) {
        QFile file(QStringLiteral(SAMPLE_RESOURCES "/%1.rcc").arg(QLatin1String(name)));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        *content = file.readAll();
    }
}

void TestAbstractPlugin::SetUp()
{
    for (const char* folder : {"library", "base"}) {
        const QString path = m_folder.Path(QLatin1String(folder));
        QDir(path).removeRecursively();
        QVERIFY(QDir().mkpath(path));
    }
    m_folder.Write(QStringLiteral("library/plugin.so"), "no library");
    QVERIFY(Content().isEmpty());
}

void TestAbstractPlugin::resourceFileIsFound_data()
{
    QTest::addColumn<QString>("pluginPath");
    QTest::addColumn<QString>("resourceBase");
    QTest::addColumn<bool>("inLibrary");
    QTest::addColumn<bool>("inBase");
    QTest::addColumn<QString>("content");
    const QString first = QStringLiteral("first");
    const QString second = QStringLiteral("second");
    const QString file = QStringLiteral("library/plugin.so");
    const QString folder = QStringLiteral("library");
    const QString base = QStringLiteral("base");
    QTest::newRow("beside the library file") << file << QString() << true << false << first;
    QTest::newRow("in the library folder") << folder << QString() << true << false << first;
    QTest::newRow("in the library folder, with a slash") << folder + u'/' << QString() << true << false << first;
    QTest::newRow("in the resource base") << file << base << false << true << second;
    QTest::newRow("in both: beside the library goes first") << file << base << true << true << first;
    QTest::newRow("no library path") << QString() << base << true << true << second;
}

void TestAbstractPlugin::resourceFileIsFound()
{
    QFETCH(QString, pluginPath);
    QFETCH(QString, resourceBase);
    QFETCH(bool, inLibrary);
    QFETCH(bool, inBase);
    QFETCH(QString, content);
    if (inLibrary) {
        m_folder.Write(QStringLiteral("library/Sample.rcc"), m_first);
    }
    if (inBase) {
        m_folder.Write(QStringLiteral("base/Sample.rcc"), m_second);
    }
    const auto path = [this](const QString& name) { return name.isEmpty() ? name : m_folder.Path(name); };
    Plugin plugin;
    QCOMPARE(plugin.InitResource(path(pluginPath), g_rccName, path(resourceBase), &m_host), BF::Results::Success);
    QCOMPARE(Content(), content);
}

void TestAbstractPlugin::unusableResourceFileIsAFailure_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("of a few bytes") << QByteArray("qres");
    QTest::newRow("of something else") << QByteArray(1000, 'x');
    QTest::newRow("cut off in its head") << m_first.left(24);
    QTest::newRow("cut off in the middle") << m_first.left(m_first.size() / 2);
    QTest::newRow("of a later format") << QByteArray(m_first).replace(4, 4, QByteArray("\0\0\0\x63", 4));
}

void TestAbstractPlugin::unusableResourceFileIsAFailure()
{
    QFETCH(QByteArray, file);
    if (!file.isEmpty()) {
        m_folder.Write(QStringLiteral("library/Sample.rcc"), file);
    }
    Plugin plugin;
    const BF::Result result = plugin.InitResource(m_folder.Path(QStringLiteral("library")), g_rccName,
                                                  m_folder.Path(QStringLiteral("base")), &m_host);
    QCOMPARE(result, BF::Results::ResourceFailure);
    QVERIFY(!plugin.Host());
    QVERIFY(Content().isEmpty());
}

void TestAbstractPlugin::missingArgumentIsRefused_data()
{
    QTest::addColumn<bool>("hasHost");
    QTest::addColumn<QString>("rccName");
    QTest::newRow("no host") << false << g_rccName;
    QTest::newRow("no file name") << true << QString();
}

void TestAbstractPlugin::missingArgumentIsRefused()
{
    QFETCH(bool, hasHost);
    QFETCH(QString, rccName);
    m_folder.Write(QStringLiteral("library/Sample.rcc"), m_first);
    Plugin plugin;
    QCOMPARE(
        plugin.InitResource(m_folder.Path(QStringLiteral("library")), rccName, QString(), hasHost ? &m_host : nullptr),
        BF::Results::InvalidArgument);
    QVERIFY(!plugin.Host());
    QVERIFY(Content().isEmpty());
}

void TestAbstractPlugin::hostIsKept()
{
    m_folder.Write(QStringLiteral("library/Sample.rcc"), m_first);
    Plugin plugin;
    QVERIFY(!plugin.Host());
    QVERIFY(plugin.InitResource(m_folder.Path(QStringLiteral("library")), g_rccName, QString(), &m_host).IsSuccess());
    QCOMPARE(plugin.Host(), &m_host);
}

void TestAbstractPlugin::resourceGoesWithThePlugin()
{
    m_folder.Write(QStringLiteral("library/Sample.rcc"), m_first);
    {
        Plugin plugin;
        QVERIFY(
            plugin.InitResource(m_folder.Path(QStringLiteral("library")), g_rccName, QString(), &m_host).IsSuccess());
        QCOMPARE(Content(), QStringLiteral("first"));
    }
    QVERIFY(Content().isEmpty());
}

void TestAbstractPlugin::resourceStaysForAnotherPlugin()
{
    m_folder.Write(QStringLiteral("library/Sample.rcc"), m_first);
    const QString library = m_folder.Path(QStringLiteral("library"));
    auto plugin = std::make_unique<Plugin>();
    auto other = std::make_unique<Plugin>();
    QVERIFY(plugin->InitResource(library, g_rccName, QString(), &m_host).IsSuccess());
    QVERIFY(other->InitResource(library, g_rccName, QString(), &m_host).IsSuccess());
    plugin.reset();
    QCOMPARE(Content(), QStringLiteral("first"));
    other.reset();
    QVERIFY(Content().isEmpty());
}

void TestAbstractPlugin::laterResourceReplacesTheFirst()
{
    m_folder.Write(QStringLiteral("library/Sample.rcc"), m_first);
    m_folder.Write(QStringLiteral("base/Sample.rcc"), m_second);
    {
        Plugin plugin;
        QVERIFY(
            plugin.InitResource(m_folder.Path(QStringLiteral("library")), g_rccName, QString(), &m_host).IsSuccess());
        QVERIFY(plugin.InitResource(m_folder.Path(QStringLiteral("base")), g_rccName, QString(), &m_host).IsSuccess());
        QCOMPARE(Content(), QStringLiteral("second"));
    }
    QVERIFY(Content().isEmpty());
}

void TestAbstractPlugin::failureKeepsTheFirstResource()
{
    m_folder.Write(QStringLiteral("library/Sample.rcc"), m_first);
    Plugin plugin;
    const QString library = m_folder.Path(QStringLiteral("library"));
    QVERIFY(plugin.InitResource(library, g_rccName, QString(), &m_host).IsSuccess());
    QVERIFY(plugin.InitResource(library, QStringLiteral("Other.rcc"), QString(), &m_host).IsFailure());
    QCOMPARE(plugin.Host(), &m_host);
    QCOMPARE(Content(), QStringLiteral("first"));
}

void TestAbstractPlugin::menusAndToolBarsAreKeptUntilTheyGo()
{
    Plugin plugin;
    QVERIFY(plugin.Menus().isEmpty());
    QVERIFY(plugin.ToolBars().isEmpty());
    auto menu = std::make_unique<QMenu>();
    QMenu otherMenu;
    auto toolBar = std::make_unique<QToolBar>();
    plugin.AddMenu(menu.get());
    plugin.AddMenu(&otherMenu);
    plugin.AddToolBar(toolBar.get());
    QCOMPARE(plugin.Menus(), QList<QPointer<QMenu>>({menu.get(), &otherMenu}));
    QCOMPARE(plugin.ToolBars(), QList<QPointer<QToolBar>>({toolBar.get()}));

    menu.reset();
    toolBar.reset();
    QCOMPARE(plugin.Menus(), QList<QPointer<QMenu>>({nullptr, &otherMenu}));
    QCOMPARE(plugin.ToolBars(), QList<QPointer<QToolBar>>({nullptr}));
}

void TestAbstractPlugin::currentAppIsOneForTheProcess()
{
    Plugin plugin;
    Plugin other;
    const Part part;
    QCOMPARE(plugin.GetCurrentApp(), MV::ECompatibleApp::None);
    for (const auto app : {MV::ECompatibleApp::FamilyA, MV::ECompatibleApp::FamilyB, MV::ECompatibleApp::None}) {
        plugin.SetCurrentApp(app);
        QCOMPARE(plugin.GetCurrentApp(), app);
        QCOMPARE(other.GetCurrentApp(), app);
        QCOMPARE(part.GetCurrentAp(), app);
    }
}

void TestAbstractPlugin::layoutIsRestoredToNothing()
{
    Plugin plugin;
    QCOMPARE(plugin.RestoreLayout(), BF::Results::Success);
}

void TestAbstractPlugin::interfaceHasItsIdentifier()
{
    QCOMPARE(qobject_interface_iid<MV::CPluginInterface*>(), "Brightfold.Movira.CPluginInterface/7.0");
    QCOMPARE(qobject_interface_iid<MV::CAbstractPlugin*>(), "Brightfold.Movira.CPluginInterface/7.0");
}

SOFTCLOTH_TEST(TestAbstractPlugin)

#include "tst_abstract_plugin.moc"
