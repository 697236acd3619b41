#include "sections/SoftClothPropertySection.h"
#include "tests/support/Children.h"
#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/FormChecks.h"
#include "tests/unit/sections/SectionFixture.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>

#include <QGroupBox>
#include <QPushButton>
#include <QSlider>

using Record = MV::SoftClothPropertyData;
using Section = MV::CSoftClothPropertySection;

Q_DECLARE_METATYPE(MV::SoftClothPropertyData)

/// The property section's refresh and edits.
class TestPropertySection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void commitWritesOneField_data();
    void commitWritesOneField();
    void typingAloneWritesNothing();
    void leavingABoxCommits();
    void draggingASliderWritesOnce();
    void commitReadsTheSelectionAtThatMoment();
    void commitWithoutSelectionIsSentAllTheSame();
    void failedWriteChangesNothingElse();
    void inertiaWritesAllThreeScales();
    void refreshShowsTheHostsValue_data();
    void refreshShowsTheHostsValue();
    void refreshReadsTwiceAndWritesNothing();
    void nothingShownDisablesTheGroupBox_data();
    void nothingShownDisablesTheGroupBox();
    void failedReadLeavesEverything_data();
    void failedReadLeavesEverything();
    void refreshEnablesNothing();
    void enableUiReachesTheGroupBox();
};

namespace {

const char* const propertyRead = "Scene.GetSoftClothProperty";
const char* const propertyWrite = "Edit.SetSoftClothProperty";
const char* const isActive = "Scene.IsSoftClothActive";

QStringList Arguments(const SectionFixture& fixture, int type, const Record& record, bool all = false)
{
    return {QString::number(type), fixture.Text(record), fixture.Text(all)};
}

} // namespace

void TestPropertySection::commitWritesOneField_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("type");
    QTest::addColumn<Record>("sent");
    const auto row = [](const char* name, const char* box, const char* typed, int type, auto field, auto value) {
        Record sent;
        sent.*field = value;
        QTest::newRow(name) << QByteArray(box) << QString::fromLatin1(typed) << type << sent;
    };
    for (const PropertyRow& known : PropertyRows::WithBox()) {
        Record sent;
        for (const PropertyRow& other : PropertyRows::All()) {
            if (other.selector == known.selector) {
                other.Set(sent, known.held);
            }
        }
        QTest::newRow(known.name) << QByteArray(known.box.name) << QString::number(known.sample) << known.selector
                                  << sent;
    }
    row("loosest tether", "qtTetherStiffnessCombospinbox", "101", 2, &Record::tetherStiffness, 0.0F);
    row("stiffer than full stiffness", "qtStiffnessCombospinbox", "-25", 7, &Record::stiffness, 1.25F);
    row("stiffer than full bending", "qtBendingCombospinbox", "-50", 9, &Record::bending, 1.5F);
}

void TestPropertySection::commitWritesOneField()
{
    QFETCH(QByteArray, box);
    QFETCH(QString, typed);
    QFETCH(int, type);
    QFETCH(Record, sent);
    SectionFixture fixture;
    // Another value than the defaults in every field, so that only the named one can change.
    Record& stored = fixture.Cloth().property;
    stored = PropertyRows::AllDifferent();
    Section& section = fixture.Make<Section>();

    Enter(Child<QWidget>(&section, box), typed);

    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(propertyWrite, Arguments(fixture, type, sent))));
    Record expected = PropertyRows::AllDifferent();
    for (const PropertyRow& row : PropertyRows::All()) {
        if (row.Get(sent) != row.Get(Record())) {
            row.Set(expected, row.Get(sent));
        }
    }
    COMPARE_RECORDS(fixture, stored, expected);
}

void TestPropertySection::typingAloneWritesNothing()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    for (const char* name : {"qtMassEXSpinBox", "qtStiffnessCombospinbox"}) {
        auto* box = Child<QWidget>(&section, name);
        TypeInto(box, QStringLiteral("16"));
        QCOMPARE(fixture.TakeCalls(), QStringList());
        Enter(box, QStringLiteral("16"));
        QCOMPARE(fixture.TakeCalls().size(), 1);
    }
}

void TestPropertySection::leavingABoxCommits()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QVERIFY(fixture.Show(section));
    TypeInto(Child<QWidget>(&section, "qtMassEXSpinBox"), QStringLiteral("16"));
    QCOMPARE(fixture.TakeCalls(), QStringList());

    Child<QWidget>(&section, "qtDragDoubleEXSpinBox")->setFocus(Qt::TabFocusReason);

    Record sent;
    sent.mass = 16;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(propertyWrite, Arguments(fixture, 0, sent))));
}

void TestPropertySection::draggingASliderWritesOnce()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QVERIFY(fixture.Show(section));
    auto* box = Child<QComboSpinBox>(&section, "qtBendingCombospinbox");
    auto* slider = box->findChild<QSlider*>();

    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, QPoint(slider->width() / 3, slider->height() / 2));
    const QPoint end(slider->width() + 100, slider->height() / 2);
    QMouseEvent move(QEvent::MouseMove, end, slider->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(slider, &move);
    QCOMPARE(box->Value(), 100);
    QCOMPARE(fixture.TakeCalls(), QStringList());

    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, end);
    Record sent;
    sent.bending = 0.0F;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(propertyWrite, Arguments(fixture, 9, sent))));
}

void TestPropertySection::commitReadsTheSelectionAtThatMoment()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    fixture.Select(2);
    fixture.plugin.Selection().affectAllMaterials = true;
    fixture.TakeCalls();

    Enter(Child<QWidget>(&section, "qtMassEXSpinBox"), QStringLiteral("16"));

    Record sent;
    sent.mass = 16;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(propertyWrite, Arguments(fixture, 0, sent, true))));
}

void TestPropertySection::commitWithoutSelectionIsSentAllTheSame()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.plugin.Selection().Clear();

    Enter(Child<QWidget>(&section, "qtMassEXSpinBox"), QStringLiteral("16"));

    Record sent;
    sent.mass = 16;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(propertyWrite, Arguments(fixture, 0, sent), "0x80000003")));
}

void TestPropertySection::failedWriteChangesNothingElse()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.host.Faults().FailOperation(QStringLiteral("SetSoftClothProperty"), BF::Results::Refused);

    Enter(Child<QWidget>(&section, "qtMassEXSpinBox"), QStringLiteral("16"));

    Record sent;
    sent.mass = 16;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(propertyWrite, Arguments(fixture, 0, sent), "0x80000006")));
    QCOMPARE(Shown(Child<QWidget>(&section, "qtMassEXSpinBox")).toInt(), 16);
    QCOMPARE(fixture.Cloth().property.mass, qint64(1));
}

void TestPropertySection::inertiaWritesAllThreeScales()
{
    SectionFixture fixture;
    fixture.Cloth().property.angularInertiaScale = 0.2F;
    fixture.Cloth().property.centrifugalInertiaScale = 0.3F;
    Section& section = fixture.Make<Section>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    fixture.TakeCalls();

    Enter(Child<QWidget>(&section, "qtInertiaScaleCombospinbox"), QStringLiteral("7"));

    Record sent;
    sent.linearInertiaScale = sent.angularInertiaScale = sent.centrifugalInertiaScale = 0.7F;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(propertyWrite, Arguments(fixture, 13, sent))));
    COMPARE_RECORDS(fixture, fixture.Cloth().property, sent);
}

void TestPropertySection::refreshShowsTheHostsValue_data()
{
    QTest::addColumn<Record>("record");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<double>("shown");
    const auto row = [](const char* name, auto field, auto value, const char* box, double shown) {
        Record record;
        record.*field = value;
        QTest::newRow(name) << record << QByteArray(box) << shown;
    };
    for (const PropertyRow& known : PropertyRows::WithBox()) {
        Record record;
        known.Set(record, known.held);
        QTest::newRow(known.name) << record << QByteArray(known.box.name) << known.sample;
    }
    row("low 32 bits of the mass", &Record::mass, (qint64(1) << 32) + 7, "qtMassEXSpinBox", 7);
    row("mass above the range", &Record::mass, 20000, "qtMassEXSpinBox", 10000);
    row("drag", &Record::drag, 0.375F, "qtDragDoubleEXSpinBox", 0.375);
    row("tether limit", &Record::tetherLimit, 1.5F, "qtTetherLimitDoubleEXSpinBox", 1.5);
    row("stiffness 1", &Record::stiffness, 1.0F, "qtStiffnessCombospinbox", 0);
    row("stiffness 0", &Record::stiffness, 0.0F, "qtStiffnessCombospinbox", 100);
    row("bending 1", &Record::bending, 1.0F, "qtBendingCombospinbox", 0);
    row("bending half away from zero", &Record::bending, 0.125F, "qtBendingCombospinbox", 88);
    row("bending above 1 shows a negative percentage", &Record::bending, 1.125F, "qtBendingCombospinbox", -13);
    row("stiffness above 1 shows a negative percentage", &Record::stiffness, 1.25F, "qtStiffnessCombospinbox", -25);
    row("bending 2", &Record::bending, 2.0F, "qtBendingCombospinbox", -100);
    row("bending below the range", &Record::bending, 2.5F, "qtBendingCombospinbox", -100);
    row("tether stiffness 1", &Record::tetherStiffness, 1.0F, "qtTetherStiffnessCombospinbox", 1);
    row("tether stiffness 0", &Record::tetherStiffness, 0.0F, "qtTetherStiffnessCombospinbox", 101);
    row("inertia truncated", &Record::linearInertiaScale, 0.375F, "qtInertiaScaleCombospinbox", 3);
    row("only the linear scale shows", &Record::angularInertiaScale, 0.5F, "qtInertiaScaleCombospinbox", 10);
}

void TestPropertySection::refreshShowsTheHostsValue()
{
    QFETCH(Record, record);
    QFETCH(QByteArray, box);
    SectionFixture fixture;
    fixture.Cloth().property = record;
    Section& section = fixture.Make<Section>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QTEST(Shown(Child<QWidget>(&section, box)).toDouble(), "shown");
}

void TestPropertySection::refreshReadsTwiceAndWritesNothing()
{
    SectionFixture fixture;
    Record& stored = fixture.Cloth().property;
    stored = PropertyRows::Samples();
    const Record before = stored;
    Section& section = fixture.Make<Section>();
    const BoxSignals boxSignals(section);

    QCOMPARE(section.UpdateUi(), BF::Results::Success);

    QCOMPARE(fixture.TakeCalls(), QStringList({fixture.Call(isActive, {QStringLiteral("true")}),
                                               fixture.Call(propertyRead, {fixture.Text(before)})}));
    QCOMPARE(boxSignals.Count(), 0);
    COMPARE_RECORDS(fixture, stored, before);
}

void TestPropertySection::nothingShownDisablesTheGroupBox_data()
{
    FormChecks::AddNothingShownRows();
}

void TestPropertySection::nothingShownDisablesTheGroupBox()
{
    SectionFixture fixture;
    fixture.Cloth().property.mass = 16;
    Section& section = fixture.Make<Section>();
    FormChecks::NothingShown(
        fixture, section, [&] { return section.UpdateUi(); }, "qtMassEXSpinBox");
}

void TestPropertySection::failedReadLeavesEverything_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("state") << QStringLiteral("IsSoftClothActive");
    QTest::newRow("record") << QStringLiteral("GetSoftClothProperty");
}

void TestPropertySection::failedReadLeavesEverything()
{
    SectionFixture fixture;
    fixture.Cloth().property = PropertyRows::Samples();
    Section& section = fixture.Make<Section>();
    FormChecks::FailedRead(
        fixture, section, [&] { return section.UpdateUi(); }, [&] { fixture.Cloth().property = Record(); });
}

void TestPropertySection::refreshEnablesNothing()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    section.EnableSection(false);
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QVERIFY(!Child<QGroupBox>(&section, "qtSectionGroupBox")->isEnabled());
}

void TestPropertySection::enableUiReachesTheGroupBox()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    const auto* groupBox = Child<QGroupBox>(&section, "qtSectionGroupBox");
    section.EnableUi(false);
    QVERIFY(!groupBox->isEnabled());
    section.EnableUi(true);
    QVERIFY(groupBox->isEnabled());
    QVERIFY(Child<QPushButton>(&section, "qtExpandPushButton")->isEnabled());
}

SOFTCLOTH_TEST(TestPropertySection)
#include "tst_property_section.moc"
