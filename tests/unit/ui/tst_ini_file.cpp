#include "tests/support/TestCase.h"
#include "tests/unit/ui/IniSamples.h"
#include "ui/IniFile.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

/// INI files are read as QSettings reads them, but for objects, which are texts.
class TestIniFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valueIsText_data();
    void valueIsText();
    void keyIsFound_data();
    void keyIsFound();
    void lastOfEqualKeysCounts_data();
    void lastOfEqualKeysCounts();
    void anyTextReadsAsBySettings();
    void namesComeBackAsTheyWereWritten();
    void emptyListComesBack();
    void whatIsNotThereIsInvalid();
};

namespace {

MV::CIniGroup Group(const QByteArray& ini, const char* name)
{
    return MV::CIniFile(ini).Group(QString::fromLatin1(name));
}

/// The groups of \p keys, each a path.
QStringList GroupsOf(const QStringList& keys)
{
    QStringList groups;
    for (const QString& key : keys) {
        const int slash = key.indexOf(QLatin1Char('/'));
        if (slash != 0) {
            groups.append(key.left(slash < 0 ? 0 : slash));
        }
    }
    groups.removeDuplicates();
    return groups;
}

/// All keys of \p ini that \p settings found too, as QSettings names them, but for those that it lists under one name
/// and looks up under another.
QVariantMap ReadByUs(const QByteArray& ini, const QVariantMap& settings)
{
    const MV::CIniFile file(ini);
    QVariantMap values;
    const QStringList groups = GroupsOf(settings.keys());
    for (const QString& group : groups) {
        QStringList keys = file.Group(group).Keys();
        if (group.isEmpty()) {
            keys.removeAll(QString());
        }
        for (const QString& key : qAsConst(keys)) {
            values.insert(group.isEmpty() ? key : group + QLatin1Char('/') + key, file.Group(group).Value(key));
        }
    }
    return values;
}

bool IsLookedUpAsListed(const QString& key)
{
    return !key.startsWith(QLatin1Char('/')) && !key.endsWith(QLatin1Char('/')) && !key.contains(QLatin1String("//"));
}

QVariantMap LookedUp(QVariantMap values)
{
    for (auto value = values.begin(); value != values.end();) {
        value = IsLookedUpAsListed(value.key()) ? ++value : values.erase(value);
    }
    return values;
}

/// A name as an artist or a program may give it; QSettings writes the characters up to U+FFFF only.
QString RandomName(QRandomGenerator& random)
{
    static const QStringList pieces{QStringLiteral("@"),           QStringLiteral("@@"),   QStringLiteral("@Invalid()"),
                                    QStringLiteral("@Variant(x)"), QStringLiteral("\\"),   QStringLiteral("\\x40"),
                                    QStringLiteral("\\\\"),        QStringLiteral("\""),   QStringLiteral("'"),
                                    QStringLiteral(","),           QStringLiteral(";"),    QStringLiteral("="),
                                    QStringLiteral("%"),           QStringLiteral("%20"),  QStringLiteral("["),
                                    QStringLiteral("]"),           QStringLiteral(" "),    QStringLiteral("\t"),
                                    QStringLiteral("\n"),          QStringLiteral("\r\n"), QStringLiteral("a"),
                                    QStringLiteral("F"),           QStringLiteral("40"),   QStringLiteral("K\u00F6per"),
                                    QStringLiteral("\u65E5\u672C")};
    QString name;
    for (int i = random.bounded(7); i > 0; --i) {
        name += pieces.at(random.bounded(pieces.size()));
    }
    return name;
}

/// A file in which QSettings has written \p value.
QByteArray Written(const QString& key, const QVariant& value)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.ini"));
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        settings.setValue(QStringLiteral("g/") + key, value);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no file for the test");
    }
    return file.readAll();
}

} // namespace

void TestIniFile::valueIsText_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("read");
    const auto row = [](const char* name, const QByteArray& value, const QStringList& read) {
        QTest::newRow(name) << value << read;
    };
    const auto one = [](const char* text) { return QStringList{QString::fromUtf8(text)}; };
    const QString variant = QStringLiteral("@Variant(x)");
    row("plain", "5", one("5"));
    row("nothing", "", one(""));
    row("plain list", "a, b", {QStringLiteral("a"), QStringLiteral("b")});
    row("list with nothing at its end", "a,", {QStringLiteral("a"), QString()});
    row("blanks around", " \t a b \t", one("a b"));
    row("blanks in quotes", "\" a \"", one(" a "));
    row("text behind quotes", "\"a\" b", one("ab"));
    row("comma in quotes", "\"a,@b\"", one("a,@b"));
    row("comment behind", "5;6", one("5"));
    row("escaped text", "K\\xf6per", one("K\u00F6per"));
    row("letters", "\\a\\b\\f\\n\\r\\t\\v\\\"\\?\\'\\\\", one("\a\b\f\n\r\t\v\"?'\\"));
    row("unknown letter", "a\\qb", one("ab"));
    row("octal", "\\1012", one("\u020A"));
    row("hexadecimal without digits", "a\\xg", one("ag"));
    row("line that goes on", "a\\\r\nb", one("ab"));
    row("backslash and at", "\\\\@b", one("\\@b"));
    row("at within", "a@b", one("a@b"));
    row("object", "@Variant(x)", {variant});
    row("quoted object", "\"@Variant(x)\"", {variant});
    row("object behind blanks", " \t@Variant(x)", {variant});
    row("object in a list", "1, @Variant(x), \"@Rect(1 2 3 4)\"",
        {QStringLiteral("1"), variant, QStringLiteral("@Rect(1 2 3 4)")});
    row("marked text", "@@name", one("@name"));
    row("marked texts in a list", "@@a, \"@@@b\"", {QStringLiteral("@a"), QStringLiteral("@@b")});
    row("hexadecimal at", "\\x40Variant(x)", {variant});
    row("octal at", "\\100Variant(x)", {variant});
    row("hexadecimal beyond 16 bits", "\\x10040Variant(x)", {variant});
}

void TestIniFile::valueIsText()
{
    QFETCH(const QByteArray, value);
    QFETCH(const QStringList, read);
    const QVariant found =
        Group("b=1\n[g]\n; a=comment\na=" + value + "\n[h]\na=other\n", "g").Value(QStringLiteral("a"));
    QCOMPARE(found.userType(), int(read.size() > 1 ? QMetaType::QStringList : QMetaType::QString));
    QCOMPARE(found.toStringList(), read);
}

void TestIniFile::keyIsFound_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QByteArray>("group");
    QTest::addColumn<QString>("key");
    const auto row = [](const char* name, const char* ini, const char* group, const char* key) {
        QTest::newRow(name) << QByteArray(ini) << QByteArray(group) << QString::fromUtf8(key);
    };
    row("in no group", "a=1", "", "a");
    row("general", "[General]\na=1", "", "a");
    row("group called general", "[%General]\na=1", "General", "a");
    row("blanks", "[ g ]\n a b \t= 1", "g", "a b");
    row("behind a byte order mark", "\xEF\xBB\xBF[g]\na=1", "g", "a");
    row("header without an end", "[g\na=1", "g", "a");
    row("escaped", "[%67]\n%U65E5%41%zz%=1", "g", "\u65E5A%zz%");
    row("latin 1", "[g]\n\xE9=1", "g", "\u00E9");
    row("inner group", "[g\\h]\na=1", "g", "h/a");
    row("inner group by its key", "g\\h\\a=1", "g", "h/a");
    row("without a name", "[g]\n=1", "g", "");
}

void TestIniFile::keyIsFound()
{
    QFETCH(const QByteArray, ini);
    QFETCH(const QByteArray, group);
    QFETCH(const QString, key);
    const MV::CIniGroup found = Group(ini, group);
    QCOMPARE(found.Keys(), QStringList{key});
    QCOMPARE(found.Value(key), QVariant(QStringLiteral("1")));
}

void TestIniFile::lastOfEqualKeysCounts_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::newRow("in a group") << QByteArray("[g]\na=1\na=2\n");
    QTest::newRow("in a group that comes again") << QByteArray("[g]\na=1\n[h]\na=3\n[g]\na=2\n");
    QTest::newRow("a group rather than a path") << QByteArray("[g]\na=2\n[General]\ng\\a=1\n");
}

void TestIniFile::lastOfEqualKeysCounts()
{
    QFETCH(const QByteArray, ini);
    QCOMPARE(Group(ini, "g").Value(QStringLiteral("a")), QVariant(QStringLiteral("2")));
    QCOMPARE(IniSamples::ReadBySettings(ini).value(QStringLiteral("g/a")), QVariant(QStringLiteral("2")));
}

void TestIniFile::anyTextReadsAsBySettings()
{
    QRandomGenerator random(5);
    int values = 0;
    for (int round = 0; round < 500; ++round) {
        // Without the sign that objects begin with, of which we know nothing.
        QByteArray ini =
            IniSamples::Random(random).replace('@', 'A').replace("\\x40", "\\x41").replace("\\100", "\\x5A");
        ini.replace("\\x10040", "\\x10041");
        // QSettings takes a byte order mark for a part of a key that follows at once.
        ini = ini.startsWith("\xEF\xBB\xBF") ? ini.mid(3) : ini;
        const QVariantMap settings = IniSamples::ReadBySettings(ini);
        const QVariantMap ours = ReadByUs(ini, settings);
        QVERIFY2(LookedUp(ours) == LookedUp(settings), ini.toPercentEncoding());
        values += LookedUp(ours).size();
    }
    QVERIFY2(values > 250, "hardly any of these texts has a value");
}

void TestIniFile::namesComeBackAsTheyWereWritten()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 500; ++round) {
        QStringList names;
        for (int i = 1 + random.bounded(3); i > 0; --i) {
            names.append(RandomName(random));
        }
        // QSettings takes both kinds of slashes for those between groups.
        const QString mesh = QStringLiteral("m") + RandomName(random).remove(QLatin1Char('\\'));
        const QByteArray ini = Written(mesh, names);
        const MV::CIniGroup group = Group(ini, "g");
        QCOMPARE(group.Keys(), QStringList{mesh});
        QCOMPARE(group.Value(mesh).toStringList(), names);
    }
}

void TestIniFile::emptyListComesBack()
{
    const MV::CIniGroup group = Group(Written(QStringLiteral("a"), QStringList()), "g");
    QVERIFY(group.Contains(QStringLiteral("a")));
    QCOMPARE(group.Value(QStringLiteral("a")).toStringList(), QStringList());
    QCOMPARE(Group(Written(QStringLiteral("a"), QStringLiteral("@Invalid()")), "g").Value(QStringLiteral("a")),
             QVariant(QStringLiteral("@Invalid()")));
}

void TestIniFile::whatIsNotThereIsInvalid()
{
    const MV::CIniFile file("[g]\na=1\n[empty]\n; b=1\nc\n");
    QVERIFY(!file.Group(QStringLiteral("g")).Value(QStringLiteral("A")).isValid());
    QVERIFY(!file.Group(QStringLiteral("g")).Contains(QStringLiteral("b")));
    for (const char* name : {"G", "empty", "", "g/a"}) {
        QVERIFY2(file.Group(QLatin1String(name)).IsEmpty(), name);
    }
    QVERIFY(!MV::CIniFile::Read(QStringLiteral("/nowhere/at/all.ini")));
}

SOFTCLOTH_TEST_WITH(TestIniFile, QCoreApplication)

#include "tst_ini_file.moc"
