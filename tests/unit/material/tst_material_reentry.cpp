#include "tests/support/TestCase.h"
#include "tests/support/UserDialogs.h"
#include "tests/unit/material/DialogFixture.h"

#include <QFile>
#include <QListWidget>
#include <QTableWidget>
#include <QTemporaryDir>

/// Events of the host inside the dialog's own host calls: what is shown in the end is what the last event was about.
class TestMaterialReentry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nameRefreshEndsWhenTheListIsFilledInside_data();
    void nameRefreshEndsWhenTheListIsFilledInside();
    void rebuildGivesWayToANewerOne_data();
    void rebuildGivesWayToANewerOne();
    void tableGivesWayToANewerFill();
    void ignoredNamesGoToNoOtherObject_data();
    void ignoredNamesGoToNoOtherObject();
    void minimisedDialogComesBackAsAWindow();
    void rowChangeWithoutAListDoesNothing();
};

namespace {

QStringList RowTexts(const DialogFixture& fixture)
{
    const auto* list = fixture.Find<QListWidget>("qtMaterialListWidget");
    QStringList texts;
    for (int row = 0; row < list->count(); ++row) {
        texts.append(list->item(row)->text());
    }
    return texts;
}

} // namespace

void TestMaterialReentry::nameRefreshEndsWhenTheListIsFilledInside_data()
{
    QTest::addColumn<bool>("isEmpty");
    QTest::newRow("shorter") << false;
    QTest::newRow("empty") << true;
}

void TestMaterialReentry::nameRefreshEndsWhenTheListIsFilledInside()
{
    QFETCH(const bool, isEmpty);
    DialogFixture fixture;
    fixture.Open();
    Host::Object model = SampleModels::Flag();
    model.materials.at(0).state.softClothEnabled = !isEmpty;
    const Host::Object& flag = fixture.host.CurrentScene().AddObject(std::move(model));
    fixture.During("GetObjectName", [&] { fixture.dialog->ReloadMaterials(flag.handle, true); });
    QCOMPARE(fixture.dialog->RefreshMaterialStates(), BF::Results::Success);
    QCOMPARE(RowTexts(fixture), isEmpty ? QStringList() : QStringList{QStringLiteral("Silk( Sheet )")});
}

void TestMaterialReentry::rebuildGivesWayToANewerOne_data()
{
    QTest::addColumn<QByteArray>("operation");
    for (const char* operation :
         {"GetMeshList", "GetMaterialList", "IsMaterialSoftClothEnabled", "GetObjectName", "IsSoftClothActive"}) {
        QTest::newRow(operation) << QByteArray(operation);
    }
}

void TestMaterialReentry::rebuildGivesWayToANewerOne()
{
    QFETCH(const QByteArray, operation);
    DialogFixture fixture;
    fixture.Open();
    const Host::Object& flag = fixture.host.CurrentScene().AddObject(SampleModels::Flag());
    fixture.During(operation, [&] { fixture.dialog->ReloadMaterials(flag.handle, true); });
    QCOMPARE(fixture.dialog->ReloadMaterials(fixture.object->handle, true), BF::Results::Success);
    QCOMPARE(RowTexts(fixture), QStringList{QStringLiteral("Silk( Sheet )")});
    QCOMPARE(fixture.Selection().material, flag.materials.at(0).id);
    QCOMPARE(fixture.Selection().mesh, flag.meshes.at(0).id);
    QCOMPARE(Child<QTableWidget>(fixture.table.data(), "qtMaterialTableWidget")->rowCount(), 1);
}

void TestMaterialReentry::tableGivesWayToANewerFill()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.During("GetObjectName", [&] {
        fixture.table->SetMaterialRows({}, {});
        fixture.table->FillTable();
    });
    QCOMPARE(fixture.table->FillTable(), BF::Results::Success);
    QCOMPARE(Child<QTableWidget>(fixture.table.data(), "qtMaterialTableWidget")->rowCount(), 0);
}

void TestMaterialReentry::ignoredNamesGoToNoOtherObject_data()
{
    QTest::addColumn<bool>("isNone");
    QTest::newRow("an object of another type") << false;
    QTest::newRow("no object") << true;
}

void TestMaterialReentry::ignoredNamesGoToNoOtherObject()
{
    QFETCH(const bool, isNone);
    DialogFixture fixture;
    Host::Object hero = SampleModels::Hero();
    hero.traits.type = 2;
    fixture.Open(std::move(hero));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("names.ini"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Ignored_Material_Name_List]\nBody=Skin\n");
    file.close();
    // The user of the open file dialog waits; meanwhile a script selects something else.
    const auto selectOther = [&] {
        fixture.Selection().object = isNone ? nullptr : fixture.object->handle;
        fixture.Selection().objectType = isNone ? 2 : 5;
    };
    UserDialogs::ChooseFile([&] { QTest::keyClick(fixture.dialog, Qt::Key_F, Qt::AltModifier | Qt::ShiftModifier); },
                            path, selectOther);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialReentry::minimisedDialogComesBackAsAWindow()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.dialog->setWindowState(Qt::WindowMinimized);
    fixture.host.SetDialogMode(MV::EDialogMode::None);
    fixture.host.SetDialogMode(MV::EDialogMode::WeightMap);
    QVERIFY(fixture.dialog->isVisible());
    QVERIFY(!fixture.dialog->isMinimized());
}

void TestMaterialReentry::rowChangeWithoutAListDoesNothing()
{
    MV::CPhysicsSoftClothPlugin plugin;
    MV::CSoftClothMaterialDlg dialog(nullptr, &plugin);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "OnChangeCurrentItemOfMaterialList", Qt::DirectConnection));
    QCOMPARE(plugin.Selection().material, std::size_t(0));
}

SOFTCLOTH_TEST(TestMaterialReentry)

#include "tst_material_reentry.moc"
