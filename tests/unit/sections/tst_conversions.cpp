#include "sections/Rounding.h"
#include "sections/SoftClothConversions.h"
#include "tests/support/TestCase.h"

#include <limits>

/// What a box shows against what the host holds. Floats are compared bit by bit unless a row says otherwise.
class TestConversions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void truncationDropsDecimals_data();
    void truncationDropsDecimals();
    void roundingGoesHalfAwayFromZero_data();
    void roundingGoesHalfAwayFromZero();
    void wholeNumberKeepsItsLow32Bits_data();
    void wholeNumberKeepsItsLow32Bits();
    void wholeNumberOfAProfileIsUnsigned();
    void decimalPassesThroughSinglePrecision();
    void percentToHost_data();
    void percentToHost();
    void hostToPercent_data();
    void hostToPercent();
    void tenthsToHost_data();
    void tenthsToHost();
    void hostToTenths_data();
    void hostToTenths();
    void wholeFloatTruncates_data();
    void wholeFloatTruncates();
    void everyBoxValueComesBack();
};

void TestConversions::truncationDropsDecimals_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("zero") << 0.0F << 0;
    QTest::newRow("below one") << 0.999F << 0;
    QTest::newRow("positive") << 2.7F << 2;
    QTest::newRow("negative") << -2.7F << -2;
    QTest::newRow("largest that fits") << 2147483520.0F << 2147483520;
    QTest::newRow("too large") << 1.0e20F << 2147483520;
    QTest::newRow("too small") << -1.0e20F << std::numeric_limits<int>::min();
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << 2147483520;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << 0;
}

void TestConversions::truncationDropsDecimals()
{
    QFETCH(float, value);
    QTEST(MV::TruncateToInt(value), "expected");
}

void TestConversions::roundingGoesHalfAwayFromZero_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("zero") << 0.0F << 0;
    QTest::newRow("below half") << 0.49F << 0;
    QTest::newRow("half") << 0.5F << 1;
    QTest::newRow("even and a half") << 2.5F << 3;
    QTest::newRow("odd and a half") << 87.5F << 88;
    QTest::newRow("below minus half") << -0.49F << 0;
    QTest::newRow("minus half") << -0.5F << -1;
    QTest::newRow("minus even and a half") << -12.5F << -13;
}

void TestConversions::roundingGoesHalfAwayFromZero()
{
    QFETCH(float, value);
    QTEST(MV::RoundHalfAway(value), "expected");
}

void TestConversions::wholeNumberKeepsItsLow32Bits_data()
{
    QTest::addColumn<qint64>("host");
    QTest::addColumn<int>("box");
    QTest::newRow("small") << qint64(240) << 240;
    QTest::newRow("negative") << qint64(-5) << -5;
    QTest::newRow("beyond 32 bits") << (qint64(7) << 32) + 16 << 16;
    QTest::newRow("highest of the low bits set") << qint64(0xFFFFFFFF) << -1;
}

void TestConversions::wholeNumberKeepsItsLow32Bits()
{
    QFETCH(qint64, host);
    QFETCH(int, box);
    QCOMPARE(MV::WholeNumber::ToBox(host), box);
    QCOMPARE(MV::WholeNumber::ToHost(box), qint64(box));
}

void TestConversions::wholeNumberOfAProfileIsUnsigned()
{
    QCOMPARE(MV::WholeNumber::ToHost(quint32(0xFFFFFFFF)), qint64(4294967295));
}

void TestConversions::decimalPassesThroughSinglePrecision()
{
    QVERIFY(MV::Decimal::ToHost(0.1) == 0.1F);
    QVERIFY(MV::Decimal::ToHost(0.1F) == 0.1F);
    QVERIFY(MV::Decimal::ToBox(0.1F) == 0.100000001490116119384765625);
}

void TestConversions::percentToHost_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<float>("host");
    QTest::newRow("0") << 0 << 1.0F;
    QTest::newRow("50") << 50 << 0.5F;
    QTest::newRow("75") << 75 << 0.25F;
    QTest::newRow("99, in single precision") << 99 << 0.0100000501F;
    QTest::newRow("100") << 100 << 0.0F;
    QTest::newRow("below the range") << -100 << 2.0F;
    QTest::newRow("above the range") << 150 << -0.5F;
}

void TestConversions::percentToHost()
{
    QFETCH(int, percent);
    QFETCH(float, host);
    QVERIFY(MV::TakenPercent::ToHost(percent) == host);
    QVERIFY(MV::TakenPercentFromOne::ToHost(percent + 1) == host);
}

void TestConversions::hostToPercent_data()
{
    QTest::addColumn<float>("host");
    QTest::addColumn<int>("percent");
    QTest::newRow("1") << 1.0F << 0;
    QTest::newRow("0.5") << 0.5F << 50;
    QTest::newRow("0") << 0.0F << 100;
    QTest::newRow("half rounds up") << 0.125F << 88;
    QTest::newRow("half below zero rounds down") << 1.125F << -13;
    QTest::newRow("half only in single precision") << 0.115F << 89;
    QTest::newRow("rounds down") << 0.996F << 0;
    QTest::newRow("rounds up") << 0.994F << 1;
}

void TestConversions::hostToPercent()
{
    QFETCH(float, host);
    QFETCH(int, percent);
    QCOMPARE(MV::TakenPercent::ToBox(host), percent);
    QCOMPARE(MV::TakenPercentFromOne::ToBox(host), percent + 1);
}

void TestConversions::tenthsToHost_data()
{
    QTest::addColumn<float>("tenths");
    QTest::addColumn<float>("host");
    QTest::newRow("0") << 0.0F << 0.0F;
    QTest::newRow("5") << 5.0F << 0.5F;
    QTest::newRow("7") << 7.0F << 0.7F;
    QTest::newRow("10") << 10.0F << 1.0F;
    QTest::newRow("15") << 15.0F << 1.5F;
    QTest::newRow("-4") << -4.0F << -0.4F;
    QTest::newRow("12.5, which only a profile can hold") << 12.5F << 1.25F;
}

void TestConversions::tenthsToHost()
{
    QFETCH(float, tenths);
    QFETCH(float, host);
    QVERIFY(MV::Tenths::ToHost(tenths) == host);
    if (float(int(tenths)) == tenths) {
        QVERIFY(MV::Tenths::ToHost(int(tenths)) == host);
    }
}

void TestConversions::hostToTenths_data()
{
    QTest::addColumn<float>("host");
    QTest::addColumn<int>("tenths");
    QTest::newRow("0") << 0.0F << 0;
    QTest::newRow("truncated") << 0.375F << 3;
    QTest::newRow("whole only in single precision") << 0.7F << 7;
    QTest::newRow("below one") << 0.99F << 9;
    QTest::newRow("1") << 1.0F << 10;
    QTest::newRow("above one") << 1.25F << 12;
    QTest::newRow("negative") << -0.375F << -3;
}

void TestConversions::hostToTenths()
{
    QFETCH(float, host);
    QTEST(MV::Tenths::ToBox(host), "tenths");
}

void TestConversions::wholeFloatTruncates_data()
{
    QTest::addColumn<float>("host");
    QTest::addColumn<int>("box");
    QTest::newRow("0") << 0.0F << 0;
    QTest::newRow("positive") << 2.7F << 2;
    QTest::newRow("negative") << -2.7F << -2;
    QTest::newRow("whole") << 981.0F << 981;
}

void TestConversions::wholeFloatTruncates()
{
    QFETCH(float, host);
    QFETCH(int, box);
    QCOMPARE(MV::WholeFloat::ToBox(host), box);
    QVERIFY(MV::WholeFloat::ToHost(box) == float(box));
}

void TestConversions::everyBoxValueComesBack()
{
    for (int value = -1000; value <= 1000; ++value) {
        QCOMPARE(MV::TakenPercent::ToBox(MV::TakenPercent::ToHost(value)), value);
        QCOMPARE(MV::TakenPercentFromOne::ToBox(MV::TakenPercentFromOne::ToHost(value)), value);
        QCOMPARE(MV::Tenths::ToBox(MV::Tenths::ToHost(value)), value);
        QCOMPARE(MV::WholeFloat::ToBox(MV::WholeFloat::ToHost(value)), value);
    }
}

SOFTCLOTH_TEST(TestConversions)
#include "tst_conversions.moc"
