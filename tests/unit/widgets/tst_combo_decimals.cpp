#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>

#include "tests/support/TestCase.h"

#include <QSignalSpy>
#include <QSlider>

#include <limits>

/// What a combo spin box for decimal numbers has beyond one for whole numbers.
class TestComboDecimals : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valueIsRoundedToTheDecimals_data();
    void valueIsRoundedToTheDecimals();
    void fewerDecimalsRoundTheValueAndTellIt();
    void moreDecimalsLeaveTheValue();
    void decimalsSetTheSlidersStep_data();
    void decimalsSetTheSlidersStep();
    void rangeOfAllNumbersIsBearable();
};

void TestComboDecimals::valueIsRoundedToTheDecimals_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("shown");
    QTest::newRow("none") << 0 << 1.6 << 2.0;
    QTest::newRow("one, up") << 1 << 1.26 << 1.3;
    QTest::newRow("one, down") << 1 << 1.24 << 1.2;
    QTest::newRow("three") << 3 << 1.2344 << 1.234;
}

void TestComboDecimals::valueIsRoundedToTheDecimals()
{
    QFETCH(int, decimals);
    QFETCH(double, value);
    QFETCH(double, shown);
    QComboDoubleSpinBox combo;
    combo.SetDecimals(decimals);
    QSignalSpy changes(&combo, &QComboDoubleSpinBox::ValueChanged);
    combo.SetValue(value);
    QCOMPARE(combo.Decimals(), decimals);
    QCOMPARE(combo.Value(), shown);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().first().toDouble(), shown);
}

void TestComboDecimals::fewerDecimalsRoundTheValueAndTellIt()
{
    QComboDoubleSpinBox combo;
    combo.SetValue(1.26);
    QSignalSpy changes(&combo, &QComboDoubleSpinBox::ValueChanged);
    QSignalSpy finished(&combo, &QComboDoubleSpinBox::EditFinished);
    combo.SetDecimals(1);
    QCOMPARE(combo.Value(), 1.3);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().first().toDouble(), 1.3);
    QCOMPARE(finished.size(), 0);
}

void TestComboDecimals::moreDecimalsLeaveTheValue()
{
    QComboDoubleSpinBox combo;
    combo.SetValue(1.26);
    QSignalSpy changes(&combo, &QComboDoubleSpinBox::ValueChanged);
    combo.SetDecimals(4);
    QCOMPARE(combo.Value(), 1.26);
    QCOMPARE(changes.size(), 0);
}

void TestComboDecimals::decimalsSetTheSlidersStep_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("steps");
    QTest::newRow("0") << 0 << 2;
    QTest::newRow("1") << 1 << 20;
    QTest::newRow("3") << 3 << 2000;
}

void TestComboDecimals::decimalsSetTheSlidersStep()
{
    QFETCH(int, decimals);
    QFETCH(int, steps);
    QComboDoubleSpinBox combo;
    combo.SetMinimum(-1);
    combo.SetMaximum(1);
    combo.SetDecimals(decimals);
    auto* slider = combo.findChild<QSlider*>();
    QCOMPARE(slider->maximum() - slider->minimum(), steps);
    QCOMPARE(slider->value(), steps / 2);
    slider->setValue(steps / 2 + 1);
    QCOMPARE(combo.Value(), 2.0 / steps);
}

void TestComboDecimals::rangeOfAllNumbersIsBearable()
{
    constexpr double most = std::numeric_limits<double>::max();
    QComboDoubleSpinBox combo;
    combo.SetMinimum(-most);
    combo.SetMaximum(most);
    auto* slider = combo.findChild<QSlider*>();
    QCOMPARE(slider->value(), slider->maximum() / 2);

    slider->setValue(slider->maximum());
    QCOMPARE(combo.Value(), most);
    slider->setValue(slider->minimum());
    QCOMPARE(combo.Value(), -most);
    slider->setValue(slider->maximum() / 4 * 3);
    QVERIFY(combo.Value() > most * 0.49 && combo.Value() < most * 0.51);
    combo.SetValue(1.25);
    QCOMPARE(combo.Value(), 1.25);
}

SOFTCLOTH_TEST(TestComboDecimals)

#include "tst_combo_decimals.moc"
