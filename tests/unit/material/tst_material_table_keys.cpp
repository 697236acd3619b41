#include "tests/support/TestCase.h"
#include "tests/unit/material/TableFixture.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

/// The material table under the keyboard, for a screen reader, and with names that are too long for it.
class TestMaterialTableKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void refillKeepsTheFocusInTheTable_data();
    void refillKeepsTheFocusInTheTable();
    void refillLeavesTheFocusElsewhere();
    void tabGoesThroughTheCheckBoxesBeforeTheButtons();
    void tabGoesThroughTheCheckBoxesOfARefilledTable();
    void focusedCheckBoxIsScrolledIntoSight();
    void openedAgainTheTableHasTheFocus();
    void spaceTicksTheCurrentRow();
    void heldSpaceTicksOnce();
    void namesHaveToolTips();
    void screenReaderFindsTheTicks();
};

namespace {

/// Another object for the table, with so many materials.
void AddMaterials(TableFixture& fixture, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("material %1").arg(i));
    }
    fixture.Add(SampleModels::Make(QStringLiteral("Other"), {{QStringLiteral("M"), names}}));
}

bool IsInTable(const TableFixture& fixture, const QWidget* widget)
{
    return widget && (widget == &fixture.Rows() || fixture.Rows().isAncestorOf(widget));
}

} // namespace

void TestMaterialTableKeys::refillKeepsTheFocusInTheTable_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("keepsItsPlace");
    QTest::newRow("table, more rows") << -1 << 5 << true;
    QTest::newRow("table, fewer rows") << -1 << 1 << true;
    QTest::newRow("check box, more rows") << 1 << 5 << true;
    QTest::newRow("check box, as many rows") << 1 << 3 << true;
    QTest::newRow("check box, fewer rows") << 0 << 1 << true;
    QTest::newRow("check box of a row that goes") << 2 << 1 << false;
    QTest::newRow("check box, no rows") << 0 << 0 << false;
}

void TestMaterialTableKeys::refillKeepsTheFocusInTheTable()
{
    QFETCH(int, box);
    QFETCH(int, count);
    QFETCH(bool, keepsItsPlace);
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    QWidget* focused = box < 0 ? static_cast<QWidget*>(&fixture.Rows()) : &fixture.Box(box);
    focused->setFocus(Qt::TabFocusReason);
    QVERIFY(focused->hasFocus());

    AddMaterials(fixture, count);
    fixture.Fill();
    QCOMPARE(fixture.Rows().rowCount(), count);
    const QWidget* now = QApplication::focusWidget();
    QVERIFY(IsInTable(fixture, now));
    QCOMPARE(now, keepsItsPlace ? focused : &fixture.Rows());
    // The key that ticked a row does not write all of them now.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(fixture.table->isVisible());
    QCOMPARE(fixture.Take(), QStringList());
}

void TestMaterialTableKeys::refillLeavesTheFocusElsewhere()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    fixture.Cancel().setFocus(Qt::TabFocusReason);
    AddMaterials(fixture, 7);
    fixture.Fill();
    QVERIFY(fixture.Cancel().hasFocus());
}

void TestMaterialTableKeys::tabGoesThroughTheCheckBoxesBeforeTheButtons()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    const QVector<QWidget*> order{&fixture.Rows(), &fixture.Box(0),    &fixture.Box(1),
                                  &fixture.Box(2), &fixture.Confirm(), &fixture.Cancel()};
    fixture.Rows().setFocus(Qt::TabFocusReason);
    for (QWidget* expected : order) {
        QCOMPARE(QApplication::focusWidget(), expected);
        QTest::keyClick(expected, Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), order.first());
    QTest::keyClick(order.first(), Qt::Key_Backtab);
    for (int i = order.size() - 1; i >= 0; --i) {
        QCOMPARE(QApplication::focusWidget(), order.at(i));
        QTest::keyClick(order.at(i), Qt::Key_Backtab);
    }
}

void TestMaterialTableKeys::tabGoesThroughTheCheckBoxesOfARefilledTable()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    for (const int count : {5, 2, 4}) {
        AddMaterials(fixture, count);
        fixture.Fill();
        fixture.Rows().setFocus(Qt::TabFocusReason);
        for (int row = 0; row < count; ++row) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), &fixture.Box(row));
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(fixture.Confirm().hasFocus());
    }
}

void TestMaterialTableKeys::focusedCheckBoxIsScrolledIntoSight()
{
    TableFixture fixture;
    AddMaterials(fixture, 60);
    fixture.Fill();
    fixture.ShowTable();
    const QTableWidget& rows = fixture.Rows();
    const auto isInSight = [&](int row) {
        return rows.viewport()->rect().contains(rows.visualItemRect(rows.item(row, 1)));
    };
    QVERIFY(!isInSight(59));
    fixture.Box(58).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&fixture.Box(58), Qt::Key_Tab);
    QVERIFY(fixture.Box(59).hasFocus());
    QVERIFY(isInSight(59));
    QCOMPARE(rows.currentRow(), 59);
}

void TestMaterialTableKeys::openedAgainTheTableHasTheFocus()
{
    TableFixture fixture;
    fixture.Fill();
    for (int time = 0; time < 3; ++time) {
        fixture.ShowTable();
        QVERIFY(fixture.Rows().hasFocus());
        fixture.Cancel().setFocus(Qt::TabFocusReason);
        QTest::mouseClick(&fixture.Cancel(), Qt::LeftButton);
        QVERIFY(!fixture.table->isVisible());
    }
}

void TestMaterialTableKeys::spaceTicksTheCurrentRow()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    fixture.Rows().setFocus(Qt::TabFocusReason);
    fixture.Rows().setCurrentCell(-1, -1);
    QTest::keyClick(&fixture.Rows(), Qt::Key_Space);
    fixture.Rows().setCurrentCell(0, 1);
    QTest::keyClick(&fixture.Rows(), Qt::Key_Down);
    QTest::keyClick(&fixture.Rows(), Qt::Key_Space);
    QCOMPARE(fixture.Texts(), (QStringList{QStringLiteral("x Body Skin"), QStringLiteral("- Body Hair"),
                                           QStringLiteral("x Clothes Skirt")}));
    QTest::keyClick(&fixture.Rows(), Qt::Key_Left);
    QTest::keyClick(&fixture.Rows(), Qt::Key_Space);
    QVERIFY(fixture.Box(1).isChecked());
}

void TestMaterialTableKeys::heldSpaceTicksOnce()
{
    TableFixture fixture;
    fixture.Fill();
    fixture.ShowTable();
    fixture.Rows().setCurrentCell(0, 0);
    QTest::simulateEvent(&fixture.Rows(), true, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), false);
    QTest::simulateEvent(&fixture.Rows(), true, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QVERIFY(!fixture.Box(0).isChecked());
}

void TestMaterialTableKeys::namesHaveToolTips()
{
    TableFixture fixture;
    const QString longName = QStringLiteral("a material whose name is much longer than its column, as it happens");
    fixture.Add(SampleModels::Make(QStringLiteral("Other"), {{QStringLiteral("Mesh of it"), {longName}}}));
    fixture.Fill();
    fixture.ShowTable();
    const QTableWidget& rows = fixture.Rows();
    for (const auto& [column, name] : {std::pair(1, QStringLiteral("Mesh of it")), std::pair(2, longName)}) {
        const QPoint position = rows.visualItemRect(rows.item(0, column)).center();
        QHelpEvent help(QEvent::ToolTip, position, rows.viewport()->mapToGlobal(position));
        QApplication::sendEvent(rows.viewport(), &help);
        QCOMPARE(QToolTip::text(), name);
        QToolTip::hideText();
    }
}

void TestMaterialTableKeys::screenReaderFindsTheTicks()
{
    TableFixture fixture;
    fixture.object->materials.at(1).state.softClothEnabled = false;
    fixture.Fill();
    fixture.ShowTable();
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&fixture.Rows());
    QVERIFY(table && table->tableInterface());
    const QStringList names{QStringLiteral("Skin"), QStringLiteral("Hair"), QStringLiteral("Skirt")};
    const auto tick = [&](int row) { return table->tableInterface()->cellAt(row, 0); };
    for (int row = 0; row < names.size(); ++row) {
        QCOMPARE(tick(row)->text(QAccessible::Name), names.at(row));
        QCOMPARE(bool(tick(row)->state().checkable), true);
        QCOMPARE(bool(tick(row)->state().checked), row != 1);
    }
    fixture.Tick(0);
    fixture.Tick(1);
    QCOMPARE(bool(tick(0)->state().checked), false);
    QCOMPARE(bool(tick(1)->state().checked), true);
    // A row that is used again for another material.
    fixture.Add(SampleModels::Make(QStringLiteral("Other"), {{QStringLiteral("M"), {QStringLiteral("a")}}}));
    fixture.Fill();
    QCOMPARE(tick(0)->text(QAccessible::Name), QStringLiteral("a"));
    QCOMPARE(bool(tick(0)->state().checked), true);
}

SOFTCLOTH_TEST(TestMaterialTableKeys)
#include "tst_material_table_keys.moc"
