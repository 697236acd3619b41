#include "tests/support/Children.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTimer>

using MV::CEventSender;
using MV::ECompatibleApp;
using MV::EDialogMode;
using MV::EPickMode;

/// The material dialog and the material table of the built library: what the user does in them reaches the host and
/// the other sections, and what happens in the host reaches them.
class TestMaterialPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void chosenMaterialIsWhatTheSectionsEdit();
    void firstActiveMaterialIsChosen();
    void anotherObjectIsListedAnew();
    void pickedMaterialIsChosen_data();
    void pickedMaterialIsChosen();
    void escapeEndsPickingThenTheDialog();
    void closedDialogOpensAgain();
    void panelThatHidesClosesTheDialog();
    void tableNarrowsTheListUntilItIsUndone();
    void renamedMaterialShowsItsNameAlone();
    void emptyListCanBeFilledAgain();
    void familyBRefreshesTheDialogByItself_data();
    void familyBRefreshesTheDialogByItself();
    void loadedFileClosesTheDialog_data();
    void loadedFileClosesTheDialog();
    void pluginMayGoWhileTheTableIsOpen();
    void otherApplicationsHaveNoDialogs();
};

namespace {

/// The application family of the run.
ECompatibleApp Family()
{
    QFETCH_GLOBAL(const ECompatibleApp, family);
    return family;
}

/// The panel with a hero whose three materials are soft cloth, and the open dialog.
struct MaterialPanel : PanelFixture
{
    explicit MaterialPanel(ECompatibleApp app = Family())
        : PanelFixture(app)
    {
        hero = &AddCloth(SampleModels::Hero());
    }

    void OpenDialog()
    {
        App().SetDialogMode(EDialogMode::WeightMap);
        QVERIFY(QTest::qWaitForWindowExposed(&Dialog()));
        QApplication::setActiveWindow(&Dialog());
        // The first painting fetches the large preview.
        QApplication::processEvents();
        App().Journal().Clear();
    }

    QDialog& Dialog() { return *qobject_cast<QDialog*>(Child<QWidget>(&Window(), "SoftClothMaterialDlg")->window()); }
    QDialog& Table() { return *qobject_cast<QDialog*>(Child<QWidget>(&Window(), "SoftClothMaterialTable")->window()); }
    QListWidget& List() { return *Child<QListWidget>(&Window(), "qtMaterialListWidget"); }

    QStringList Rows()
    {
        QStringList rows;
        for (int row = 0; row < List().count(); ++row) {
            rows.append(List().item(row)->text());
        }
        return rows;
    }

    void ClickRow(int row)
    {
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().visualItemRect(List().item(row)).center());
    }

    void Click(const char* button) { QTest::mouseClick(Child<QPushButton>(&Dialog(), button), Qt::LeftButton); }

    /// Opens the table by its button, sets the ticks of its rows and confirms.
    void Confirm(const QVector<bool>& ticks)
    {
        QTimer::singleShot(0, &Table(), [this, ticks] {
            auto* rows = Child<QTableWidget>(&Table(), "qtMaterialTableWidget");
            QCOMPARE(rows->rowCount(), ticks.size());
            for (int row = 0; row < ticks.size(); ++row) {
                auto* box = rows->cellWidget(row, 0)->findChild<QCheckBox*>();
                if (box->isChecked() != ticks.at(row)) {
                    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
                }
                QCOMPARE(box->isChecked(), ticks.at(row));
            }
            QTest::mousePress(Child<QPushButton>(&Table(), "qtConfirmPushButton"), Qt::LeftButton);
            QVERIFY(!Table().isVisible());
        });
        Click("qtShowMaterialTableButton");
    }

    /// The material that the collision section writes to.
    QString EditedMaterial()
    {
        App().Journal().Clear();
        QTest::mouseClick(Child<QCheckBox>(Section("SoftClothCollision"), "qtSelfCollisionCheckBox"), Qt::LeftButton,
                          {}, QPoint(8, 8));
        const QStringList writes =
            TakeCalls(App().Journal()).filter(QStringLiteral("SetSoftClothCollision(\"Hero\", "));
        return writes.size() == 1 ? writes.first().section(QLatin1Char('"'), 3, 5).remove(QLatin1Char('"')) : QString();
    }

    Host::Object* hero;
};

const QStringList heroRows{QStringLiteral("Skin( Body )"), QStringLiteral("Hair( Body )"),
                           QStringLiteral("Skirt( Clothes )")};

} // namespace

/// Everything runs in both families.
void TestMaterialPanel::initTestCase_data()
{
    QTest::addColumn<ECompatibleApp>("family");
    QTest::newRow("family A") << ECompatibleApp::FamilyA;
    QTest::newRow("family B") << ECompatibleApp::FamilyB;
}

void TestMaterialPanel::chosenMaterialIsWhatTheSectionsEdit()
{
    MaterialPanel panel;
    panel.OpenDialog();
    QCOMPARE(panel.Rows(), heroRows);
    QCOMPARE(panel.EditedMaterial(), QStringLiteral("Body, Skin"));
    panel.ClickRow(2);
    QCOMPARE(panel.EditedMaterial(), QStringLiteral("Clothes, Skirt"));
    QTest::keyClick(&panel.List(), Qt::Key_Up);
    QCOMPARE(panel.EditedMaterial(), QStringLiteral("Body, Hair"));
}

void TestMaterialPanel::firstActiveMaterialIsChosen()
{
    MaterialPanel panel;
    panel.Cloth(*panel.hero, 0).active = false;
    panel.App().Select({});
    panel.App().Select({panel.hero->handle});
    QCOMPARE(panel.List().currentRow(), 1);
    QCOMPARE(panel.EditedMaterial(), QStringLiteral("Body, Hair"));
}

void TestMaterialPanel::anotherObjectIsListedAnew()
{
    MaterialPanel panel;
    panel.OpenDialog();
    panel.ClickRow(2);
    panel.AddCloth(SampleModels::Flag());
    QCOMPARE(panel.Rows(), QStringList{QStringLiteral("Silk( Sheet )")});
    panel.App().Select({panel.hero->handle});
    QCOMPARE(panel.Rows(), heroRows);
    QCOMPARE(panel.List().currentRow(), 0);
}

void TestMaterialPanel::pickedMaterialIsChosen_data()
{
    QTest::addColumn<bool>("isDialogOpen");
    QTest::addColumn<quint64>("index");
    QTest::addColumn<int>("row");
    QTest::newRow("another material") << true << quint64(2) << 2;
    QTest::newRow("no material") << true << quint64(7) << 0;
    QTest::newRow("without the dialog's mode") << false << quint64(2) << 0;
}

void TestMaterialPanel::pickedMaterialIsChosen()
{
    QFETCH(const bool, isDialogOpen);
    QFETCH(const quint64, index);
    QFETCH(const int, row);
    MaterialPanel panel;
    if (isDialogOpen) {
        panel.OpenDialog();
        panel.Click("qtPickMaterialPushButton");
        QCOMPARE(panel.CurrentScene().pickMode, EPickMode::Material);
        QVERIFY(Child<QAction>(&panel.Dialog(), "qtDoEscapeAction")->isEnabled());
    }
    panel.App().Journal().Clear();
    panel.App().Send("PickedMaterialIndexChanged", &CEventSender::PickedMaterialIndexChanged, panel.hero->handle,
                     index);
    QCOMPARE(TakeOperations(panel.App().Journal()).contains(QStringLiteral("IsPhysicsActive")), row != 0);
    QCOMPARE(panel.List().currentRow(), row);
    QCOMPARE(panel.EditedMaterial(), row == 2 ? QStringLiteral("Clothes, Skirt") : QStringLiteral("Body, Skin"));
}

void TestMaterialPanel::escapeEndsPickingThenTheDialog()
{
    MaterialPanel panel;
    panel.OpenDialog();
    panel.Click("qtPickMaterialPushButton");
    QTest::keyClick(&panel.Dialog(), Qt::Key_Escape);
    QCOMPARE(panel.CurrentScene().pickMode, EPickMode::None);
    QVERIFY(panel.Dialog().isVisible());
    QVERIFY(!Child<QAction>(&panel.Dialog(), "qtDoEscapeAction")->isEnabled());
    QTest::keyClick(&panel.Dialog(), Qt::Key_Escape);
    QVERIFY(!panel.Dialog().isVisible());
    QCOMPARE(panel.CurrentScene().dialogMode, EDialogMode::None);
}

void TestMaterialPanel::closedDialogOpensAgain()
{
    MaterialPanel panel;
    for (int time = 0; time < 2; ++time) {
        panel.OpenDialog();
        panel.Click("qtPickMaterialPushButton");
        panel.Dialog().close();
        QVERIFY(!panel.Dialog().isVisible());
        QCOMPARE(panel.CurrentScene().dialogMode, EDialogMode::None);
        QCOMPARE(panel.CurrentScene().pickMode, EPickMode::None);
    }
}

void TestMaterialPanel::panelThatHidesClosesTheDialog()
{
    MaterialPanel panel;
    panel.OpenDialog();
    panel.App().Select({});
    QVERIFY(!panel.Dialog().isVisible());
    QCOMPARE(panel.CurrentScene().dialogMode, EDialogMode::None);
}

void TestMaterialPanel::tableNarrowsTheListUntilItIsUndone()
{
    MaterialPanel panel;
    panel.OpenDialog();
    panel.ClickRow(1);
    QSignalSpy drawn(&panel.App(), &Host::HostApplication::SceneRefreshRequested);
    panel.Confirm({true, false, true});
    QCOMPARE(panel.Rows(), (QStringList{heroRows.at(0), heroRows.at(2)}));
    QVERIFY(!panel.hero->materials.at(1).state.softClothEnabled);
    QCOMPARE(drawn.size(), 1);
    QCOMPARE(panel.EditedMaterial(), QStringLiteral("Body, Skin"));

    panel.App().Undo(); // The click on the section's box.
    panel.App().Undo();
    QCOMPARE(panel.Rows(), heroRows);
    panel.Confirm({true, true, true});
    QCOMPARE(panel.Rows(), heroRows);
}

void TestMaterialPanel::renamedMaterialShowsItsNameAlone()
{
    MaterialPanel panel;
    panel.OpenDialog();
    panel.App().RenameMaterial(panel.hero->materials.at(1).id, QStringLiteral("Fur"));
    QCOMPARE(panel.Rows(), (QStringList{QStringLiteral("Skin"), QStringLiteral("Fur"), QStringLiteral("Skirt")}));
    panel.App().Select({});
    panel.App().Select({panel.hero->handle});
    QCOMPARE(panel.Rows().at(1), QStringLiteral("Fur( Body )"));
}

void TestMaterialPanel::emptyListCanBeFilledAgain()
{
    MaterialPanel panel;
    for (Host::Material& material : panel.hero->materials) {
        material.state.softClothEnabled = false;
    }
    panel.App().Select({});
    panel.App().Select({panel.hero->handle});
    panel.OpenDialog();
    QCOMPARE(panel.Rows(), QStringList());
    QVERIFY(!panel.List().isEnabled());
    panel.Confirm({false, true, false});
    QCOMPARE(panel.Rows(), QStringList{heroRows.at(1)});
    QVERIFY(panel.List().isEnabled());
    QCOMPARE(panel.EditedMaterial(), QStringLiteral("Body, Hair"));
}

void TestMaterialPanel::familyBRefreshesTheDialogByItself_data()
{
    QTest::addColumn<QByteArray>("event");
    QTest::newRow("another selection") << QByteArray("ObjectSelectionChanged");
    QTest::newRow("undo") << QByteArray("UndoRedoDone");
}

void TestMaterialPanel::familyBRefreshesTheDialogByItself()
{
    QFETCH(const QByteArray, event);
    MaterialPanel panel;
    const auto send = [&panel](const QByteArray& name) {
        panel.App().Journal().Clear();
        QMetaObject::invokeMethod(panel.App().GetEventSender(), name.constData());
        return TakeOperations(panel.App().Journal());
    };
    panel.OpenDialog();
    const QStringList refresh = send("ImageAsyncLoadAllDone");
    QVERIFY(!refresh.isEmpty());
    // The dialog hears of an event before the plug-in object does, which refreshes the whole panel for a selection.
    const bool isFamilyB = Family() == ECompatibleApp::FamilyB;
    QCOMPARE(send(event).mid(0, refresh.size()) == refresh, isFamilyB);
    panel.Dialog().close();
    QVERIFY(send(event).mid(0, refresh.size()) != refresh);
}

void TestMaterialPanel::loadedFileClosesTheDialog_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<bool>("closes");
    QTest::newRow("family A") << ECompatibleApp::FamilyA << false;
    QTest::newRow("family B") << ECompatibleApp::FamilyB << true;
}

void TestMaterialPanel::loadedFileClosesTheDialog()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, closes);
    MaterialPanel panel(app);
    panel.OpenDialog();
    panel.App().Send("FileLoaded", &CEventSender::FileLoaded, MV::EFileType::Model);
    QCOMPARE(panel.Dialog().isVisible(), !closes);
    QCOMPARE(panel.CurrentScene().dialogMode, closes ? EDialogMode::None : EDialogMode::WeightMap);
}

void TestMaterialPanel::pluginMayGoWhileTheTableIsOpen()
{
    MaterialPanel panel;
    panel.OpenDialog();
    const QPointer<QDialog> dialog(&panel.Dialog());
    const QPointer<QDialog> table(&panel.Table());
    QTimer::singleShot(0, &panel.Window(), [&panel] { panel.Plugin().Stop(); });
    // By the meta-object: a button that is clicked must outlive the click.
    QMetaObject::invokeMethod(dialog, "OnClickShowMaterialTablePushButton");
    QVERIFY(!dialog && !table);
    // The host's events find nobody and hurt nobody.
    panel.App().SetDialogMode(EDialogMode::None);
    panel.App().Send("ImageAsyncLoadStart", &CEventSender::ImageAsyncLoadStart);
    QCOMPARE(TakeCalls(panel.App().Journal()), QStringList());
}

void TestMaterialPanel::otherApplicationsHaveNoDialogs()
{
    PanelFixture panel(ECompatibleApp(0x10));
    panel.AddCloth(SampleModels::Hero());
    panel.App().SetDialogMode(EDialogMode::WeightMap);
    QVERIFY(!panel.Window().findChild<QDialog*>());
}

SOFTCLOTH_TEST(TestMaterialPanel)
#include "tst_material_panel.moc"
