#include "material/SoftClothMaterialDlg.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QLabel>

/// The Preset section says which material the panel edits.
class TestEditedMaterial : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void currentRowIsShown();
    void sectionSaysThatThereIsNone();
    void rowsTextIsFollowedWithoutAHostCall();
    void listIsFollowedWhileItsSignalsAreBlocked();
    void listMayEndFirst();
};

namespace {

const QString none = QStringLiteral("There is no material to edit");

QListWidget& ListOf(const PresetFixture& fixture)
{
    return *Child<QListWidget>(fixture.plugin->MaterialDlg(), "qtMaterialListWidget");
}

QString ShownBy(const PresetFixture& fixture)
{
    return fixture.Find<QLabel>("qtEditedMaterialLabel")->text();
}

} // namespace

void TestEditedMaterial::currentRowIsShown()
{
    PresetFixture fixture;
    fixture.AddCloth();
    QListWidget& list = ListOf(fixture);
    QVERIFY(list.count() > 1);
    for (int row = list.count() - 1; row >= 0; --row) {
        list.setCurrentRow(row);
        QVERIFY(!list.currentItem()->text().isEmpty());
        QCOMPARE(ShownBy(fixture), list.currentItem()->text());
    }
    const auto* label = fixture.Find<QLabel>("qtEditedMaterialLabel");
    QCOMPARE(label->toolTip(), label->text());
    // Names are not to be taken for rich text.
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void TestEditedMaterial::sectionSaysThatThereIsNone()
{
    PresetFixture fixture;
    QCOMPARE(ShownBy(fixture), none);
    const Host::Object& object = fixture.AddCloth();
    QVERIFY(ShownBy(fixture) != none);
    for (int material = 0; material < int(object.materials.size()); ++material) {
        fixture.DisableMaterial(object, material);
    }
    QCOMPARE(ListOf(fixture).count(), 0);
    QCOMPARE(ShownBy(fixture), none);
}

void TestEditedMaterial::rowsTextIsFollowedWithoutAHostCall()
{
    PresetFixture fixture;
    fixture.AddCloth();
    fixture.host.Journal().Clear();
    ListOf(fixture).currentItem()->setText(QStringLiteral("Sleeve"));
    QCOMPARE(ShownBy(fixture), QStringLiteral("Sleeve"));
    ListOf(fixture).item(1)->setText(QStringLiteral("Collar"));
    QCOMPARE(ShownBy(fixture), QStringLiteral("Sleeve"));
    QCOMPARE(fixture.Take(), QStringList());
}

void TestEditedMaterial::listIsFollowedWhileItsSignalsAreBlocked()
{
    PresetFixture fixture;
    fixture.AddCloth();
    QListWidget& list = ListOf(fixture);
    const QSignalBlocker silent(list);
    list.setCurrentRow(1);
    QCOMPARE(ShownBy(fixture), list.item(1)->text());
    list.clear();
    QCOMPARE(ShownBy(fixture), none);
    list.addItem(QStringLiteral("Hem"));
    list.setCurrentRow(0);
    QCOMPARE(ShownBy(fixture), QStringLiteral("Hem"));
    delete list.takeItem(0);
    QCOMPARE(ShownBy(fixture), none);
}

void TestEditedMaterial::listMayEndFirst()
{
    PresetFixture fixture;
    fixture.AddCloth();
    delete fixture.plugin->MaterialDlg();
    QCOMPARE(ShownBy(fixture), none);
}

SOFTCLOTH_TEST(TestEditedMaterial)
#include "tst_edited_material.moc"
