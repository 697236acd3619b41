#include "host/workbench/window/DialogPlace.h"
#include "host/workbench/window/WindowState.h"
#include "tests/panel/workbench/WorkbenchTestCase.h"

#include <QAbstractButton>
#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>

/// Places and sizes of the workbench's windows.
class TestWorkbenchWindow : public WorkbenchTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstWindowFitsTheScreen_data();
    void firstWindowFitsTheScreen();
    void windowIsOnTheScreen();
    void sizeAndDocksAreRemembered();
    void callsAreTheCentreWhereNothingCanBeDrawn();
    void dialogOpensBesideThePanel();
    void dialogStaysWhereTheUserPutsIt();
    void placeBesideThePanel_data();
    void placeBesideThePanel();
    void weightMapDialogLeavesThePanelFree_data();
    void weightMapDialogLeavesThePanelFree();
    void keysOfTheMenusReachTheMenus();
};

void TestWorkbenchWindow::firstWindowFitsTheScreen_data()
{
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QSize>("size");
    QTest::newRow("large") << QRect(0, 0, 2560, 1400) << QSize(1440, 860);
    QTest::newRow("laptop") << QRect(0, 27, 1366, 741) << QSize(1350, 693);
    QTest::newRow("large at 200 %") << QRect(0, 0, 960, 520) << QSize(944, 472);
}

void TestWorkbenchWindow::firstWindowFitsTheScreen()
{
    QFETCH(const QRect, available);
    QTEST(Host::FirstWindowSize(available), "size");
}

void TestWorkbenchWindow::windowIsOnTheScreen()
{
    QVERIFY(Window().screen()->availableGeometry().contains(Window().geometry()));
}

void TestWorkbenchWindow::sizeAndDocksAreRemembered()
{
    Window().resize(700, 500);
    const QSize size = Window().size();
    Child<QDockWidget>(&Window(), "controlsDock")->hide();
    Window().addDockWidget(Qt::LeftDockWidgetArea, Child<QDockWidget>(&Window(), "modifyDock"));
    OpenWindow();
    QCOMPARE(Window().size(), size);
    QVERIFY(!Child<QDockWidget>(&Window(), "controlsDock")->isVisible());
    QCOMPARE(Window().dockWidgetArea(Child<QDockWidget>(&Window(), "modifyDock")), Qt::LeftDockWidgetArea);
}

void TestWorkbenchWindow::callsAreTheCentreWhereNothingCanBeDrawn()
{
    const QWidget* centre = Window().centralWidget();
    QVERIFY(centre->findChild<QWidget*>(QStringLiteral("hostCallsTable"))->isVisible());
    QVERIFY(!Window().findChild<QWidget*>(QStringLiteral("viewport")));
    const auto* reason = Child<QLabel>(&Window(), "viewportMissing");
    QVERIFY(reason->isVisible());
    QVERIFY(reason->text().startsWith(QStringLiteral("The model is not shown, because")));
}

void TestWorkbenchWindow::dialogOpensBesideThePanel()
{
    AddCloth(SampleModels::Flag());
    // Too small for both: the dialog goes to the left as far as there is room.
    Window().setGeometry(0, 0, 800, 600);
    const QWidget& dialog = OpenDialog();
    const QWidget* panel = Child<QDockWidget>(&Window(), "modifyDock")->widget();
    const QRect place(panel->mapToGlobal({}), panel->size());
    const QRect screen = Window().screen()->availableGeometry();
    const bool isLeft = dialog.frameGeometry().right() < place.left();
    QVERIFY(isLeft || dialog.pos().x() == screen.left());
    QCOMPARE(dialog.pos(), Host::PlaceBeside(place, dialog.size(), screen));
}

void TestWorkbenchWindow::dialogStaysWhereTheUserPutsIt()
{
    AddCloth(SampleModels::Flag());
    QWidget& dialog = OpenDialog();
    dialog.move(33, 44);
    App().SetDialogMode(MV::EDialogMode::None);
    OpenDialog();
    QCOMPARE(dialog.pos(), QPoint(33, 44));
}

void TestWorkbenchWindow::placeBesideThePanel_data()
{
    QTest::addColumn<QRect>("panel");
    QTest::addColumn<QPoint>("place");
    const int gap = 8;
    const QSize outer = QSize(400, 700) + QSize(8, 32);
    QTest::newRow("room to the left") << QRect(1200, 80, 300, 800) << QPoint(1200 - gap - outer.width(), 80);
    QTest::newRow("room to the right only") << QRect(100, 80, 300, 800) << QPoint(399 + gap, 80);
    QTest::newRow("low") << QRect(1200, 500, 300, 400) << QPoint(1200 - gap - outer.width(), 1000 - outer.height());
    QTest::newRow("no room at all") << QRect(300, 80, 1200, 800) << QPoint(0, 80);
}

void TestWorkbenchWindow::placeBesideThePanel()
{
    QFETCH(const QRect, panel);
    QTEST(Host::PlaceBeside(panel, {400, 700}, QRect(0, 0, 1600, 1000)), "place");
}

void TestWorkbenchWindow::weightMapDialogLeavesThePanelFree_data()
{
    QTest::addColumn<QSize>("screenSize"); // 1920 x 1080 in points
    QTest::addColumn<bool>("hasRoom");
    QTest::newRow("100 %") << QSize(1920, 1080) << true;
    QTest::newRow("150 %") << QSize(1280, 720) << true;
    QTest::newRow("200 %") << QSize(960, 540) << false; // the tree and the centre are covered, then the panel
}

void TestWorkbenchWindow::weightMapDialogLeavesThePanelFree()
{
    QFETCH(const QSize, screenSize);
    QFETCH(const bool, hasRoom);
    AddCloth(SampleModels::Flag());
    const QRect screen({0, 0}, screenSize);
    const QRect window = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, Host::FirstWindowSize(screen), screen);
    Window().resize(window.size());
    const QWidget* panel = Child<QDockWidget>(&Window(), "modifyDock")->widget();
    const QRect panelPlace(panel->mapTo(&Window(), {}) + window.topLeft(), panel->size());
    const QSize dialog(807, 532); // the least that it takes in the workbench's style
    const QRect place(Host::PlaceBeside(panelPlace, dialog, screen), dialog);
    QVERIFY2(screen.contains(place), qPrintable(QStringLiteral("%1 x %2").arg(dialog.width()).arg(dialog.height())));
    QCOMPARE(!place.intersects(panelPlace), hasRoom);
    QVERIFY(hasRoom || place.left() == screen.left());
}

void TestWorkbenchWindow::keysOfTheMenusReachTheMenus()
{
    AddCloth(SampleModels::Flag());
    QList<QKeySequence> taken;
    const QList<QAction*> menus = Window().menuBar()->actions();
    for (const QAction* menu : menus) {
        taken.append(QKeySequence::mnemonic(menu->text()));
        QVERIFY2(!taken.constLast().isEmpty(), qPrintable(menu->text()));
    }
    QStringList texts; // the weight map dialog is a window of its own, with letters of its own
    const QList<QLabel*> labels = Window().findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        texts.append(label->buddy() && label->window() == &Window() ? label->text() : QString());
    }
    const QList<QAbstractButton*> buttons = Window().findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        texts.append(button->window() == &Window() ? button->text() : QString());
    }
    for (const QString& text : qAsConst(texts)) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        QVERIFY2(key.isEmpty() || !taken.contains(key), qPrintable(text));
    }
}

SOFTCLOTH_TEST(TestWorkbenchWindow)
#include "tst_workbench_window.moc"
