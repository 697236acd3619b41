#include "host/services/HostApplication.h"
#include "tests/support/LibraryFile.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <MVPluginQt/PluginInterface.h>
#include <MVPluginQt/SectionInterface.h>

#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QResource>
#include <QtEndian>

#include <memory>

/// The built library as the host's plug-in loader sees it.
class TestPluginLibrary : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void exportsTheTwoEntryPointsAndNothingElse();
    void needsQtTheSdkAndTheSystemOnly();
    void metadataSectionIsByteForByteAsDescribed();
    void instanceIsCreatedOnceAndAgainAfterItsEnd();
    void metaCastAnswers_data();
    void metaCastAnswers();
    void metaCastGivesTheSamePluginInterface();
    void sectionValues_data();
    void sectionValues();
    void sectionsAreListedInOrder();
    void resourceFileHoldsWhatThePanelUses_data();
    void resourceFileHoldsWhatThePanelUses();
    void resourceFileHasNoTimeStamps();
    void mainWindowMayDieBeforeThePlugin();
};

namespace {

const QString libraryFile = QStringLiteral(SOFTCLOTH_PLUGIN_FILE);

/// The resource file, which lies beside the library.
QString ResourceFile()
{
    return QFileInfo(libraryFile).path() + QStringLiteral("/MVPhysicsSoftClothSection.rcc");
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    return file.readAll();
}

} // namespace

void TestPluginLibrary::exportsTheTwoEntryPointsAndNothingElse()
{
    const QStringList names = LibraryFile(libraryFile).ExportedNames();
    QCOMPARE(names, (QStringList{QStringLiteral("qt_plugin_instance"), QStringLiteral("qt_plugin_query_metadata")}));
}

void TestPluginLibrary::needsQtTheSdkAndTheSystemOnly()
{
    const QString own = QStringLiteral("(lib)?(Qt5(Core|Gui|Widgets)|MVPluginQt|BFQtCustomWidgetPluginU)");
#ifdef Q_OS_WIN
    const QString system = QStringLiteral("KERNEL32|msvcrt|libgcc_s_seh-1|libstdc\\+\\+-6|libwinpthread-1");
    const QString suffix = QStringLiteral("\\.dll");
#else
    const QString system = QStringLiteral("lib(c|m|gcc_s|stdc\\+\\+|asan|ubsan)|ld-linux-x86-64");
    const QString suffix = QStringLiteral("\\.so(\\.\\d+)?");
#endif
    const QRegularExpression allowed(QStringLiteral("^(%1|%2)%3$").arg(own, system, suffix),
                                     QRegularExpression::CaseInsensitiveOption);
    const QStringList needed = LibraryFile(libraryFile).NeededLibraries();
    QCOMPARE(needed.filter(allowed), needed);
    for (const char* library : {"Qt5Core", "Qt5Widgets", "MVPluginQt"}) {
        QCOMPARE(needed.filter(QLatin1String(library)).size(), 1);
    }
}

void TestPluginLibrary::metadataSectionIsByteForByteAsDescribed()
{
    const QByteArray iid = "Brightfold.Movira.CPluginInterface/7.0";
    const QByteArray className = "CPhysicsSoftClothPlugin";
    QCOMPARE(iid.size(), 38);
    QCOMPARE(className.size(), 23);
    QByteArray expected = "QTMETADATA !";
    expected += QByteArray::fromHex("00 050f 00"); // format, Qt 5.15, no requirements
    expected += QByteArray::fromHex("bf");         // a map of indefinite length
    expected += QByteArray::fromHex("02 7826") + iid;
    expected += QByteArray::fromHex("03 77") + className;
    expected += QByteArray::fromHex("ff");
    QByteArray actual = LibraryFile(libraryFile).Section(".qtmetadata");
#ifdef Q_OS_WIN
    // There the assembler fills every section up to its alignment.
    const int filling = actual.size() - expected.size();
    QVERIFY(filling >= 0 && filling < 32);
    QVERIFY(actual.endsWith(QByteArray(filling, '\0')));
    actual.chop(filling);
#endif
    QCOMPARE(actual.toHex(' '), expected.toHex(' '));
}

void TestPluginLibrary::instanceIsCreatedOnceAndAgainAfterItsEnd()
{
    QPluginLoader loader(libraryFile);
    const QPointer<QObject> first = loader.instance();
    QVERIFY(first);
    QCOMPARE(loader.instance(), first.data());
    QVERIFY(!first->parent());
    QCOMPARE(first->metaObject()->className(), "MV::CPhysicsSoftClothPlugin");
    delete first.data();
    const std::unique_ptr<QObject> second(loader.instance());
    QVERIFY(second);
}

void TestPluginLibrary::metaCastAnswers_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("answers");
    for (const char* name : {"MV::CPhysicsSoftClothPlugin", "CQtUiLoader", "CAbstractPlugin",
                             "Brightfold.Movira.CPluginInterface/7.0", "QWidget", "QObject"}) {
        QTest::newRow(name) << QByteArray(name) << true;
    }
    for (const char* name : {"CPhysicsSoftClothPlugin", "Brightfold.Movira.CPluginInterface/6.0", "QDialog"}) {
        QTest::newRow(name) << QByteArray(name) << false;
    }
}

void TestPluginLibrary::metaCastAnswers()
{
    QFETCH(const QByteArray, name);
    QFETCH(const bool, answers);
    QPluginLoader loader(libraryFile);
    const std::unique_ptr<QObject> plugin(loader.instance());
    QCOMPARE(plugin->qt_metacast(name.constData()) != nullptr, answers);
}

void TestPluginLibrary::metaCastGivesTheSamePluginInterface()
{
    QPluginLoader loader(libraryFile);
    const std::unique_ptr<QObject> plugin(loader.instance());
    QCOMPARE(plugin->qt_metacast("CAbstractPlugin"), plugin->qt_metacast("Brightfold.Movira.CPluginInterface/7.0"));
    auto* interface = qobject_cast<MV::CPluginInterface*>(plugin.get());
    QVERIFY(interface);
    QCOMPARE(quint32(interface->GetCompatibleApps()), 0x1800007U);
}

void TestPluginLibrary::sectionValues_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<int>("order");
    QTest::newRow("preset") << QStringLiteral("SoftClothPreset") << 0;
    QTest::newRow("property") << QStringLiteral("SoftClothProperty") << 16;
    QTest::newRow("collision") << QStringLiteral("SoftClothCollision") << 32;
    QTest::newRow("wind") << QStringLiteral("SoftClothWindSetting") << 48;
}

void TestPluginLibrary::sectionValues()
{
    QFETCH(const QString, form);
    QFETCH(const int, order);
    PanelFixture fixture;
    const QWidget* section = fixture.Section(qPrintable(form))->parentWidget();
    const auto candidates = fixture.Plugin().Sections();
    for (MV::CSectionInterface* candidate : candidates) {
        if (candidate->GetSectionWidget() == section) {
            QCOMPARE(candidate->GetSectionPage(), 4);
            QCOMPARE(candidate->GetSectionOrder(), order);
            QCOMPARE(candidate->GetSectionApplications(), 7);
            return;
        }
    }
    QFAIL("the form belongs to no section");
}

void TestPluginLibrary::sectionsAreListedInOrder()
{
    PanelFixture fixture;
    QList<MV::CSectionInterface*> listed;
    QCOMPARE(fixture.Plugin().Plugin()->GetSectionList(listed), BF::Results::Success);
    QCOMPARE(listed.size(), 4);
    int last = -1;
    for (MV::CSectionInterface* section : listed) {
        QVERIFY(section);
        QVERIFY(section->GetSectionOrder() > last);
        last = section->GetSectionOrder();
    }
}

void TestPluginLibrary::resourceFileHoldsWhatThePanelUses_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"LayoutUI.ini", "SoftClothPreset.ui", "SoftClothProperty.ui", "SoftClothCollision.ui",
          "SoftClothWindSetting.ui", "SoftClothMaterialDlg.ui", "SoftClothMaterialTable.ui",
          "icon/BTN_Diamond_unselect.png", "icon/BTN_Diamond_unselect@2x.png", "icon/BTN_Diamond_select.png",
          "icon/BTN_Diamond_select@2x.png", "icon/BTN_Diamond_hover.png", "icon/BTN_Diamond_hover@2x.png",
          "icon/BTN_Diamond_disable.png", "icon/BTN_Diamond_disable@2x.png"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void TestPluginLibrary::resourceFileHoldsWhatThePanelUses()
{
    QFETCH(const QString, file);
    const QString root = QStringLiteral("/held");
    QVERIFY(QResource::registerResource(ResourceFile(), root));
    const qint64 size =
        QFile(QLatin1Char(':') + root + QStringLiteral("/plugin/MVPhysicsSoftClothSection/") + file).size();
    QVERIFY(QResource::unregisterResource(ResourceFile(), root));
    QVERIFY(size > 0);
}

void TestPluginLibrary::resourceFileHasNoTimeStamps()
{
    const QByteArray bytes = ReadAll(ResourceFile());
    QCOMPARE(bytes.left(4), QByteArray("qres"));
    // Only format 1 keeps none.
    QCOMPARE(qFromBigEndian<quint32>(bytes.constData() + 4), 1U);
}

void TestPluginLibrary::mainWindowMayDieBeforeThePlugin()
{
    Host::HostApplication host;
    auto window = std::make_unique<QMainWindow>();
    host.SetMainWindow(window.get());
    Host::PluginHost plugin(host);
    QVERIFY2(plugin.Start(libraryFile, MV::ECompatibleApp::Both), qPrintable(plugin.Error()));
    auto* panel = new Host::ModifyPanel;
    panel->SetSections(plugin.Sections());
    window->setCentralWidget(panel);
    host.AddModel(SampleModels::Hero());
    window.reset();
    QVERIFY(plugin.Sections().isEmpty());
    host.SetPlaying(true);
    host.SetPlaying(false);
    plugin.Stop();
}

SOFTCLOTH_TEST(TestPluginLibrary)
#include "tst_plugin_library.moc"
