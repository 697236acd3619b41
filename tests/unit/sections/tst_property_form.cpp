#include "sections/SoftClothPropertySection.h"
#include "tests/support/Children.h"
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
    void layoutFileIsApplied();
    void freshFormShowsTheHostsDefaults();
    void tabGoesThroughTheBoxesFromTopToBottom();
    void sectionStandsAtItsPlace();
    void nothingHappensWithoutAHost();
    void missingFormIsReturned();
};

void TestPropertyForm::componentFindsEveryObjectInOrder()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    CSoftClothPropertyUiComponent component;
    FormChecks::Component(component, *Child<QWidget>(&section, "SoftClothProperty"),
                          "verticalLayout_9 verticalLayout_8 verticalLayout_7 verticalLayout_6 gridLayout "
                          "verticalLayout verticalLayout_2 qtBendingCombospinbox qtInertiaScaleCombospinbox "
                          "qtStiffnessCombospinbox qtTetherStiffnessCombospinbox qtDampingDoubleEXSpinBox "
                          "qtDragDoubleEXSpinBox qtFricionDoubleEXSpinBox qtTetherLimitDoubleEXSpinBox "
                          "qtSectionGroupBox label_10 label_3 label_4 label_5 label_7 label_9 qtExpandPushButton "
                          "qtMassEXSpinBox qtSolverFrequencyEXSpinBox SoftClothProperty");
}

void TestPropertyForm::formHasTypedObjects_data()
{
    FormChecks::AddClassColumns();
    using FormChecks::AddClassRow;
    AddClassRow("QVBoxLayout", "verticalLayout_9 verticalLayout_8 verticalLayout_7 verticalLayout_6 verticalLayout "
                               "verticalLayout_2");
    AddClassRow("QGridLayout", "gridLayout");
    AddClassRow("QComboSpinBox", "qtBendingCombospinbox qtInertiaScaleCombospinbox qtStiffnessCombospinbox "
                                 "qtTetherStiffnessCombospinbox");
    AddClassRow("QDoubleSpinBoxEx", "qtDampingDoubleEXSpinBox qtDragDoubleEXSpinBox qtFricionDoubleEXSpinBox "
                                    "qtTetherLimitDoubleEXSpinBox");
    AddClassRow("QSpinBoxEx", "qtMassEXSpinBox qtSolverFrequencyEXSpinBox");
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
    QTest::newRow("mass") << QByteArray("qtMassEXSpinBox") << 0.0 << 10000.0 << 1.0 << QStringLiteral(" kg");
    QTest::newRow("solver frequency") << QByteArray("qtSolverFrequencyEXSpinBox") << 1.0 << 1000.0 << 10.0
                                      << QStringLiteral(" Hz");
    QTest::newRow("friction") << QByteArray("qtFricionDoubleEXSpinBox") << 0.0 << 1.0 << 0.05 << QString();
    QTest::newRow("damping") << QByteArray("qtDampingDoubleEXSpinBox") << 0.0 << 1.0 << 0.05 << QString();
    QTest::newRow("drag") << QByteArray("qtDragDoubleEXSpinBox") << 0.0 << 1.0 << 0.05 << QString();
    QTest::newRow("tether limit") << QByteArray("qtTetherLimitDoubleEXSpinBox") << 0.0 << 10.0 << 0.05 << QString();
    QTest::newRow("stiffness") << QByteArray("qtStiffnessCombospinbox") << -100.0 << 100.0 << 1.0
                               << QStringLiteral(" %");
    QTest::newRow("bending") << QByteArray("qtBendingCombospinbox") << -100.0 << 100.0 << 1.0 << QStringLiteral(" %");
    QTest::newRow("tether stiffness") << QByteArray("qtTetherStiffnessCombospinbox") << 1.0 << 101.0 << 1.0
                                      << QString();
    QTest::newRow("inertia, in tenths") << QByteArray("qtInertiaScaleCombospinbox") << 0.0 << 20.0 << 1.0 << QString();
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
    FormChecks::Help(fixture.Make<Section>(), 10);
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
    FormChecks::TabOrder(section, "qtExpandPushButton qtMassEXSpinBox qtSolverFrequencyEXSpinBox "
                                  "qtFricionDoubleEXSpinBox qtDampingDoubleEXSpinBox qtDragDoubleEXSpinBox "
                                  "qtTetherLimitDoubleEXSpinBox qtTetherStiffnessCombospinbox "
                                  "qtStiffnessCombospinbox qtBendingCombospinbox qtInertiaScaleCombospinbox");
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
