#include "sections/MultiLevelSlider.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/Children.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/SectionFixture.h"

using Record = MV::SoftClothWindData;
using Section = MV::CSoftClothWindSection;

Q_DECLARE_METATYPE(MV::SoftClothWindData)

/// The wind section's part of a profile: the four keys, loaded and saved.
class TestWindProfile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void loadReadsEachKey_data();
    void loadReadsEachKey();
    void loadWritesTheWholeRecordOnce();
    void loadIgnoresAFailedWrite();
    void freshSectionSavesItsOwnValues();
    void saveWritesWhatIsShownAndAsksNobody();
    void secondSectionGetsTheSameRecord();
    void decimalsOfWholeNumbersAreLost();
};

namespace {

const char* const group = "Wind_Setting";
const char* const windWrite = "Edit.SetSoftClothWind";

const QStringList fullProfile{
    QStringLiteral("External_Acceleration=10, -20, 30"),
    QStringLiteral("Random_Acceleration=-1, 0, 981"),
    QStringLiteral("Wind_Frequency=2.1"),
    QStringLiteral("Wind_Random_Factor=3, 7"),
};
const Record fullRecord{{10, -20, 30}, {-1, 0, 981}, 2.1F, {3, 7}};
const Record emptyRecord{{0, 0, 0}, {0, 0, 0}, 0, {0, 0}};

/// The numbers that the section shows, in the order of the record.
QVector<double> AllShown(const QWidget& section)
{
    QVector<double> shown;
    for (const char* name :
         {"qtExternalXEXSpinBox", "qtExternalYEXSpinBox", "qtExternalZEXSpinBox", "qtRandomXEXSpinBox",
          "qtRandomYEXSpinBox", "qtRandomZEXSpinBox", "qtFrequencyCombodoublespinbox"}) {
        shown.append(Shown(Child<QWidget>(&section, name)).toDouble());
    }
    const auto* slider = section.findChild<MV::CMultiLevelSlider*>();
    return shown << slider->LevelValue(0) << slider->LevelValue(1);
}

} // namespace

void TestWindProfile::loadReadsEachKey_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<Record>("sent");
    QTest::addColumn<QVector<double>>("shown");
    const auto row = [](const char* name, const char* line, const Record& sent, const QVector<double>& shown) {
        QTest::newRow(name) << QStringList(QString::fromLatin1(line)) << sent << shown;
    };
    QTest::newRow("all keys") << fullProfile << fullRecord << QVector<double>{10, -20, 30, -1, 0, 981, 2.1, 3, 7};
    row("no key", "Other=1", emptyRecord, {0, 0, 0, 0, 0, 0, 0, 0, 0});
    row("external", "External_Acceleration=10, -20, 30", {{10, -20, 30}, {}, 0, {0, 0}},
        {10, -20, 30, 0, 0, 0, 0, 0, 0});
    row("random", "Random_Acceleration=-1, 0, 981", {{}, {-1, 0, 981}, 0, {0, 0}}, {0, 0, 0, -1, 0, 981, 0, 0, 0});
    row("frequency", "Wind_Frequency=2.1", {{}, {}, 2.1F, {0, 0}}, {0, 0, 0, 0, 0, 0, 2.1, 0, 0});
    row("factor", "Wind_Random_Factor=3, 7", {{}, {}, 0, {3, 7}}, {0, 0, 0, 0, 0, 0, 0, 3, 7});
    row("short list", "External_Acceleration=10, -20", {{10, -20, 0}, {}, 0, {0, 0}}, {10, -20, 0, 0, 0, 0, 0, 0, 0});
    row("one element", "Wind_Random_Factor=4", {{}, {}, 0, {4, 0}}, {0, 0, 0, 0, 0, 0, 0, 4, 0});
    row("long list", "External_Acceleration=1, 2, 3, 4", {{1, 2, 3}, {}, 0, {0, 0}}, {1, 2, 3, 0, 0, 0, 0, 0, 0});
    row("infinite elements", "External_Acceleration=inf, nan, 3", {{0, 0, 3}, {}, 0, {0, 0}},
        {0, 0, 3, 0, 0, 0, 0, 0, 0});
    row("infinite frequency", "Wind_Frequency=inf", emptyRecord, {0, 0, 0, 0, 0, 0, 0, 0, 0});
    row("words", "External_Acceleration=a, b, c", emptyRecord, {0, 0, 0, 0, 0, 0, 0, 0, 0});
    // A decimal is a float for the host, but no whole number for a box.
    row("decimals", "External_Acceleration=1.5, -2.7, 3", {{1.5F, -2.7F, 3}, {}, 0, {0, 0}},
        {0, 0, 3, 0, 0, 0, 0, 0, 0});
    row("outside the ranges", "External_Acceleration=20000, -20000, 0", {{20000, -20000, 0}, {}, 0, {0, 0}},
        {10000, -10000, 0, 0, 0, 0, 0, 0, 0});
    row("frequency outside the range", "Wind_Frequency=50", {{}, {}, 50, {0, 0}}, {0, 0, 0, 0, 0, 0, 20, 0, 0});
    row("factor outside the range", "Wind_Random_Factor=-3, 12", {{}, {}, 0, {-3, 12}}, {0, 0, 0, 0, 0, 0, 0, 0, 10});
}

void TestWindProfile::loadReadsEachKey()
{
    QFETCH(QStringList, lines);
    QFETCH(Record, sent);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.Load(section, group, lines);
    COMPARE_RECORDS(fixture, fixture.Cloth().wind, sent);
    QTEST(AllShown(section), "shown");
}

void TestWindProfile::loadWritesTheWholeRecordOnce()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.Select(1);
    fixture.plugin.Selection().affectAllMaterials = true;
    const BoxSignals boxSignals(section);

    fixture.Load(section, group, fullProfile);

    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, {QStringLiteral("4"), fixture.Text(fullRecord),
                                                                       QStringLiteral("true")})));
    QCOMPARE(boxSignals.Count(), 0);
    for (int material : {0, 1, 2}) {
        COMPARE_RECORDS(fixture, fixture.Cloth(material).wind, fullRecord);
    }
}

void TestWindProfile::loadIgnoresAFailedWrite()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.host.Faults().FailOperation(QStringLiteral("SetSoftClothWind"), BF::Results::Refused);
    fixture.Load(section, group, fullProfile);
    QCOMPARE(AllShown(section), QVector<double>({10, -20, 30, -1, 0, 981, 2.1, 3, 7}));
    COMPARE_RECORDS(fixture, fixture.Cloth().wind, Record());
}

void TestWindProfile::freshSectionSavesItsOwnValues()
{
    SectionFixture fixture;
    const Section& section = fixture.Make<Section>();
    QCOMPARE(fixture.Saved(section, group),
             QStringList({QStringLiteral("[Wind_Setting]"), QStringLiteral("External_Acceleration=0, 0, 0"),
                          QStringLiteral("Random_Acceleration=0, 0, 0"), QStringLiteral("Wind_Frequency=1"),
                          QStringLiteral("Wind_Random_Factor=0, 10")}));
}

void TestWindProfile::saveWritesWhatIsShownAndAsksNobody()
{
    SectionFixture fixture;
    fixture.Cloth().wind = fullRecord;
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.TakeCalls();
    const QStringList lines = fixture.Saved(section, group);
    QCOMPARE(lines.mid(1), fullProfile);
    QCOMPARE(fixture.TakeCalls(), QStringList());
}

void TestWindProfile::secondSectionGetsTheSameRecord()
{
    SectionFixture fixture;
    fixture.Cloth(0).wind = fullRecord;
    Section& first = fixture.Make<Section>();
    first.UpdateUi();
    const QStringList lines = fixture.Saved(first, group);

    fixture.Select(2);
    Section& second = fixture.Make<Section>();
    fixture.Load(second, group, lines.mid(1));

    COMPARE_RECORDS(fixture, fixture.Cloth(2).wind, fullRecord);
    QCOMPARE(AllShown(second), AllShown(first));
}

void TestWindProfile::decimalsOfWholeNumbersAreLost()
{
    SectionFixture fixture;
    fixture.Cloth().wind = {{-2.7F, 2.7F, 0.5F}, {1.9F, -1.9F, 0}, 2.126F, {1.5F, 12}};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.Load(section, group, fixture.Saved(section, group).mid(1));
    const Record expected{{-2, 2, 0}, {1, -1, 0}, 2.13F, {1, 10}};
    COMPARE_RECORDS(fixture, fixture.Cloth().wind, expected);
}

SOFTCLOTH_TEST(TestWindProfile)
#include "tst_wind_profile.moc"
