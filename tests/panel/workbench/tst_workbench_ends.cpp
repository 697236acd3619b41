#include "tests/panel/workbench/WorkbenchTestCase.h"
#include "tests/support/UserDialogs.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

/// The workbench's window may end while a dialog of it is open: nothing is freed twice, and nothing is done any more.
class TestWorkbenchEnds : public WorkbenchTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void windowEndsWithAnOpenDialog_data();
    void windowEndsWithAnOpenDialog();
    void windowEndsWithTheQuestionForAUnit();
    void windowEndsDuringAnImport();
    void windowEndsDuringTheFirstOfTwoDrops();

private:
    /// Ends the window as soon as a dialog is open in it. \return whether one came
    bool EndsWithItsDialog(const std::function<void()>& trigger);
};

bool TestWorkbenchEnds::EndsWithItsDialog(const std::function<void()>& trigger)
{
    const auto host = Window().SharedApplication(); // outlives the window, as the real host does
    bool ended = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        if (dialog && dialog->isVisible()) {
            poll.stop();
            EndWindow();
            ended = !dialog;
        }
    });
    poll.start(5);
    trigger();
    return ended;
}

void TestWorkbenchEnds::windowEndsWithAnOpenDialog_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<bool>("isModified");
    QTest::newRow("import") << QByteArray("importAction") << false;
    QTest::newRow("open a scene") << QByteArray("openSceneAction") << false;
    QTest::newRow("save a scene") << QByteArray("saveSceneAction") << false;
    QTest::newRow("save a scene under another name") << QByteArray("saveSceneAsAction") << false;
    QTest::newRow("image editor") << QByteArray("imageEditorAction") << false;
    QTest::newRow("new scene, with changes") << QByteArray("newSceneAction") << true;
    QTest::newRow("open a scene, with changes") << QByteArray("openSceneAction") << true;
    QTest::newRow("quit, with changes") << QByteArray("quitAction") << true;
}

void TestWorkbenchEnds::windowEndsWithAnOpenDialog()
{
    QFETCH(const QByteArray, action);
    QFETCH(const bool, isModified);
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    if (isModified) {
        App().SetSoftClothActive(flag.handle, false);
    }
    QVERIFY(EndsWithItsDialog([&] { Trigger(action.constData()); }));
}

void TestWorkbenchEnds::windowEndsWithTheQuestionForAUnit()
{
    const QString model = SampleModels::RealModel(QStringLiteral("OBJ/spider.obj"));
    bool imported = true;
    QVERIFY(EndsWithItsDialog([&] { imported = Window().ImportModel(model); }));
    QVERIFY(!imported);
}

void TestWorkbenchEnds::windowEndsDuringAnImport()
{
    const auto host = Window().SharedApplication();
    bool isRunning = true;
    bool endedMeanwhile = false;
    QTimer::singleShot(0, this, [&] {
        endedMeanwhile = isRunning;
        EndWindow();
    });
    const bool imported = Window().ImportModel(SampleModels::RealModel(QStringLiteral("FBX/spider.fbx")));
    isRunning = false;
    QVERIFY(endedMeanwhile);
    QVERIFY(!imported);
    QVERIFY(host->CurrentScene().Objects().empty());
}

void TestWorkbenchEnds::windowEndsDuringTheFirstOfTwoDrops()
{
    const auto host = Window().SharedApplication();
    const QString model = SampleModels::RealModel(QStringLiteral("OBJ/spider.obj"));
    QVERIFY(EndsWithItsDialog([&] {
        Drop(Window(), {model, model});
        QVERIFY(QTest::qWaitFor([this] { return !HasWindow(); }));
    }));
    QVERIFY(host->CurrentScene().Objects().empty());
}

SOFTCLOTH_TEST(TestWorkbenchEnds)
#include "tst_workbench_ends.moc"
