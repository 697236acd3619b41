#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include "tests/support/TestCase.h"
#include "tests/unit/widgets/UserInput.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>

/// Numbers as people type them: with a point or a comma, whatever the locale, and without thousands separators.
class TestTypedNumbers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bothSeparatorsAreTheDecimalPoint_data();
    void bothSeparatorsAreTheDecimalPoint();
    void comboTakesBothSeparators();
    void prefixAndSuffixStayWhileTyping();
    void numberBelowTheRangeIsNotReadWithoutItsSeparator();
    void secondSeparatorIsRefused_data();
    void secondSeparatorIsRefused();
    void thousandsSeparatorIsRefused_data();
    void thousandsSeparatorIsRefused();
    void pastedThousandsAreRefused();
    void shownThousandsSeparatorsAreRead();
    void wholeNumbersTakeNoSeparator_data();
    void wholeNumbersTakeNoSeparator();
    void escapeTakesEitherSeparatorBack();
};

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale french(QLocale::French, QLocale::France);
const QLocale swiss(QLocale::German, QLocale::Switzerland);

/// Types \p text over all that is there, also what is on no American keyboard.
void TypeOver(QAbstractSpinBox& box, const QString& text)
{
    box.selectAll();
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

/// A box for decimal numbers from 0 to 9999 in an active window.
struct DecimalFixture
{
    explicit DecimalFixture(const QLocale& locale)
        : box(new QDoubleSpinBoxEx(&window))
        , commits(box, &QDoubleSpinBoxEx::RecordEditingValue)
    {
        box->setLocale(locale);
        box->setKeyboardTracking(false);
        box->setMaximum(9999.0);
        window.Add(box);
        active = window.Activate() && UserInput::Focus(box);
    }

    QString Text() const { return box->findChild<QLineEdit*>()->text(); }
    void Type(const QString& text) const { TypeOver(*box, text); }
    void Enter(const QString& text) const
    {
        Type(text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    UserInput::Window window;
    QDoubleSpinBoxEx* box;
    QSignalSpy commits;
    bool active = false;
};

} // namespace

void TestTypedNumbers::bothSeparatorsAreTheDecimalPoint_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    const QString point = QStringLiteral("0.75");
    const QString comma = QStringLiteral("0,75");
    QTest::newRow("point, English") << english << point << 0.75 << point;
    QTest::newRow("comma, English") << english << comma << 0.75 << point;
    QTest::newRow("point, German") << german << point << 0.75 << comma;
    QTest::newRow("comma, German") << german << comma << 0.75 << comma;
    QTest::newRow("point, C") << QLocale::c() << point << 0.75 << point;
    QTest::newRow("comma, C") << QLocale::c() << comma << 0.75 << point;
    QTest::newRow("three digits behind, English") << english << QStringLiteral("1,00") << 1.0 << QStringLiteral("1.00");
    QTest::newRow("three digits behind, German") << german << QStringLiteral("1.00") << 1.0 << QStringLiteral("1,00");
    QTest::newRow("nothing before, English") << english << QStringLiteral(",5") << 0.5 << QStringLiteral("0.50");
    QTest::newRow("nothing behind, German") << german << QStringLiteral("3.") << 3.0 << QStringLiteral("3,00");
}

void TestTypedNumbers::bothSeparatorsAreTheDecimalPoint()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, shown);
    DecimalFixture fixture(locale);
    QVERIFY(fixture.active);
    fixture.Type(typed);
    QCOMPARE(fixture.Text(), typed);
    QTest::keyClick(fixture.box, Qt::Key_Return);
    QCOMPARE(fixture.box->value(), value);
    QCOMPARE(fixture.Text(), shown);
    QCOMPARE(fixture.commits.size(), 1);

    // Typed again in the other way it is the same number: no second edit.
    fixture.Enter(typed.contains(QLatin1Char(',')) ? QString(typed).replace(QLatin1Char(','), QLatin1Char('.'))
                                                   : QString(typed).replace(QLatin1Char('.'), QLatin1Char(',')));
    QCOMPARE(fixture.box->value(), value);
    QCOMPARE(fixture.Text(), shown);
    QCOMPARE(fixture.commits.size(), 1);
}

void TestTypedNumbers::comboTakesBothSeparators()
{
    UserInput::Window window;
    auto* combo = new QComboDoubleSpinBox(&window);
    combo->setLocale(english);
    window.Add(combo);
    QVERIFY(window.Activate());
    auto* box = combo->findChild<QDoubleSpinBoxEx*>();
    QVERIFY(UserInput::Focus(box));
    QSignalSpy finished(combo, &QComboDoubleSpinBox::EditFinished);
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("2,5"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(combo->Value(), 2.5);
    QCOMPARE(finished.size(), 1);
}

void TestTypedNumbers::prefixAndSuffixStayWhileTyping()
{
    for (const QLocale& locale : {english, german}) {
        DecimalFixture fixture(locale);
        QVERIFY(fixture.active);
        fixture.box->setPrefix(QStringLiteral("ca. "));
        fixture.box->setSuffix(QStringLiteral(" Hz, mean"));
        for (const QString& typed : {QStringLiteral("1,5"), QStringLiteral("2.5")}) {
            fixture.Type(typed);
            QCOMPARE(fixture.Text(), QStringLiteral("ca. %1 Hz, mean").arg(typed));
            QTest::keyClick(fixture.box, Qt::Key_Return);
            QCOMPARE(fixture.box->value(), typed.at(0).digitValue() + 0.5);
        }
    }
}

void TestTypedNumbers::numberBelowTheRangeIsNotReadWithoutItsSeparator()
{
    for (const QLocale& locale : {english, german}) {
        DecimalFixture fixture(locale);
        QVERIFY(fixture.active);
        fixture.box->setMinimum(5.0);
        fixture.box->setValue(8.0);
        for (const QString& typed : {QStringLiteral("0,75"), QStringLiteral("0.75")}) {
            fixture.Enter(typed);
            QCOMPARE(fixture.box->value(), 8.0);
        }
        QCOMPARE(fixture.commits.size(), 0);
    }
}

void TestTypedNumbers::secondSeparatorIsRefused_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("point, comma") << QStringLiteral("1.2,3") << QStringLiteral("1.23");
    QTest::newRow("comma, point") << QStringLiteral("1,2.3") << QStringLiteral("1,23");
    QTest::newRow("two points") << QStringLiteral("1..2") << QStringLiteral("1.2");
    QTest::newRow("two commas") << QStringLiteral("1,2,3") << QStringLiteral("1,23");
}

void TestTypedNumbers::secondSeparatorIsRefused()
{
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    for (const QLocale& locale : {english, german}) {
        DecimalFixture fixture(locale);
        QVERIFY(fixture.active);
        fixture.Type(typed);
        QCOMPARE(fixture.Text(), kept);
    }
}

void TestTypedNumbers::thousandsSeparatorIsRefused_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::newRow("English") << english << QStringLiteral("1,234.5") << 1.23;
    QTest::newRow("German") << german << QStringLiteral("1.234,5") << 1.23;
    QTest::newRow("French") << french << QLatin1Char('1') + french.groupSeparator() + QStringLiteral("234,5") << 1234.5;
    QTest::newRow("Swiss") << swiss << QLatin1Char('1') + swiss.groupSeparator() + QStringLiteral("234.5") << 1234.5;
    QTest::newRow("blank") << english << QStringLiteral("1 234.5") << 1234.5;
}

void TestTypedNumbers::thousandsSeparatorIsRefused()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    QFETCH(double, value);
    DecimalFixture fixture(locale);
    QVERIFY(fixture.active);
    fixture.Enter(typed);
    // What is refused is not there; the other keys are.
    QCOMPARE(fixture.box->value(), value);
}

void TestTypedNumbers::pastedThousandsAreRefused()
{
    for (const QLocale& locale : {english, german}) {
        DecimalFixture fixture(locale);
        QVERIFY(fixture.active);
        fixture.box->setValue(8.0);
        QApplication::clipboard()->setText(QStringLiteral("1,234.5"));
        fixture.box->selectAll();
        QTest::keySequence(fixture.box, QKeySequence::Paste);
        QTest::keyClick(fixture.box, Qt::Key_Return);
        QCOMPARE(fixture.box->value(), 8.0);
        QCOMPARE(fixture.commits.size(), 0);
    }
}

void TestTypedNumbers::shownThousandsSeparatorsAreRead()
{
    DecimalFixture fixture(english);
    QVERIFY(fixture.active);
    fixture.box->setGroupSeparatorShown(true);
    fixture.box->setValue(1234.5);
    QCOMPARE(fixture.Text(), QStringLiteral("1,234.50"));
    fixture.Enter(QStringLiteral("2,345.50"));
    QCOMPARE(fixture.box->value(), 2345.5);
}

void TestTypedNumbers::wholeNumbersTakeNoSeparator_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    for (const QLocale& locale : {english, german}) {
        for (const char* typed : {"1,234", "1.234", "1 234"}) {
            QTest::addRow("%s, %s", qPrintable(locale.name()), typed) << locale << QString::fromLatin1(typed);
        }
    }
    QTest::newRow("Swiss") << swiss << QLatin1Char('1') + swiss.groupSeparator() + QStringLiteral("234");
}

void TestTypedNumbers::wholeNumbersTakeNoSeparator()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    UserInput::Window window;
    auto* box = new QSpinBoxEx(&window);
    box->setLocale(locale);
    box->setKeyboardTracking(false);
    box->setMaximum(9999);
    window.Add(box);
    QVERIFY(window.Activate() && UserInput::Focus(box));
    TypeOver(*box, typed);
    QCOMPARE(box->findChild<QLineEdit*>()->text(), QStringLiteral("1234"));
}

void TestTypedNumbers::escapeTakesEitherSeparatorBack()
{
    for (const QString& typed : {QStringLiteral("0,75"), QStringLiteral("0.75")}) {
        DecimalFixture fixture(english);
        QVERIFY(fixture.active);
        fixture.box->setValue(8.0);
        fixture.Type(typed);
        QTest::keyClick(fixture.box, Qt::Key_Escape);
        QCOMPARE(fixture.Text(), QStringLiteral("8.00"));
        QCOMPARE(fixture.box->value(), 8.0);
        QCOMPARE(fixture.commits.size(), 0);
    }
}

SOFTCLOTH_TEST(TestTypedNumbers)
#include "tst_typed_numbers.moc"
