#include "host/services/WeightImages.h"
#include "tests/panel/workbench/WorkbenchTestCase.h"
#include "tests/support/SampleImages.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

/// Selecting objects and choosing materials in the workbench.
class TestWorkbenchSelection : public WorkbenchTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clickOnTheSelectedObjectSelectsItAgain();
    void clickThatSelectsSendsOneEvent();
    void sectionsComeBackAfterAMaterialWithoutCloth();
    void commandOpensAndClosesTheDialog();
    void materialRowIsTheCurrentMaterialWhileTheDialogIsOpen();
    void meshRowsOpenForPicking();
    void pickingIsShown();
    void escapeEndsPickingFromEverywhere_data();
    void escapeEndsPickingFromEverywhere();
    void deleteKeyDeletesFromTheTreeOnly_data();
    void deleteKeyDeletesFromTheTreeOnly();
    void emptyPanelSaysWhatToDo();
    void movingVerticesAreCounted();

private:
    QLabel& Hint() const { return *Child<QLabel>(&Window(), "panelHint"); }
    int CurrentRow() const { return Child<QListWidget>(&Window(), "qtMaterialListWidget")->currentRow(); }
};

void TestWorkbenchSelection::clickOnTheSelectedObjectSelectsItAgain()
{
    AddCloth(SampleModels::Hero());
    ClickRow(Tree().topLevelItem(0));
    QCOMPARE(Events(), QStringList{QStringLiteral("ObjectSelectionChanged")});
}

void TestWorkbenchSelection::clickThatSelectsSendsOneEvent()
{
    AddCloth(SampleModels::Hero());
    AddCloth(SampleModels::Flag());
    ClickRow(Tree().topLevelItem(0));
    QCOMPARE(Events().count(QStringLiteral("ObjectSelectionChanged")), 1);
}

void TestWorkbenchSelection::sectionsComeBackAfterAMaterialWithoutCloth()
{
    const Host::Object& hero = AddCloth(SampleModels::Hero());
    Cloth(hero, 0).active = false;
    App().SelectAgain();
    auto* body = Child<QGroupBox>(Child<QWidget>(&Window(), "SoftClothCollision"), "qtSectionGroupBox");
    QVERIFY(body->isEnabled());
    OpenDialog();
    ClickRow(Tree().topLevelItem(0)->child(0)->child(0));
    QCOMPARE(CurrentRow(), 0);
    QVERIFY(!body->isEnabled());
    App().SetDialogMode(MV::EDialogMode::None);
    ClickRow(Tree().topLevelItem(0));
    QVERIFY(body->isEnabled());
}

void TestWorkbenchSelection::commandOpensAndClosesTheDialog()
{
    AddCloth(SampleModels::Flag());
    auto* command = Child<QAction>(&Window(), "weightMapAction");
    QWidget* dialog = Child<QWidget>(&Window(), "qtMaterialListWidget")->window();
    QVERIFY(command->isEnabled() && !command->isChecked());
    command->trigger();
    QVERIFY(dialog->isVisible() && command->isChecked());
    command->trigger();
    QVERIFY(!dialog->isVisible() && !command->isChecked());
    command->trigger();
    dialog->close();
    QVERIFY(!command->isChecked());
    QCOMPARE(CurrentScene().dialogMode, MV::EDialogMode::None);
}

void TestWorkbenchSelection::materialRowIsTheCurrentMaterialWhileTheDialogIsOpen()
{
    AddCloth(SampleModels::Hero());
    QTreeWidgetItem* skirt = Tree().topLevelItem(0)->child(1)->child(0);
    ClickRow(skirt);
    QVERIFY(!Events().contains(QStringLiteral("PickedMaterialIndexChanged")));
    OpenDialog();
    QCOMPARE(CurrentRow(), 0);
    App().Journal().Clear();
    ClickRow(skirt);
    QCOMPARE(Events(), QStringList{QStringLiteral("PickedMaterialIndexChanged")});
    QCOMPARE(CurrentRow(), 2);
}

void TestWorkbenchSelection::meshRowsOpenForPicking()
{
    AddCloth(SampleModels::Hero());
    QTreeWidgetItem* mesh = Tree().topLevelItem(0)->child(1);
    QVERIFY(!mesh->isExpanded());
    App().SetPickMode(MV::EPickMode::Material);
    QVERIFY(mesh->isExpanded());
}

void TestWorkbenchSelection::pickingIsShown()
{
    AddCloth(SampleModels::Hero());
    OpenDialog();
    auto* button = Child<QPushButton>(&Window(), "qtPickMaterialPushButton");
    const auto* advice = Child<QLabel>(&Window(), "pickAdvice");
    QVERIFY(!advice->isVisible() && !button->isChecked());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(CurrentScene().pickMode, MV::EPickMode::Material);
    QVERIFY(advice->isVisible() && button->isChecked());
    QCOMPARE(Tree().viewport()->cursor().shape(), Qt::CrossCursor);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(button->isChecked());
    App().SetPickMode(MV::EPickMode::None);
    QVERIFY(!advice->isVisible() && !button->isChecked());
    QCOMPARE(Tree().viewport()->cursor().shape(), Qt::ArrowCursor);
}

void TestWorkbenchSelection::escapeEndsPickingFromEverywhere_data()
{
    QTest::addColumn<QString>("widget");
    QTest::newRow("tree") << QStringLiteral("sceneTree");
    QTest::newRow("filter") << QStringLiteral("hostCallsFilter");
    QTest::newRow("box of the panel") << QStringLiteral("qtMassEXSpinBox");
    QTest::newRow("list of the dialog") << QStringLiteral("qtMaterialListWidget");
    QTest::newRow("box of the dialog") << QStringLiteral("qtBrightnessCombospinbox");
}

void TestWorkbenchSelection::escapeEndsPickingFromEverywhere()
{
    QFETCH(const QString, widget);
    AddCloth(SampleModels::Hero());
    OpenDialog();
    App().SetPickMode(MV::EPickMode::Material);
    auto* focus = Child<QWidget>(&Window(), qPrintable(widget));
    focus->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(focus->window()));
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_Escape);
    QCOMPARE(CurrentScene().pickMode, MV::EPickMode::None);
    QCOMPARE(CurrentScene().dialogMode, MV::EDialogMode::WeightMap);
}

void TestWorkbenchSelection::deleteKeyDeletesFromTheTreeOnly_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<bool>("deletes");
    QTest::newRow("tree") << QStringLiteral("sceneTree") << true;
    QTest::newRow("calls") << QStringLiteral("hostCallsTable") << false;
    QTest::newRow("box of the panel") << QStringLiteral("qtMassEXSpinBox") << false;
    QTest::newRow("presets") << QStringLiteral("qtPresetClothListWidget") << false;
    QTest::newRow("check box") << QStringLiteral("playingControl") << false;
}

void TestWorkbenchSelection::deleteKeyDeletesFromTheTreeOnly()
{
    QFETCH(const QString, widget);
    AddCloth(SampleModels::Hero());
    auto* focus = Child<QWidget>(&Window(), qPrintable(widget));
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_Delete);
    QTEST(CurrentScene().Objects().empty(), "deletes");
}

void TestWorkbenchSelection::emptyPanelSaysWhatToDo()
{
    QVERIFY(Hint().isVisible());
    QVERIFY(Hint().text().contains(QStringLiteral("empty")));
    AddCloth(SampleModels::Hero());
    QTRY_VERIFY(!Hint().isVisible());
    App().Select({});
    QTRY_VERIFY(Hint().isVisible());
    QVERIFY(Hint().text().contains(QStringLiteral("Click an object")));
    AddCloth(SampleModels::Flag());
    Tree().selectAll();
    QTRY_VERIFY(Hint().isVisible());
    QVERIFY(Hint().text().contains(QStringLiteral("Several objects")));
    App().Select({CurrentScene().Objects().front()->handle});
    App().SetPhysicsEngine(2);
    QTRY_VERIFY(Hint().isVisible());
    QVERIFY(Hint().text().contains(QStringLiteral("engine 1")));
}

void TestWorkbenchSelection::movingVerticesAreCounted()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    const auto* label = Child<QLabel>(&Window(), "movingVertices");
    QTRY_COMPARE(label->text(), QString());
    const QTemporaryDir folder;
    const QString image =
        SampleImages::WriteImage(folder.filePath(QStringLiteral("a.png")), SampleImages::Filled({4, 4}, Qt::white));
    const Host::ClothAddress address = Host::Scene::SlotsOf(flag).front();
    QCOMPARE(App().Weights().Load(address, image), BF::Results::Success);
    QTRY_COMPARE(label->text(), QStringLiteral("Silk: 4 of 20,000 vertices move"));
    App().Select({});
    QTRY_COMPARE(label->text(), QString());
}

SOFTCLOTH_TEST(TestWorkbenchSelection)
#include "tst_workbench_selection.moc"
