#include "tests/support/TestCase.h"
#include "tests/unit/ui/IniSamples.h"
#include "ui/IniText.h"

/// Values that QSettings would unpack become words without harm, and everything else stays as it is.
class TestIniText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valueBeginsWhereQSettingsSeesIt_data();
    void valueBeginsWhereQSettingsSeesIt();
    void nothingIsUnpackedFromAnyText();
    void shelteredTextIsRestored_data();
    void shelteredTextIsRestored();
    void shelteredWordsOccurNowhereElse();
    void unfinishedValueIsFinished_data();
    void unfinishedValueIsFinished();
};

namespace {

/// What QSettings reads of the key "a" in the group "g".
QVariant ReadBack(const QByteArray& ini)
{
    return IniSamples::ReadBySettings(ini).value(QStringLiteral("g/a"));
}

/// The keys whose values are neither texts nor lists of texts.
QStringList Unpacked(const QVariantMap& values)
{
    const auto isText = [](const QVariant& value) {
        // A key that QSettings lists under one name and looks up under another has no value.
        return !value.isValid() || value.userType() == QMetaType::QString || value.userType() == QMetaType::QStringList;
    };
    QStringList keys;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (!isText(value.value())) {
            keys.append(value.key());
        }
    }
    return keys;
}

struct Row
{
    const char* name;
    QByteArray value;
};

const QVector<Row> rows{
    {"plain", "5"},
    {"plain list", "a, b"},
    {"at within", "a@b"},
    {"escaped text", "K\\xf6per"},
    {"object", "@Variant(x)"},
    {"quoted object", "\"@Variant(x)\""},
    {"object behind empty quotes", "\"\" @Variant(x)"},
    {"object behind blanks", " \t@Variant(x)"},
    {"object in a list", "1, @Variant(x), \"@Rect(1 2 3 4)\""},
    {"comma in quotes", "\"a,@b\""},
    {"blank in quotes", "\" @b\""},
    {"doubled", "@@name"},
    {"byte order mark", "\xEF\xBB\xBF@Variant(x)"},
    {"polygon", "@Variant(\\0\\0\\0\\x47\\x7f\\xff\\xff\\xff)"},
    {"long list", "@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)"},
    {"hexadecimal at", "\\x40Variant(x)"},
    {"hexadecimal at with zeros", "\\x000040Variant(x)"},
    {"hexadecimal at beyond 16 bits", "\\x10040Variant(x)"},
    {"octal at", "\\100Variant(x)"},
    {"unknown escape before", "\\q@Variant(x)"},
    {"continued line", "\\\n@Variant(x)"},
};

} // namespace

void TestIniText::valueBeginsWhereQSettingsSeesIt_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("equals sign in a quoted key") << QByteArray("\"b=\"c=@Size(1 2)");
    QTest::newRow("equals sign and comma in a quoted key") << QByteArray("\"b=,c\"=@Size(1 2)");
    QTest::newRow("key that begins like a group behind a form feed") << QByteArray("\f[=@Size(1 2)");
    QTest::newRow("key that begins like a group behind a vertical tab") << QByteArray("\v[=@Size(1 2)");
}

void TestIniText::valueBeginsWhereQSettingsSeesIt()
{
    QFETCH(const QByteArray, line);
    const QByteArray ini = "[g]\n" + line + '\n';
    const QVariantMap plain = IniSamples::ReadBySettings(ini);
    QCOMPARE(Unpacked(plain), plain.keys());
    QCOMPARE(plain.size(), 1);
    const QVariantMap sheltered = IniSamples::ReadBySettings(MV::CShelteredIni(ini).Content());
    QCOMPARE(sheltered.keys(), plain.keys());
    QCOMPARE(Unpacked(sheltered), QStringList());
}

void TestIniText::nothingIsUnpackedFromAnyText()
{
    QRandomGenerator random(3);
    int unpacked = 0;
    for (int round = 0; round < 300; ++round) {
        const QByteArray ini = IniSamples::Random(random);
        const QVariantMap plain = IniSamples::ReadBySettings(ini);
        const bool isUnpacked = !Unpacked(plain).isEmpty();
        unpacked += isUnpacked ? 1 : 0;
        const QVariantMap sheltered = IniSamples::ReadBySettings(MV::CShelteredIni(ini).Content());
        QVERIFY2(Unpacked(sheltered).isEmpty(), ini.toPercentEncoding());
        QVERIFY2(sheltered.keys() == plain.keys(), ini.toPercentEncoding());
    }
    QVERIFY2(unpacked > 5, "hardly any of these texts has an object");
}

void TestIniText::shelteredTextIsRestored_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const Row& row : rows) {
        QTest::newRow(row.name) << row.value;
    }
}

void TestIniText::shelteredTextIsRestored()
{
    QFETCH(const QByteArray, value);
    const QByteArray ini = "[g]\na=" + value + "\nb=" + value + "\n";
    const MV::CShelteredIni sheltered(ini);
    const QVariant found = ReadBack(sheltered.Content());
    QVERIFY(found.userType() == QMetaType::QString || found.userType() == QMetaType::QStringList);
    QCOMPARE(sheltered.Restored(sheltered.Content()), ini);
}

void TestIniText::shelteredWordsOccurNowhereElse()
{
    const QByteArray ini = "[g]\na=kept0v\nb=@Invalid()\nc=kept0v0e\n";
    const MV::CShelteredIni sheltered(ini);
    QVERIFY(!sheltered.Content().contains('@'));
    QCOMPARE(sheltered.Restored(sheltered.Content()), ini);
}

void TestIniText::unfinishedValueIsFinished_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("quote") << QByteArray("\"@b");
    QTest::newRow("escaped quote") << QByteArray("\"@b\\\"");
    QTest::newRow("backslash") << QByteArray("@b\\");
    QTest::newRow("backslash in quotes") << QByteArray("\"@b\\");
}

void TestIniText::unfinishedValueIsFinished()
{
    QFETCH(const QByteArray, value);
    const MV::CShelteredIni sheltered("[g]\nz=" + value);
    // QSettings writes keys in an order of its own, so others can follow.
    const QByteArray restored = sheltered.Restored(sheltered.Content() + "\na=last\n");
    QVERIFY(restored.contains(value));
    QCOMPARE(ReadBack(restored).toString(), QStringLiteral("last"));
}

SOFTCLOTH_TEST_WITH(TestIniText, QCoreApplication)

#include "tst_ini_text.moc"
