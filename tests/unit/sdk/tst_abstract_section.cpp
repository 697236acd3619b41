#include <MVPluginQt/AbstractSection.h>

#include "tests/support/TestCase.h"

#include <QGroupBox>
#include <QIcon>
#include <QImage>
#include <QPushButton>

#include <memory>

namespace {

class Section : public MV::CAbstractSection
{
public:
    using MV::CAbstractSection::SetSectionWidgets;

    int GetSectionPage() override { return 4; }
    int GetSectionOrder() override { return 16; }
    int GetSectionApplications() override { return 7; }
    QWidget* GetSectionWidget() override { return nullptr; }
};

} // namespace

/// A section with its expand button and group box in a visible window.
class TestAbstractSection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sectionStartsExpanded();
    void stateIsKeptWhileThereAreNoWidgets_data();
    void stateIsKeptWhileThereAreNoWidgets();
    void stateIsShownByBothWidgets();
    void widgetsHandedOverTakeTheState_data();
    void widgetsHandedOverTakeTheState();
    void clickFoldsAndUnfolds();
    void arrowTellsTheState();
    void oneWidgetAloneIsEnough();
    void otherWidgetsReplaceTheFirst();

    void ableToShowWithItsGroupBoxOnly();
    void enableSectionConcernsTheGroupBox();
    void disabledSectionFoldsAllTheSame();

    void widgetsMayGoFirst();
    void sectionMayGoFirst();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    std::unique_ptr<QWidget> m_window;
    QPushButton* m_button = nullptr;
    QGroupBox* m_box = nullptr;
    std::unique_ptr<Section> m_section;
};

void TestAbstractSection::SetUp()
{
    m_window = std::make_unique<QWidget>();
    m_button = new QPushButton(m_window.get());
    m_box = new QGroupBox(m_window.get());
    m_box->move(0, 50);
    m_window->show();
    m_section = std::make_unique<Section>();
}

void TestAbstractSection::TearDown()
{
    m_section.reset();
    m_window.reset();
}

void TestAbstractSection::sectionStartsExpanded()
{
    QVERIFY(m_section->GetSectionExpandState());
    m_section->SetSectionWidgets(m_button, m_box);
    QVERIFY(m_section->GetSectionExpandState());
    QVERIFY(m_button->isCheckable());
    QVERIFY(m_button->isChecked());
    QVERIFY(m_box->isVisible());
}

void TestAbstractSection::stateIsKeptWhileThereAreNoWidgets_data()
{
    QTest::addColumn<bool>("handOverNull");
    QTest::newRow("none handed over") << false;
    QTest::newRow("null handed over") << true;
}

void TestAbstractSection::stateIsKeptWhileThereAreNoWidgets()
{
    QFETCH(bool, handOverNull);
    if (handOverNull) {
        m_section->SetSectionWidgets(nullptr, nullptr);
    }
    m_section->SetSectionExpandState(false);
    QVERIFY(!m_section->GetSectionExpandState());
    m_section->SetSectionExpandState(true);
    QVERIFY(m_section->GetSectionExpandState());
}

void TestAbstractSection::stateIsShownByBothWidgets()
{
    m_section->SetSectionWidgets(m_button, m_box);
    m_section->SetSectionExpandState(false);
    QVERIFY(!m_button->isChecked());
    QVERIFY(!m_box->isVisible());
    QVERIFY(m_button->isVisible());
    m_section->SetSectionExpandState(true);
    QVERIFY(m_button->isChecked());
    QVERIFY(m_box->isVisible());
}

void TestAbstractSection::widgetsHandedOverTakeTheState_data()
{
    QTest::addColumn<bool>("expanded");
    QTest::newRow("expanded") << true;
    QTest::newRow("folded") << false;
}

void TestAbstractSection::widgetsHandedOverTakeTheState()
{
    QFETCH(bool, expanded);
    m_button->setCheckable(true);
    m_button->setChecked(!expanded);
    m_box->setVisible(!expanded);
    m_section->SetSectionExpandState(expanded);
    m_section->SetSectionWidgets(m_button, m_box);
    QCOMPARE(m_section->GetSectionExpandState(), expanded);
    QCOMPARE(m_button->isChecked(), expanded);
    QCOMPARE(m_box->isVisible(), expanded);
}

void TestAbstractSection::clickFoldsAndUnfolds()
{
    m_section->SetSectionWidgets(m_button, m_box);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_section->GetSectionExpandState());
    QVERIFY(!m_box->isVisible());
    QTest::keyClick(m_button, Qt::Key_Space);
    QVERIFY(m_section->GetSectionExpandState());
    QVERIFY(m_box->isVisible());
}

void TestAbstractSection::arrowTellsTheState()
{
    m_section->SetSectionWidgets(m_button, m_box);
    const QImage unfolded = m_button->icon().pixmap(m_button->iconSize()).toImage();
    m_section->SetSectionExpandState(false);
    const QImage folded = m_button->icon().pixmap(m_button->iconSize()).toImage();
    QVERIFY(!folded.isNull());
    QVERIFY(folded != unfolded);
    m_section->SetSectionExpandState(true);
    QCOMPARE(m_button->icon().pixmap(m_button->iconSize()).toImage(), unfolded);
}

void TestAbstractSection::oneWidgetAloneIsEnough()
{
    m_section->SetSectionWidgets(nullptr, m_box);
    m_section->SetSectionExpandState(false);
    QVERIFY(!m_box->isVisible());

    m_section->SetSectionWidgets(m_button, nullptr);
    QVERIFY(!m_button->isChecked());
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(m_section->GetSectionExpandState());
    QVERIFY(!m_box->isVisible());
}

void TestAbstractSection::otherWidgetsReplaceTheFirst()
{
    m_section->SetSectionWidgets(m_button, m_box);
    auto* button = new QPushButton(m_window.get());
    m_section->SetSectionWidgets(button, m_box);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(m_section->GetSectionExpandState());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!m_section->GetSectionExpandState());
}

void TestAbstractSection::ableToShowWithItsGroupBoxOnly()
{
    QVERIFY(!m_section->AbleToShowSection());
    m_section->SetSectionWidgets(m_button, nullptr);
    QVERIFY(!m_section->AbleToShowSection());
    m_section->SetSectionWidgets(m_button, m_box);
    QVERIFY(m_section->AbleToShowSection());
    m_section->SetSectionExpandState(false);
    QVERIFY(m_section->AbleToShowSection());
    delete m_box;
    QVERIFY(!m_section->AbleToShowSection());
}

void TestAbstractSection::enableSectionConcernsTheGroupBox()
{
    m_section->EnableSection(false);
    m_section->SetSectionWidgets(m_button, m_box);
    QVERIFY(m_box->isEnabled());
    m_section->EnableSection(false);
    QVERIFY(!m_box->isEnabled());
    QVERIFY(m_button->isEnabled());
    QVERIFY(m_section->GetSectionExpandState());
    m_section->EnableSection(true);
    QVERIFY(m_box->isEnabled());
}

void TestAbstractSection::disabledSectionFoldsAllTheSame()
{
    m_section->SetSectionWidgets(m_button, m_box);
    m_section->EnableSection(false);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_section->GetSectionExpandState());
    QVERIFY(!m_box->isVisible());
}

void TestAbstractSection::widgetsMayGoFirst()
{
    m_section->SetSectionWidgets(m_button, m_box);
    m_window.reset();
    m_section->EnableSection(true);
    m_section->SetSectionExpandState(false);
    QVERIFY(!m_section->GetSectionExpandState());
    m_section->SetSectionWidgets(nullptr, nullptr);
    QVERIFY(!m_section->GetSectionExpandState());
}

void TestAbstractSection::sectionMayGoFirst()
{
    m_section->SetSectionWidgets(m_button, m_box);
    m_section.reset();
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_button->isChecked());
    QVERIFY(m_box->isVisible());
}

SOFTCLOTH_TEST(TestAbstractSection)

#include "tst_abstract_section.moc"
