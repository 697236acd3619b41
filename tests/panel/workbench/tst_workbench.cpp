#include "host/images/ImageStore.h"
#include "host/services/ImageEditor.h"
#include "host/services/Pictures.h"
#include "host/workbench/MainWindow.h"
#include "host/workbench/tour/Tour.h"
#include "plugin/services/SceneService.h"
#include "tests/support/Children.h"
#include "tests/support/Files.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

/// The workbench's window with the real plug-in in it.
class TestWorkbench : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void demoCharacterIsOpenedAndSelected();
    void brokenModelSaysSoAndChangesNothing();
    void sceneKeepsValuesAndUndoableEdits();
    void damagedSceneSaysSoAndChangesNothing_data();
    void damagedSceneSaysSoAndChangesNothing();
    void treeSelectsTheObjectOfTheRow();
    void treePicksMaterialsInPickModeOnly();
    void controlsDriveTheGates();
    void anotherFamilyStartsThePluginAgain();
    void journalViewFilters();
    void journalViewFollowsTheNewestCall();
    void importCanBeUndone();
    void texturesAreLoadedInTheBackground();
    void problemsWithImagesAreTold();
    void imageEditorCanBeChosen();
    void missingLibrarySaysSo();
    void foreignLibrarySaysSo();
    void libraryThatCannotBeLoadedShowsTheReason();
    void missingResourceFileSaysSo();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    QWidget* Section() const { return Child<QWidget>(m_window.get(), "SoftClothCollision"); }
    Host::Scene& CurrentScene() const { return m_window->Application().CurrentScene(); }

    std::unique_ptr<Host::MainWindow> m_window;
};

void TestWorkbench::SetUp()
{
    m_window = std::make_unique<Host::MainWindow>();
    m_window->SetUnattended();
    m_window->show();
    QVERIFY(m_window->StartPlugin(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), MV::ECompatibleApp::FamilyA));
}

void TestWorkbench::TearDown()
{
    m_window.reset();
}

void TestWorkbench::demoCharacterIsOpenedAndSelected()
{
    QVERIFY(m_window->ImportModel(QStringLiteral(SOFTCLOTH_DEMO_FILE)));
    QCOMPARE(CurrentScene().Selection().size(), 1);
    const Host::Object& object = *CurrentScene().Objects().at(0);
    QCOMPARE(object.meshes.size(), std::size_t(2));
    QVERIFY(object.materials.size() >= 4);
    QVERIFY(Section()->isVisible());
}

void TestWorkbench::brokenModelSaysSoAndChangesNothing()
{
    QVERIFY(m_window->ImportModel(SampleModels::RealModel(QStringLiteral("OBJ/spider.obj"))));
    const int steps = CurrentScene().UndoStack().count();
    ExpectWarning(QStringLiteral("missing.obj"));
    QVERIFY(!m_window->ImportModel(QStringLiteral("missing.obj")));
    QCOMPARE(CurrentScene().Objects().size(), std::size_t(1));
    QCOMPARE(CurrentScene().UndoStack().count(), steps);
}

void TestWorkbench::sceneKeepsValuesAndUndoableEdits()
{
    QVERIFY(m_window->ImportModel(SampleModels::RealModel(QStringLiteral("OBJ/spider.obj"))));
    m_window->Application().SetSoftClothActive(CurrentScene().Selection().first(), true);
    auto* margin = Child<QAbstractSpinBox>(m_window.get(), "qtCollideWithRigidMarginDoubleEXSpinBox");
    margin->selectAll();
    QTest::keyClicks(margin, QStringLiteral("2.5"));
    QTest::keyClick(margin, Qt::Key_Return);
    QVERIFY(!CurrentScene().UndoStack().isClean());

    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("spider.clothscene"));
    QVERIFY(m_window->SaveScene(file));
    QVERIFY(CurrentScene().UndoStack().isClean());
    m_window->NewScene();
    QVERIFY(CurrentScene().Objects().empty());
    QVERIFY(!Section()->isVisible());

    QVERIFY(m_window->OpenScene(file));
    const Host::Object& object = *CurrentScene().Objects().at(0);
    const Host::ClothAddress first = Host::Scene::SlotsOf(object).at(0);
    QCOMPARE(CurrentScene().FindSlot(first)->cloth.collision.rigidMargin, 2.5F);
    m_window->Application().Select({object.handle});
    QVERIFY(Section()->isVisible());
    Child<QAction>(m_window.get(), "undoAction")->trigger();
    QCOMPARE(CurrentScene().FindSlot(first)->cloth.collision.rigidMargin, 0.0F);
    Child<QAction>(m_window.get(), "redoAction")->trigger();
    QCOMPARE(CurrentScene().FindSlot(first)->cloth.collision.rigidMargin, 2.5F);
}

void TestWorkbench::damagedSceneSaysSoAndChangesNothing_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("scene");
    QTest::newRow("another format") << QByteArray("{\"format\": \"other\", \"version\": 1}");
    QTest::newRow("newer") << QByteArray("{\"format\": \"softcloth-scene\", \"version\": 999}");
}

void TestWorkbench::damagedSceneSaysSoAndChangesNothing()
{
    QFETCH(const QByteArray, contents);
    QVERIFY(m_window->ImportModel(SampleModels::RealModel(QStringLiteral("OBJ/spider.obj"))));
    const Host::Scene* scene = &CurrentScene();
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("bad.clothscene")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();
    ExpectWarning(QStringLiteral("bad.clothscene"));
    QVERIFY(!m_window->OpenScene(file.fileName()));
    QCOMPARE(&CurrentScene(), scene);
    QCOMPARE(CurrentScene().Objects().size(), std::size_t(1));
    QVERIFY(Section()->isVisible());
}

void TestWorkbench::treeSelectsTheObjectOfTheRow()
{
    BF::CHandle* hero = m_window->Application().AddModel(SampleModels::Hero());
    BF::CHandle* flag = m_window->Application().AddModel(SampleModels::Flag());
    auto* tree = Child<QTreeWidget>(m_window.get(), "sceneTree");
    QCOMPARE(tree->topLevelItemCount(), 2);
    QVERIFY(tree->topLevelItem(1)->isSelected());
    const auto click = [tree](QTreeWidgetItem* item, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, modifiers, tree->visualItemRect(item).center());
    };
    click(tree->topLevelItem(0));
    QCOMPARE(CurrentScene().Selection(), QVector<BF::CHandle*>{hero});
    QVERIFY(Section()->isVisible());
    click(tree->topLevelItem(1), Qt::ControlModifier);
    QCOMPARE(CurrentScene().Selection(), (QVector<BF::CHandle*>{hero, flag}));
    QVERIFY(!Section()->isVisible());
    // A mesh's row selects its object.
    click(tree->topLevelItem(0)->child(1));
    QCOMPARE(CurrentScene().Selection(), QVector<BF::CHandle*>{hero});
}

void TestWorkbench::treePicksMaterialsInPickModeOnly()
{
    m_window->Application().AddModel(SampleModels::Hero());
    auto* tree = Child<QTreeWidget>(m_window.get(), "sceneTree");
    QTreeWidgetItem* mesh = tree->topLevelItem(0)->child(0);
    mesh->setExpanded(true);
    const auto clickHair = [&] {
        m_window->Application().Journal().Clear();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(mesh->child(1)).center());
        return m_window->Application().Journal().ToText().contains(
            QLatin1String("PickedMaterialIndexChanged(\"Hero\", 1)"));
    };
    QVERIFY(!clickHair());
    m_window->Application().SetPickMode(MV::EPickMode::Material);
    QVERIFY(clickHair());
}

void TestWorkbench::controlsDriveTheGates()
{
    m_window->Application().AddModel(SampleModels::Hero());
    auto* type = Child<QSpinBox>(m_window.get(), "typeControl");
    type->setValue(7);
    QVERIFY(!Section()->isVisible());
    type->setValue(5);
    QVERIFY(Section()->isVisible());
    Child<QSpinBox>(m_window.get(), "convertStateControl")->setValue(1);
    QVERIFY(!Section()->isVisible());
    Child<QSpinBox>(m_window.get(), "convertStateControl")->setValue(3);
    QVERIFY(Section()->isVisible());
    Child<QCheckBox>(m_window.get(), "blockedControl")->click();
    QVERIFY(!Section()->isVisible());
    Child<QCheckBox>(m_window.get(), "blockedControl")->click();
    Child<QCheckBox>(m_window.get(), "blockedExControl")->click();
    QVERIFY(Section()->isVisible());
    Child<QSpinBox>(m_window.get(), "engineControl")->setValue(2);
    QVERIFY(!Section()->isVisible());
    Child<QSpinBox>(m_window.get(), "engineControl")->setValue(1);
    QVERIFY(Section()->isVisible());
    Child<QCheckBox>(m_window.get(), "playingControl")->click();
    QVERIFY(CurrentScene().playing);
}

void TestWorkbench::anotherFamilyStartsThePluginAgain()
{
    m_window->Application().AddModel(SampleModels::Hero());
    auto* family = Child<QComboBox>(m_window.get(), "applicationControl");
    const auto choose = [family](int index) {
        family->setFocus();
        family->setCurrentIndex(index);
        Q_EMIT family->activated(index);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    choose(1);
    QVERIFY(Section()->isVisible());
    Child<QCheckBox>(m_window.get(), "blockedExControl")->click();
    QVERIFY(!Section()->isVisible());
    choose(2);
    QVERIFY(!m_window->findChild<QWidget*>(QStringLiteral("SoftClothCollision")));
    choose(0);
    QVERIFY(Section()->isVisible());
}

void TestWorkbench::journalViewFilters()
{
    m_window->Application().AddModel(SampleModels::Hero());
    auto* table = Child<QTableView>(m_window.get(), "hostCallsTable");
    const int all = table->model()->rowCount();
    QCOMPARE(all, m_window->Application().Journal().Entries().size());
    Child<QLineEdit>(m_window.get(), "hostCallsFilter")->setText(QStringLiteral("getphysicsengine"));
    const int some = table->model()->rowCount();
    QVERIFY(some > 0 && some < all);
    m_window->Application().Journal().Clear();
    QCOMPARE(table->model()->rowCount(), 0);
}

void TestWorkbench::journalViewFollowsTheNewestCall()
{
    Host::HostApplication& host = m_window->Application();
    auto* table = Child<QTableView>(m_window.get(), "hostCallsTable");
    const QScrollBar* bar = table->verticalScrollBar();
    const auto callOften = [&host, table] {
        for (int i = 0; i < 50; ++i) {
            host.GetSceneService()->IsPlaying();
            // Painted in the middle of the calls, the table lays out its rows before anything else happens.
            if (i % 10 == 0) {
                table->grab();
            }
        }
        QCoreApplication::processEvents();
    };
    callOften();
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());
    QTest::keyClick(table, Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(bar->value(), 0);
    const int before = bar->maximum();
    callOften();
    QTRY_VERIFY(bar->maximum() > before);
    QCOMPARE(bar->value(), 0);
    QTest::keyClick(table, Qt::Key_End, Qt::ControlModifier);
    callOften();
    QTRY_COMPARE(bar->value(), bar->maximum());
}

void TestWorkbench::importCanBeUndone()
{
    m_window->Application().AddModel(SampleModels::Hero());
    QVERIFY(Section()->isVisible());
    Child<QAction>(m_window.get(), "undoAction")->trigger();
    QVERIFY(CurrentScene().Objects().empty());
    QVERIFY(!Section()->isVisible());
    Child<QAction>(m_window.get(), "redoAction")->trigger();
    QCOMPARE(CurrentScene().Objects().size(), std::size_t(1));
}

void TestWorkbench::texturesAreLoadedInTheBackground()
{
    const auto events = [this] {
        QStringList names;
        for (const Host::JournalEntry& entry : m_window->Application().Journal().Entries()) {
            if (entry.operation.startsWith(QLatin1String("ImageAsyncLoad"))) {
                names.append(entry.operation);
            }
        }
        return names;
    };
    QVERIFY(m_window->ImportModel(QStringLiteral(SOFTCLOTH_DEMO_FILE)));
    QCOMPARE(events(), QStringList{QStringLiteral("ImageAsyncLoadStart")});
    const QStringList both{QStringLiteral("ImageAsyncLoadStart"), QStringLiteral("ImageAsyncLoadAllDone")};
    QTRY_COMPARE(events(), both);

    // The images of a scene that is opened are loaded as well.
    const QTemporaryDir folder;
    QVERIFY(m_window->SaveScene(folder.filePath(QStringLiteral("demo.clothscene"))));
    for (const Host::Material& material : CurrentScene().Objects().at(0)->materials) {
        for (const auto& [channel, texture] : material.textures) {
            m_window->Application().Images().Store().ForgetFile(texture.filePath);
        }
    }
    QVERIFY(m_window->OpenScene(folder.filePath(QStringLiteral("demo.clothscene"))));
    QTRY_COMPARE(events(), both + both);
}

void TestWorkbench::problemsWithImagesAreTold()
{
    ExpectWarning(QStringLiteral("The image is upside down."));
    m_window->Application().TellProblem(QStringLiteral("The image is upside down."));
}

void TestWorkbench::imageEditorCanBeChosen()
{
    const Host::ImageEditor& editor = m_window->Application().Editor();
    const auto choose = [this](const QString& program, Qt::Key key) {
        QTimer::singleShot(0, m_window.get(), [program, key] {
            QWidget* dialog = QApplication::activeModalWidget();
            auto* line = dialog->findChild<QLineEdit*>();
            line->selectAll();
            QTest::keyClicks(line, program);
            QTest::keyClick(dialog, key);
        });
        Child<QAction>(m_window.get(), "imageEditorAction")->trigger();
    };
    QCOMPARE(editor.Program(), QString());
    choose(QStringLiteral("paint --new"), Qt::Key_Return);
    QCOMPARE(editor.Program(), QStringLiteral("paint --new"));
    choose(QStringLiteral("other"), Qt::Key_Escape);
    QCOMPARE(editor.Program(), QStringLiteral("paint --new"));
}

void TestWorkbench::missingLibrarySaysSo()
{
    ExpectWarning(QStringLiteral("missing.so"));
    QVERIFY(!m_window->StartPlugin(QStringLiteral("missing.so"), MV::ECompatibleApp::FamilyA));
}

void TestWorkbench::foreignLibrarySaysSo()
{
    const QString widgets = QStringLiteral(SOFTCLOTH_WIDGET_LIBRARY);
    QVERIFY(QFile::exists(widgets));
    ExpectWarning(QStringLiteral("not a plug-in for this host"));
    QVERIFY(!m_window->StartPlugin(widgets, MV::ECompatibleApp::FamilyA));
}

void TestWorkbench::libraryThatCannotBeLoadedShowsTheReason()
{
    QTemporaryDir folder;
    const QString library = Files::Write(folder.filePath(QFileInfo(QStringLiteral(SOFTCLOTH_PLUGIN_FILE)).fileName()),
                                         "a text is no library");
    // Behind the colon are the loader's own words, which name the file once more.
    ExpectWarning(library + QStringLiteral(" is not a plug-in for this host: '") + library);
    QVERIFY(!m_window->StartPlugin(library, MV::ECompatibleApp::FamilyA));
}

void TestWorkbench::missingResourceFileSaysSo()
{
    QTemporaryDir folder;
    const QFileInfo plugin(QStringLiteral(SOFTCLOTH_PLUGIN_FILE));
    const QString alone = folder.filePath(plugin.fileName());
    QVERIFY(QFile::copy(plugin.filePath(), alone));
    ExpectWarning(QDir::toNativeSeparators(folder.filePath(plugin.completeBaseName() + QLatin1String(".rcc"))));
    QVERIFY(!m_window->StartPlugin(alone, MV::ECompatibleApp::FamilyA));
}

SOFTCLOTH_TEST(TestWorkbench)
#include "tst_workbench.moc"
