#include "tests/panel/workbench/WorkbenchTestCase.h"
#include "tests/support/SampleImages.h"
#include "tests/support/UserDialogs.h"

#include <QAbstractSpinBox>
#include <QBuffer>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

/// Undo of the whole application: what one step is, and where its keys are heard.
class TestWorkbenchUndo : public WorkbenchTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void presetIsOneStep();
    void profileIsOneStep();
    void typedValuesAreAStepEach();
    void keyReachesTheSceneFromEverywhere_data();
    void keyReachesTheSceneFromEverywhere();
    void keyTakesBackTypedTextFirst();
    void keyReachesTheSceneFromTheMaterialTable();
    void keyInAFileDialogChangesNothing();
    void deletedObjectIsSelectedAgain();

private:
    int StepCount() const { return CurrentScene().UndoStack().index(); }
    void TypeMass(const char* text) const;
    void ApplyFirstPreset() const;
};

void TestWorkbenchUndo::TypeMass(const char* text) const
{
    auto* mass = Child<QAbstractSpinBox>(&Window(), "qtMassEXSpinBox");
    mass->setFocus();
    mass->selectAll();
    QTest::keyClicks(mass, QLatin1String(text));
    QTest::keyClick(mass, Qt::Key_Return);
}

void TestWorkbenchUndo::ApplyFirstPreset() const
{
    auto* list = Child<QListWidget>(&Window(), "qtPresetClothListWidget");
    const QPoint at = list->visualItemRect(list->item(1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
}

void TestWorkbenchUndo::presetIsOneStep()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    Cloth(flag).property.mass = 91;
    Cloth(flag).collision.rigidMargin = 9.25F;
    const Host::ClothState before = Cloth(flag);
    const int steps = StepCount();
    ApplyFirstPreset();
    QVERIFY(Cloth(flag).property.mass != 91);
    QVERIFY(Cloth(flag).collision.rigidMargin != 9.25F);
    QCOMPARE(StepCount(), steps + 1);
    App().Undo();
    QVERIFY(Cloth(flag) == before);

    // The next one is the next step.
    App().Redo();
    TypeMass("17");
    QCOMPARE(StepCount(), steps + 2);
}

void TestWorkbenchUndo::profileIsOneStep()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    Cloth(flag).property.mass = 91;
    Cloth(flag).wind.frequency = 3;
    const Host::ClothState before = Cloth(flag);
    const int steps = StepCount();
    auto* load = Child<QPushButton>(Child<QWidget>(&Window(), "SoftClothPreset"), "qtOpenFilePushButton");
    // The name is not typed: in an active window a list of completions would open over the button.
    UserDialogs::WithFileDialog([load] { QTest::mouseClick(load, Qt::LeftButton); },
                                [](QFileDialog& dialog) {
                                    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
                                        ->setText(
                                            QStringLiteral(SOFTCLOTH_DATA_FOLDER "/PhysicsSoftPreset/0/2_Denim.ini"));
                                    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
                                });
    QVERIFY(Cloth(flag).property.mass != 91);
    QCOMPARE(StepCount(), steps + 1);
    App().Undo();
    QVERIFY(Cloth(flag) == before);
}

void TestWorkbenchUndo::typedValuesAreAStepEach()
{
    AddCloth(SampleModels::Flag());
    const int steps = StepCount();
    TypeMass("17");
    TypeMass("18");
    QCOMPARE(StepCount(), steps + 2);
}

void TestWorkbenchUndo::keyReachesTheSceneFromEverywhere_data()
{
    QTest::addColumn<QString>("widget");
    QTest::newRow("tree") << QStringLiteral("sceneTree");
    QTest::newRow("empty filter") << QStringLiteral("hostCallsFilter");
    QTest::newRow("number of the host's controls") << QStringLiteral("typeControl");
    QTest::newRow("box of the panel") << QStringLiteral("qtMassEXSpinBox");
    QTest::newRow("list of the dialog") << QStringLiteral("qtMaterialListWidget");
    QTest::newRow("box of the dialog") << QStringLiteral("qtBrightnessCombospinbox");
}

void TestWorkbenchUndo::keyReachesTheSceneFromEverywhere()
{
    QFETCH(const QString, widget);
    Host::Object model = SampleModels::Flag();
    QBuffer image;
    SampleImages::Filled({4, 4}, Qt::white).save(&image, "PNG");
    model.meshes.front().materialSlots.front().cloth.weight.image.embedded = image.data();
    const Host::Object& flag = AddCloth(std::move(model));
    const int before = Cloth(flag).property.mass;
    TypeMass("17");
    auto* focus = Child<QWidget>(&Window(), qPrintable(widget));
    if (focus->window() != &Window()) {
        OpenDialog();
    }
    focus->setFocus();
    focus = QApplication::focusWidget();
    QVERIFY(focus);
    QTest::keyClick(focus, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Cloth(flag).property.mass, before);
    QTest::keySequence(focus, QKeySequence::Redo);
    QCOMPARE(Cloth(flag).property.mass, 17);
}

void TestWorkbenchUndo::keyTakesBackTypedTextFirst()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    const int before = Cloth(flag).property.mass;
    TypeMass("17");
    auto* filter = Child<QLineEdit>(&Window(), "hostCallsFilter");
    filter->setFocus();
    QTest::keyClicks(filter, QStringLiteral("Get"));
    QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(filter->text(), QString());
    QCOMPARE(Cloth(flag).property.mass, 17);
    QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Cloth(flag).property.mass, before);
}

void TestWorkbenchUndo::keyReachesTheSceneFromTheMaterialTable()
{
    const Host::Object& hero = AddCloth(SampleModels::Hero());
    const int before = Cloth(hero).property.mass;
    TypeMass("17");
    OpenDialog();
    bool wasOpen = false;
    QTimer::singleShot(0, &Window(), [&] {
        QWidget* table = QApplication::activeModalWidget();
        wasOpen = table != nullptr;
        QTest::keyClick(table->findChild<QWidget*>(QStringLiteral("qtMaterialTableWidget")), Qt::Key_Z,
                        Qt::ControlModifier);
        QTest::keyClick(table, Qt::Key_Escape);
    });
    Child<QPushButton>(&Window(), "qtShowMaterialTableButton")->click();
    QVERIFY(wasOpen);
    QCOMPARE(Cloth(hero).property.mass, before);
}

void TestWorkbenchUndo::keyInAFileDialogChangesNothing()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    TypeMass("17");
    UserDialogs::WithFileDialog([this] { Trigger("importAction"); },
                                [](QFileDialog& dialog) {
                                    QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
                                    dialog.reject();
                                });
    QCOMPARE(Cloth(flag).property.mass, 17);
}

void TestWorkbenchUndo::deletedObjectIsSelectedAgain()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    Tree().setFocus();
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    QVERIFY(CurrentScene().Objects().empty());
    QTest::keyClick(&Tree(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(CurrentScene().Selection(), QVector<BF::CHandle*>{flag.handle});
    QVERIFY(Tree().topLevelItem(0)->isSelected());
    QVERIFY(Child<QWidget>(&Window(), "SoftClothCollision")->isVisible());
}

SOFTCLOTH_TEST(TestWorkbenchUndo)
#include "tst_workbench_undo.moc"
