#include "tests/support/TestCase.h"
#include "ui/IniText.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>

/// Values that QSettings would unpack become texts, and everything else stays as it is.
class TestIniText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readingGivesTheText_data();
    void readingGivesTheText();
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

/// What QSettings reads of all keys but the empty one, which it does not look up.
QVariantMap ReadAllBack(const QByteArray& ini)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.ini")));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("no file for the test");
    }
    file.write(ini);
    file.close();
    QSettings settings(file.fileName(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    QVariantMap values;
    const QStringList keys = settings.allKeys();
    for (const QString& key : keys) {
        if (!key.isEmpty()) {
            values.insert(key, settings.value(key));
        }
    }
    return values;
}

/// What QSettings reads of the key "a" in the group "g".
QVariant ReadBack(const QByteArray& ini)
{
    return ReadAllBack(ini).value(QStringLiteral("g/a"));
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

/// A short file made of what means something to QSettings, with objects that are harmless to unpack.
QByteArray RandomIni(QRandomGenerator& random)
{
    static const QVector<QByteArray> pieces{"@Rect(1 2 3 4)",
                                            "@Size(1 2)",
                                            "@",
                                            "@@",
                                            "\\x40",
                                            "\\100",
                                            "\\x40Rect(1 2 3 4)",
                                            "\\x10040Rect(1 2 3 4)",
                                            "\"",
                                            "\"",
                                            "\\",
                                            "\\\\",
                                            "\\\"",
                                            ",",
                                            ",",
                                            " ",
                                            "\t",
                                            "\v",
                                            "\f",
                                            "\n",
                                            "\n",
                                            "\r\n",
                                            "\r",
                                            "\\\n",
                                            ";",
                                            "=",
                                            "=",
                                            "[",
                                            "]",
                                            "[g]\n",
                                            "\nb=",
                                            "a",
                                            "0",
                                            ")",
                                            "\xEF\xBB\xBF",
                                            "\xC3",
                                            "%",
                                            "/"};
    QByteArray ini = random.bounded(2) == 0 ? "[g]\na=" : "";
    for (int i = 1 + random.bounded(14); i > 0; --i) {
        ini += pieces.at(random.bounded(pieces.size()));
    }
    return ini;
}

struct Row
{
    const char* name;
    QByteArray value;
    QStringList read;
};

QVector<Row> Rows()
{
    const QString variant = QStringLiteral("@Variant(x)");
    const auto one = [](const char* text) { return QStringList{QString::fromUtf8(text)}; };
    const QStringList empty{QString()};
    return {
        {"plain", "5", one("5")},
        {"plain list", "a, b", {QStringLiteral("a"), QStringLiteral("b")}},
        {"at within", "a@b", one("a@b")},
        {"escaped text", "K\\xf6per", one("K\u00F6per")},
        {"object", "@Variant(x)", {variant}},
        {"quoted object", "\"@Variant(x)\"", {variant}},
        {"object behind empty quotes", "\"\" @Variant(x)", {variant}},
        {"object behind blanks", " \t@Variant(x)", {variant}},
        {"object in a list",
         "1, @Variant(x), \"@Rect(1 2 3 4)\"",
         {QStringLiteral("1"), variant, QStringLiteral("@Rect(1 2 3 4)")}},
        {"comma in quotes", "\"a,@b\"", one("a,@b")},
        {"blank in quotes", "\" @b\"", one(" @b")},
        {"doubled", "@@name", one("@@name")},
        {"byte order mark", "\xEF\xBB\xBF@Variant(x)", {variant}},
        {"polygon", QByteArray("@Variant(\\0\\0\\0\\x47\\x7f\\xff\\xff\\xff)"), empty},
        {"long list", QByteArray("@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)"), empty},
        {"hexadecimal at", "\\x40Variant(x)", empty},
        {"hexadecimal at with zeros", "\\x000040Variant(x)", empty},
        {"hexadecimal at beyond 16 bits", "\\x10040Variant(x)", empty},
        {"octal at", "\\100Variant(x)", empty},
        {"unknown escape before", "\\q@Variant(x)", empty},
        {"continued line", "\\\n@Variant(x)", empty},
    };
}

} // namespace

void TestIniText::readingGivesTheText_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("read");
    for (const Row& row : Rows()) {
        QTest::newRow(row.name) << row.value << row.read;
    }
}

void TestIniText::readingGivesTheText()
{
    QFETCH(const QByteArray, value);
    QFETCH(const QStringList, read);
    const QByteArray ini = "b=1\n[g]\n; a=@Variant(comment)\na=" + value + "\n[h]\na=@Variant(other)\n";
    const QVariant found = ReadBack(MV::HarmlessForReading(ini));
    QVERIFY(found.userType() == QMetaType::QString || found.userType() == QMetaType::QStringList);
    QCOMPARE(found.toStringList(), read);
}

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
    const QVariantMap plain = ReadAllBack(ini);
    QCOMPARE(Unpacked(plain), plain.keys());
    QCOMPARE(plain.size(), 1);
    const QVariantMap read = ReadAllBack(MV::HarmlessForReading(ini));
    QCOMPARE(read.keys(), plain.keys());
    QCOMPARE(read.first(), QVariant(QStringLiteral("@Size(1 2)")));
    QCOMPARE(Unpacked(ReadAllBack(MV::CShelteredIni(ini).Content())), QStringList());
}

void TestIniText::nothingIsUnpackedFromAnyText()
{
    QRandomGenerator random(3);
    int unpacked = 0;
    for (int round = 0; round < 300; ++round) {
        const QByteArray ini = RandomIni(random);
        const QVariantMap plain = ReadAllBack(ini);
        const bool isUnpacked = !Unpacked(plain).isEmpty();
        unpacked += isUnpacked ? 1 : 0;
        const QVariantMap read = ReadAllBack(MV::HarmlessForReading(ini));
        const QVariantMap sheltered = ReadAllBack(MV::CShelteredIni(ini).Content());
        QVERIFY2(Unpacked(read).isEmpty() && Unpacked(sheltered).isEmpty(), ini.toPercentEncoding());
        QVERIFY2(read.keys() == plain.keys() && sheltered.keys() == plain.keys(), ini.toPercentEncoding());
    }
    QVERIFY2(unpacked > 5, "hardly any of these texts has an object");
}

void TestIniText::shelteredTextIsRestored_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const Row& row : Rows()) {
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
    QCOMPARE(ReadBack(MV::HarmlessForReading(restored)).toString(), QStringLiteral("last"));
}

SOFTCLOTH_TEST_WITH(TestIniText, QCoreApplication)

#include "tst_ini_text.moc"
