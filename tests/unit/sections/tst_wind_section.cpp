#include "sections/MultiLevelSlider.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/Children.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/FormChecks.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QGroupBox>
#include <QLabel>

using Record = MV::SoftClothWindData;
using Section = MV::CSoftClothWindSection;
using Slider = MV::CMultiLevelSlider;

Q_DECLARE_METATYPE(MV::SoftClothWindData)

/// The wind section's refresh and edits.
class TestWindSection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void commitWritesItsGroup_data();
    void commitWritesItsGroup();
    void commitSendsAllThreeAxes();
    void draggingAHandleWritesOnce();
    void handlesDoNotCross_data();
    void handlesDoNotCross();
    void clickingAHandleWritesWhatItShows();
    void commitReadsTheSelectionAtThatMoment();
    void commitWithoutSelectionIsSentAllTheSame();
    void refreshShowsTheHostsValue_data();
    void refreshShowsTheHostsValue();
    void refreshReadsTwiceAndWritesNothing();
    void clampedFactorIsSentClamped();
    void textsFollowTheHandles();
    void nothingShownDisablesTheGroupBox_data();
    void nothingShownDisablesTheGroupBox();
    void failedReadLeavesEverything_data();
    void failedReadLeavesEverything();
    void refreshEnablesNothing();
    void sectionOutlivesItsSlider();
};

namespace {

const char* const windRead = "Scene.GetSoftClothWind";
const char* const windWrite = "Edit.SetSoftClothWind";
const char* const isActive = "Scene.IsSoftClothActive";

QStringList Arguments(const SectionFixture& fixture, int type, const Record& record, bool all = false)
{
    return {QString::number(type), fixture.Text(record), fixture.Text(all)};
}

Slider& SliderOf(const QWidget& section)
{
    return *Child<QWidget>(&section, "qtRandomFactorWidget")->findChild<Slider*>();
}

/// The middle of a handle.
QPoint Handle(const Slider& slider, std::size_t index)
{
    return {slider.LevelPosition(index) + 8, 16};
}

/// Presses a handle and moves it by \p dx.
void Drag(Slider& slider, std::size_t index, int dx)
{
    const QPoint start = Handle(slider, index);
    const QPoint end = start + QPoint(dx, 0);
    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, start);
    QMouseEvent move(QEvent::MouseMove, end, slider.mapToGlobal(end), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&slider, &move);
}

} // namespace

void TestWindSection::commitWritesItsGroup_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("type");
    QTest::addColumn<Record>("sent");
    const auto axes = [](const char* prefix, int type, auto field) {
        const char* const names[]{"X", "Y", "Z"};
        for (std::size_t axis = 0; axis < 3; ++axis) {
            Record sent;
            (sent.*field).at(axis) = -25;
            const QByteArray box = QByteArray("qt") + prefix + names[axis] + "EXSpinBox";
            QTest::newRow(box) << box << QStringLiteral("-25") << type << sent;
        }
    };
    axes("External", 0, &Record::externalAcceleration);
    axes("Random", 1, &Record::randomAcceleration);
    Record frequency;
    frequency.frequency = 2.1F;
    QTest::newRow("frequency") << QByteArray("qtFrequencyCombodoublespinbox") << QStringLiteral("2.1") << 2
                               << frequency;
}

void TestWindSection::commitWritesItsGroup()
{
    QFETCH(QByteArray, box);
    QFETCH(QString, typed);
    QFETCH(int, type);
    QFETCH(Record, sent);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    auto* widget = Child<QWidget>(&section, box);

    TypeInto(widget, typed);
    QCOMPARE(fixture.TakeCalls(), QStringList());
    Enter(widget, typed);

    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, type, sent))));
    COMPARE_RECORDS(fixture, fixture.Cloth().wind, sent);
}

void TestWindSection::commitSendsAllThreeAxes()
{
    SectionFixture fixture;
    fixture.Cloth().wind = {{1, 2, 3}, {4, 5, 6}, 7, {8, 9}};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.TakeCalls();

    Enter(Child<QWidget>(&section, "qtExternalYEXSpinBox"), QStringLiteral("-20"));
    Record external;
    external.externalAcceleration = {1, -20, 3};
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, 0, external))));

    Enter(Child<QWidget>(&section, "qtRandomZEXSpinBox"), QStringLiteral("60"));
    Record random;
    random.randomAcceleration = {4, 5, 60};
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, 1, random))));
}

void TestWindSection::draggingAHandleWritesOnce()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QVERIFY(fixture.Show(section));
    Slider& slider = SliderOf(section);

    Drag(slider, 1, -(slider.width() - 17) / 2);
    QCOMPARE(fixture.TakeCalls(), QStringList());
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, Handle(slider, 1));

    Record sent;
    sent.randomFactor = {0, 5};
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, 3, sent))));
    COMPARE_RECORDS(fixture, fixture.Cloth().wind, sent);
}

void TestWindSection::handlesDoNotCross_data()
{
    QTest::addColumn<int>("dragged");
    QTest::addColumn<int>("direction");
    QTest::newRow("second past the first") << 1 << -1;
    QTest::newRow("first past the second") << 0 << 1;
}

void TestWindSection::handlesDoNotCross()
{
    QFETCH(int, dragged);
    QFETCH(int, direction);
    SectionFixture fixture;
    fixture.Cloth().wind.randomFactor = {3, 7};
    Section& section = fixture.Make<Section>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QVERIFY(fixture.Show(section));
    Slider& slider = SliderOf(section);
    Drag(slider, std::size_t(dragged), direction * slider.width());
    QTest::mouseRelease(&slider, Qt::LeftButton);
    QVERIFY(slider.LevelValue(0) < slider.LevelValue(1));
    // As far as it can go: next to the other, which stays.
    QCOMPARE(slider.LevelValue(0), dragged == 0 ? 6 : 3);
    QCOMPARE(slider.LevelValue(1), dragged == 1 ? 4 : 7);
}

void TestWindSection::clickingAHandleWritesWhatItShows()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.TakeCalls();
    QTest::mouseClick(&SliderOf(section), Qt::LeftButton, Qt::NoModifier, Handle(SliderOf(section), 0));
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, 3, Record()))));
}

void TestWindSection::commitReadsTheSelectionAtThatMoment()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    fixture.Select(2);
    fixture.plugin.Selection().affectAllMaterials = true;
    fixture.TakeCalls();
    Enter(Child<QWidget>(&section, "qtFrequencyCombodoublespinbox"), QStringLiteral("3"));
    Record sent;
    sent.frequency = 3;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, 2, sent, true))));
}

void TestWindSection::commitWithoutSelectionIsSentAllTheSame()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    fixture.plugin.Selection().Clear();
    Enter(Child<QWidget>(&section, "qtFrequencyCombodoublespinbox"), QStringLiteral("3"));
    Record sent;
    sent.frequency = 3;
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, 2, sent), "0x80000003")));
    QCOMPARE(Shown(Child<QWidget>(&section, "qtFrequencyCombodoublespinbox")).toDouble(), 3.0);
}

void TestWindSection::refreshShowsTheHostsValue_data()
{
    QTest::addColumn<Record>("record");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<double>("shown");
    const auto row = [](const char* name, const Record& record, const char* box, double shown) {
        QTest::newRow(name) << record << QByteArray(box) << shown;
    };
    const Record record{{-2.7F, 2.7F, 981}, {-30000, 12.9F, -0.5F}, 2.25F, {3.9F, 7.1F}};
    row("negative truncated", record, "qtExternalXEXSpinBox", -2);
    row("positive truncated", record, "qtExternalYEXSpinBox", 2);
    row("whole", record, "qtExternalZEXSpinBox", 981);
    row("below the range", record, "qtRandomXEXSpinBox", -10000);
    row("random truncated", record, "qtRandomYEXSpinBox", 12);
    row("below one", record, "qtRandomZEXSpinBox", 0);
    row("frequency", record, "qtFrequencyCombodoublespinbox", 2.25);
    row("first factor truncated", record, "0", 3);
    row("second factor truncated", record, "1", 7);
    const Record outside{{}, {}, 50, {-1, 12}};
    row("frequency above the range", outside, "qtFrequencyCombodoublespinbox", 20);
    row("factor below the range", outside, "0", 0);
    row("factor above the range", outside, "1", 10);
    const Record crossed{{}, {}, 0, {8, 3}};
    row("first of crossed factors", crossed, "0", 8);
    row("second of crossed factors", crossed, "1", 3);
}

void TestWindSection::refreshShowsTheHostsValue()
{
    QFETCH(Record, record);
    QFETCH(QByteArray, box);
    SectionFixture fixture;
    fixture.Cloth().wind = record;
    Section& section = fixture.Make<Section>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    // A digit names a handle of the slider.
    const double shown =
        box.size() == 1 ? SliderOf(section).LevelValue(box.toUInt()) : Shown(Child<QWidget>(&section, box)).toDouble();
    QTEST(shown, "shown");
}

void TestWindSection::refreshReadsTwiceAndWritesNothing()
{
    SectionFixture fixture;
    const Record before{{1, 2, 3}, {4, 5, 6}, 7, {8, 9}};
    fixture.Cloth().wind = before;
    Section& section = fixture.Make<Section>();
    const BoxSignals boxSignals(section);
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QCOMPARE(fixture.TakeCalls(), QStringList({fixture.Call(isActive, {QStringLiteral("true")}),
                                               fixture.Call(windRead, {fixture.Text(before)})}));
    QCOMPARE(boxSignals.Count(), 0);
    COMPARE_RECORDS(fixture, fixture.Cloth().wind, before);
}

void TestWindSection::clampedFactorIsSentClamped()
{
    SectionFixture fixture;
    fixture.Cloth().wind.randomFactor = {1, 12};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.TakeCalls();
    QTest::mouseClick(&SliderOf(section), Qt::LeftButton, Qt::NoModifier, Handle(SliderOf(section), 0));
    Record sent;
    sent.randomFactor = {1, 10};
    QCOMPARE(fixture.TakeCalls(), QStringList(fixture.Call(windWrite, Arguments(fixture, 3, sent))));
}

void TestWindSection::textsFollowTheHandles()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    const auto* first = Child<QLabel>(&section, "label_12");
    const auto* second = Child<QLabel>(&section, "label_13");
    QCOMPARE(first->text(), QStringLiteral("from 0"));
    QCOMPARE(second->text(), QStringLiteral("to 10"));
    QVERIFY(section.UpdateUi().IsSuccess());
    QCOMPARE(first->text(), QStringLiteral("from 1"));
    QCOMPARE(second->text(), QStringLiteral("to 2"));
    QVERIFY(fixture.Show(section));
    Drag(SliderOf(section), 1, section.width());
    QCOMPARE(second->text(), QStringLiteral("to 10"));
    QTest::mouseRelease(&SliderOf(section), Qt::LeftButton);
}

void TestWindSection::nothingShownDisablesTheGroupBox_data()
{
    FormChecks::AddNothingShownRows();
}

void TestWindSection::nothingShownDisablesTheGroupBox()
{
    SectionFixture fixture;
    fixture.Cloth().wind.frequency = 5;
    Section& section = fixture.Make<Section>();
    FormChecks::NothingShown(
        fixture, section, [&] { return section.UpdateUi(); }, "qtFrequencyCombodoublespinbox");
    QVERIFY(!SliderOf(section).isEnabled());
}

void TestWindSection::failedReadLeavesEverything_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("state") << QStringLiteral("IsSoftClothActive");
    QTest::newRow("record") << QStringLiteral("GetSoftClothWind");
}

void TestWindSection::failedReadLeavesEverything()
{
    SectionFixture fixture;
    fixture.Cloth().wind = {{1, 2, 3}, {4, 5, 6}, 7, {3, 8}};
    Section& section = fixture.Make<Section>();
    FormChecks::FailedRead(
        fixture, section, [&] { return section.UpdateUi(); }, [&] { fixture.Cloth().wind = Record(); });
}

void TestWindSection::refreshEnablesNothing()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    section.EnableSection(false);
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QVERIFY(!Child<QGroupBox>(&section, "qtSectionGroupBox")->isEnabled());
}

void TestWindSection::sectionOutlivesItsSlider()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    delete &SliderOf(section);
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QVERIFY(fixture.Saved(section, "Wind_Setting").contains(QStringLiteral("Wind_Random_Factor=0, 0")));
}

SOFTCLOTH_TEST(TestWindSection)
#include "tst_wind_section.moc"
