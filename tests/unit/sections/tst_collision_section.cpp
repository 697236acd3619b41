#include "sections/SoftClothCollisionSection.h"
#include "tests/support/Children.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/FormChecks.h"
#include "tests/unit/sections/SectionFixture.h"

#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>

#include <QCheckBox>
#include <QGroupBox>

using Record = MV::SoftClothCollisionData;
using Section = MV::CSoftClothCollisionSection;

Q_DECLARE_METATYPE(MV::SoftClothCollisionData)

/// The collision section's refresh, edits and profile.
class TestCollisionSection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void refreshShowsTheHostsValues_data();
    void refreshShowsTheHostsValues();
    void refreshAsksTwiceAndWritesNothing();
    void nothingShownDisablesTheGroupBox_data();
    void nothingShownDisablesTheGroupBox();
    void failedReadLeavesEverything_data();
    void failedReadLeavesEverything();
    void refreshEnablesNothing();
    void checkBoxWritesItsFieldAndEnablesItsMargin_data();
    void checkBoxWritesItsFieldAndEnablesItsMargin();
    void marginFollowsItsBoxBeforeTheHostIsWritten_data();
    void marginFollowsItsBoxBeforeTheHostIsWritten();
    void committedMarginWritesItsField_data();
    void committedMarginWritesItsField();
    void editReadsTheSelectionAtThatMoment();
    void failedWriteIsIgnored();
    void profileIsSavedFromTheWidgets();
    void profileIsLoadedInOneWrite_data();
    void profileIsLoadedInOneWrite();
    void loadIgnoresAFailedWrite();
    void loadingAProfileLeavesTheEnabledMarginsToTheNextRefresh();
};

namespace {

const char* const rigidBox = "qtCollideWithRigidCheckBox";
const char* const selfBox = "qtSelfCollisionCheckBox";
const char* const rigidMargin = "qtCollideWithRigidMarginDoubleEXSpinBox";
const char* const selfMargin = "qtSelfCollisionMarginDoubleEXSpinBox";
const char* const rigidLabel = "qtSoftRigidCollisionMarginLabel";
const char* const selfLabel = "qtSelfCollisionMarginLabel";
const char* const write = "Edit.SetSoftClothCollision";

QString WriteCall(const SectionFixture& fixture, int type, const Record& record, bool all = false,
                  const char* result = "0")
{
    return fixture.Call(write, {QString::number(type), fixture.Text(record), fixture.Text(all)}, result);
}

bool IsEnabled(const QWidget& section, const char* name)
{
    // The group box is disabled where no plug-in object enables it; what counts is the widget's own flag.
    return Child<QWidget>(&section, name)->isEnabledTo(Child<QGroupBox>(&section, "qtSectionGroupBox"));
}

double ShownMargin(const QWidget& section, const char* name)
{
    return Child<QDoubleSpinBoxEx>(&section, name)->value();
}

} // namespace

void TestCollisionSection::refreshShowsTheHostsValues_data()
{
    QTest::addColumn<Record>("record");
    QTest::newRow("rigid only") << Record{true, false, 1.5F, 2.25F};
    QTest::newRow("self only") << Record{false, true, 0.125F, 3.5F};
    QTest::newRow("both") << Record{true, true, 10, 20};
    QTest::newRow("neither") << Record{false, false, 0, 0};
}

void TestCollisionSection::refreshShowsTheHostsValues()
{
    QFETCH(const Record, record);
    SectionFixture fixture;
    fixture.Cloth().collision = record;
    Section& section = fixture.Make<Section>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QCOMPARE(Child<QCheckBox>(&section, rigidBox)->isChecked(), record.collideWithRigid);
    QCOMPARE(Child<QCheckBox>(&section, selfBox)->isChecked(), record.selfCollision);
    QCOMPARE(ShownMargin(section, rigidMargin), double(record.rigidMargin));
    QCOMPARE(ShownMargin(section, selfMargin), double(record.selfMargin));
    for (const char* name : {rigidMargin, rigidLabel}) {
        QCOMPARE(IsEnabled(section, name), record.collideWithRigid);
    }
    for (const char* name : {selfMargin, selfLabel}) {
        QCOMPARE(IsEnabled(section, name), record.selfCollision);
    }
}

void TestCollisionSection::refreshAsksTwiceAndWritesNothing()
{
    SectionFixture fixture;
    const Record record{false, true, 4, 5};
    fixture.Cloth().collision = record;
    Section& section = fixture.Make<Section>();
    auto* margin = Child<QDoubleSpinBoxEx>(&section, rigidMargin);
    margin->blockSignals(true);
    const BoxSignals boxSignals(section);
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QCOMPARE(boxSignals.Count(), 0);
    QVERIFY(margin->signalsBlocked());
    QCOMPARE(fixture.TakeCalls(), (QStringList{fixture.Call("Scene.IsSoftClothActive", {QStringLiteral("true")}),
                                               fixture.Call("Scene.GetSoftClothCollision", {fixture.Text(record)})}));
}

void TestCollisionSection::nothingShownDisablesTheGroupBox_data()
{
    FormChecks::AddNothingShownRows();
}

void TestCollisionSection::nothingShownDisablesTheGroupBox()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    FormChecks::NothingShown(
        fixture, section, [&] { return section.UpdateUi(); }, rigidMargin);
}

void TestCollisionSection::failedReadLeavesEverything_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("whether it is active") << QStringLiteral("IsSoftClothActive");
    QTest::newRow("the record") << QStringLiteral("GetSoftClothCollision");
}

void TestCollisionSection::failedReadLeavesEverything()
{
    SectionFixture fixture;
    fixture.Cloth().collision = {false, true, 1.5F, 2.25F};
    Section& section = fixture.Make<Section>();
    FormChecks::FailedRead(
        fixture, section, [&] { return section.UpdateUi(); }, [&] { fixture.Cloth().collision = Record(); });
    // All of it would have been seen to change.
    QVERIFY(IsEnabled(section, rigidMargin) && IsEnabled(section, rigidLabel));
    QVERIFY(!IsEnabled(section, selfMargin) && !IsEnabled(section, selfLabel));
    QVERIFY(Child<QCheckBox>(&section, rigidBox)->isChecked());
    QVERIFY(!Child<QCheckBox>(&section, selfBox)->isChecked());
}

void TestCollisionSection::refreshEnablesNothing()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    auto* groupBox = Child<QGroupBox>(&section, "qtSectionGroupBox");
    section.EnableSection(false);
    QVERIFY(!groupBox->isEnabled());
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QVERIFY(!groupBox->isEnabled());
    section.EnableSection(true);
    QVERIFY(groupBox->isEnabled());
}

void TestCollisionSection::checkBoxWritesItsFieldAndEnablesItsMargin_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QByteArray>("margin");
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<int>("type");
    QTest::addColumn<Record>("sent");
    const auto row = [](const char* name, const char* box, const char* margin, const char* label, bool checked,
                        int type, const Record& sent) {
        QTest::newRow(name) << QByteArray(box) << QByteArray(margin) << QByteArray(label) << checked << type << sent;
    };
    row("rigid on", rigidBox, rigidMargin, rigidLabel, true, 0, {true, false, 0, 0});
    row("rigid off", rigidBox, rigidMargin, rigidLabel, false, 0, {false, false, 0, 0});
    row("self on", selfBox, selfMargin, selfLabel, true, 1, {true, true, 0, 0});
    row("self off", selfBox, selfMargin, selfLabel, false, 1, {true, false, 0, 0});
}

void TestCollisionSection::checkBoxWritesItsFieldAndEnablesItsMargin()
{
    QFETCH(const QByteArray, box);
    QFETCH(const QByteArray, margin);
    QFETCH(const QByteArray, label);
    QFETCH(const bool, checked);
    QFETCH(const int, type);
    QFETCH(const Record, sent);
    SectionFixture fixture;
    fixture.Cloth().collision = {!checked, !checked, 7, 8};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.TakeCalls();

    auto* checkBox = Child<QCheckBox>(&section, box);
    QTest::mouseClick(checkBox, Qt::LeftButton, Qt::NoModifier, QPoint(8, checkBox->height() / 2));
    QCOMPARE(checkBox->isChecked(), checked);
    QCOMPARE(IsEnabled(section, margin), checked);
    QCOMPARE(IsEnabled(section, label), checked);
    QCOMPARE(fixture.TakeCalls(), QStringList(WriteCall(fixture, type, sent)));
    // Only the field that was named has changed.
    QCOMPARE(fixture.Cloth().collision.rigidMargin, 7.0F);
    QCOMPARE(fixture.Cloth().collision.selfMargin, 8.0F);
    QCOMPARE(fixture.Cloth().collision.collideWithRigid, type == 0 ? checked : !checked);
    QCOMPARE(fixture.Cloth().collision.selfCollision, type == 1 ? checked : !checked);
}

void TestCollisionSection::marginFollowsItsBoxBeforeTheHostIsWritten_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QByteArray>("margin");
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<bool>("checked");
    for (const bool checked : {true, false}) {
        const char* const state = checked ? "on" : "off";
        QTest::addRow("rigid %s", state) << QByteArray(rigidBox) << QByteArray(rigidMargin) << QByteArray(rigidLabel)
                                         << checked;
        QTest::addRow("self %s", state) << QByteArray(selfBox) << QByteArray(selfMargin) << QByteArray(selfLabel)
                                        << checked;
    }
}

void TestCollisionSection::marginFollowsItsBoxBeforeTheHostIsWritten()
{
    QFETCH(const QByteArray, box);
    QFETCH(const QByteArray, margin);
    QFETCH(const QByteArray, label);
    QFETCH(const bool, checked);
    SectionFixture fixture;
    fixture.Cloth().collision = {!checked, !checked, 7, 8};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    QVector<bool> enabledAtWrite;
    connect(&fixture.host.Journal(), &Host::CallJournal::EntryAdded, this,
            [&] { enabledAtWrite << IsEnabled(section, margin) << IsEnabled(section, label); });
    Child<QCheckBox>(&section, box)->click();
    QCOMPARE(enabledAtWrite, QVector<bool>({checked, checked}));
}

void TestCollisionSection::committedMarginWritesItsField_data()
{
    QTest::addColumn<QByteArray>("margin");
    QTest::addColumn<int>("type");
    QTest::addColumn<Record>("sent");
    QTest::newRow("rigid") << QByteArray(rigidMargin) << 2 << Record{true, false, 0.7F, 0};
    QTest::newRow("self") << QByteArray(selfMargin) << 3 << Record{true, false, 0, 0.7F};
}

void TestCollisionSection::committedMarginWritesItsField()
{
    QFETCH(const QByteArray, margin);
    QFETCH(const int, type);
    QFETCH(const Record, sent);
    SectionFixture fixture;
    fixture.Cloth().collision = {true, true, 3, 4};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.TakeCalls();

    auto* box = Child<QWidget>(&section, margin);
    TypeInto(box, QStringLiteral("0.7"));
    QCOMPARE(fixture.TakeCalls(), QStringList());
    Enter(box, QStringLiteral("0.7"));
    QCOMPARE(fixture.TakeCalls(), QStringList(WriteCall(fixture, type, sent)));
    QCOMPARE(fixture.Cloth().collision.rigidMargin, type == 2 ? 0.7F : 3.0F);
    QCOMPARE(fixture.Cloth().collision.selfMargin, type == 3 ? 0.7F : 4.0F);
}

void TestCollisionSection::editReadsTheSelectionAtThatMoment()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.Select(2);
    fixture.plugin.Selection().affectAllMaterials = true;
    fixture.TakeCalls();
    Enter(Child<QWidget>(&section, rigidMargin), QStringLiteral("9"));
    QCOMPARE(fixture.TakeCalls(), QStringList(WriteCall(fixture, 2, {true, false, 9, 0}, true)));
    for (const int material : {0, 1, 2}) {
        QCOMPARE(fixture.Cloth(material).collision.rigidMargin, 9.0F);
    }
}

void TestCollisionSection::failedWriteIsIgnored()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.host.Faults().FailOperation(QStringLiteral("SetSoftClothCollision"), BF::Results::Refused);
    fixture.TakeCalls();
    Enter(Child<QWidget>(&section, rigidMargin), QStringLiteral("9"));
    QCOMPARE(fixture.TakeCalls(), QStringList(WriteCall(fixture, 2, {true, false, 9, 0}, false, "0x80000006")));
    QCOMPARE(ShownMargin(section, rigidMargin), 9.0);
}

void TestCollisionSection::profileIsSavedFromTheWidgets()
{
    SectionFixture fixture;
    fixture.Cloth().collision = {false, true, 1.25F, 0.5F};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.Cloth().collision = {};
    fixture.TakeCalls();
    const QStringList lines = fixture.Saved(section, "Collision");
    QCOMPARE(fixture.TakeCalls(), QStringList());
    QCOMPARE(lines, SavedAs("Collision",
                            {QStringLiteral("Soft_Vs_Rigid_Collision=false"),
                             QStringLiteral("Soft_Vs_Rigid_Collision_Margin=1.25"),
                             QStringLiteral("Self_Collision=true"), QStringLiteral("Self_Collision_Margin=0.5")}));
}

void TestCollisionSection::profileIsLoadedInOneWrite_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<Record>("sent");
    QTest::newRow("all keys") << QStringList{QStringLiteral("Soft_Vs_Rigid_Collision=true"),
                                             QStringLiteral("Soft_Vs_Rigid_Collision_Margin=0.1"),
                                             QStringLiteral("Self_Collision=true"),
                                             QStringLiteral("Self_Collision_Margin=2.5")}
                              << Record{true, true, 0.1F, 2.5F};
    QTest::newRow("no keys write false and zero") << QStringList() << Record{false, false, 0, 0};
    QTest::newRow("one key") << QStringList{QStringLiteral("Self_Collision=true")} << Record{false, true, 0, 0};
    QTest::newRow("nonsense") << QStringList{QStringLiteral("Soft_Vs_Rigid_Collision_Margin=wide")}
                              << Record{false, false, 0, 0};
    QTest::newRow("beyond the box's range goes to the host as it is")
        << QStringList{QStringLiteral("Self_Collision_Margin=5000")} << Record{false, false, 0, 5000};
}

void TestCollisionSection::profileIsLoadedInOneWrite()
{
    QFETCH(const QStringList, lines);
    QFETCH(const Record, sent);
    SectionFixture fixture;
    fixture.Cloth().collision = {true, false, 3, 4};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.plugin.Selection().affectAllMaterials = true;
    fixture.TakeCalls();

    const BoxSignals boxSignals(section);
    fixture.Load(section, "Collision", lines);
    QCOMPARE(boxSignals.Count(), 0);
    QCOMPARE(fixture.TakeCalls(), QStringList(WriteCall(fixture, 4, sent, true)));
    QCOMPARE(Child<QCheckBox>(&section, rigidBox)->isChecked(), sent.collideWithRigid);
    QCOMPARE(Child<QCheckBox>(&section, selfBox)->isChecked(), sent.selfCollision);
    QVERIFY(qAbs(ShownMargin(section, rigidMargin) - double(sent.rigidMargin)) < 0.0005);
    QCOMPARE(ShownMargin(section, selfMargin), qMin(double(sent.selfMargin), 1000.0));
}

void TestCollisionSection::loadIgnoresAFailedWrite()
{
    SectionFixture fixture;
    fixture.Cloth().collision = {true, false, 3, 4};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.host.Faults().FailOperation(QStringLiteral("SetSoftClothCollision"), BF::Results::Refused);
    fixture.TakeCalls();
    fixture.Load(section, "Collision",
                 {QStringLiteral("Self_Collision=true"), QStringLiteral("Self_Collision_Margin=2.5")});
    QCOMPARE(fixture.TakeCalls(), QStringList(WriteCall(fixture, 4, {false, true, 0, 2.5F}, false, "0x80000006")));
    QVERIFY(!Child<QCheckBox>(&section, rigidBox)->isChecked());
    QVERIFY(Child<QCheckBox>(&section, selfBox)->isChecked());
    QCOMPARE(ShownMargin(section, rigidMargin), 0.0);
    QCOMPARE(ShownMargin(section, selfMargin), 2.5);
    QCOMPARE(fixture.Cloth().collision.rigidMargin, 3.0F);
    QCOMPARE(fixture.Cloth().collision.selfMargin, 4.0F);
}

void TestCollisionSection::loadingAProfileLeavesTheEnabledMarginsToTheNextRefresh()
{
    SectionFixture fixture;
    fixture.Cloth().collision = {true, false, 3, 4};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    fixture.Load(section, "Collision", {QStringLiteral("Self_Collision=true")});
    QVERIFY(IsEnabled(section, rigidMargin));
    QVERIFY(!IsEnabled(section, selfMargin));
    section.UpdateUi();
    QVERIFY(!IsEnabled(section, rigidMargin));
    QVERIFY(IsEnabled(section, selfMargin));
}

SOFTCLOTH_TEST(TestCollisionSection)
#include "tst_collision_section.moc"
