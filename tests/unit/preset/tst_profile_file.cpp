#include "tests/support/FileRefusal.h"
#include "tests/support/Files.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/MissingTemporaryFolder.h"
#include "tests/unit/preset/NotedGroups.h"
#include "ui/IniFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

Q_DECLARE_METATYPE(MV::EProfileProblem)

using MV::EProfileProblem;

/// The reading of profiles, whatever their groups mean.
class TestProfileFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void groupsAreLoadedInFixedOrder_data();
    void groupsAreLoadedInFixedOrder();
    void loadingEndsAtTheFirstFailure();
    void valuesAreThoseOfTheGroup();
    void textIsUtf8_data();
    void textIsUtf8();
    void whatIsNoFileIsAnInvalidPath_data();
    void whatIsNoFileIsAnInvalidPath();
#ifdef Q_OS_UNIX
    void pipeIsAnInvalidPath();
#endif
    void unreadableFileIsTold();
    void changedFileIsReadAnew();
    void changeOfEqualSizeAndTimeIsSeen();
#ifdef Q_OS_UNIX
    void missingTemporaryFolderIsNoObstacle();
#endif
    void largeFileIsRead();
    void tooLargeFileIsUnreadable();
    void objectsInAFileAreNotUnpacked_data();
    void objectsInAFileAreNotUnpacked();
    void loadingWritesNothing();

protected:
    void SetUp() override;

private:
    QString Path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    EProfileProblem Load(const QString& path)
    {
        return MV::LoadProfile(path, m_groups.Make(), m_result);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    NotedGroups m_groups;
    BF::Result m_result;
};

void TestProfileFile::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_groups.Take();
    m_result = BF::Results::Cancelled;
}

void TestProfileFile::groupsAreLoadedInFixedOrder_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("handled");
    const auto row = [](const char* name, const char* content, const char* handled) {
        QTest::newRow(name) << QByteArray(content) << QString::fromLatin1(handled);
    };
    row("all, turned round", "[Wind_Setting]\na=1\n[Collision]\na=1\n[Property]\na=1\n[Preset]\na=1\n",
        "Preset Property Collision Wind_Setting");
    row("one", "[Collision]\na=1\n", "Collision");
    row("empty file", "", "");
    row("group without keys", "[Preset]\n[Property]\na=1\n", "Property");
    row("group with a comment only", "[Preset]\n; a=1\n[Property]\na=1\n", "Property");
    row("other groups", "[Other]\na=1\n[Ignored_Material_Name_List]\nBody=Skin\n[Property]\na=1\n", "Property");
    row("lower case", "[preset]\na=1\n[PROPERTY]\na=1\n", "");
    row("blanks around", "[ Preset ]\na=1\n", "Preset");
    row("longer name", "[Preset2]\na=1\n[PresetX]\na=1\n", "");
    row("group twice", "[Collision]\na=1\n[Property]\nb=1\n[Collision]\nc=1\n", "Property Collision");
    row("keys without a group", "Preset=1\nProperty=2\n", "");
    row("line without equals sign", "[Collision]\nwhat is this\na=1\n", "Collision");
    row("header that does not end", "[Collision\na=1\n[Property]\na=1\n", "Property Collision");
    row("text before the first header", "hello\nworld\n[Property]\na=1\n", "Property");
}

void TestProfileFile::groupsAreLoadedInFixedOrder()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, handled);
    QCOMPARE(Load(Files::Write(Path("a.ini"), content)), EProfileProblem::None);
    QCOMPARE(m_result, BF::Results::Success);
    QCOMPARE(m_groups.Take().join(QLatin1Char(' ')), handled);
}

void TestProfileFile::loadingEndsAtTheFirstFailure()
{
    const QString path = Files::Write(Path("a.ini"), "[Preset]\na=1\n[Property]\na=1\n[Collision]\na=1\n");
    QCOMPARE(MV::LoadProfile(path, m_groups.Make(QStringLiteral("Property")), m_result), EProfileProblem::None);
    QCOMPARE(m_result, BF::Results::Refused);
    QCOMPARE(m_groups.Take(), (QStringList{QStringLiteral("Preset"), QStringLiteral("Property")}));
}

void TestProfileFile::valuesAreThoseOfTheGroup()
{
    QVariant value;
    const std::vector<MV::ProfileGroup> groups{{QStringLiteral("Property"),
                                                [&value](const MV::CIniGroup& profile) {
                                                    value = profile.Value(QStringLiteral("Mass"));
                                                    return BF::Result(BF::Results::Success);
                                                },
                                                {}}};
    MV::LoadProfile(Files::Write(Path("a.ini"), "[Property]\nMass=7\n[Collision]\nMass=8\n"), groups, m_result);
    QCOMPARE(value, QVariant(QStringLiteral("7")));
}

void TestProfileFile::textIsUtf8_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("value");
    const QString umlaut = QString::fromUtf8("K\xC3\xB6per");
    QTest::newRow("utf-8") << QByteArray("[Property]\nname=K\xC3\xB6per\n") << umlaut;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF[Property]\nname=K\xC3\xB6per\n") << umlaut;
    QTest::newRow("carriage returns") << QByteArray("[Property]\r\nname=K\xC3\xB6per\r\n") << umlaut;
    QTest::newRow("old line ends") << QByteArray("[Property]\rname=K\xC3\xB6per\r") << umlaut;
    QTest::newRow("no last line end") << QByteArray("[Property]\nname=K\xC3\xB6per") << umlaut;
    QTest::newRow("latin 1") << QByteArray("[Property]\nname=K\xF6per\n") << QStringLiteral("K\uFFFDper");
    QTest::newRow("escaped") << QByteArray("[Property]\nname=K\\xf6per\n") << umlaut;
}

void TestProfileFile::textIsUtf8()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, value);
    QString read;
    const std::vector<MV::ProfileGroup> groups{{QStringLiteral("Property"),
                                                [&read](const MV::CIniGroup& profile) {
                                                    read = profile.Value(QStringLiteral("name")).toString();
                                                    return BF::Result(BF::Results::Success);
                                                },
                                                {}}};
    QCOMPARE(MV::LoadProfile(Files::Write(Path("a.ini"), content), groups, m_result), EProfileProblem::None);
    QCOMPARE(read, value);
}

void TestProfileFile::whatIsNoFileIsAnInvalidPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing there") << QStringLiteral("missing.ini");
    QTest::newRow("folder") << QStringLiteral(".");
    QTest::newRow("under a file") << QStringLiteral("file/profile.ini");
#ifdef Q_OS_UNIX // A shortcut of Windows is a file.
    QTest::newRow("link to nothing") << QStringLiteral("link");
#endif
}

void TestProfileFile::whatIsNoFileIsAnInvalidPath()
{
    QFETCH(const QString, path);
    Files::Write(Path("file"), "[Property]\na=1\n");
    QVERIFY(QFile::link(QStringLiteral("/nowhere/at/all"), Path("link")));
    QCOMPARE(Load(m_folder->filePath(path)), EProfileProblem::InvalidPath);
    QCOMPARE(Load(QString()), EProfileProblem::InvalidPath);
    QCOMPARE(m_result, BF::Results::Success);
    QVERIFY(m_groups.Take().isEmpty());
}

#ifdef Q_OS_UNIX // Elsewhere no folder holds pipes.
void TestProfileFile::pipeIsAnInvalidPath()
{
    QCOMPARE(mkfifo(qPrintable(Path("pipe")), 0600), 0);
    QCOMPARE(Load(Path("pipe")), EProfileProblem::InvalidPath);
}
#endif

void TestProfileFile::unreadableFileIsTold()
{
    Files::OpenToAll(m_folder->path());
    const QString path = Files::Write(Path("a.ini"), "[Property]\na=1\n");
    const FileRefusal refusal(path, FileRefusal::Of::ReadingAndWriting);
    QCOMPARE(Load(path), EProfileProblem::Unreadable);
    QVERIFY(m_groups.Take().isEmpty());
}

void TestProfileFile::changedFileIsReadAnew()
{
    const QString path = Files::Write(Path("a.ini"), "[Property]\na=1\n");
    Load(path);
    Files::Write(path, "[Collision]\na=1\n");
    Load(path);
    QCOMPARE(m_groups.Take(), (QStringList{QStringLiteral("Property"), QStringLiteral("Collision")}));
}

void TestProfileFile::changeOfEqualSizeAndTimeIsSeen()
{
    const QString path = Path("a.ini");
    const QDateTime time = QDateTime::currentDateTime().addDays(-1);
    QStringList values;
    const std::vector<MV::ProfileGroup> groups{{QStringLiteral("Property"),
                                                [&values](const MV::CIniGroup& profile) {
                                                    values.append(profile.Value(QStringLiteral("a")).toString());
                                                    return BF::Result(BF::Results::Success);
                                                },
                                                {}}};
    for (const char* content : {"[Property]\na=1\n", "[Property]\na=2\n"}) {
        QFile file(Files::Write(path, content));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
        file.close();
        MV::LoadProfile(path, groups, m_result);
    }
    QCOMPARE(values, (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
}

#ifdef Q_OS_UNIX // Elsewhere the test cannot take the folder away.
void TestProfileFile::missingTemporaryFolderIsNoObstacle()
{
    const QString path = Files::Write(Path("a.ini"), "[Property]\na=1\n");
    Files::OpenToAll(m_folder->path());
    const MissingTemporaryFolder missing;
    QCOMPARE(Load(path), EProfileProblem::None);
    QCOMPARE(m_groups.Take(), QStringList{QStringLiteral("Property")});
}
#endif

void TestProfileFile::largeFileIsRead()
{
    QByteArray content = "[Property]\n";
    for (int i = 0; content.size() < 10 * 1024 * 1024; ++i) {
        content += "key" + QByteArray::number(i) + "=a value of some length, and then some more\n";
    }
    content += "[Collision]\na=1\n";
    const QString path = Files::Write(Path("large.ini"), content);
    QCOMPARE(Load(path), EProfileProblem::None);
    QCOMPARE(m_groups.Take(), (QStringList{QStringLiteral("Property"), QStringLiteral("Collision")}));
}

void TestProfileFile::tooLargeFileIsUnreadable()
{
    QFile file(Files::Write(Path("large.ini"), "[Property]\na=1\n"));
    QVERIFY(file.resize(33 * 1024 * 1024));
    QCOMPARE(Load(file.fileName()), EProfileProblem::Unreadable);
    QVERIFY(m_groups.Take().isEmpty());
}

void TestProfileFile::objectsInAFileAreNotUnpacked_data()
{
    QTest::addColumn<QByteArray>("content");
    // A string list with as many elements as fit into a number, and a polygon with as many points.
    QTest::newRow("list") << QByteArray("[x]\na=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n");
    QTest::newRow("polygon") << QByteArray("[x]\na=@Variant(\\0\\0\\0\\x47\\x7f\\xff\\xff\\xff)\n");
    QTest::newRow("in a group of ours") << QByteArray("[Property]\nMass=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n");
    QTest::newRow("without a group") << QByteArray("a=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n");
}

void TestProfileFile::objectsInAFileAreNotUnpacked()
{
    QFETCH(const QByteArray, content);
    QVector<int> values;
    const std::vector<MV::ProfileGroup> groups{{QStringLiteral("Property"),
                                                [&values](const MV::CIniGroup& profile) {
                                                    values.append(profile.Value(QStringLiteral("Mass")).toInt());
                                                    return BF::Result(BF::Results::Success);
                                                },
                                                {}}};
    const QString path = Files::Write(Path("a.ini"), content + "[Property]\nb=1\n");
    QCOMPARE(MV::LoadProfile(path, groups, m_result), EProfileProblem::None);
    QCOMPARE(values, QVector<int>{0});
}

void TestProfileFile::loadingWritesNothing()
{
    const QByteArray content = "; a comment\n[Property]\nb = 2\na=1\n";
    const QString path = Files::Write(Path("a.ini"), content);
    Load(path);
    QCOMPARE(Files::Read(path), content);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("a.ini")});
}

SOFTCLOTH_TEST(TestProfileFile)
#include "tst_profile_file.moc"
