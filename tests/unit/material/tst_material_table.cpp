#include "tests/support/NotingTranslator.h"
#include "tests/support/TestCase.h"
#include "tests/unit/material/TableFixture.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMetaMethod>
#include <QPushButton>
#include <QTableWidget>
#include <QTextCodec>
#include <QTimer>

using MV::CSoftClothMaterialTable;

/// The material table by itself: its rows, its buttons, and what it writes.
class TestMaterialTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initWithoutHostIsAnInvalidArgument();
    void initWithoutItsFormFails();
    void slotsAreInOrder();
    void columnsAreSetUp();
    void headersAreTranslatedWithTheirNotes();
    void rowsAreReadFromTheHost();
    void rowsShowNamesAndTicks();
    void sameMeshIsShownOncePerMaterial();
    void emptyListGivesAnEmptyTable();
    void refillReplacesTheRows_data();
    void refillReplacesTheRows();
    void refillStartsAtTheTopWithNothingChosen();
    void tableKeepsCopiesOfItsLists();
    void unknownNamesAreLeftEmpty();
    void cellsCannotBeEdited();
    void confirmFollowsTheTicks();
    void fillLeavesTheConfirmButtonAlone();
    void confirmWritesEveryRow();
    void failedWriteStillAccepts();
    void confirmSurvivesARefillInTheMiddle();
    void confirmSurvivesItsDestruction();
    void cancelWritesNothing();
    void escapeCancels();
    void buttonsActWhenPressed_data();
    void buttonsActWhenPressed();
    void buttonIsUpAgainTheNextTime();
    void visibleTableStaysVisibleAndFocusedThroughAFill();
};

namespace {

const QStringList heroRows{QStringLiteral("x Body Skin"), QStringLiteral("x Body Hair"),
                           QStringLiteral("x Clothes Skirt")};

} // namespace

void TestMaterialTable::initWithoutHostIsAnInvalidArgument()
{
    DialogFixture fixture;
    CSoftClothMaterialTable table(&fixture.window, &fixture.plugin);
    QCOMPARE(table.Init({}, {}, nullptr), BF::Results::InvalidArgument);
    QVERIFY(!table.findChild<QWidget*>());
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialTable::initWithoutItsFormFails()
{
    // Nobody has registered the panel's resources here.
    ImageHost host;
    MV::CPhysicsSoftClothPlugin plugin;
    CSoftClothMaterialTable table(nullptr, &plugin);
    ExpectWarning(QStringLiteral("SoftClothMaterialTable.ui"));
    QCOMPARE(table.Init({}, {}, &host), BF::Results::ResourceFailure);
    QVERIFY(!table.findChild<QWidget*>());
}

void TestMaterialTable::slotsAreInOrder()
{
    const QMetaObject& meta = CSoftClothMaterialTable::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(signatures,
             (QStringList{QStringLiteral("OnClickCancelPushButton()"), QStringLiteral("OnClickConfirmPushButton()")}));
}

void TestMaterialTable::columnsAreSetUp()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    const QTableWidget& rows = fixture.Rows();
    QCOMPARE(rows.columnCount(), 3);
    QCOMPARE(rows.horizontalHeaderItem(0)->text(), QStringLiteral(" "));
    QCOMPARE(rows.horizontalHeaderItem(1)->text(), QStringLiteral("Mesh"));
    QCOMPARE(rows.horizontalHeaderItem(2)->text(), QStringLiteral("Material Name"));
    const QHeaderView& header = *rows.horizontalHeader();
    QVERIFY(!header.sectionsClickable());
    QCOMPARE(header.sectionResizeMode(0), QHeaderView::Fixed);
    QCOMPARE(header.sectionSize(0), 40);
    QCOMPARE(header.sectionResizeMode(1), QHeaderView::Stretch);
    QCOMPARE(header.sectionResizeMode(2), QHeaderView::Stretch);

    const int before = header.sectionSize(2);
    fixture.table->resize(fixture.table->width() + 100, fixture.table->height());
    QTRY_VERIFY(header.sectionSize(2) > before);
    QCOMPARE(header.sectionSize(0), 40);
}

void TestMaterialTable::headersAreTranslatedWithTheirNotes()
{
    const NotingTranslator translator;
    const DialogFixture fixture;

    const QTextCodec* big5 = QTextCodec::codecForName("Big5");
    QVERIFY(big5);
    const QByteArray first("MVPhysicsSoftClothSection Material Table");
    // The characters for "first", "second", "third", then "column", "name".
    const QVector<QPair<QByteArray, QString>> expected{
        {" ", QStringLiteral(u"\u7b2c\u4e00\u6b04\u540d\u7a31")},
        {"Mesh", QStringLiteral(u"\u7b2c\u4e8c\u6b04\u540d\u7a31")},
        {"Material Name", QStringLiteral(u"\u7b2c\u4e09\u6b04\u540d\u7a31")}};
    const auto asked = translator.TextsIn("MV::CSoftClothMaterialTable");
    QCOMPARE(asked.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const auto& [source, note] = asked.at(i);
        QCOMPARE(source, expected.at(i).first);
        QVERIFY(note.startsWith(first));
        QCOMPARE(big5->toUnicode(note.mid(first.size())).trimmed(), expected.at(i).second);
    }
}

void TestMaterialTable::rowsAreReadFromTheHost()
{
    TableFixture fixture;
    fixture.SetRows();
    QCOMPARE(fixture.Take(), QStringList());
    QCOMPARE(fixture.table->FillTable(), BF::Results::Success);
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral(R"(GetObjectName("Skin", "Skin") -> 0)"),
                                          QStringLiteral(R"(GetObjectName("Body", "Body") -> 0)"),
                                          QStringLiteral(R"(IsMaterialSoftClothEnabled("Skin") -> true)"),
                                          QStringLiteral(R"(GetObjectName("Hair", "Hair") -> 0)"),
                                          QStringLiteral(R"(GetObjectName("Body", "Body") -> 0)"),
                                          QStringLiteral(R"(IsMaterialSoftClothEnabled("Hair") -> true)"),
                                          QStringLiteral(R"(GetObjectName("Skirt", "Skirt") -> 0)"),
                                          QStringLiteral(R"(GetObjectName("Clothes", "Clothes") -> 0)"),
                                          QStringLiteral(R"(IsMaterialSoftClothEnabled("Skirt") -> true)")}));
}

void TestMaterialTable::rowsShowNamesAndTicks()
{
    TableFixture fixture;
    fixture.object->materials.at(1).state.softClothEnabled = false;
    fixture.Fill();
    QCOMPARE(fixture.Texts(), (QStringList{QStringLiteral("x Body Skin"), QStringLiteral("- Body Hair"),
                                           QStringLiteral("x Clothes Skirt")}));
    const QWidget* holder = fixture.Rows().cellWidget(0, 0);
    const QLayout* layout = holder->layout();
    QVERIFY(qobject_cast<const QHBoxLayout*>(layout));
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(fixture.Box(0).accessibleName(), QStringLiteral("Skin"));
}

void TestMaterialTable::sameMeshIsShownOncePerMaterial()
{
    TableFixture fixture;
    fixture.Fill();
    QCOMPARE(fixture.Texts().filter(QStringLiteral("Body")).size(), 2);
}

void TestMaterialTable::emptyListGivesAnEmptyTable()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.table->SetMaterialRows({}, {});
    QCOMPARE(fixture.table->FillTable(), BF::Results::Success);
    QCOMPARE(fixture.Rows().rowCount(), 0);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialTable::refillReplacesTheRows_data()
{
    QTest::addColumn<QStringList>("materials");
    QTest::newRow("as many") << QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    QTest::newRow("fewer") << QStringList{QStringLiteral("a")};
    QTest::newRow("more") << QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                                         QStringLiteral("d")};
}

void TestMaterialTable::refillReplacesTheRows()
{
    QFETCH(const QStringList, materials);
    for (const bool isVisible : {false, true}) {
        TableFixture fixture;
        fixture.object->materials.at(1).state.softClothEnabled = false;
        fixture.Fill();
        if (isVisible) {
            fixture.ShowTable();
        }
        fixture.Add(SampleModels::Make(QStringLiteral("Other"), {{QStringLiteral("M"), materials}}));
        fixture.object->materials.at(0).state.softClothEnabled = false;
        fixture.Fill();
        QStringList expected;
        for (const QString& material : materials) {
            const QString tick = expected.isEmpty() ? QStringLiteral("-") : QStringLiteral("x");
            expected.append(QStringLiteral("%1 M %2").arg(tick, material));
        }
        QCOMPARE(fixture.Texts(), expected);
        QCOMPARE(fixture.Confirm().isEnabled(), true);
        QCOMPARE(fixture.Box(0).accessibleName(), QStringLiteral("a"));

        // Every row's box counts, the ones that were there before too.
        for (int row = 0; row < materials.size(); ++row) {
            fixture.Box(row).setChecked(false);
        }
        QCOMPARE(fixture.Confirm().isEnabled(), materials.size() == 1);
        fixture.Box(0).setChecked(true);
        fixture.Box(0).setChecked(false);
        QVERIFY(!fixture.Confirm().isEnabled());
    }
}

void TestMaterialTable::refillStartsAtTheTopWithNothingChosen()
{
    TableFixture fixture;
    QStringList names;
    for (int i = 0; i < 60; ++i) {
        names.append(QStringLiteral("material %1").arg(i));
    }
    fixture.Add(SampleModels::Make(QStringLiteral("Many"), {{QStringLiteral("M"), names}}));
    fixture.Fill();
    fixture.ShowTable();
    fixture.Rows().setCurrentCell(59, 1);
    QVERIFY(!fixture.Rows().visualItemRect(fixture.Rows().item(0, 1)).intersects(fixture.Rows().viewport()->rect()));
    fixture.Fill();
    QVERIFY(fixture.Rows().visualItemRect(fixture.Rows().item(0, 1)).intersects(fixture.Rows().viewport()->rect()));
    QCOMPARE(fixture.Rows().currentRow(), -1);
    QVERIFY(fixture.Rows().selectedItems().isEmpty());
}

void TestMaterialTable::tableKeepsCopiesOfItsLists()
{
    TableFixture fixture;
    BF::CArrayList<BF::CHandle*> materials{MV::IdAsHandle(fixture.MaterialId(2))};
    BF::CArrayList<BF::CHandle*> meshes{MV::IdAsHandle(fixture.MeshId(1))};
    fixture.table->SetMaterialRows(materials, meshes);
    // The table keeps copies.
    materials.Clear();
    meshes.Clear();
    fixture.table->FillTable();
    QCOMPARE(fixture.Texts(), QStringList{QStringLiteral("x Clothes Skirt")});
}

void TestMaterialTable::unknownNamesAreLeftEmpty()
{
    TableFixture fixture;
    fixture.SetRows();
    fixture.host.Faults().FailOperation(QStringLiteral("GetObjectName"), BF::Results::Refused, 1);
    QCOMPARE(fixture.table->FillTable(), BF::Results::Success);
    QCOMPARE(fixture.Texts().constFirst(), QStringLiteral("x Body "));
    QCOMPARE(fixture.Texts().mid(1), heroRows.mid(1));
}

void TestMaterialTable::cellsCannotBeEdited()
{
    TableFixture fixture;
    fixture.Fill();
    for (int row = 0; row < 3; ++row) {
        for (const int column : {1, 2}) {
            QVERIFY(!(fixture.Rows().item(row, column)->flags() & Qt::ItemIsEditable));
        }
    }
}

void TestMaterialTable::confirmFollowsTheTicks()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    for (int row = 0; row < 3; ++row) {
        QVERIFY(fixture.Confirm().isEnabled());
        fixture.Tick(row);
    }
    QVERIFY(!fixture.Confirm().isEnabled());
    fixture.Tick(1);
    QVERIFY(fixture.Confirm().isEnabled());
    QTest::keyClick(&fixture.Box(1), Qt::Key_Space);
    QVERIFY(!fixture.Confirm().isEnabled());
    fixture.Box(2).setCheckState(Qt::PartiallyChecked);
    QVERIFY(fixture.Confirm().isEnabled());
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialTable::fillLeavesTheConfirmButtonAlone()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    for (int row = 0; row < 3; ++row) {
        fixture.Tick(row);
    }
    fixture.Fill();
    QCOMPARE(fixture.Texts(), heroRows);
    QVERIFY(!fixture.Confirm().isEnabled());

    fixture.table->UpdateConfirmEnabled();
    QVERIFY(fixture.Confirm().isEnabled());
    for (Host::Material& material : fixture.object->materials) {
        material.state.softClothEnabled = false;
    }
    fixture.Fill();
    QVERIFY(fixture.Confirm().isEnabled());
    fixture.table->UpdateConfirmEnabled();
    QVERIFY(!fixture.Confirm().isEnabled());
}

void TestMaterialTable::confirmWritesEveryRow()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    fixture.Tick(1);
    QTest::mouseClick(&fixture.Confirm(), Qt::LeftButton);
    QCOMPARE(fixture.Take(), (QStringList{QStringLiteral(R"(SetMaterialSoftClothEnabled("Skin", true) -> 0)"),
                                          QStringLiteral(R"(SetMaterialSoftClothEnabled("Hair", false) -> 0)"),
                                          QStringLiteral(R"(GetSelectedObject(0) -> "Hero")"),
                                          QStringLiteral(R"(SetMaterialSoftClothEnabled("Skirt", true) -> 0)")}));
    QCOMPARE(fixture.table->result(), int(QDialog::Accepted));
    QVERIFY(!fixture.table->isVisible());
    QVERIFY(!fixture.object->materials.at(1).state.softClothEnabled);
}

void TestMaterialTable::failedWriteStillAccepts()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    fixture.host.Faults().FailOperation(QStringLiteral("SetMaterialSoftClothEnabled"), BF::Results::Refused);
    QTest::mouseClick(&fixture.Confirm(), Qt::LeftButton);
    QCOMPARE(fixture.TakeOperations().size(), 3);
    QCOMPARE(fixture.table->result(), int(QDialog::Accepted));
}

void TestMaterialTable::confirmSurvivesARefillInTheMiddle()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    for (const int row : {0, 1}) {
        fixture.Tick(row);
    }
    // The first write makes the host report the new material list, whereupon the table is filled again, with one
    // material less.
    fixture.During("SetMaterialSoftClothEnabled", [&] {
        fixture.table->SetMaterialRows({MV::IdAsHandle(fixture.MaterialId(0))}, {MV::IdAsHandle(fixture.MeshId(0))});
        fixture.table->FillTable();
    });
    QTest::mouseClick(&fixture.Confirm(), Qt::LeftButton);
    QCOMPARE(fixture.Take().filter(QStringLiteral("SetMaterialSoftClothEnabled")),
             (QStringList{QStringLiteral(R"(SetMaterialSoftClothEnabled("Skin", false) -> 0)"),
                          QStringLiteral(R"(SetMaterialSoftClothEnabled("Hair", false) -> 0)"),
                          QStringLiteral(R"(SetMaterialSoftClothEnabled("Skirt", true) -> 0)")}));
    QCOMPARE(fixture.table->result(), int(QDialog::Accepted));
}

void TestMaterialTable::confirmSurvivesItsDestruction()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.During("SetMaterialSoftClothEnabled", [&] { fixture.table.clear(); });
    // By its meta-object, since a button that is clicked must outlive the click.
    QMetaObject::invokeMethod(fixture.table.data(), "OnClickConfirmPushButton");
    QVERIFY(!fixture.table);
    QCOMPARE(fixture.TakeOperations(), QStringList{QStringLiteral("SetMaterialSoftClothEnabled")});
}

void TestMaterialTable::cancelWritesNothing()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    fixture.Tick(0);
    QTest::mouseClick(&fixture.Cancel(), Qt::LeftButton);
    QCOMPARE(fixture.Take(), QStringList());
    QCOMPARE(fixture.table->result(), int(QDialog::Rejected));
    QVERIFY(!fixture.table->isVisible());
}

void TestMaterialTable::escapeCancels()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    QTest::keyClick(fixture.table.data(), Qt::Key_Escape);
    QVERIFY(!fixture.table->isVisible());
    QCOMPARE(fixture.table->result(), int(QDialog::Rejected));
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialTable::buttonsActWhenPressed_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("confirm") << QStringLiteral("qtConfirmPushButton") << int(QDialog::Accepted);
    QTest::newRow("cancel") << QStringLiteral("qtCancelPushButton") << int(QDialog::Rejected);
}

void TestMaterialTable::buttonsActWhenPressed()
{
    QFETCH(const QString, button);
    QFETCH(const int, result);
    TableFixture fixture;
    fixture.Fill();
    QTimer::singleShot(0, fixture.table.data(), [&] {
        QTest::mousePress(Child<QPushButton>(fixture.table.data(), button.toLatin1().constData()), Qt::LeftButton);
        QVERIFY(!fixture.table->isVisible());
    });
    QCOMPARE(fixture.table->exec(), result);
}

void TestMaterialTable::buttonIsUpAgainTheNextTime()
{
    TableFixture fixture;
    fixture.Fill();
    for (int time = 0; time < 2; ++time) {
        fixture.ShowTable();
        QVERIFY(!fixture.Confirm().isDown());
        QTest::mousePress(&fixture.Confirm(), Qt::LeftButton);
        QVERIFY(!fixture.table->isVisible());
        QCOMPARE(fixture.Take().filter(QStringLiteral("SetMaterialSoftClothEnabled")).size(), 3);
    }
    fixture.ShowTable();
    QVERIFY(!fixture.Confirm().isDown());
}

void TestMaterialTable::visibleTableStaysVisibleAndFocusedThroughAFill()
{
    TableFixture fixture;
    fixture.ShowTable();
    fixture.Rows().setFocus();
    QVERIFY(fixture.Rows().hasFocus());
    fixture.Fill();
    QVERIFY(fixture.Rows().isVisible());
    QVERIFY(fixture.Rows().updatesEnabled());
    QVERIFY(fixture.Rows().hasFocus());
    QTRY_VERIFY(fixture.Box(2).isVisible());

    // One that was taken out of sight before stays so.
    fixture.Rows().hide();
    fixture.Fill();
    QVERIFY(fixture.Rows().isHidden());
}

SOFTCLOTH_TEST(TestMaterialTable)
#include "tst_material_table.moc"
