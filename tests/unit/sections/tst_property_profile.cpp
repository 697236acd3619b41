#include "sections/SoftClothPropertySection.h"
#include "tests/support/Children.h"
#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/SectionFixture.h"

using Record = MV::SoftClothPropertyData;
using Section = MV::CSoftClothPropertySection;

Q_DECLARE_METATYPE(MV::SoftClothPropertyData)

/// The property section's part of a profile: its keys, loaded and saved.
class TestPropertyProfile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void loadReadsEachKey_data();
    void loadReadsEachKey();
    void missingKeyCountsAsZero_data();
    void missingKeyCountsAsZero();
    void loadWritesTheWholeRecordOnce();
    void loadIgnoresAFailedWrite();
    void loadedBoxStaysInItsRange_data();
    void loadedBoxStaysInItsRange();
    void saveWritesEveryKey();
    void saveTakesBoxesAndHostApart();
    void saveWithoutHostRecordWritesDefaults();
    void everyWholeBoxValueComesBack_data();
    void everyWholeBoxValueComesBack();
    void secondSectionGetsTheSameRecord();
    void statedLossesAreLost_data();
    void statedLossesAreLost();
};

namespace {

const char* const group = "Property";
const char* const propertyWrite = "Edit.SetSoftClothProperty";

/// A profile with a value of its own for every key.
QStringList FullProfile()
{
    QStringList lines;
    for (const PropertyRow& row : PropertyRows::All()) {
        lines.append(row.Line());
    }
    return lines;
}

/// All whole numbers of a range; of a wide one some across it, its ends among them.
QVector<int> Sample(int minimum, int maximum)
{
    const int step = maximum - minimum > 200 ? (maximum - minimum) / 150 : 1;
    QVector<int> values;
    for (int value = minimum; value < maximum; value += step) {
        values.append(value);
    }
    return values << maximum;
}

} // namespace

void TestPropertyProfile::loadReadsEachKey_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Record>("sent");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<double>("shown");
    for (const PropertyRow& known : PropertyRows::All()) {
        Record sent = PropertyRows::Empty();
        known.Set(sent, known.held);
        QTest::newRow(known.key) << known.Line() << sent << QByteArray(known.box.name) << known.sample;
    }
    const auto row = [](const char* name, const char* line, auto field, auto value, const char* box, double shown) {
        Record sent = PropertyRows::Empty();
        sent.*field = value;
        QTest::newRow(name) << QString::fromLatin1(line) << sent << QByteArray(box) << shown;
    };
    row("negative mass is no number", "Mass=-5", &Record::mass, 0, "qtMassEXSpinBox", 0);
    row("decimal mass is no number", "Mass=1.5", &Record::mass, 0, "qtMassEXSpinBox", 0);
    row("largest unsigned mass", "Mass=4294967295", &Record::mass, 4294967295, "qtMassEXSpinBox", 0);
    row("mass beyond 32 bits is no number", "Mass=4294967296", &Record::mass, 0, "qtMassEXSpinBox", 0);
    row("not a number", "Friction=nan", &Record::friction, 0.0F, "qtFricionDoubleEXSpinBox", 0);
    row("infinity", "Drag=-inf", &Record::drag, 0.0F, "qtDragDoubleEXSpinBox", 0);
    row("too large for single precision", "Tether_Limit=1e39", &Record::tetherLimit, 0.0F,
        "qtTetherLimitDoubleEXSpinBox", 0);
    row("infinite scale", "Angular_Inertia_Scale=inf", &Record::angularInertiaScale, 0.0F, "", 0);
    row("infinity without a box", "Wake_Counter_Value=inf", &Record::wakeCounterValue, 0.0F, "", 0);
    row("word", "Friction=much", &Record::friction, 0.0F, "qtFricionDoubleEXSpinBox", 0);
    row("single precision", "Friction=0.123456789", &Record::friction, 0.123456789F, "qtFricionDoubleEXSpinBox", 0.123);
    row("tenths of an angular scale", "Angular_Inertia_Scale=12.5", &Record::angularInertiaScale, 1.25F, "", 0);
    row("decimal linear scale is no number", "Linear_Inertia_Scale=12.5", &Record::linearInertiaScale, 0.0F,
        "qtInertiaScaleCombospinbox", 0);
}

void TestPropertyProfile::loadReadsEachKey()
{
    QFETCH(QString, line);
    QFETCH(Record, sent);
    QFETCH(QByteArray, box);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.Load(section, group, {line});
    COMPARE_RECORDS(fixture, fixture.Cloth().property, sent);
    if (!box.isEmpty()) {
        QTEST(Shown(Child<QWidget>(&section, box)).toDouble(), "shown");
    }
}

void TestPropertyProfile::missingKeyCountsAsZero_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < FullProfile().size(); ++i) {
        QTest::newRow(PropertyRows::All()[std::size_t(i)].key) << i;
    }
}

void TestPropertyProfile::missingKeyCountsAsZero()
{
    QFETCH(int, index);
    const PropertyRow& row = PropertyRows::All()[std::size_t(index)];
    Record expected = PropertyRows::Samples();
    row.Set(expected, row.empty);
    QStringList lines = FullProfile();
    lines.removeAt(index);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    section.UpdateUi();

    fixture.Load(section, group, lines);

    COMPARE_RECORDS(fixture, fixture.Cloth().property, expected);
    if (row.HasBox()) {
        QCOMPARE(Shown(Child<QWidget>(&section, row.box.name)).toDouble(), qMax(0.0, row.box.minimum));
    }
}

void TestPropertyProfile::loadWritesTheWholeRecordOnce()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.Select(1);
    fixture.plugin.Selection().affectAllMaterials = true;
    const BoxSignals boxSignals(section);

    fixture.Load(section, group, FullProfile());

    QCOMPARE(fixture.TakeCalls(),
             QStringList(fixture.Call(propertyWrite, {QStringLiteral("19"), fixture.Text(PropertyRows::Samples()),
                                                      QStringLiteral("true")})));
    QCOMPARE(boxSignals.Count(), 0);
    for (int material : {0, 1, 2}) {
        COMPARE_RECORDS(fixture, fixture.Cloth(material).property, PropertyRows::Samples());
    }
}

void TestPropertyProfile::loadIgnoresAFailedWrite()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.host.Faults().FailOperation(QStringLiteral("SetSoftClothProperty"), BF::Results::Refused);
    fixture.Load(section, group, FullProfile());
    QCOMPARE(Shown(Child<QWidget>(&section, "qtMassEXSpinBox")).toInt(), 16);
    COMPARE_RECORDS(fixture, fixture.Cloth().property, Record());
}

void TestPropertyProfile::loadedBoxStaysInItsRange_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<double>("shown");
    QTest::addColumn<Record>("sent");
    const auto row = [](const char* line, const char* box, double shown, auto field, auto value) {
        Record sent = PropertyRows::Empty();
        sent.*field = value;
        QTest::newRow(line) << QString::fromLatin1(line) << QByteArray(box) << shown << sent;
    };
    row("Mass=20000", "qtMassEXSpinBox", 10000, &Record::mass, 20000);
    row("Solver_Frequency=5000", "qtSolverFrequencyEXSpinBox", 1000, &Record::solverFrequency, 5000);
    row("Friction=3", "qtFricionDoubleEXSpinBox", 1, &Record::friction, 3.0F);
    row("Drag=-1", "qtDragDoubleEXSpinBox", 0, &Record::drag, -1.0F);
    row("Tether_Limit=50", "qtTetherLimitDoubleEXSpinBox", 10, &Record::tetherLimit, 50.0F);
    row("Tether_Stiffness=201", "qtTetherStiffnessCombospinbox", 101, &Record::tetherStiffness, -1.0F);
    row("Stiffness=150", "qtStiffnessCombospinbox", 100, &Record::stiffness, -0.5F);
    row("Stiffness=-150", "qtStiffnessCombospinbox", -100, &Record::stiffness, 2.5F);
    row("Bending=-100", "qtBendingCombospinbox", -100, &Record::bending, 2.0F);
    row("Bending=-101", "qtBendingCombospinbox", -100, &Record::bending, 2.01F);
    row("Linear_Inertia_Scale=50", "qtInertiaScaleCombospinbox", 20, &Record::linearInertiaScale, 5.0F);
}

void TestPropertyProfile::loadedBoxStaysInItsRange()
{
    QFETCH(QString, line);
    QFETCH(QByteArray, box);
    QFETCH(Record, sent);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.Load(section, group, {line});
    QTEST(Shown(Child<QWidget>(&section, box)).toDouble(), "shown");
    COMPARE_RECORDS(fixture, fixture.Cloth().property, sent);
}

void TestPropertyProfile::saveWritesEveryKey()
{
    SectionFixture fixture;
    fixture.Cloth().property = PropertyRows::Samples();
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.TakeCalls();

    const QStringList lines = fixture.Saved(section, group);

    QCOMPARE(lines, SavedAs(group, FullProfile()));
    QCOMPARE(fixture.TakeCalls(),
             QStringList(fixture.Call("Scene.GetSoftClothProperty", {fixture.Text(PropertyRows::Samples())})));
}

void TestPropertyProfile::saveTakesBoxesAndHostApart()
{
    SectionFixture fixture;
    fixture.Cloth().property = PropertyRows::Samples();
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    // The boxes show what was read; the host moves on.
    fixture.Cloth().property = Record();

    const QStringList lines = fixture.Saved(section, group);

    QStringList expected;
    for (const PropertyRow& row : PropertyRows::WithBox()) {
        expected.append(row.Line());
    }
    expected.removeAll(QStringLiteral("Linear_Inertia_Scale=7"));
    expected += QStringList{QStringLiteral("Linear_Inertia_Scale=10"),
                            QStringLiteral("Angular_Inertia_Scale=10"),
                            QStringLiteral("Centrifugal_Inertia_Scale=10"),
                            QStringLiteral("Stiffness_Frequency=10"),
                            QStringLiteral("Collision_Mass_Scale=20"),
                            QStringLiteral("Sleep_Linear_Velocity=0.05000000074505806"),
                            QStringLiteral("Wake_Counter_Value=0.4000000059604645")};
    QCOMPARE(lines, SavedAs(group, expected));
}

void TestPropertyProfile::saveWithoutHostRecordWritesDefaults()
{
    SectionFixture fixture;
    fixture.Cloth().property = PropertyRows::Samples();
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.host.Faults().FailOperation(QStringLiteral("GetSoftClothProperty"), BF::Results::Refused);
    const QStringList lines = fixture.Saved(section, group);
    QVERIFY(lines.contains(QStringLiteral("Mass=16")));
    QVERIFY(lines.contains(QStringLiteral("Linear_Inertia_Scale=10")));
    QVERIFY(lines.contains(QStringLiteral("Collision_Mass_Scale=20")));
}

void TestPropertyProfile::everyWholeBoxValueComesBack_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QByteArray>("key");
    for (const PropertyRow& row : PropertyRows::WithBox()) {
        // The others hold decimals.
        if (!QByteArray(row.box.className).contains("Double")) {
            QTest::newRow(row.key) << QByteArray(row.box.name) << QByteArray(row.key);
        }
    }
}

void TestPropertyProfile::everyWholeBoxValueComesBack()
{
    QFETCH(QByteArray, box);
    QFETCH(QByteArray, key);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    auto* widget = Child<QWidget>(&section, box);
    const std::unique_ptr<QSettings> profile = fixture.Profile(group, {});
    const QVector<int> sample = Sample(widget->property("minimum").toInt(), widget->property("maximum").toInt());
    for (const int value : sample) {
        MV::CIniGroup values;
        values.Insert(QLatin1String(key), QString::number(value));
        section.LoadProfile(values);
        QCOMPARE(section.UpdateUi(), BF::Results::Success);
        QCOMPARE(Shown(widget).toInt(), value);
        section.SaveProfile(*profile);
        QCOMPARE(profile->value(QLatin1String(key)).toInt(), value);
    }
}

void TestPropertyProfile::secondSectionGetsTheSameRecord()
{
    SectionFixture fixture;
    fixture.Cloth(0).property = PropertyRows::Samples();
    Section& first = fixture.Make<Section>();
    first.UpdateUi();
    QStringList lines = fixture.Saved(first, group);
    lines.removeFirst();

    fixture.Select(2);
    Section& second = fixture.Make<Section>();
    fixture.Load(second, group, lines);

    COMPARE_RECORDS(fixture, fixture.Cloth(2).property, PropertyRows::Samples());
    for (const QString& box : PropertyRows::BoxNames()) {
        QCOMPARE(Shown(Child<QWidget>(&second, qPrintable(box))), Shown(Child<QWidget>(&first, qPrintable(box))));
    }
}

void TestPropertyProfile::statedLossesAreLost_data()
{
    QTest::addColumn<Record>("saved");
    QTest::addColumn<Record>("loaded");
    const auto row = [](const char* name, auto field, float saved, float loaded) {
        Record before;
        before.*field = saved;
        Record after;
        after.*field = loaded;
        QTest::newRow(name) << before << after;
    };
    row("linear scale below a tenth", &Record::linearInertiaScale, 1.25F, 1.2F);
    row("angular scale below a tenth", &Record::angularInertiaScale, 0.99F, 0.9F);
    row("centrifugal scale below a tenth", &Record::centrifugalInertiaScale, 1.25F, 1.2F);
    row("stiffness below a percent", &Record::stiffness, 0.125F, 1.0F - 0.88F);
    row("bending below a percent", &Record::bending, 0.125F, 1.0F - 0.88F);
    row("tether stiffness below a percent", &Record::tetherStiffness, 0.125F, 1.0F - 0.88F);
    row("friction below the box's decimals", &Record::friction, 0.12345F, 0.123F);
    row("stiffness frequency keeps its decimals", &Record::stiffnessFrequency, 12.345678F, 12.345678F);
    row("collision mass scale keeps its decimals", &Record::collisionMassScale, 0.1F, 0.1F);
    row("sleep velocity keeps its decimals", &Record::sleepLinearVelocity, 0.0123456F, 0.0123456F);
    row("wake counter keeps its decimals", &Record::wakeCounterValue, 1.0F / 3.0F, 1.0F / 3.0F);
}

void TestPropertyProfile::statedLossesAreLost()
{
    QFETCH(Record, saved);
    QFETCH(Record, loaded);
    SectionFixture fixture;
    fixture.Cloth().property = saved;
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    QStringList lines = fixture.Saved(section, group);
    lines.removeFirst();
    fixture.Load(section, group, lines);
    COMPARE_RECORDS(fixture, fixture.Cloth().property, loaded);
}

SOFTCLOTH_TEST(TestPropertyProfile)
#include "tst_property_profile.moc"
