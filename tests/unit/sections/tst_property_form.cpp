#include "sections/SoftClothPropertySection.h"
#include "tests/support/Children.h"
#include "tests/support/Files.h"
#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/FormChecks.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QGroupBox>
#include <QPushButton>

using Section = MV::CSoftClothPropertySection;

/// The property section's form and how it gets there.
class TestPropertyForm : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void componentFindsEveryObjectInOrder();
    void formHasTypedObjects_data();
    void formHasTypedObjects();
    void boxesHaveSensibleRanges_data();
    void boxesHaveSensibleRanges();
    void slidersCoverTheUsualPercentages_data();
    void slidersCoverTheUsualPercentages();
    void boxesExplainThemselves();
    void userGuideExplainsEachBox_data();
    void userGuideExplainsEachBox();
    void layoutFileIsApplied();
    void freshFormShowsTheHostsDefaults();
    void tabGoesThroughTheBoxesFromTopToBottom();
    void sectionStandsAtItsPlace();
    void nothingHappensWithoutAHost();
    void missingFormIsReturned();
};

namespace {

QStringList Words(const char* words)
{
    return QString::fromLatin1(words).split(u' ');
}

} // namespace

void TestPropertyForm::componentFindsEveryObjectInOrder()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    CSoftClothPropertyUiComponent component;
    const QStringList names = Words("verticalLayout_9 verticalLayout_8 verticalLayout_7 verticalLayout_6 gridLayout "
                                    "verticalLayout verticalLayout_2") +
                              PropertyRows::BoxNames("QComboSpinBox") + PropertyRows::BoxNames("QDoubleSpinBoxEx") +
                              Words("qtSectionGroupBox label_10 label_3 label_4 label_5 label_7 label_9 "
                                    "qtExpandPushButton") +
                              PropertyRows::BoxNames("QSpinBoxEx") + Words("SoftClothProperty");
    FormChecks::Component(component, *Child<QWidget>(&section, "SoftClothProperty"), qPrintable(names.join(u' ')));
}

void TestPropertyForm::formHasTypedObjects_data()
{
    FormChecks::AddClassColumns();
    using FormChecks::AddClassRow;
    AddClassRow("QVBoxLayout", "verticalLayout_9 verticalLayout_8 verticalLayout_7 verticalLayout_6 verticalLayout "
                               "verticalLayout_2");
    AddClassRow("QGridLayout", "gridLayout");
    for (const char* className : {"QComboSpinBox", "QDoubleSpinBoxEx", "QSpinBoxEx"}) {
        AddClassRow(className, qPrintable(PropertyRows::BoxNames(className).join(u' ')));
    }
    AddClassRow("QGroupBox", "qtSectionGroupBox");
    AddClassRow("QLabel", "label_10 label_3 label_4 label_5 label_7 label_9");
    AddClassRow("QPushButton", "qtExpandPushButton");
    AddClassRow("QWidget", "SoftClothProperty");
}

void TestPropertyForm::formHasTypedObjects()
{
    SectionFixture fixture;
    FormChecks::Classes(fixture.Make<Section>());
}

void TestPropertyForm::boxesHaveSensibleRanges_data()
{
    FormChecks::AddRangeColumns();
    for (const PropertyRow& row : PropertyRows::WithBox()) {
        const PropertyRow::Box& box = row.box;
        QTest::newRow(row.name) << QByteArray(box.name) << box.minimum << box.maximum << box.step
                                << QString::fromLatin1(box.suffix);
    }
}

void TestPropertyForm::boxesHaveSensibleRanges()
{
    SectionFixture fixture;
    FormChecks::Range(fixture.Make<Section>());
}

void TestPropertyForm::slidersCoverTheUsualPercentages_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("stiffness") << QByteArray("qtStiffnessCombospinbox") << 0 << 100;
    QTest::newRow("bending") << QByteArray("qtBendingCombospinbox") << 0 << 100;
    QTest::newRow("tether stiffness") << QByteArray("qtTetherStiffnessCombospinbox") << 1 << 101;
    QTest::newRow("inertia, in tenths") << QByteArray("qtInertiaScaleCombospinbox") << 0 << 20;
}

void TestPropertyForm::slidersCoverTheUsualPercentages()
{
    QFETCH(QByteArray, box);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    const auto* widget = Child<QWidget>(&section, box);
    QTEST(widget->property("sliderMinimum").toInt(), "lowest");
    QTEST(widget->property("sliderMaximum").toInt(), "highest");
}

void TestPropertyForm::boxesExplainThemselves()
{
    SectionFixture fixture;
    FormChecks::Help(fixture.Make<Section>(), PropertyRows::BoxNames().size());
}

void TestPropertyForm::userGuideExplainsEachBox_data()
{
    QTest::addColumn<QByteArray>("box");
    for (const PropertyRow& row : PropertyRows::WithBox()) {
        QTest::newRow(row.name) << QByteArray(row.box.name);
    }
}

void TestPropertyForm::userGuideExplainsEachBox()
{
    QFETCH(QByteArray, box);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    const auto* widget = Child<QWidget>(&section, box);
    const QString start =
        QStringLiteral("\n| %1 | %2 to ").arg(widget->accessibleName(), widget->property("minimum").toString());
    const QString guide = QString::fromUtf8(Files::Read(QStringLiteral(SOFTCLOTH_USER_GUIDE)));
    QVERIFY2(guide.contains(start), qPrintable(start));
}

void TestPropertyForm::layoutFileIsApplied()
{
    SectionFixture fixture;
    FormChecks::LayoutFile(fixture.Make<Section>(), "verticalLayout_6", 2);
}

void TestPropertyForm::freshFormShowsTheHostsDefaults()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    const QVariantList fresh = FormChecks::ShownByAll(section);
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QCOMPARE(FormChecks::ShownByAll(section), fresh);
}

void TestPropertyForm::tabGoesThroughTheBoxesFromTopToBottom()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QVERIFY(fixture.Show(section));
    const QStringList names = QStringList(QStringLiteral("qtExpandPushButton")) + PropertyRows::BoxNames();
    FormChecks::TabOrder(section, qPrintable(names.join(u' ')));
}

void TestPropertyForm::sectionStandsAtItsPlace()
{
    FormChecks::Place<Section>(16);
}

void TestPropertyForm::nothingHappensWithoutAHost()
{
    FormChecks::WithoutHost<Section>();
}

void TestPropertyForm::missingFormIsReturned()
{
    ExpectWarning(QStringLiteral("SoftClothProperty.ui"));
    FormChecks::MissingForm<Section>();
}

SOFTCLOTH_TEST(TestPropertyForm)
#include "tst_property_form.moc"
