#include "host/services/ImageEditor.h"
#include "host/workbench/window/RecentFiles.h"
#include "tests/panel/workbench/WorkbenchTestCase.h"
#include "tests/support/SampleImages.h"
#include "tests/support/UserDialogs.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

/// Files of the workbench: saving, the question about changes, recent and dropped files.
class TestWorkbenchFiles : public WorkbenchTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sceneThatWasOnlyImportedDoesNotAsk();
    void editedSceneAsks();
    void secondModelAsks();
    void undoneImportDoesNotAsk();
    void savingCommitsTheFocusedEditor_data();
    void savingCommitsTheFocusedEditor();
    void closingCommitsTheFocusedEditor();
    void openedSceneSelectsWhatWasSelected();
    void recentFilesAreKeptAndOpened();
    void recentFileThatIsGoneIsForgotten();
    void recentFilesAreFew();
    void modelWithoutAUnitAsksForIt_data();
    void modelWithoutAUnitAsksForIt();
    void recentModelKeepsItsUnit();
    void droppedModelIsImported();
    void droppedSceneIsOpened();
    void otherDropsAreRefused();
    void imageDroppedOnTheThumbnailIsLoaded();
    void keptUvLayoutIsRemembered();

private:
    /// Whether \p import, which may take as long as it likes, asks for a unit; the question is cancelled.
    bool AsksForAUnit(const std::function<void()>& import);
    /// Height of the only object, in centimetres.
    float Height() const;
    /// Types a mass without committing it.
    void TypeMass(const char* text) const;
    bool AsksOnClose() const
    {
        return UserDialogs::OpensDialog([this] { Window().close(); });
    }
};

bool TestWorkbenchFiles::AsksForAUnit(const std::function<void()>& import)
{
    bool asks = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&asks] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->objectName() == QLatin1String("unitDialog")) {
            asks = true;
            dialog->reject();
        }
    });
    poll.start(5);
    import();
    return asks;
}

float TestWorkbenchFiles::Height() const
{
    float low = 0.0F;
    float high = 0.0F;
    for (const Host::Mesh& mesh : CurrentScene().Objects().front()->meshes) {
        for (const QVector3D& position : mesh.positions) {
            low = qMin(low, position.y());
            high = qMax(high, position.y());
        }
    }
    return high - low;
}

void TestWorkbenchFiles::TypeMass(const char* text) const
{
    auto* mass = Child<QAbstractSpinBox>(&Window(), "qtMassEXSpinBox");
    mass->setFocus();
    mass->selectAll();
    QTest::keyClicks(mass, QLatin1String(text));
}

void TestWorkbenchFiles::sceneThatWasOnlyImportedDoesNotAsk()
{
    QVERIFY(Window().ImportModel(QStringLiteral(SOFTCLOTH_DEMO_FILE), Host::UnitCalled(QStringLiteral("cm"))));
    QVERIFY(!Window().isWindowModified());
    QVERIFY(!AsksOnClose());
}

void TestWorkbenchFiles::editedSceneAsks()
{
    QVERIFY(Window().ImportModel(QStringLiteral(SOFTCLOTH_DEMO_FILE), Host::UnitCalled(QStringLiteral("cm"))));
    App().SetSoftClothActive(CurrentScene().Selection().first(), true);
    QVERIFY(Window().isWindowModified());
    QVERIFY(AsksOnClose());
}

void TestWorkbenchFiles::secondModelAsks()
{
    QVERIFY(Window().ImportModel(SampleModels::RealModel(QStringLiteral("FBX/spider.fbx"))));
    QVERIFY(Window().ImportModel(SampleModels::RealModel(QStringLiteral("FBX/spider.fbx"))));
    QVERIFY(AsksOnClose());
}

void TestWorkbenchFiles::undoneImportDoesNotAsk()
{
    QVERIFY(Window().ImportModel(SampleModels::RealModel(QStringLiteral("FBX/spider.fbx"))));
    Trigger("undoAction");
    QVERIFY(CurrentScene().Objects().empty());
    QVERIFY(!Window().isWindowModified());
    QVERIFY(!AsksOnClose());
}

void TestWorkbenchFiles::savingCommitsTheFocusedEditor_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("key") << true;
    QTest::newRow("menu") << false;
}

void TestWorkbenchFiles::savingCommitsTheFocusedEditor()
{
    QFETCH(const bool, byKey);
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    const QTemporaryDir folder;
    QVERIFY(Window().SaveScene(folder.filePath(QStringLiteral("flag.clothscene"))));
    TypeMass("17");
    if (byKey) {
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Save);
    } else {
        Trigger("saveSceneAction");
    }
    QCOMPARE(Cloth(flag).property.mass, 17);
    QVERIFY(!Window().isWindowModified());
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("qtMassEXSpinBox"));
}

void TestWorkbenchFiles::closingCommitsTheFocusedEditor()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    TypeMass("17");
    int massWhenAsked = 0;
    QTimer::singleShot(0, &Window(), [&] {
        massWhenAsked = Cloth(flag).property.mass;
        qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->button(QMessageBox::Cancel)->click();
    });
    Window().close();
    QCOMPARE(massWhenAsked, 17);
    QVERIFY(Window().isVisible());
}

void TestWorkbenchFiles::openedSceneSelectsWhatWasSelected()
{
    AddCloth(SampleModels::Hero());
    AddCloth(SampleModels::Flag());
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("both.clothscene"));
    QVERIFY(Window().SaveScene(file));
    Window().NewScene();
    QVERIFY(Window().OpenScene(file));
    QCOMPARE(CurrentScene().Selection().size(), 1);
    QCOMPARE(CurrentScene().NameOf(CurrentScene().Selection().first()), QStringLiteral("Flag"));
    QVERIFY(Tree().topLevelItem(1)->isSelected());
    QVERIFY(Child<QWidget>(&Window(), "SoftClothCollision")->isVisible());
}

void TestWorkbenchFiles::recentFilesAreKeptAndOpened()
{
    const QString model = SampleModels::RealModel(QStringLiteral("FBX/spider.fbx"));
    QVERIFY(Window().ImportModel(model));
    const QTemporaryDir folder;
    const QString scene = folder.filePath(QStringLiteral("a & b.clothscene"));
    QVERIFY(Window().SaveScene(scene));
    QCOMPARE(Host::RecentFiles::Files(), (QStringList{scene, model}));

    OpenWindow();
    auto* menu = Child<QMenu>(&Window(), "recentMenu");
    Q_EMIT menu->aboutToShow();
    QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("&1 a && b.clothscene"));
    QCOMPARE(menu->actions().at(1)->text(), QStringLiteral("&2 spider.fbx"));
    menu->actions().at(0)->trigger();
    QCOMPARE(CurrentScene().Objects().size(), std::size_t(1));
    QVERIFY(Window().windowTitle().startsWith(QStringLiteral("a & b.clothscene")));

    Q_EMIT menu->aboutToShow();
    menu->actions().constLast()->trigger();
    QCOMPARE(Host::RecentFiles::Files(), QStringList());
}

void TestWorkbenchFiles::recentFileThatIsGoneIsForgotten()
{
    const QString gone = QFileInfo(QStringLiteral("gone.obj")).absoluteFilePath();
    Host::RecentFiles::Add(gone);
    auto* menu = Child<QMenu>(&Window(), "recentMenu");
    Q_EMIT menu->aboutToShow();
    QVERIFY(UserDialogs::OpensDialog([menu] { menu->actions().at(0)->trigger(); }));
    QCOMPARE(Host::RecentFiles::Files(), QStringList());
}

void TestWorkbenchFiles::recentFilesAreFew()
{
    for (int i = 0; i < 20; ++i) {
        Host::RecentFiles::Add(QStringLiteral("/models/%1.obj").arg(i));
    }
    Host::RecentFiles::Add(QStringLiteral("/models/15.obj"));
    const QStringList files = Host::RecentFiles::Files();
    QCOMPARE(files.size(), int(Host::RecentFiles::most));
    QCOMPARE(files.at(0), QStringLiteral("/models/15.obj"));
    QCOMPARE(files.at(1), QStringLiteral("/models/19.obj"));
    QCOMPARE(files.count(QStringLiteral("/models/15.obj")), 1);
}

void TestWorkbenchFiles::modelWithoutAUnitAsksForIt_data()
{
    QTest::addColumn<QString>("choice"); // empty for the guess
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<float>("height"); // 0 for no import
    QTest::newRow("guess") << QString() << Qt::Key_Return << 79.74F;
    QTest::newRow("inches") << QStringLiteral("in") << Qt::Key_Return << 202.5F;
    QTest::newRow("cancelled") << QStringLiteral("in") << Qt::Key_Escape << 0.0F;
}

void TestWorkbenchFiles::modelWithoutAUnitAsksForIt()
{
    QFETCH(const QString, choice);
    QFETCH(const Qt::Key, key);
    QFETCH(const float, height);
    bool asked = false;
    // Events are handled during the import, too.
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->objectName() == QLatin1String("unitDialog")) {
            answer.stop();
            asked = true;
            auto* unit = Child<QComboBox>(dialog, "unitControl");
            unit->setCurrentIndex(choice.isEmpty() ? unit->currentIndex() : unit->findData(choice));
            QTest::keyClick(dialog, key);
        }
    });
    answer.start(1);
    QCOMPARE(Window().ImportModel(SampleModels::RealModel(QStringLiteral("OBJ/spider.obj"))), height > 0.0F);
    QVERIFY(asked);
    QCOMPARE(CurrentScene().Objects().size(), std::size_t(height > 0.0F ? 1 : 0));
    if (height > 0.0F) {
        QVERIFY2(qAbs(Height() - height) < 0.01F * height, qPrintable(QString::number(double(Height()))));
    }
}

void TestWorkbenchFiles::recentModelKeepsItsUnit()
{
    const QString model = SampleModels::RealModel(QStringLiteral("OBJ/spider.obj"));
    QVERIFY(Window().ImportModel(model, Host::UnitCalled(QStringLiteral("in"))));
    const float height = Height();
    OpenWindow();
    auto* menu = Child<QMenu>(&Window(), "recentMenu");
    Q_EMIT menu->aboutToShow();
    QVERIFY(!AsksForAUnit([menu] { menu->actions().at(0)->trigger(); }));
    QCOMPARE(Height(), height);
    // What is imported by its own command is asked for again, and the later answer counts.
    QVERIFY(AsksForAUnit([this, &model] { Window().ImportModel(model); }));
    QVERIFY(Window().ImportModel(model, Host::UnitCalled(QStringLiteral("m"))));
    QCOMPARE(Host::RecentFiles::UnitOf(model), QStringLiteral("m"));
    Host::RecentFiles::Remove(model);
    QCOMPARE(Host::RecentFiles::UnitOf(model), QString());
}

void TestWorkbenchFiles::droppedModelIsImported()
{
    QVERIFY(Drop(Window(), {SampleModels::RealModel(QStringLiteral("FBX/spider.fbx"))}));
    QTRY_COMPARE(CurrentScene().Objects().size(), std::size_t(1));
}

void TestWorkbenchFiles::droppedSceneIsOpened()
{
    AddCloth(SampleModels::Flag());
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("flag.clothscene"));
    QVERIFY(Window().SaveScene(file));
    AddCloth(SampleModels::Hero());
    QVERIFY(Drop(Window(), {file}));
    QTRY_COMPARE(CurrentScene().Objects().size(), std::size_t(1));
}

void TestWorkbenchFiles::otherDropsAreRefused()
{
    const QTemporaryDir folder;
    const QString image =
        SampleImages::WriteImage(folder.filePath(QStringLiteral("a.png")), SampleImages::Filled({4, 4}, Qt::white));
    QVERIFY(!Drop(Window(), {image}));
}

void TestWorkbenchFiles::imageDroppedOnTheThumbnailIsLoaded()
{
    const Host::Object& flag = AddCloth(SampleModels::Flag());
    const QTemporaryDir folder;
    const QString image =
        SampleImages::WriteImage(folder.filePath(QStringLiteral("a.png")), SampleImages::Filled({4, 4}, Qt::white));
    OpenDialog();
    QVERIFY(Drop(*Child<QWidget>(&Window(), "qtWeightingItemLabel"), {image}));
    QTRY_COMPARE(Cloth(flag).weight.image.filePath, image);
}

void TestWorkbenchFiles::keptUvLayoutIsRemembered()
{
    Host::Object textured = SampleModels::Flag();
    textured.materials.at(0).textures[MV::ETextureChannel::Diffuse].embedded =
        SampleImages::Encoded(QStringLiteral("png"), SampleImages::Filled({4, 4}, Qt::red));
    AddCloth(std::move(textured));
    OpenDialog();
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("silk.png"));
    App().Editor().SetProgram(QStringLiteral("true"));
    UserDialogs::ChooseFile([this] { Child<QPushButton>(&Window(), "qtUvRefPushButton")->click(); }, file);
    QVERIFY(QFileInfo::exists(file));
    OpenWindow();
    QCOMPARE(App().Editor().Layouts().Kept(), QStringList{file});
}

SOFTCLOTH_TEST(TestWorkbenchFiles)
#include "tst_workbench_files.moc"
