#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QAction>
#include <QHideEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPair>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTimer>

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
    void startsHiddenWithNoLabelCurrent();
    void dialogModeShowsAndHides();
    void showingWithoutAMaterialDisablesTheWidgets();
    void showingAgainRefreshes();
    void hiddenDialogRefreshesNothing();
    void refreshShowsTexturesThenWeightImage();
    void refreshReturnsTheFirstFailure_data();
    void refreshReturnsTheFirstFailure();
    void refreshClearsWhatIsNotShown();
    void pathIsShownWithoutASignal();
    void hidingEndsTheModes_data();
    void hidingEndsTheModes();
    void minimisingEndsTheModesToo();
    void modesEndBeforeTheBaseClassHides_data();
    void modesEndBeforeTheBaseClassHides();
    void escapeEndsPickingThenClosesTheDialog();
    void escapeActionFollowsThePickMode_data();
    void escapeActionFollowsThePickMode();
    void escapeActionOutsidePickingDoesNothing();
    void pickButtonStartsPicking();
    void tableButtonRunsTheTable_data();
    void tableButtonRunsTheTable();
    void tableFollowsTheSelectionOfItsOwnLoop();
    void dialogMayDieInsideTheTable();
    void tableMayBeGone();
};

namespace {

QLineEdit& PathField(const DialogFixture& fixture)
{
    return *fixture.Find<QLineEdit>("qtBitmapPathLineEdit");
}

bool IsSelected(const DialogFixture& fixture, const char* label)
{
    return fixture.Find<QItemLabel>(label)->IsSelected();
}

/// Hides \p dialog as a window system does when it minimises a window.
void Minimise(QWidget* dialog)
{
    QHideEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    // An event that is sent is no longer spontaneous.
    qApp->notify(dialog, &event);
}

/// A dialog that writes down which modes the host is in when the base class hides it.
class HookedDialog : public MV::CSoftClothMaterialDlg
{
public:
    explicit HookedDialog(DialogFixture& fixture)
        : CSoftClothMaterialDlg(&fixture.window, &fixture.plugin)
        , m_scene(fixture.host.CurrentScene())
    {
    }

    QVector<QPair<EDialogMode, EPickMode>> modesAtHiding;

protected:
    void BeforeDialogModeChangedTHide() override { modesAtHiding.append({m_scene.dialogMode, m_scene.pickMode}); }

private:
    Host::Scene& m_scene;
};

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
    QCOMPARE(fixture.TakeOperations(), Journal::DialogRefresh());

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
    QCOMPARE(fixture.EnabledOf(EditWidgets()), QStringList());
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
    QCOMPARE(fixture.TakeOperations(), Journal::DialogRefresh());
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
    QCOMPARE(fixture.EnabledOf(EditWidgets()), EditWidgets());
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
    QCOMPARE(fixture.TakeOperations(), Journal::DialogRefresh().mid(0, call == 9 ? 10 : call));
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
    QCOMPARE(fixture.EnabledOf(EditWidgets()), QStringList());
}

void TestMaterialDialog::pathIsShownWithoutASignal()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.dialog->SelectWeightingLabel();
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.plan.weightState.hasFile = true;
    fixture.host.plan.weightPath = QStringLiteral("/images/gray.png");
    const QSignalSpy changes(&PathField(fixture), &QLineEdit::textChanged);
    fixture.dialog->UpdateUi();
    QCOMPARE(PathField(fixture).text(), QStringLiteral("/images/gray.png"));
    QVERIFY(!PathField(fixture).signalsBlocked());
    PathField(fixture).blockSignals(true);
    fixture.Selection().material = 0;
    fixture.dialog->UpdateUi();
    QCOMPARE(PathField(fixture).text(), QString());
    QVERIFY(PathField(fixture).signalsBlocked());
    QCOMPARE(changes.size(), 0);
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

void TestMaterialDialog::minimisingEndsTheModesToo()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.host.CurrentScene().pickMode = EPickMode::Material;
    Minimise(fixture.dialog);
    QCOMPARE(fixture.host.CurrentScene().pickMode, EPickMode::None);
    QCOMPARE(fixture.host.CurrentScene().dialogMode, EDialogMode::None);
    // The end of its mode closes the dialog as well.
    QVERIFY(!fixture.dialog->isVisible());
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.filter(QStringLiteral("CancelPickMode")).size(), 1);
    QCOMPARE(calls.filter(QStringLiteral("SetDialogMode")), QStringList{QStringLiteral("SetDialogMode(0) -> 0")});
}

void TestMaterialDialog::modesEndBeforeTheBaseClassHides_data()
{
    QTest::addColumn<bool>("minimises");
    QTest::newRow("closed") << false;
    QTest::newRow("minimised") << true;
}

void TestMaterialDialog::modesEndBeforeTheBaseClassHides()
{
    QFETCH(const bool, minimises);
    DialogFixture fixture;
    HookedDialog dialog(fixture);
    QCOMPARE(dialog.Init({}, {}, &fixture.host), BF::Results::Success);
    fixture.Show();
    fixture.host.CurrentScene().pickMode = EPickMode::Material;
    if (minimises) {
        Minimise(&dialog);
    } else {
        dialog.close();
    }
    QCOMPARE(dialog.modesAtHiding, (QVector<QPair<EDialogMode, EPickMode>>{{EDialogMode::None, EPickMode::None}}));
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

    // Both at once, as when the plug-in is destroyed.
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

SOFTCLOTH_TEST(TestMaterialDialog)
#include "tst_material_dialog.moc"
