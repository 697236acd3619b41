#include "tests/support/TestCase.h"
#include "tests/unit/plugin/PluginFixture.h"
#include "tests/unit/plugin/fakes/FakeParts.h"

#include <MVPluginQt/SectionInterface.h>

using MV::ECompatibleApp;

/// A plug-in object that is initialised more than once.
class TestStartupAgain : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void partsAreReplacedByNewOnes();
    void newPartsAreTheOnesThatAreRefreshed();
    void partsOfAFailedStartAreReplaced();
    void failingAgainLeavesNoEventConnected();
    void otherApplicationEndsTheParts();
    void oldPartsDieWithoutTheHostsEvents();
    void missingResourceFileLeavesThePartsAlone();
};

void TestStartupAgain::partsAreReplacedByNewOnes()
{
    PluginFixture fixture;
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    fixture.Take();
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.TakeParts(), PluginFixture::PartsDestroyed() + PluginFixture::PartsMade());
    QVERIFY(!fixture.Sections().contains(nullptr));
    QVERIFY(fixture.plugin->MaterialDlg());
    QVERIFY(fixture.plugin->MaterialDlg()->materialTable);
    for (const char* eventSignal : {SIGNAL(HierarchyChanged()), SIGNAL(ObjectSelectionChanged()), SIGNAL(Played())}) {
        QCOMPARE(fixture.ConnectionCount(eventSignal), 1);
    }
    fixture.plugin.reset();
    QCOMPARE(fixture.Take(), PluginFixture::PartsDestroyed());
}

void TestStartupAgain::newPartsAreTheOnesThatAreRefreshed()
{
    ShownFixture fixture;
    fixture.plugin->Selection().affectAllMaterials = true;
    fixture.Initialize();
    const MV::SoftClothSelection& selection = fixture.plugin->Selection();
    QVERIFY(!selection.object && !selection.mesh && !selection.material && !selection.affectAllMaterials);
    fixture.Take();
    // The new dialog has no list yet: the object counts as another one, although it was shown before.
    fixture.host.Send("LaunchedImageChanged", &MV::CEventSender::LaunchedImageChanged, BF::CArrayList<BF::CHandle*>());
    QVERIFY(fixture.TakeParts().contains(QStringLiteral("Dialog.ReloadMaterials(true)")));
    QCOMPARE(fixture.plugin->MaterialDlg()->reloadedObject, fixture.object->handle);
}

void TestStartupAgain::partsOfAFailedStartAreReplaced()
{
    PluginFixture fixture;
    FakeParts::results.insert(QStringLiteral("Property.Init"), BF::Results::Refused);
    QCOMPARE(fixture.Initialize(), BF::Results::Refused);
    FakeParts::results.clear();
    fixture.Take();
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    const QStringList made{QStringLiteral("Table.destroy"), QStringLiteral("Property.destroy"),
                           QStringLiteral("Dialog.destroy"), QStringLiteral("Preset.destroy")};
    QCOMPARE(fixture.TakeParts(), made + PluginFixture::PartsMade());
    QVERIFY(!fixture.Sections().contains(nullptr));
    QCOMPARE(fixture.ConnectionCount(SIGNAL(HierarchyChanged())), 1);
}

void TestStartupAgain::failingAgainLeavesNoEventConnected()
{
    PluginFixture fixture;
    fixture.Initialize();
    FakeParts::results.insert(QStringLiteral("Property.Init"), BF::Results::Refused);
    fixture.Take();
    QCOMPARE(fixture.Initialize(), BF::Results::Refused);
    QCOMPARE(fixture.TakeParts(), PluginFixture::PartsDestroyed() + PluginFixture::PartsMade().mid(0, 8));
    QCOMPARE(fixture.Sections().count(nullptr), 2);
    QCOMPARE(fixture.ConnectionCount(SIGNAL(HierarchyChanged())), 0);
}

void TestStartupAgain::otherApplicationEndsTheParts()
{
    PluginFixture fixture(ECompatibleApp::FamilyB);
    fixture.Initialize();
    fixture.plugin->SetCurrentApp(ECompatibleApp::None);
    fixture.Take();
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(fixture.Take(), PluginFixture::PartsDestroyed());
    QCOMPARE(fixture.Sections().count(nullptr), 4);
    QCOMPARE(fixture.ConnectionCount(SIGNAL(DialogModeChanged(MV::EDialogMode))), 0);
    QCOMPARE(fixture.ConnectionCount(SIGNAL(HierarchyChanged())), 1);
}

void TestStartupAgain::oldPartsDieWithoutTheHostsEvents()
{
    ShownFixture fixture;
    QStringList calls{QStringLiteral("the dialog did not end")};
    connect(fixture.plugin->MaterialDlg(), &QObject::destroyed, &fixture.host, [&fixture, &calls] {
        fixture.Take();
        Q_EMIT fixture.host.GetEventSender()->ObjectDeleted({});
        calls = fixture.Take();
    });
    QCOMPARE(fixture.Initialize(), BF::Results::Success);
    QCOMPARE(calls, QStringList());
}

void TestStartupAgain::missingResourceFileLeavesThePartsAlone()
{
    PluginFixture fixture;
    fixture.Initialize();
    fixture.Take();
    QCOMPARE(fixture.plugin->Initialize(QStringLiteral("/missing/"), QString(), &fixture.host),
             BF::Results::ResourceFailure);
    QCOMPARE(fixture.Take(), QStringList());
    QVERIFY(!fixture.Sections().contains(nullptr));
    QCOMPARE(fixture.ConnectionCount(SIGNAL(HierarchyChanged())), 1);
}

SOFTCLOTH_TEST(TestStartupAgain)
#include "tst_startup_again.moc"
