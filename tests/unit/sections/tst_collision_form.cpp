#include "sections/SoftClothCollisionSection.h"
#include "tests/support/Children.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/FormChecks.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>

using Section = MV::CSoftClothCollisionSection;

/// The collision section's form and how it gets there.
class TestCollisionForm : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void componentFindsEveryObject();
    void formHasTypedObjects_data();
    void formHasTypedObjects();
    void boxesHaveSensibleRanges_data();
    void boxesHaveSensibleRanges();
    void boxesExplainThemselves();
    void layoutFileIsApplied();
    void tabGoesFromTopToBottom();
    void sectionStandsAtItsPlace();
    void nothingHappensWithoutAHost();
    void missingFormIsReturned();
};

void TestCollisionForm::componentFindsEveryObject()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    CSoftClothCollisionUiComponent component;
    FormChecks::Component(component, *Child<QWidget>(&section, "SoftClothCollision"),
                          "qtCollideWithRigidCheckBox qtSelfCollisionCheckBox "
                          "qtCollideWithRigidMarginDoubleEXSpinBox qtSelfCollisionMarginDoubleEXSpinBox "
                          "qtSectionGroupBox qtSelfCollisionMarginLabel qtSoftRigidCollisionMarginLabel "
                          "qtExpandPushButton SoftClothCollision horizontalLayout_2 verticalLayout_4 "
                          "horizontalLayout verticalLayout_3 verticalLayout verticalLayout_2");
}

void TestCollisionForm::formHasTypedObjects_data()
{
    using FormChecks::AddClassRow;
    FormChecks::AddClassColumns();
    AddClassRow("QCheckBox", "qtCollideWithRigidCheckBox qtSelfCollisionCheckBox");
    AddClassRow("QDoubleSpinBoxEx", "qtCollideWithRigidMarginDoubleEXSpinBox qtSelfCollisionMarginDoubleEXSpinBox");
    AddClassRow("QGroupBox", "qtSectionGroupBox");
    AddClassRow("QLabel", "qtSelfCollisionMarginLabel qtSoftRigidCollisionMarginLabel");
    AddClassRow("QPushButton", "qtExpandPushButton");
    AddClassRow("QWidget", "SoftClothCollision");
    AddClassRow("QHBoxLayout", "horizontalLayout horizontalLayout_2");
    AddClassRow("QVBoxLayout", "verticalLayout verticalLayout_2 verticalLayout_3 verticalLayout_4");
}

void TestCollisionForm::formHasTypedObjects()
{
    SectionFixture fixture;
    FormChecks::Classes(fixture.Make<Section>());
}

void TestCollisionForm::boxesHaveSensibleRanges_data()
{
    FormChecks::AddRangeColumns();
    for (const char* name : {"qtCollideWithRigidMarginDoubleEXSpinBox", "qtSelfCollisionMarginDoubleEXSpinBox"}) {
        QTest::newRow(name) << QByteArray(name) << 0.0 << 1000.0 << 0.1 << QString();
    }
}

void TestCollisionForm::boxesHaveSensibleRanges()
{
    SectionFixture fixture;
    FormChecks::Range(fixture.Make<Section>());
}

void TestCollisionForm::boxesExplainThemselves()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    FormChecks::Help(section, 2);
    for (const char* name : {"qtCollideWithRigidCheckBox", "qtSelfCollisionCheckBox"}) {
        QVERIFY(!Child<QCheckBox>(&section, name)->toolTip().isEmpty());
    }
}

void TestCollisionForm::layoutFileIsApplied()
{
    SectionFixture fixture;
    FormChecks::LayoutFile(fixture.Make<Section>(), "verticalLayout_2", 10);
}

void TestCollisionForm::tabGoesFromTopToBottom()
{
    SectionFixture fixture;
    fixture.Cloth().collision = {true, true, 1, 1};
    Section& section = fixture.Make<Section>();
    section.UpdateUi();
    QVERIFY(fixture.Show(section));
    FormChecks::TabOrder(section, "qtExpandPushButton qtCollideWithRigidCheckBox "
                                  "qtCollideWithRigidMarginDoubleEXSpinBox qtSelfCollisionCheckBox "
                                  "qtSelfCollisionMarginDoubleEXSpinBox");
}

void TestCollisionForm::sectionStandsAtItsPlace()
{
    FormChecks::Place<Section>(32);
}

void TestCollisionForm::nothingHappensWithoutAHost()
{
    FormChecks::WithoutHost<Section>();
}

void TestCollisionForm::missingFormIsReturned()
{
    ExpectWarning(QStringLiteral("SoftClothCollision.ui"));
    FormChecks::MissingForm<Section>();
}

SOFTCLOTH_TEST(TestCollisionForm)
#include "tst_collision_form.moc"
