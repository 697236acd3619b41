#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <QListWidget>

using MV::CEventSender;
using MV::ECompatibleApp;
using MV::EDialogMode;

/// The host's events to which the material dialog listens, some of them in one application family only.
class TestDialogEvents : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imageLoadingDisablesTheTextures_data();
    void imageLoadingDisablesTheTextures();
    void imageLoadingEventsOutliveTheDialog();
    void familyEvents_data();
    void familyEvents();
    void familyBRefreshesOnASelectionChange_data();
    void familyBRefreshesOnASelectionChange();
    void familyBHidesWhenAFileIsLoaded_data();
    void familyBHidesWhenAFileIsLoaded();
    void familyBRowClickUpdatesTheSettings_data();
    void familyBRowClickUpdatesTheSettings();
};

void TestDialogEvents::imageLoadingDisablesTheTextures_data()
{
    familyEvents_data();
}

void TestDialogEvents::imageLoadingDisablesTheTextures()
{
    QFETCH(const ECompatibleApp, app);
    DialogFixture fixture(app);
    fixture.Open();
    const QStringList textures{QStringLiteral("qtDiffuseItemLabel"), QStringLiteral("qtOpacityItemLabel")};
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadStart();
    QCOMPARE(fixture.TakeOperations(), Journal::DialogRefresh());
    QCOMPARE(fixture.EnabledOf(textures), QStringList());
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtWeightingItemLabel")));
    // A rebuild in the meantime leaves them so.
    fixture.dialog->ReloadMaterials(fixture.object->handle, true);
    QCOMPARE(fixture.EnabledOf(textures), QStringList());
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadAllDone();
    QCOMPARE(fixture.TakeOperations(), Journal::DialogRefresh());
    QCOMPARE(fixture.EnabledOf(textures), textures);

    // What a hidden dialog missed shows the next time.
    fixture.host.SetDialogMode(EDialogMode::None);
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadStart();
    QCOMPARE(fixture.Take(), QStringList());
    fixture.Show();
    QCOMPARE(fixture.EnabledOf(textures), QStringList());
}

void TestDialogEvents::imageLoadingEventsOutliveTheDialog()
{
    DialogFixture fixture;
    fixture.Open();
    delete fixture.dialog;
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadStart();
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadAllDone();
    QCOMPARE(fixture.Take(), QStringList());
}

void TestDialogEvents::familyEvents_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<bool>("listens");
    QTest::newRow("family A") << ECompatibleApp::FamilyA << false;
    QTest::newRow("one of family A") << ECompatibleApp(0x2) << false;
    QTest::newRow("family B") << ECompatibleApp::FamilyB << true;
    QTest::newRow("one of family B") << ECompatibleApp(0x800000) << true;
    QTest::newRow("neither") << ECompatibleApp(0x10) << false;
}

void TestDialogEvents::familyEvents()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, listens);
    DialogFixture fixture(app);
    fixture.Open();
    CEventSender& sender = *fixture.host.GetEventSender();
    const QStringList expected = listens ? Journal::DialogRefresh() : QStringList();
    // The plug-in object comes first and reloads nothing for the object that it shows already.
    const auto ownCalls = [&] {
        QStringList operations = fixture.TakeOperations();
        while (!operations.isEmpty() && !Journal::DialogRefresh().contains(operations.first())) {
            operations.removeFirst();
        }
        return operations;
    };
    Q_EMIT sender.UndoRedoDone();
    QCOMPARE(ownCalls(), expected);
    fixture.host.SetDialogMode(EDialogMode::None);
    fixture.Take();
    Q_EMIT sender.UndoRedoDone();
    QCOMPARE(ownCalls(), QStringList());
}

void TestDialogEvents::familyBRefreshesOnASelectionChange_data()
{
    familyEvents_data();
}

void TestDialogEvents::familyBRefreshesOnASelectionChange()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, listens);
    DialogFixture fixture(app);
    fixture.Open();
    // The plug-in object hears of it first here and takes the chosen material away.
    Q_EMIT fixture.host.GetEventSender()->ObjectSelectionChanged();
    QCOMPARE(fixture.Selection().material, Host::Id(0));
    QCOMPARE(fixture.EnabledOf(EditWidgets()), listens ? QStringList() : EditWidgets());
}

void TestDialogEvents::familyBHidesWhenAFileIsLoaded_data()
{
    familyEvents_data();
}

void TestDialogEvents::familyBHidesWhenAFileIsLoaded()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, listens);
    DialogFixture fixture(app);
    fixture.Open();
    Q_EMIT fixture.host.GetEventSender()->FileLoaded(MV::EFileType::Scene);
    QCOMPARE(fixture.dialog->isVisible(), !listens);
    QCOMPARE(fixture.host.CurrentScene().dialogMode, listens ? EDialogMode::None : EDialogMode::WeightMap);
}

void TestDialogEvents::familyBRowClickUpdatesTheSettings_data()
{
    familyEvents_data();
}

void TestDialogEvents::familyBRowClickUpdatesTheSettings()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, listens);
    DialogFixture fixture(app);
    fixture.Open();
    auto* list = fixture.Find<QListWidget>("qtMaterialListWidget");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    QCOMPARE(fixture.TakeOperations(),
             listens ? QStringList({QStringLiteral("GetWeightTexture"), QStringLiteral("GetDefaultThumbnail")})
                     : QStringList());
}

SOFTCLOTH_TEST(TestDialogEvents)
#include "tst_dialog_events.moc"
