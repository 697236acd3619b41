#include "sections/MultiLevelSlider.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/Children.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/FormChecks.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

using Record = MV::SoftClothWindData;
using Section = MV::CSoftClothWindSection;
using Slider = MV::CMultiLevelSlider;

/// The wind section's form, the slider in it, and how they get there.
class TestWindForm : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void componentFindsEveryObjectInOrder();
    void formHasTypedObjects_data();
    void formHasTypedObjects();
    void boxesHaveSensibleRanges_data();
    void boxesHaveSensibleRanges();
    void boxesExplainThemselves();
    void layoutFileIsApplied();
    void freshFormShowsTheHostsDefaults();
    void tabGoesThroughTheBoxesFromTopToBottom();
    void sectionStandsAtItsPlace();
    void plugInCreatesTheSectionsInTheirPlaces();
    void nothingHappensWithoutAHost();
    void missingFormIsReturned();
    void sliderIsSetUpInItsContainer();
    void sliderImagesHaveOneSize_data();
    void sliderImagesHaveOneSize();
    void handlesShowTheirStateInTheScreensResolution_data();
    void handlesShowTheirStateInTheScreensResolution();
    void lineIsLightGray();
};

namespace {

Slider& SliderOf(const QWidget& section)
{
    return *Child<QWidget>(&section, "qtRandomFactorWidget")->findChild<Slider*>();
}

/// Moves the mouse to a point of the slider, no button held.
void HoverAt(Slider& slider, const QPoint& position)
{
    QMouseEvent move(QEvent::MouseMove, position, slider.mapToGlobal(position), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&slider, &move);
}

} // namespace

void TestWindForm::componentFindsEveryObjectInOrder()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    CSoftClothWindSettingUiComponent component;
    FormChecks::Component(
        component, *Child<QWidget>(&section, "SoftClothWindSetting"),
        "verticalLayout_5 verticalLayout_6 horizontalLayout_8 horizontalLayout_7 horizontalLayout_6 "
        "horizontalLayout_5 verticalLayout_10 verticalLayout_3 verticalLayout_8 horizontalLayout_3 "
        "horizontalLayout_2 horizontalLayout horizontalLayout_4 verticalLayout_9 verticalLayout_2 verticalLayout_7 "
        "verticalLayout_4 verticalLayout qtFrequencyCombodoublespinbox line qtSectionGroupBox label_10 label_11 "
        "label_12 label_13 label_2 label_3 label_4 label_5 label_6 label_7 label_8 label_9 qtExpandPushButton "
        "qtExternalXEXSpinBox qtExternalYEXSpinBox qtExternalZEXSpinBox qtRandomXEXSpinBox qtRandomYEXSpinBox "
        "qtRandomZEXSpinBox SoftClothWindSetting qtRandomFactorWidget");
}

void TestWindForm::formHasTypedObjects_data()
{
    using FormChecks::AddClassRow;
    FormChecks::AddClassColumns();
    AddClassRow("QVBoxLayout", "verticalLayout verticalLayout_2 verticalLayout_3 verticalLayout_4 verticalLayout_5 "
                               "verticalLayout_6 verticalLayout_7 verticalLayout_8 verticalLayout_9 "
                               "verticalLayout_10");
    AddClassRow("QHBoxLayout", "horizontalLayout horizontalLayout_2 horizontalLayout_3 horizontalLayout_4 "
                               "horizontalLayout_5 horizontalLayout_6 horizontalLayout_7 horizontalLayout_8");
    AddClassRow("QComboDoubleSpinBox", "qtFrequencyCombodoublespinbox");
    AddClassRow("QFrame", "line");
    AddClassRow("QGroupBox", "qtSectionGroupBox");
    AddClassRow("QLabel", "label_10 label_11 label_12 label_13 label_2 label_3 label_4 label_5 label_6 label_7 "
                          "label_8 label_9");
    AddClassRow("QPushButton", "qtExpandPushButton");
    AddClassRow("QSpinBoxEx", "qtExternalXEXSpinBox qtExternalYEXSpinBox qtExternalZEXSpinBox qtRandomXEXSpinBox "
                              "qtRandomYEXSpinBox qtRandomZEXSpinBox");
    AddClassRow("QWidget", "SoftClothWindSetting qtRandomFactorWidget");
}

void TestWindForm::formHasTypedObjects()
{
    SectionFixture fixture;
    FormChecks::Classes(fixture.Make<Section>());
}

void TestWindForm::boxesHaveSensibleRanges_data()
{
    FormChecks::AddRangeColumns();
    for (const char* name : {"qtExternalXEXSpinBox", "qtExternalYEXSpinBox", "qtExternalZEXSpinBox",
                             "qtRandomXEXSpinBox", "qtRandomYEXSpinBox", "qtRandomZEXSpinBox"}) {
        QTest::newRow(name) << QByteArray(name) << -10000.0 << 10000.0 << 10.0 << QString();
    }
    QTest::newRow("frequency") << QByteArray("qtFrequencyCombodoublespinbox") << 0.0 << 20.0 << 0.1
                               << QStringLiteral(" Hz");
}

void TestWindForm::boxesHaveSensibleRanges()
{
    SectionFixture fixture;
    FormChecks::Range(fixture.Make<Section>());
}

void TestWindForm::boxesExplainThemselves()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    FormChecks::Help(section, 7);
    auto* container = Child<QWidget>(&section, "qtRandomFactorWidget");
    QVERIFY(!container->toolTip().isEmpty());
    QVERIFY(!SliderOf(section).accessibleName().isEmpty());
    QCOMPARE(Child<QLabel>(&section, "label_11")->buddy(), container);
    QCOMPARE(container->focusProxy(), &SliderOf(section));
}

void TestWindForm::layoutFileIsApplied()
{
    SectionFixture fixture;
    FormChecks::LayoutFile(fixture.Make<Section>(), "verticalLayout_9", 0);
}

void TestWindForm::freshFormShowsTheHostsDefaults()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    const QVariantList fresh = FormChecks::ShownByAll(section);
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    QCOMPARE(FormChecks::ShownByAll(section), fresh);
}

void TestWindForm::tabGoesThroughTheBoxesFromTopToBottom()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QVERIFY(fixture.Show(section));
    FormChecks::TabOrder(section, "qtExpandPushButton qtExternalXEXSpinBox qtExternalYEXSpinBox "
                                  "qtExternalZEXSpinBox qtRandomXEXSpinBox qtRandomYEXSpinBox qtRandomZEXSpinBox "
                                  "qtFrequencyCombodoublespinbox qtRandomFactorWidget");
}

void TestWindForm::sectionStandsAtItsPlace()
{
    FormChecks::Place<Section>(48);
}

void TestWindForm::plugInCreatesTheSectionsInTheirPlaces()
{
    SectionFixture fixture;
    QWidget mainWindow;
    fixture.host.SetMainWindow(&mainWindow);
    fixture.plugin.SetCurrentApp(MV::ECompatibleApp::Both);
    QCOMPARE(fixture.plugin.Initialize(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), QString(), &fixture.host),
             BF::Results::Success);
    QList<MV::CSectionInterface*> sections;
    fixture.plugin.GetSectionList(sections);
    QCOMPARE(sections.size(), 4);
    QCOMPARE(sections.at(1)->GetSectionOrder(), 16);
    QCOMPARE(sections.at(2)->GetSectionOrder(), 32);
    QCOMPARE(sections.at(3)->GetSectionOrder(), 48);
    QVERIFY(sections.at(1)->AbleToShowSection());
    QVERIFY(sections.at(3)->AbleToShowSection());
}

void TestWindForm::nothingHappensWithoutAHost()
{
    FormChecks::WithoutHost<Section>();
}

void TestWindForm::missingFormIsReturned()
{
    ExpectWarning(QStringLiteral("SoftClothWindSetting.ui"));
    FormChecks::MissingForm<Section>();
}

void TestWindForm::sliderIsSetUpInItsContainer()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    Slider& slider = SliderOf(section);
    QCOMPARE(slider.LevelValue(0), 0);
    QCOMPARE(slider.LevelValue(1), 10);
    QCOMPARE(slider.LevelValue(2), 0);
    QCOMPARE(slider.SelectedIndex(), std::size_t(1));
    QCOMPARE(slider.minimumSize(), QSize(30, 30));
    QCOMPARE(slider.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(slider.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QVERIFY(slider.isEnabled());
    QVERIFY(!slider.isHidden());
    QVERIFY(slider.parentWidget()->layout()->indexOf(&slider) >= 0);
    QVERIFY(fixture.Show(section));
    QCOMPARE(slider.height(), 30);
}

void TestWindForm::sliderImagesHaveOneSize_data()
{
    QTest::addColumn<QString>("name");
    for (const char* state : {"unselect", "select", "hover", "disable"}) {
        QTest::newRow(state) << QString::fromLatin1(state);
    }
}

void TestWindForm::sliderImagesHaveOneSize()
{
    QFETCH(QString, name);
    const SectionFixture fixture;
    const QString path = QStringLiteral(":/plugin/MVPhysicsSoftClothSection/icon/BTN_Diamond_") + name;
    const QPixmap plain(path + QStringLiteral(".png"));
    QCOMPARE(plain.size(), QSize(17, 17));
    QCOMPARE(plain.devicePixelRatio(), 1.0);
    const QPixmap fine(path + QStringLiteral("@2x.png"));
    QCOMPARE(fine.size(), QSize(34, 34));
    QCOMPARE(fine.devicePixelRatio(), 2.0);
}

void TestWindForm::handlesShowTheirStateInTheScreensResolution_data()
{
    QTest::addColumn<int>("handle");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("state");
    QTest::newRow("not selected") << 0 << false << true << QStringLiteral("unselect");
    QTest::newRow("selected") << 1 << false << true << QStringLiteral("select");
    QTest::newRow("not selected, under the cursor") << 0 << true << true << QStringLiteral("hover");
    QTest::newRow("selected, under the cursor") << 1 << true << true << QStringLiteral("select");
    QTest::newRow("not selected, section disabled") << 0 << true << false << QStringLiteral("disable");
    QTest::newRow("selected, section disabled") << 1 << false << false << QStringLiteral("disable");
}

void TestWindForm::handlesShowTheirStateInTheScreensResolution()
{
    QFETCH(int, handle);
    QFETCH(bool, hovered);
    QFETCH(bool, enabled);
    QFETCH(QString, state);
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QVERIFY(fixture.Show(section));
    Slider& slider = SliderOf(section);
    const int left = slider.LevelPosition(std::size_t(handle));
    if (hovered) {
        HoverAt(slider, QPoint(left + 8, 16));
    }
    section.EnableSection(enabled);
    const int ratio = qRound(qApp->devicePixelRatio());
    const QString variant = ratio == 1 ? QStringLiteral(".png") : QStringLiteral("@2x.png");
    const QImage expected(QStringLiteral(":/plugin/MVPhysicsSoftClothSection/icon/BTN_Diamond_") + state + variant);
    const QImage drawn = slider.grab().toImage();
    const QPoint corner(left * ratio, 8 * ratio);
    int compared = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            if (expected.pixelColor(x, y).alpha() == 255) {
                QCOMPARE(drawn.pixel(corner + QPoint(x, y)), expected.pixel(x, y));
                ++compared;
            }
        }
    }
    QVERIFY(compared > 100 * ratio * ratio);
}

void TestWindForm::lineIsLightGray()
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QVERIFY(fixture.Show(section));
    Slider& slider = SliderOf(section);
    const QImage drawn = slider.grab().toImage();
    const int ratio = qRound(qApp->devicePixelRatio());
    // A hair line is one of the screen's pixels thick; it lies somewhere in its row.
    QList<QColor> colors;
    for (int y = 5 * ratio; y < 6 * ratio; ++y) {
        colors.append(drawn.pixelColor(drawn.width() / 2, y));
    }
    QVERIFY(colors.contains(QColor(200, 200, 200)));
}

SOFTCLOTH_TEST(TestWindForm)
#include "tst_wind_form.moc"
