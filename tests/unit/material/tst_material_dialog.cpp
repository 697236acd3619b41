#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

using MV::CEventSender;
using MV::ECompatibleApp;
using MV::EDialogMode;
using MV::EPickMode;

/// The material dialog as a window: its form, the modes that show it, picking, hot keys and the way to the table.
class TestMaterialDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initWithoutHostIsAnInvalidArgument();
    void initWithoutItsFormFails();
    void initRegistersTheHotKeys();
    void initFailsWithTheHotKeys_data();
    void initFailsWithTheHotKeys();
    void slotsAreInOrder();
    void startsHiddenWithNoLabelCurrent();
    void dialogModeShowsAndHides();
    void showingWithoutAMaterialDisablesTheWidgets();
    void showingAgainRefreshes();
    void hiddenDialogRefreshesNothing();
    void refreshShowsTexturesThenWeightImage();
    void refreshReturnsTheFirstFailure_data();
    void refreshReturnsTheFirstFailure();
    void refreshClearsWhatIsNotShown();
    void hidingEndsTheModes_data();
    void hidingEndsTheModes();
    void escapeEndsPickingThenClosesTheDialog();
    void escapeActionFollowsThePickMode_data();
    void escapeActionFollowsThePickMode();
    void escapeActionOutsidePickingDoesNothing();
    void pickButtonStartsPicking();
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
    void tableButtonRunsTheTable_data();
    void tableButtonRunsTheTable();
    void tableFollowsTheSelectionOfItsOwnLoop();
    void dialogMayDieInsideTheTable();
    void tableMayBeGone();
};

namespace {

const QStringList editWidgets{QStringLiteral("qtWeightingItemLabel"),
                              QStringLiteral("label"),
                              QStringLiteral("label_2"),
                              QStringLiteral("label_3"),
                              QStringLiteral("label_4"),
                              QStringLiteral("qtOpenFilePushButton"),
                              QStringLiteral("qtSaveFilePushButton"),
                              QStringLiteral("qtDeleteFilePushButton"),
                              QStringLiteral("qtLaunchPushButton"),
                              QStringLiteral("qtUvRefPushButton"),
                              QStringLiteral("qtEmbedTexturePushButton"),
                              QStringLiteral("qtOpenPathPushButton"),
                              QStringLiteral("qtPickMaterialPushButton"),
                              QStringLiteral("qtBitmapLabel"),
                              QStringLiteral("qtBitmapPathLineEdit"),
                              QStringLiteral("ListBorderWidget"),
                              QStringLiteral("qtBrightnessCombospinbox"),
                              QStringLiteral("qtContrastCombospinbox"),
                              QStringLiteral("qtDiffuseItemLabel"),
                              QStringLiteral("qtOpacityItemLabel")};

/// The calls of a whole refresh when nothing has a texture.
const QStringList refreshOperations{
    QStringLiteral("GetMaterialTextureState"), QStringLiteral("GetDefaultThumbnail"),
    QStringLiteral("RenderThumbnail"),         QStringLiteral("GetMaterialTextureState"),
    QStringLiteral("GetDefaultThumbnail"),     QStringLiteral("RenderThumbnail"),
    QStringLiteral("GetWeightTexture"),        QStringLiteral("GetDefaultThumbnail"),
    QStringLiteral("GetThumbnailSourceImage"), QStringLiteral("RenderThumbnail")};

QLineEdit& PathField(const DialogFixture& fixture)
{
    return *fixture.Find<QLineEdit>("qtBitmapPathLineEdit");
}

bool IsSelected(const DialogFixture& fixture, const char* label)
{
    return fixture.Find<QItemLabel>(label)->IsSelected();
}

} // namespace

void TestMaterialDialog::initWithoutHostIsAnInvalidArgument()
{
    DialogFixture fixture;
    MV::CSoftClothMaterialDlg dialog(&fixture.window, &fixture.plugin);
    QCOMPARE(dialog.Init({}, {}, nullptr), BF::Results::InvalidArgument);
    QVERIFY(!dialog.findChild<QWidget*>());
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialDialog::initWithoutItsFormFails()
{
    // Nobody has registered the panel's resources here.
    ImageHost host;
    MV::CPhysicsSoftClothPlugin plugin;
    MV::CSoftClothMaterialDlg dialog(nullptr, &plugin);
    ExpectWarning(QStringLiteral("SoftClothMaterialDlg.ui"));
    QCOMPARE(dialog.Init({}, {}, &host), BF::Results::ResourceFailure);
    QCOMPARE(host.Journal().ToText(), QString());
}

void TestMaterialDialog::initRegistersTheHotKeys()
{
    DialogFixture fixture;
    MV::CSoftClothMaterialDlg dialog(&fixture.window, &fixture.plugin);
    QCOMPARE(dialog.Init({}, {}, &fixture.host), BF::Results::Success);
    QCOMPARE(fixture.Take(),
             (QStringList{
                 QStringLiteral(
                     R"(RegisterSectionHotKeys(["[Hot Key] Modify", "[Hot Key] Physics"], "MVPhysicsSoftCloth") -> 2)"),
                 QStringLiteral("RegisterEscapeAction(2, qtDoEscapeAction, MV::CSoftClothMaterialDlg) -> 0"),
                 QStringLiteral("DisableHotKeyAction(qtDoEscapeAction) -> 0")}));
    QVERIFY(!dialog.findChild<QAction*>(QStringLiteral("qtDoEscapeAction"))->isEnabled());
    const auto* shortcut = dialog.findChild<QShortcut*>();
    QCOMPARE(shortcut->key(), QKeySequence(QStringLiteral("Alt+Shift+F")));
    QCOMPARE(shortcut->context(), Qt::WindowShortcut);
    QVERIFY(!dialog.windowTitle().isEmpty());
}

void TestMaterialDialog::initFailsWithTheHotKeys_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("escape action") << QStringLiteral("RegisterEscapeAction");
    QTest::newRow("switching off") << QStringLiteral("DisableHotKeyAction");
}

void TestMaterialDialog::initFailsWithTheHotKeys()
{
    QFETCH(const QString, operation);
    DialogFixture fixture;
    MV::CSoftClothMaterialDlg dialog(&fixture.window, &fixture.plugin);
    fixture.host.Faults().FailOperation(operation, BF::Results::Refused);
    QCOMPARE(dialog.Init({}, {}, &fixture.host), BF::Results::Refused);
    QCOMPARE(fixture.TakeOperations().constLast(), operation);
}

void TestMaterialDialog::slotsAreInOrder()
{
    const QMetaObject& meta = MV::CSoftClothMaterialDlg::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names.append(QString::fromLatin1(meta.method(i).name()));
    }
    QCOMPARE(names,
             (QStringList{
                 QStringLiteral("OnChangeCurrentItemOfMaterialList"), QStringLiteral("OnClickOpenFilePushButton"),
                 QStringLiteral("OnClickSaveFilePushButton"), QStringLiteral("OnClickDeleteFilePushButton"),
                 QStringLiteral("OnClickLaunchFilePushButton"), QStringLiteral("OnClickUvRefPushButton"),
                 QStringLiteral("OnClickOpenPathPushButton"), QStringLiteral("OnClickEmbedTexturePushButton"),
                 QStringLiteral("OnClickPickMaterialPushButton"), QStringLiteral("OnClickShowMaterialTablePushButton"),
                 QStringLiteral("OnLoadWeightImage"), QStringLiteral("OnItemSelectedChanged"),
                 QStringLiteral("ShowDialog"), QStringLiteral("OnFilterMaterialList"), QStringLiteral("DoHotkeyEscape"),
                 QStringLiteral("OnMaterialTextureChanged")}));
}

void TestMaterialDialog::startsHiddenWithNoLabelCurrent()
{
    const DialogFixture fixture;
    QVERIFY(fixture.dialog->isHidden());
    for (const char* label : {"qtDiffuseItemLabel", "qtOpacityItemLabel", "qtWeightingItemLabel"}) {
        QVERIFY2(!IsSelected(fixture, label), label);
    }
}

void TestMaterialDialog::dialogModeShowsAndHides()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    fixture.host.SetDialogMode(EDialogMode::WeightMap);
    QVERIFY(fixture.dialog->isVisible());
    QVERIFY(!fixture.dialog->isModal());
    QCOMPARE(fixture.TakeOperations(), refreshOperations);

    fixture.host.SetDialogMode(EDialogMode(3));
    QVERIFY(!fixture.dialog->isVisible());
    // The mode is another one already, so that it stays.
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral("GetCurrentPickMode() -> 0"), QStringLiteral("GetDialogMode() -> 3")}));
    fixture.host.SetDialogMode(EDialogMode::None);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialDialog::showingWithoutAMaterialDisablesTheWidgets()
{
    DialogFixture fixture;
    fixture.Show();
    QVERIFY(fixture.dialog->isVisible());
    QCOMPARE(fixture.EnabledOf(editWidgets), QStringList());
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtShowMaterialTableButton")));
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), QStringList());

    // A mesh without a material is none, nor the other way round.
    fixture.Selection().mesh = 1;
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::NothingDone);
    fixture.Selection().mesh = 0;
    fixture.Selection().material = 1;
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialDialog::showingAgainRefreshes()
{
    DialogFixture fixture;
    fixture.Open();
    Q_EMIT fixture.host.GetEventSender()->DialogModeChanged(EDialogMode::WeightMap);
    QVERIFY(fixture.dialog->isVisible());
    QCOMPARE(fixture.TakeOperations(), refreshOperations);
}

void TestMaterialDialog::hiddenDialogRefreshesNothing()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialDialog::refreshShowsTexturesThenWeightImage()
{
    DialogFixture fixture;
    fixture.Open();
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::Success);
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral(R"(GetMaterialTextureState("Skin", 0, false, false, false, false) -> 0)"),
                          QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0"),
                          Journal::Draw(QStringLiteral("unknown 0xd0"), QStringLiteral("null")),
                          QStringLiteral(R"(GetMaterialTextureState("Skin", 1, false, false, false, false) -> 0)"),
                          QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0"),
                          Journal::Draw(QStringLiteral("unknown 0xd0"), QStringLiteral("null")),
                          QStringLiteral(R"(GetWeightTexture("Hero", "Body", "Skin", null) -> 0)"),
                          QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0"),
                          QStringLiteral("GetThumbnailSourceImage(unknown 0xd0, unknown 0xe1) -> false"),
                          Journal::Draw(QStringLiteral("unknown 0xd0"), QStringLiteral("null"))}));
    QCOMPARE(fixture.EnabledOf(editWidgets), editWidgets);
}

void TestMaterialDialog::refreshReturnsTheFirstFailure_data()
{
    QTest::addColumn<int>("call"); ///< Number of the failing call among those that have a status.
    for (int call = 1; call <= 9; ++call) {
        QTest::addRow("call %d", call) << call;
    }
}

void TestMaterialDialog::refreshReturnsTheFirstFailure()
{
    QFETCH(const int, call);
    DialogFixture fixture;
    fixture.Open();
    fixture.host.Faults().FailCall(call, BF::Results::IndexOutOfRange);
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::IndexOutOfRange);
    // The source query has no status and is not counted.
    QCOMPARE(fixture.TakeOperations(), refreshOperations.mid(0, call == 9 ? 10 : call));
}

void TestMaterialDialog::refreshClearsWhatIsNotShown()
{
    DialogFixture fixture;
    fixture.Open();
    PathField(fixture).setText(QStringLiteral("stale"));
    fixture.dialog->UpdateUi();
    QCOMPARE(PathField(fixture).text(), QString());
    PathField(fixture).setText(QStringLiteral("stale"));
    fixture.Selection().material = 0;
    fixture.dialog->UpdateUi();
    QCOMPARE(PathField(fixture).text(), QString());
    QCOMPARE(fixture.EnabledOf(editWidgets), QStringList());
}

void TestMaterialDialog::hidingEndsTheModes_data()
{
    QTest::addColumn<bool>("picking");
    QTest::addColumn<bool>("weightMapMode");
    QTest::addColumn<QStringList>("calls");
    const QString askPick = QStringLiteral("GetCurrentPickMode() -> %1");
    const QString askMode = QStringLiteral("GetDialogMode() -> %1");
    const QString endPick = QStringLiteral("CancelPickMode() -> 0");
    const QString endMode = QStringLiteral("SetDialogMode(0) -> 0");
    QTest::newRow("open by its mode") << false << true << QStringList{askPick.arg(0), askMode.arg(25), endMode};
    QTest::newRow("while picking") << true << true << QStringList{askPick.arg(7), endPick, askMode.arg(25), endMode};
    QTest::newRow("in another mode") << false << false << QStringList{askPick.arg(0), askMode.arg(0)};
    QTest::newRow("picking in another mode") << true << false << QStringList{askPick.arg(7), endPick, askMode.arg(0)};
}

void TestMaterialDialog::hidingEndsTheModes()
{
    QFETCH(const bool, picking);
    QFETCH(const bool, weightMapMode);
    QFETCH(const QStringList, calls);
    DialogFixture fixture;
    fixture.Open();
    fixture.host.CurrentScene().pickMode = picking ? EPickMode::Material : EPickMode::None;
    fixture.host.CurrentScene().dialogMode = weightMapMode ? EDialogMode::WeightMap : EDialogMode::None;
    fixture.dialog->close();
    QVERIFY(!fixture.dialog->isVisible());
    QCOMPARE(fixture.Take(), calls);
    QCOMPARE(fixture.host.CurrentScene().dialogMode, EDialogMode::None);
    QCOMPARE(fixture.host.CurrentScene().pickMode, EPickMode::None);
}

void TestMaterialDialog::escapeEndsPickingThenClosesTheDialog()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.host.SetPickMode(EPickMode::Material);
    fixture.dialog->OnPickModeChanged(EPickMode::Material);
    fixture.Take();
    QTest::keyClick(fixture.dialog, Qt::Key_Escape);
    QVERIFY(fixture.dialog->isVisible());
    QCOMPARE(fixture.Take(),
             (QStringList{QStringLiteral("GetCurrentPickMode() -> 7"), QStringLiteral("ChangePickMode(0) -> 0")}));
    fixture.dialog->OnPickModeChanged(EPickMode::None);
    QTest::keyClick(fixture.dialog, Qt::Key_Escape);
    QVERIFY(!fixture.dialog->isVisible());
}

void TestMaterialDialog::escapeActionFollowsThePickMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("operation");
    QTest::newRow("material picking") << 7 << QStringLiteral("EnableHotKeyAction");
    QTest::newRow("none") << 0 << QStringLiteral("DisableHotKeyAction");
    QTest::newRow("another kind of picking") << 3 << QStringLiteral("DisableHotKeyAction");
}

void TestMaterialDialog::escapeActionFollowsThePickMode()
{
    QFETCH(const int, mode);
    QFETCH(const QString, operation);
    DialogFixture fixture;
    QCOMPARE(fixture.dialog->OnPickModeChanged(EPickMode(mode)), BF::Results::Success);
    QCOMPARE(fixture.Take(), QStringList{operation + QStringLiteral("(qtDoEscapeAction) -> 0")});
    QCOMPARE(fixture.Find<QAction>("qtDoEscapeAction")->isEnabled(), mode == 7);
    fixture.host.Faults().FailOperation(operation, BF::Results::IndexOutOfRange);
    QCOMPARE(fixture.dialog->OnPickModeChanged(EPickMode(mode)), BF::Results::IndexOutOfRange);
}

void TestMaterialDialog::escapeActionOutsidePickingDoesNothing()
{
    DialogFixture fixture;
    fixture.Find<QAction>("qtDoEscapeAction")->setEnabled(true);
    fixture.Find<QAction>("qtDoEscapeAction")->trigger();
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("GetCurrentPickMode() -> 0")});
}

void TestMaterialDialog::pickButtonStartsPicking()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.Click("qtPickMaterialPushButton");
    QCOMPARE(fixture.Take(), QStringList{QStringLiteral("ChangePickMode(7) -> 0")});
}

void TestMaterialDialog::imageLoadingDisablesTheTextures()
{
    DialogFixture fixture;
    fixture.Open();
    const QStringList textures{QStringLiteral("qtDiffuseItemLabel"), QStringLiteral("qtOpacityItemLabel")};
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadStart();
    QCOMPARE(fixture.TakeOperations(), refreshOperations);
    QCOMPARE(fixture.EnabledOf(textures), QStringList());
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtWeightingItemLabel")));
    // A rebuild in the meantime leaves them so.
    fixture.dialog->ReloadMaterials(fixture.object->handle, true);
    QCOMPARE(fixture.EnabledOf(textures), QStringList());
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadAllDone();
    QCOMPARE(fixture.TakeOperations(), refreshOperations);
    QCOMPARE(fixture.EnabledOf(textures), textures);

    // What a hidden dialog missed shows the next time.
    fixture.host.SetDialogMode(EDialogMode::None);
    fixture.Take();
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadStart();
    QCOMPARE(fixture.Take(), QStringList());
    fixture.Show();
    QCOMPARE(fixture.EnabledOf(textures), QStringList());
}

void TestMaterialDialog::imageLoadingEventsOutliveTheDialog()
{
    DialogFixture fixture;
    fixture.Open();
    delete fixture.dialog;
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadStart();
    Q_EMIT fixture.host.GetEventSender()->ImageAsyncLoadAllDone();
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialDialog::familyEvents_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<bool>("listens");
    QTest::newRow("family A") << ECompatibleApp::FamilyA << false;
    QTest::newRow("one of family A") << ECompatibleApp(0x2) << false;
    QTest::newRow("family B") << ECompatibleApp::FamilyB << true;
    QTest::newRow("one of family B") << ECompatibleApp(0x800000) << true;
    QTest::newRow("neither") << ECompatibleApp(0x10) << false;
}

void TestMaterialDialog::familyEvents()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, listens);
    DialogFixture fixture(app);
    fixture.Open();
    CEventSender& sender = *fixture.host.GetEventSender();
    const QStringList expected = listens ? refreshOperations : QStringList();
    // The plug-in object comes first and reloads nothing for the object that it shows already.
    const auto ownCalls = [&] {
        QStringList operations = fixture.TakeOperations();
        while (!operations.isEmpty() && !refreshOperations.contains(operations.first())) {
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

void TestMaterialDialog::familyBRefreshesOnASelectionChange_data()
{
    familyEvents_data();
}

void TestMaterialDialog::familyBRefreshesOnASelectionChange()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, listens);
    DialogFixture fixture(app);
    fixture.Open();
    // The plug-in object hears of it first here and takes the chosen material away.
    Q_EMIT fixture.host.GetEventSender()->ObjectSelectionChanged();
    QCOMPARE(fixture.Selection().material, Host::Id(0));
    QCOMPARE(fixture.EnabledOf(editWidgets), listens ? QStringList() : editWidgets);
}

void TestMaterialDialog::familyBHidesWhenAFileIsLoaded_data()
{
    familyEvents_data();
}

void TestMaterialDialog::familyBHidesWhenAFileIsLoaded()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, listens);
    DialogFixture fixture(app);
    fixture.Open();
    Q_EMIT fixture.host.GetEventSender()->FileLoaded(MV::EFileType::Scene);
    QCOMPARE(fixture.dialog->isVisible(), !listens);
    QCOMPARE(fixture.host.CurrentScene().dialogMode, listens ? EDialogMode::None : EDialogMode::WeightMap);
}

void TestMaterialDialog::familyBRowClickUpdatesTheSettings_data()
{
    familyEvents_data();
}

void TestMaterialDialog::familyBRowClickUpdatesTheSettings()
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

void TestMaterialDialog::tableButtonRunsTheTable_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("accepts");
    QTest::newRow("confirmed") << QStringLiteral("qtConfirmPushButton") << true;
    QTest::newRow("cancelled") << QStringLiteral("qtCancelPushButton") << false;
}

void TestMaterialDialog::tableButtonRunsTheTable()
{
    QFETCH(const QString, button);
    QFETCH(const bool, accepts);
    DialogFixture fixture;
    fixture.Open();
    fixture.Find<QListWidget>("qtMaterialListWidget")->setCurrentRow(2);
    fixture.Take();
    QTimer::singleShot(0, fixture.table.data(), [&] {
        QCOMPARE(QApplication::activeModalWidget(), fixture.table.data());
        QCOMPARE(fixture.Take(), QStringList());
        QTest::mousePress(Child<QPushButton>(fixture.table.data(), button.toLatin1().constData()), Qt::LeftButton);
    });
    fixture.Click("qtShowMaterialTableButton");
    QStringList calls = fixture.Take();
    const QStringList writes = calls.filter(QStringLiteral("SetMaterialSoftClothEnabled"));
    QCOMPARE(writes.size(), accepts ? 3 : 0);
    calls = calls.mid(writes.size());
    QCOMPARE(calls.takeFirst(), QStringLiteral(R"(GetMeshList("Hero", ["Body", "Clothes"]) -> 0)"));
    QCOMPARE(calls.filter(QStringLiteral("IsSoftClothActive")).size(), 3);
    if (accepts) {
        QCOMPARE(calls.takeLast(), Journal::RefreshScene());
    }
    QCOMPARE(calls.takeLast(), Journal::Refresh());
    QVERIFY(!calls.contains(Journal::RefreshScene()));
    // Rebuilt with reset.
    QCOMPARE(fixture.Selection().material, fixture.MaterialId(0));
}

void TestMaterialDialog::tableFollowsTheSelectionOfItsOwnLoop()
{
    DialogFixture fixture;
    fixture.Open();
    QTimer::singleShot(0, fixture.table.data(), [&] {
        fixture.Selection().object = fixture.host.CurrentScene().AddObject(SampleModels::Flag()).handle;
        fixture.table->accept();
    });
    fixture.Click("qtShowMaterialTableButton");
    QCOMPARE(fixture.Take().constFirst(), QStringLiteral(R"(GetMeshList("Flag", ["Sheet"]) -> 0)"));
    QCOMPARE(fixture.dialog->MaterialCount(), 1);
}

void TestMaterialDialog::dialogMayDieInsideTheTable()
{
    DialogFixture fixture;
    fixture.Open();
    QTimer::singleShot(0, fixture.table.data(), [&] {
        delete fixture.dialog;
        fixture.table->accept();
    });
    QMetaObject::invokeMethod(fixture.dialog, "OnClickShowMaterialTablePushButton");
    QVERIFY(!fixture.dialog);
    QCOMPARE(fixture.Take(), QStringList());

    // Both at once, as when the plug-in goes away.
    DialogFixture second;
    second.Open();
    QTimer::singleShot(0, second.table.data(), [&] {
        delete second.dialog;
        second.table.clear();
    });
    QMetaObject::invokeMethod(second.dialog, "OnClickShowMaterialTablePushButton");
    QVERIFY(!second.dialog && !second.table);
    QCOMPARE(second.Take(), QStringList());
}

void TestMaterialDialog::tableMayBeGone()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.table.clear();
    fixture.Click("qtShowMaterialTableButton");
    QCOMPARE(fixture.Take(), QStringList());

    DialogFixture second;
    second.Open();
    QTimer::singleShot(0, second.table.data(), [&] { second.table.clear(); });
    second.Click("qtShowMaterialTableButton");
    QVERIFY(second.Take().contains(Journal::Refresh()));
}

QTEST_MAIN(TestMaterialDialog)
#include "tst_material_dialog.moc"
