#include "tests/unit/widgets/ComboTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QMetaProperty>
#include <QSlider>

using UserInput::DragTo;
using UserInput::Focus;
using UserInput::HandleOf;
using UserInput::Wheel;

/// A combo spin box from -100 to 100 whose slider is kept to 0 to 50.
class TestComboSliderLimits : public ComboTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutLimitsTheSliderFollowsTheRange();
    void limitsAreBroughtIntoTheRange_data();
    void limitsAreBroughtIntoTheRange();
    void limitMayBeSetBeforeTheRange();
    void resetLimitFollowsTheRangeAgain_data();
    void resetLimitFollowsTheRangeAgain();
    void limitsChangeNoValue();
    void sliderStepsThroughEveryValueOfItsPart_data();
    void sliderStepsThroughEveryValueOfItsPart();
    void wholeNumbersOfTheSliderAreTheValues();
    void handleStandsAtTheNearerEnd_data();
    void handleStandsAtTheNearerEnd();
    void dragEndsAtTheLimits();
    void valueBeyondIsKeptUntilTheHandleMoves_data();
    void valueBeyondIsKeptUntilTheHandleMoves();
    void movingTheHandleLeadsInside_data();
    void movingTheHandleLeadsInside();
    void spinBoxGoesBeyondTheLimits();

protected:
    void SetUp() override;

private:
    void SetLimits(double minimum, double maximum);
    double SliderMinimum() const { return m_combo->property("sliderMinimum").toDouble(); }
    double SliderMaximum() const { return m_combo->property("sliderMaximum").toDouble(); }
};

void TestComboSliderLimits::SetUp()
{
    ComboTest::SetUp();
    m_combo->setProperty("minimum", -100);
    SetLimits(0, 50);
}

void TestComboSliderLimits::SetLimits(double minimum, double maximum)
{
    m_combo->setProperty("sliderMinimum", minimum);
    m_combo->setProperty("sliderMaximum", maximum);
}

void TestComboSliderLimits::withoutLimitsTheSliderFollowsTheRange()
{
    QWidget* combo = NewCombo(m_window.get());
    combo->setProperty("minimum", -7);
    combo->setProperty("maximum", 9);
    QCOMPARE(combo->property("sliderMinimum").toDouble(), -7.0);
    QCOMPARE(combo->property("sliderMaximum").toDouble(), 9.0);
}

void TestComboSliderLimits::limitsAreBroughtIntoTheRange_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("lowest");
    QTest::addColumn<double>("highest");
    QTest::newRow("inside") << -20.0 << 70.0 << -20.0 << 70.0;
    QTest::newRow("the range") << -100.0 << 100.0 << -100.0 << 100.0;
    QTest::newRow("beyond both ends") << -500.0 << 500.0 << -100.0 << 100.0;
    QTest::newRow("both below") << -500.0 << -400.0 << -100.0 << -100.0;
    QTest::newRow("both above") << 400.0 << 500.0 << 100.0 << 100.0;
    QTest::newRow("crossed") << 30.0 << 20.0 << 30.0 << 30.0;
}

void TestComboSliderLimits::limitsAreBroughtIntoTheRange()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, lowest);
    QFETCH(double, highest);
    SetLimits(minimum, maximum);
    QCOMPARE(SliderMinimum(), lowest);
    QCOMPARE(SliderMaximum(), highest);

    // A slider without any room moves nothing.
    Slider()->setValue(Slider()->maximum());
    QCOMPARE(Value(), lowest == highest ? 5.0 : highest);
    Slider()->setValue(Slider()->minimum());
    QCOMPARE(Value(), lowest == highest ? 5.0 : lowest);
}

void TestComboSliderLimits::limitMayBeSetBeforeTheRange()
{
    SetLimits(-300, 200);
    m_combo->setProperty("minimum", -1000);
    m_combo->setProperty("maximum", 1000);
    QCOMPARE(SliderMinimum(), -300.0);
    QCOMPARE(SliderMaximum(), 200.0);
}

void TestComboSliderLimits::resetLimitFollowsTheRangeAgain_data()
{
    QTest::addColumn<QByteArray>("limit");
    QTest::addColumn<double>("lowest");
    QTest::addColumn<double>("highest");
    QTest::newRow("sliderMinimum") << QByteArray("sliderMinimum") << -100.0 << 50.0;
    QTest::newRow("sliderMaximum") << QByteArray("sliderMaximum") << 0.0 << 100.0;
}

void TestComboSliderLimits::resetLimitFollowsTheRangeAgain()
{
    QFETCH(QByteArray, limit);
    const QMetaObject* meta = m_combo->metaObject();
    QVERIFY(meta->property(meta->indexOfProperty(limit)).reset(m_combo));
    QTEST(SliderMinimum(), "lowest");
    QTEST(SliderMaximum(), "highest");
    Slider()->setValue(Slider()->minimum());
    QTEST(Value(), "lowest");
    Slider()->setValue(Slider()->maximum());
    QTEST(Value(), "highest");
}

void TestComboSliderLimits::limitsChangeNoValue()
{
    SetLimits(20, 30);
    QCOMPARE(Value(), 5.0);
    QCOMPARE(BoxValue(), 5.0);
    QCOMPARE(m_combo->property("minimum").toDouble(), -100.0);
    QCOMPARE(m_combo->property("maximum").toDouble(), 100.0);
    QVERIFY(m_changes.isEmpty());
    QCOMPARE(m_finished, 0);
}

void TestComboSliderLimits::sliderStepsThroughEveryValueOfItsPart_data()
{
    QTest::addColumn<double>("widest");
    QTest::newRow("narrow range") << 100.0;
    QTest::newRow("range too wide for a step for every value") << 2e9;
}

void TestComboSliderLimits::sliderStepsThroughEveryValueOfItsPart()
{
    QFETCH(double, widest);
    QFETCH_GLOBAL(bool, isDouble);
    const double finest = isDouble ? 0.01 : 1.0;
    m_combo->setProperty("minimum", -widest);
    m_combo->setProperty("maximum", widest);
    SetLimits(3 * finest, 9 * finest);
    SetValue(widest);
    QCOMPARE(Slider()->value(), Slider()->maximum());
    QCOMPARE(Slider()->maximum() - Slider()->minimum(), 6);
    for (int step = 5; step >= 0; --step) {
        Slider()->setValue(Slider()->minimum() + step);
        QVERIFY(qAbs(Value() - (step + 3) * finest) < finest / 1000);
        QCOMPARE(BoxValue(), Value());
    }
}

/// A screen reader says the slider's own numbers.
void TestComboSliderLimits::wholeNumbersOfTheSliderAreTheValues()
{
    SetLimits(1, 51);
    SetValue(7);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(Slider());
    QVERIFY(accessible && accessible->valueInterface());
    if (QLatin1String(m_combo->metaObject()->className()) == QLatin1String("QComboSpinBox")) {
        QCOMPARE(accessible->valueInterface()->minimumValue().toInt(), 1);
        QCOMPARE(accessible->valueInterface()->maximumValue().toInt(), 51);
        QCOMPARE(accessible->valueInterface()->currentValue().toInt(), 7);
    }
    // What a screen reader sets is the value.
    const double middle = (Slider()->minimum() + Slider()->maximum()) / 2;
    accessible->valueInterface()->setCurrentValue(middle);
    QCOMPARE(m_combo->property("value").toDouble(), 26.0);
}

void TestComboSliderLimits::handleStandsAtTheNearerEnd_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("part");
    QTest::newRow("below") << -13.0 << 0.0;
    QTest::newRow("lowest of the range") << -100.0 << 0.0;
    QTest::newRow("lower limit") << 0.0 << 0.0;
    QTest::newRow("inside") << 25.0 << 0.5;
    QTest::newRow("upper limit") << 50.0 << 1.0;
    QTest::newRow("above") << 80.0 << 1.0;
}

void TestComboSliderLimits::handleStandsAtTheNearerEnd()
{
    QFETCH(double, value);
    QFETCH(double, part);
    SetValue(value);
    QCOMPARE(Value(), value);
    QCOMPARE(BoxValue(), value);
    QCOMPARE(m_changes, QVector<double>({value}));
    QCOMPARE(Slider()->value() - Slider()->minimum(), qRound(part * (Slider()->maximum() - Slider()->minimum())));
}

void TestComboSliderLimits::dragEndsAtTheLimits()
{
    PressHandle();
    DragTo(Slider(), QPoint(Slider()->width() + 50, 0));
    QCOMPARE(Value(), 50.0);
    DragTo(Slider(), QPoint(-50, 0));
    QCOMPARE(Value(), 0.0);
    Release(QPoint(0, 0));
    QCOMPARE(m_finished, 1);
}

void TestComboSliderLimits::valueBeyondIsKeptUntilTheHandleMoves_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<Qt::Key>("outward");
    QTest::newRow("below") << -13.0 << Qt::Key_Left;
    QTest::newRow("above") << 80.0 << Qt::Key_Right;
}

void TestComboSliderLimits::valueBeyondIsKeptUntilTheHandleMoves()
{
    QFETCH(double, value);
    QFETCH(Qt::Key, outward);
    SetValue(value);
    m_changes.clear();

    QVERIFY(Focus(Slider()));
    PressHandle();
    Release(HandleOf(Slider()).center());
    QTest::keyClick(Slider(), outward);
    Wheel(Slider(), outward == Qt::Key_Left ? -1 : 1);
    QVERIFY(Focus(Box()));
    m_combo->setProperty("singleStep", 2);
    m_combo->setProperty("maximum", 90);
    SetLimits(1, 49);
    m_window->FocusElsewhere();

    QCOMPARE(Value(), value);
    QCOMPARE(BoxValue(), value);
    QVERIFY(m_changes.isEmpty());
    QCOMPARE(m_finished, 0);
}

void TestComboSliderLimits::movingTheHandleLeadsInside_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<double>("inside");
    QTest::newRow("step up") << -13.0 << Qt::Key_Right << 1.0;
    QTest::newRow("step down") << 80.0 << Qt::Key_Left << 49.0;
    QTest::newRow("page up") << -13.0 << Qt::Key_PageUp << 5.0;
    QTest::newRow("page down") << 80.0 << Qt::Key_PageDown << 45.0;
    QTest::newRow("press beside the handle") << -13.0 << Qt::Key_unknown << 25.0;
}

void TestComboSliderLimits::movingTheHandleLeadsInside()
{
    QFETCH(double, value);
    QFETCH(Qt::Key, key);
    QFETCH(double, inside);
    SetValue(value);
    m_changes.clear();
    QVERIFY(Focus(Slider()));
    if (key == Qt::Key_unknown) {
        QTest::mouseClick(Slider(), Qt::LeftButton, Qt::NoModifier, Away());
        QVERIFY(qAbs(Value() - inside) < 1);
    } else {
        QTest::keyClick(Slider(), key);
        QCOMPARE(Value(), inside);
    }
    QCOMPARE(m_changes, QVector<double>({Value()}));
    QCOMPARE(m_finished, 1);
}

void TestComboSliderLimits::spinBoxGoesBeyondTheLimits()
{
    QVERIFY(Focus(Box()));
    Type(QStringLiteral("-13"));
    QTest::keyClick(Box(), Qt::Key_Return);
    QCOMPARE(Value(), -13.0);
    QCOMPARE(m_finished, 1);
    QTest::keyClick(Box(), Qt::Key_Down);
    QCOMPARE(Value(), -14.0);
    QCOMPARE(m_finished, 2);
    QCOMPARE(Slider()->value(), Slider()->minimum());
    m_window->FocusElsewhere();
    QCOMPARE(Value(), -14.0);
    QCOMPARE(m_finished, 2);
}

SOFTCLOTH_TEST(TestComboSliderLimits)

#include "tst_combo_slider_limits.moc"
