#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include "panel/HostIds.h"

#include <QListWidget>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QTableWidget>

using Host::Id;

/// The material dialog's list: which rows it shows, which one is current, and how the selection follows.
class TestMaterialList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rebuildAsksTheHostInOrder();
    void rebuildWithoutResetDoesNotAskWhatIsActive();
    void rowsCarryTextAndIds();
    void onlyOfferedMaterialsAreListed();
    void currentRow_data();
    void currentRow();
    void nothingOfferedLeavesTheSelectionAlone();
    void objectWithoutMeshesIsAnEmptyList();
    void failedQueryEndsTheRebuild_data();
    void failedQueryEndsTheRebuild();
    void rebuildIsSilent();
    void rebuildLeavesBlockedSignalsBlocked();
    void rebuildLivesWithoutATable();
    void dialogBeforeInitAnswersNothing();
    void namesAreRefreshedWithoutTheMesh();
    void refreshOfAnEmptyListDoesNothing();
    void failedNameEndsTheRefresh();
    void rowChosenByTheUser_data();
    void rowChosenByTheUser();
    void rowWithoutIdsCountsAsNone();
    void rebuildInsideARowChange();
    void pickedMaterial_data();
    void pickedMaterial();
    void pickedMaterialThatIsNotListed();
    void pickedMaterialOnTwoMeshesIsTheFirstRow();
    void pickingIsSilent();
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

QListWidget& ListOf(const DialogFixture& fixture)
{
    return *fixture.Find<QListWidget>("qtMaterialListWidget");
}

const QStringList heroRows{QStringLiteral("Skin( Body )"), QStringLiteral("Hair( Body )"),
                           QStringLiteral("Skirt( Clothes )")};

/// The selection's mesh and material by name.
QString SelectedNames(DialogFixture& fixture)
{
    const Host::Scene& scene = fixture.host.CurrentScene();
    return scene.NameOf(MV::IdAsHandle(fixture.Selection().material)) + QLatin1Char(' ') +
           scene.NameOf(MV::IdAsHandle(fixture.Selection().mesh));
}

void SetActive(DialogFixture& fixture, const QVector<int>& slots_)
{
    fixture.object->state.softCloth = true;
    const auto addresses = Host::Scene::SlotsOf(*fixture.object);
    for (const int slot : slots_) {
        fixture.host.CurrentScene().FindSlot(addresses.at(std::size_t(slot)))->cloth.active = true;
    }
}

} // namespace

void TestMaterialList::rebuildAsksTheHostInOrder()
{
    DialogFixture fixture;
    fixture.Add();
    SetActive(fixture, {1});
    QCOMPARE(fixture.dialog->ReloadMaterials(fixture.object->handle, true), BF::Results::Success);
    QCOMPARE(fixture.Take(), (QStringList{
                                 QStringLiteral(R"(GetMeshList("Hero", ["Body", "Clothes"]) -> 0)"),
                                 QStringLiteral(R"(GetMaterialList("Body", ["Skin", "Hair"], 0) -> 0)"),
                                 QStringLiteral(R"(GetMaterialList("Clothes", ["Skirt"], 0) -> 0)"),
                                 // The table's rows.
                                 QStringLiteral(R"(GetObjectName("Skin", "Skin") -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Body", "Body") -> 0)"),
                                 QStringLiteral(R"(IsMaterialSoftClothEnabled("Skin") -> true)"),
                                 QStringLiteral(R"(GetObjectName("Hair", "Hair") -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Body", "Body") -> 0)"),
                                 QStringLiteral(R"(IsMaterialSoftClothEnabled("Hair") -> true)"),
                                 QStringLiteral(R"(GetObjectName("Skirt", "Skirt") -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Clothes", "Clothes") -> 0)"),
                                 QStringLiteral(R"(IsMaterialSoftClothEnabled("Skirt") -> true)"),
                                 // What is offered.
                                 QStringLiteral(R"(IsMaterialSoftClothEnabled("Skin") -> true)"),
                                 QStringLiteral(R"(IsMaterialSoftClothEnabled("Hair") -> true)"),
                                 QStringLiteral(R"(IsMaterialSoftClothEnabled("Skirt") -> true)"),
                                 // The rows; nobody asks on once an active one is found.
                                 QStringLiteral(R"(GetObjectName("Skin", "Skin") -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Body", "Body") -> 0)"),
                                 QStringLiteral(R"(IsSoftClothActive("Hero", "Body", "Skin", false) -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Hair", "Hair") -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Body", "Body") -> 0)"),
                                 QStringLiteral(R"(IsSoftClothActive("Hero", "Body", "Hair", true) -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Skirt", "Skirt") -> 0)"),
                                 QStringLiteral(R"(GetObjectName("Clothes", "Clothes") -> 0)"),
                             }));
}

void TestMaterialList::rebuildWithoutResetDoesNotAskWhatIsActive()
{
    DialogFixture fixture;
    fixture.Add();
    QCOMPARE(fixture.dialog->ReloadMaterials(fixture.object->handle, false), BF::Results::Success);
    const QStringList operations = fixture.TakeOperations();
    QCOMPARE(operations.size(), 21);
    QVERIFY(!operations.contains(QStringLiteral("IsSoftClothActive")));
}

void TestMaterialList::rowsCarryTextAndIds()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    QCOMPARE(RowTexts(fixture), heroRows);
    QCOMPARE(fixture.dialog->MaterialCount(), 3);
    const QVector<int> meshes{0, 0, 1};
    for (int row = 0; row < 3; ++row) {
        const QVariant material = ListOf(fixture).item(row)->data(256);
        const QVariant mesh = ListOf(fixture).item(row)->data(257);
        QCOMPARE(material.userType(), int(QMetaType::ULongLong));
        QCOMPARE(mesh.userType(), int(QMetaType::ULongLong));
        QCOMPARE(material.toULongLong(), quint64(fixture.MaterialId(row)));
        QCOMPARE(mesh.toULongLong(), quint64(fixture.MeshId(meshes.at(row))));
    }
}

void TestMaterialList::onlyOfferedMaterialsAreListed()
{
    DialogFixture fixture;
    fixture.Add().materials.at(0).state.softClothEnabled = false;
    fixture.List();
    QCOMPARE(RowTexts(fixture), heroRows.mid(1));
    QCOMPARE(fixture.dialog->MaterialCount(), 2);
    const auto* table = Child<QTableWidget>(fixture.table.data(), "qtMaterialTableWidget");
    QCOMPARE(table->rowCount(), 3);
}

void TestMaterialList::currentRow_data()
{
    QTest::addColumn<bool>("reset");
    QTest::addColumn<int>("rowBefore");
    QTest::addColumn<QVector<int>>("active");
    QTest::addColumn<int>("hidden"); ///< A material that is not offered any more; -1 for none.
    QTest::addColumn<QString>("selected");
    const auto row = [](const char* name, bool reset, int before, const QVector<int>& active, int hidden,
                        const char* selected) {
        QTest::newRow(name) << reset << before << active << hidden << QString::fromLatin1(selected);
    };
    row("reset without an active row takes the first", true, 2, {}, -1, "Skin Body");
    row("reset takes the first active row", true, 0, {1, 2}, -1, "Hair Body");
    row("reset counts offered rows only", true, 0, {0, 2}, 0, "Skirt Clothes");
    row("the row before is kept", false, 2, {0}, -1, "Skirt Clothes");
    row("the row number is kept, not the material", false, 1, {}, 0, "Skirt Clothes");
    row("a row beyond the end falls back to the first, not to the active one", false, 2, {1}, 2, "Skin Body");
    row("no row before takes the first", false, -1, {1}, -1, "Skin Body");
}

void TestMaterialList::currentRow()
{
    QFETCH(const bool, reset);
    QFETCH(const int, rowBefore);
    QFETCH(const QVector<int>, active);
    QFETCH(const int, hidden);
    QFETCH(const QString, selected);
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    {
        const QSignalBlocker silent(ListOf(fixture));
        ListOf(fixture).setCurrentRow(rowBefore);
    }
    SetActive(fixture, active);
    if (hidden >= 0) {
        fixture.object->materials.at(std::size_t(hidden)).state.softClothEnabled = false;
    }
    QCOMPARE(fixture.dialog->ReloadMaterials(fixture.object->handle, reset), BF::Results::Success);
    QCOMPARE(SelectedNames(fixture), selected);
    QCOMPARE(ListOf(fixture).currentItem()->data(256).toULongLong(), quint64(fixture.Selection().material));
    QVERIFY(ListOf(fixture).currentItem()->isSelected());
}

void TestMaterialList::nothingOfferedLeavesTheSelectionAlone()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    const QString before = SelectedNames(fixture);
    for (Host::Material& material : fixture.object->materials) {
        material.state.softClothEnabled = false;
    }
    QCOMPARE(fixture.dialog->ReloadMaterials(fixture.object->handle, true), BF::Results::NothingDone);
    QCOMPARE(RowTexts(fixture), QStringList());
    QCOMPARE(fixture.dialog->MaterialCount(), 0);
    QVERIFY(!fixture.IsEnabled(QStringLiteral("qtWeightingItemLabel")));
    QCOMPARE(SelectedNames(fixture), before);
    QCOMPARE(Child<QTableWidget>(fixture.table.data(), "qtMaterialTableWidget")->rowCount(), 3);

    fixture.object->materials.at(2).state.softClothEnabled = true;
    QCOMPARE(fixture.dialog->ReloadMaterials(fixture.object->handle, true), BF::Results::Success);
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtWeightingItemLabel")));
}

void TestMaterialList::objectWithoutMeshesIsAnEmptyList()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    Host::Object& bare = fixture.host.CurrentScene().AddObject(SampleModels::Make(QStringLiteral("Bare"), {}));
    QCOMPARE(fixture.dialog->ReloadMaterials(bare.handle, true), BF::Results::NothingDone);
    QCOMPARE(RowTexts(fixture), QStringList());
    QCOMPARE(Child<QTableWidget>(fixture.table.data(), "qtMaterialTableWidget")->rowCount(), 0);
}

void TestMaterialList::failedQueryEndsTheRebuild_data()
{
    QTest::addColumn<int>("call"); ///< Number of the failing call among those that have a status.
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("tableRows");
    QTest::newRow("meshes") << 1 << 0 << 3;
    QTest::newRow("materials of the first mesh") << 2 << 0 << 3;
    QTest::newRow("materials of the second mesh") << 3 << 0 << 3;
    QTest::newRow("first material's name") << 10 << 0 << 2;
    QTest::newRow("first mesh's name") << 11 << 0 << 2;
    QTest::newRow("first row active") << 12 << 1 << 2;
    QTest::newRow("second material's name") << 13 << 1 << 2;
    QTest::newRow("second row active") << 15 << 2 << 2;
    QTest::newRow("third row active") << 18 << 3 << 2;
}

void TestMaterialList::failedQueryEndsTheRebuild()
{
    QFETCH(const int, call);
    QFETCH(const int, rows);
    QFETCH(const int, tableRows);
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    const QString before = SelectedNames(fixture);

    // Another object, so that it is clear whose rows the table shows.
    Host::Object& second = fixture.host.CurrentScene().AddObject(
        SampleModels::Make(QStringLiteral("Second"), {{QStringLiteral("A"), {QStringLiteral("a"), QStringLiteral("b")}},
                                                      {QStringLiteral("B"), {QStringLiteral("c")}}}));
    fixture.host.Faults().FailCall(call, BF::Results::Refused);
    QCOMPARE(fixture.dialog->ReloadMaterials(second.handle, true), BF::Results::Refused);
    QCOMPARE(RowTexts(fixture),
             (QStringList{QStringLiteral("a( A )"), QStringLiteral("b( A )"), QStringLiteral("c( B )")}.mid(0, rows)));
    QCOMPARE(SelectedNames(fixture), before);
    QVERIFY(!ListOf(fixture).signalsBlocked());
    const auto* table = Child<QTableWidget>(fixture.table.data(), "qtMaterialTableWidget");
    QCOMPARE(table->item(0, 2)->text(), tableRows == 3 ? QStringLiteral("Skin") : QStringLiteral("a"));
}

void TestMaterialList::rebuildIsSilent()
{
    DialogFixture fixture;
    fixture.Open();
    const QSignalSpy changes(&ListOf(fixture), &QListWidget::currentRowChanged);
    fixture.dialog->ReloadMaterials(fixture.object->handle, true);
    fixture.dialog->ReloadMaterials(fixture.object->handle, false);
    fixture.dialog->RefreshMaterialStates();
    QCOMPARE(changes.size(), 0);
    QVERIFY(!ListOf(fixture).signalsBlocked());
    QVERIFY(!fixture.Take().contains(Journal::Refresh()));
}

void TestMaterialList::rebuildLeavesBlockedSignalsBlocked()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    ListOf(fixture).blockSignals(true);
    fixture.dialog->ReloadMaterials(fixture.object->handle, true);
    QVERIFY(ListOf(fixture).signalsBlocked());
    fixture.dialog->RefreshMaterialStates();
    QVERIFY(ListOf(fixture).signalsBlocked());
    QVERIFY(fixture.dialog->PickMaterial(2));
    QVERIFY(ListOf(fixture).signalsBlocked());
}

void TestMaterialList::rebuildLivesWithoutATable()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.table.clear();
    QCOMPARE(fixture.dialog->ReloadMaterials(fixture.object->handle, true), BF::Results::Success);
    QCOMPARE(RowTexts(fixture), heroRows);
}

void TestMaterialList::dialogBeforeInitAnswersNothing()
{
    DialogFixture fixture;
    fixture.Add();
    MV::CSoftClothMaterialDlg bare(&fixture.window, &fixture.plugin);
    QCOMPARE(bare.ReloadMaterials(fixture.object->handle, true), BF::Results::InvalidArgument);
    QCOMPARE(bare.RefreshMaterialStates(), BF::Results::NothingDone);
    QCOMPARE(bare.MaterialCount(), 0);
    QVERIFY(!bare.PickMaterial(0));
    QCOMPARE(bare.UpdateUi(), BF::Results::NothingDone);
    QCOMPARE(bare.OnPickModeChanged(MV::EPickMode::Material), BF::Results::InvalidArgument);
    bare.SelectWeightingLabel();
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialList::namesAreRefreshedWithoutTheMesh()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    fixture.object->materials.at(1).name = QStringLiteral("Fur");
    QCOMPARE(fixture.dialog->RefreshMaterialStates(), BF::Results::Success);
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral(R"(GetObjectName("Skin", "Skin") -> 0)"),
                                          QStringLiteral(R"(GetObjectName("Fur", "Fur") -> 0)"),
                                          QStringLiteral(R"(GetObjectName("Skirt", "Skirt") -> 0)")}));
    QCOMPARE(RowTexts(fixture), (QStringList{QStringLiteral("Skin"), QStringLiteral("Fur"), QStringLiteral("Skirt")}));

    fixture.dialog->ReloadMaterials(fixture.object->handle, false);
    QCOMPARE(RowTexts(fixture), (QStringList{QStringLiteral("Skin( Body )"), QStringLiteral("Fur( Body )"),
                                             QStringLiteral("Skirt( Clothes )")}));
}

void TestMaterialList::refreshOfAnEmptyListDoesNothing()
{
    DialogFixture fixture;
    QCOMPARE(fixture.dialog->RefreshMaterialStates(), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialList::failedNameEndsTheRefresh()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    fixture.host.Faults().FailCall(2, BF::Results::Refused);
    QCOMPARE(fixture.dialog->RefreshMaterialStates(), BF::Results::Refused);
    QCOMPARE(RowTexts(fixture),
             (QStringList{QStringLiteral("Skin"), QStringLiteral("Hair( Body )"), QStringLiteral("Skirt( Clothes )")}));
    QVERIFY(!ListOf(fixture).signalsBlocked());
}

void TestMaterialList::rowChosenByTheUser_data()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("mouse") << false;
    QTest::newRow("keyboard") << true;
}

void TestMaterialList::rowChosenByTheUser()
{
    QFETCH(const bool, byKeyboard);
    DialogFixture fixture;
    fixture.Open();
    QListWidget& list = ListOf(fixture);
    for (const auto& [row, names] : {std::pair(1, "Hair Body"), std::pair(2, "Skirt Clothes")}) {
        if (byKeyboard) {
            QTest::keyClick(&list, Qt::Key_Down);
        } else {
            const QPoint place = list.visualItemRect(list.item(row)).center();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        }
        QCOMPARE(list.currentRow(), row);
        QCOMPARE(SelectedNames(fixture), QString::fromLatin1(names));
        QCOMPARE(fixture.Take(), QStringList{Journal::Refresh()});
    }
}

void TestMaterialList::rowWithoutIdsCountsAsNone()
{
    DialogFixture fixture;
    fixture.Open();
    ListOf(fixture).item(1)->setData(256, QStringLiteral("no number"));
    ListOf(fixture).item(1)->setData(257, QVariant());
    QTest::keyClick(&ListOf(fixture), Qt::Key_Down);
    QCOMPARE(fixture.Selection().material, Id(0));
    QCOMPARE(fixture.Selection().mesh, Id(0));
    QCOMPARE(fixture.Take(), QStringList{Journal::Refresh()});
}

void TestMaterialList::rebuildInsideARowChange()
{
    DialogFixture fixture;
    fixture.Open();
    QListWidget& list = ListOf(fixture);
    // The refresh that a row change sets off leads the host to send its material-list event.
    const auto rebuild = [&] { fixture.dialog->ReloadMaterials(fixture.object->handle, false); };
    fixture.During("IsPhysicsActive", rebuild);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
    QCOMPARE(list.currentRow(), 2);
    QVERIFY(list.item(2)->isSelected());
    QCOMPARE(SelectedNames(fixture), QStringLiteral("Skirt Clothes"));

    // The same with a list that has become shorter, and one that has become empty.
    fixture.During("IsPhysicsActive", [&] {
        fixture.object->materials.at(0).state.softClothEnabled = false;
        rebuild();
    });
    QTest::keyClick(&list, Qt::Key_Up);
    QCOMPARE(RowTexts(fixture), heroRows.mid(1));
    QCOMPARE(SelectedNames(fixture), QStringLiteral("Skirt Clothes"));
    fixture.During("IsPhysicsActive", [&] {
        fixture.object->materials.at(1).state.softClothEnabled = false;
        fixture.object->materials.at(2).state.softClothEnabled = false;
        rebuild();
    });
    QTest::keyClick(&list, Qt::Key_Up);
    QCOMPARE(RowTexts(fixture), QStringList());
    QVERIFY(!fixture.IsEnabled(QStringLiteral("ListBorderWidget")));
}

void TestMaterialList::pickedMaterial_data()
{
    QTest::addColumn<quint64>("index");
    QTest::addColumn<QString>("material");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<bool>("changed");
    QTest::newRow("another material") << quint64(2) << QStringLiteral("\"Skirt\"") << QStringLiteral("Skirt Clothes")
                                      << true;
    QTest::newRow("the current material")
        << quint64(0) << QStringLiteral("\"Skin\"") << QStringLiteral("Skin Body") << false;
    QTest::newRow("no such index") << quint64(3) << QStringLiteral("null") << QStringLiteral("Skin Body") << false;
}

void TestMaterialList::pickedMaterial()
{
    QFETCH(const quint64, index);
    QFETCH(const QString, material);
    QFETCH(const QString, selected);
    QFETCH(const bool, changed);
    DialogFixture fixture;
    fixture.Open();
    QCOMPARE(fixture.dialog->PickMaterial(index), changed);
    QCOMPARE(fixture.Take(),
             QStringList{QStringLiteral("GetMaterialIdByIndex(\"Hero\", %1) -> %2").arg(index).arg(material)});
    QCOMPARE(SelectedNames(fixture), selected);
    QCOMPARE(ListOf(fixture).currentItem()->data(256).toULongLong(), quint64(fixture.Selection().material));
}

void TestMaterialList::pickedMaterialThatIsNotListed()
{
    DialogFixture fixture;
    fixture.Add().materials.at(2).state.softClothEnabled = false;
    fixture.List();
    QVERIFY(!fixture.dialog->PickMaterial(2));
    QCOMPARE(SelectedNames(fixture), QStringLiteral("Skin Body"));
    QCOMPARE(ListOf(fixture).currentRow(), 0);

    for (Host::Material& material : fixture.object->materials) {
        material.state.softClothEnabled = false;
    }
    fixture.List();
    QVERIFY(!fixture.dialog->PickMaterial(1));
    QCOMPARE(SelectedNames(fixture), QStringLiteral("Skin Body"));
}

void TestMaterialList::pickedMaterialOnTwoMeshesIsTheFirstRow()
{
    DialogFixture fixture;
    fixture.Add(SampleModels::Make(QStringLiteral("Twins"), {{QStringLiteral("Left"), {QStringLiteral("Skin")}},
                                                             {QStringLiteral("Middle"), {QStringLiteral("Silk")}},
                                                             {QStringLiteral("Right"), {QStringLiteral("Silk")}}}));
    fixture.List();
    QVERIFY(fixture.dialog->PickMaterial(1));
    QCOMPARE(ListOf(fixture).currentRow(), 1);
    QCOMPARE(SelectedNames(fixture), QStringLiteral("Silk Middle"));
}

void TestMaterialList::pickingIsSilent()
{
    DialogFixture fixture;
    fixture.Open();
    const QSignalSpy changes(&ListOf(fixture), &QListWidget::currentRowChanged);
    QVERIFY(fixture.dialog->PickMaterial(2));
    QCOMPARE(changes.size(), 0);
    QVERIFY(!ListOf(fixture).signalsBlocked());
    QVERIFY(!fixture.Take().contains(Journal::Refresh()));
}

SOFTCLOTH_TEST(TestMaterialList)
#include "tst_material_list.moc"
