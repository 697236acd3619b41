#include "preset/ProfileFile.h"
#include "tests/support/FileRefusal.h"
#include "tests/support/Files.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TestCase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

Q_DECLARE_METATYPE(MV::EProfileProblem)

/// The reading and writing of profiles, whatever their groups mean.
class TestProfileFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void groupsAreLoadedInFixedOrder_data();
    void groupsAreLoadedInFixedOrder();
    void loadingEndsAtTheFirstFailure();
    void storeStandsInsideTheGroup();
    void textIsUtf8_data();
    void textIsUtf8();
    void whatIsNoFileIsAnInvalidPath_data();
    void whatIsNoFileIsAnInvalidPath();
#ifdef Q_OS_UNIX
    void pipeIsAnInvalidPath();
#endif
    void unreadableFileIsTold();
    void changedFileIsReadAnew();
    void largeFileIsRead();
    void loadingWritesNothing();
    void savedGroupsAreInTheFile();
    void savingKeepsWhatItDoesNotWrite();
    void savingOverNoiseGivesAProfile_data();
    void savingOverNoiseGivesAProfile();
    void anyNoiseCanBeSavedOver();
    void missingFoldersAreMade();
    void unwritableTargetIsTold_data();
    void unwritableTargetIsTold();
#ifdef Q_OS_UNIX
    void failedWriteLeavesTheOldFile();
    void fullDiskIsNoticed_data();
    void fullDiskIsNoticed();
#endif
    void refusedSaveLeavesNoTrace();
    void savingLeavesNoOtherFiles();
    void savedFileKeepsItsPermissions();

protected:
    void SetUp() override;

private:
    QString Path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    /// Groups that note their name when they are handled and save a key each.
    std::vector<MV::ProfileGroup> Groups(const QString& failing = {});
    MV::EProfileProblem Load(const QString& path)
    {
        return MV::LoadProfile(path, Groups(), m_result);
    }
    MV::EProfileProblem Save(const QString& path)
    {
        return MV::SaveProfile(path, Groups());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_handled;
    BF::Result m_result;
};

namespace {

using MV::EProfileProblem;

constexpr const char* savedText = "[Collision]\nkey=Collision\n\n[Preset]\nkey=Preset\n\n[Property]\nkey=Property\n\n"
                                  "[Wind_Setting]\nkey=Wind_Setting\n";

#ifdef Q_OS_UNIX // Elsewhere there is no limit that makes a disk look full.
/// While it lives no file can grow beyond \p bytes, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        rlimit small = m_limit;
        small.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_limit{};
    void (*m_handler)(int);
};
#endif

} // namespace

void TestProfileFile::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_handled.clear();
    m_result = BF::Results::Cancelled;
}

std::vector<MV::ProfileGroup> TestProfileFile::Groups(const QString& failing)
{
    std::vector<MV::ProfileGroup> groups;
    for (const char* name : {"Preset", "Property", "Collision", "Wind_Setting"}) {
        const QString group = QString::fromLatin1(name);
        groups.push_back({group,
                          [this, group, failing](QSettings& profile) {
                              m_handled.append(profile.group());
                              return group == failing ? BF::Results::Refused : BF::Results::Success;
                          },
                          [this, group](QSettings& profile) {
                              m_handled.append(profile.group());
                              profile.setValue(QStringLiteral("key"), group);
                          }});
    }
    return groups;
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
    QCOMPARE(m_handled.join(QLatin1Char(' ')), handled);
}

void TestProfileFile::loadingEndsAtTheFirstFailure()
{
    const QString path = Files::Write(Path("a.ini"), savedText);
    QCOMPARE(MV::LoadProfile(path, Groups(QStringLiteral("Property")), m_result), EProfileProblem::None);
    QCOMPARE(m_result, BF::Results::Refused);
    QCOMPARE(m_handled, (QStringList{QStringLiteral("Preset"), QStringLiteral("Property")}));
}

void TestProfileFile::storeStandsInsideTheGroup()
{
    QVariant value;
    const std::vector<MV::ProfileGroup> groups{{QStringLiteral("Property"),
                                                [&value](QSettings& profile) {
                                                    value = profile.value(QStringLiteral("Mass"));
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
                                                [&read](QSettings& profile) {
                                                    read = profile.value(QStringLiteral("name")).toString();
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
    QVERIFY(m_handled.isEmpty());
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
    QVERIFY(m_handled.isEmpty());
}

void TestProfileFile::changedFileIsReadAnew()
{
    const QString path = Files::Write(Path("a.ini"), "[Property]\na=1\n");
    Load(path);
    Files::Write(path, "[Collision]\na=1\n");
    Load(path);
    QCOMPARE(m_handled, (QStringList{QStringLiteral("Property"), QStringLiteral("Collision")}));
}

void TestProfileFile::largeFileIsRead()
{
    QByteArray content = "[Property]\n";
    for (int i = 0; content.size() < 10 * 1024 * 1024; ++i) {
        content += "key" + QByteArray::number(i) + "=a value of some length, and then some more\n";
    }
    content += "[Collision]\na=1\n";
    const QString path = Files::Write(Path("large.ini"), content);
    QCOMPARE(Load(path), EProfileProblem::None);
    QCOMPARE(m_handled, (QStringList{QStringLiteral("Property"), QStringLiteral("Collision")}));
    QCOMPARE(Save(path), EProfileProblem::None);
    QVERIFY(Files::Read(path).size() > content.size());
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

void TestProfileFile::savedGroupsAreInTheFile()
{
    QCOMPARE(Save(Path("new.ini")), EProfileProblem::None);
    QCOMPARE(m_handled, (QStringList{QStringLiteral("Preset"), QStringLiteral("Property"), QStringLiteral("Collision"),
                                     QStringLiteral("Wind_Setting")}));
    QSettings saved(Path("new.ini"), QSettings::IniFormat);
    for (const QString& group : qAsConst(m_handled)) {
        QCOMPARE(saved.value(group + QLatin1String("/key")).toString(), group);
    }
    QCOMPARE(saved.allKeys().size(), 4);
}

void TestProfileFile::savingKeepsWhatItDoesNotWrite()
{
    const QString path =
        Files::Write(Path("a.ini"), "loose=1\n[Other]\nname=K\xC3\xB6per\nlist=a, b, c\n[Property]\nkey=old\nOwn=9\n");
    QCOMPARE(Save(path), EProfileProblem::None);
    QSettings saved(path, QSettings::IniFormat);
    saved.setIniCodec("UTF-8");
    QCOMPARE(saved.value(QStringLiteral("loose")).toString(), QStringLiteral("1"));
    QCOMPARE(saved.value(QStringLiteral("Other/name")).toString(), QString::fromUtf8("K\xC3\xB6per"));
    QCOMPARE(saved.value(QStringLiteral("Other/list")).toStringList().size(), 3);
    QCOMPARE(saved.value(QStringLiteral("Property/Own")).toString(), QStringLiteral("9"));
    QCOMPARE(saved.value(QStringLiteral("Property/key")).toString(), QStringLiteral("Property"));
    QVERIFY(Files::Read(path).contains("K\xC3\xB6per"));
}

void TestProfileFile::savingOverNoiseGivesAProfile_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray noise;
    for (int i = 0; i < 4096; ++i) {
        noise += char(i * 131 + i / 7);
    }
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("binary") << noise;
    QTest::newRow("zeros") << QByteArray(1000, '\0');
    QTest::newRow("no keys") << QByteArray("just some text\nwithout anything\n");
}

void TestProfileFile::savingOverNoiseGivesAProfile()
{
    QFETCH(const QByteArray, content);
    const QString path = Files::Write(Path("a.ini"), content);
    Load(path);
    QCOMPARE(Save(path), EProfileProblem::None);
    m_handled.clear();
    QCOMPARE(Load(path), EProfileProblem::None);
    QCOMPARE(m_handled.size(), 4);
}

void TestProfileFile::anyNoiseCanBeSavedOver()
{
    QRandomGenerator random(7);
    const QByteArray alphabet("[]=;#\\/%\"'\n\r \t,@()xuU0Preset\xC3\xB6\xEF\xBB\xBF\0", 38);
    for (int round = 0; round < 300; ++round) {
        QByteArray noise;
        for (int i = random.bounded(400); i > 0; --i) {
            noise += alphabet.at(random.bounded(alphabet.size()));
        }
        const QString path = Files::Write(m_folder->filePath(QStringLiteral("%1.ini").arg(round)), noise);
        QVERIFY2(Save(path) == EProfileProblem::None, noise.toPercentEncoding());
        m_handled.clear();
        QCOMPARE(Load(path), EProfileProblem::None);
        QVERIFY2(m_handled.size() == 4, noise.toPercentEncoding());
    }
}

void TestProfileFile::missingFoldersAreMade()
{
    const QString path = Path("one/two/new.ini");
    QCOMPARE(Save(path), EProfileProblem::None);
    QVERIFY(QFileInfo(path).isFile());
}

void TestProfileFile::unwritableTargetIsTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder") << QStringLiteral("folder");
#ifdef Q_OS_UNIX // On Windows such permissions are not a matter of one call.
    QTest::newRow("new file in a read-only folder") << QStringLiteral("folder/new.ini");
    QTest::newRow("file in a read-only folder") << QStringLiteral("folder/old.ini");
    QTest::newRow("file that cannot be read") << QStringLiteral("secret.ini");
#endif
    QTest::newRow("under a file") << QStringLiteral("file/new.ini");
    QTest::newRow("read-only file") << QStringLiteral("readonly.ini");
}

void TestProfileFile::unwritableTargetIsTold()
{
    QFETCH(const QString, path);
    const QByteArray content = "[Property]\na=1\n";
    Files::OpenToAll(m_folder->path());
    const auto put = [&](const char* name, int permissions) {
        const QString file = Files::Write(Path(name), content);
        QVERIFY(QFile::setPermissions(file, QFileDevice::Permissions(permissions)));
    };
    put("folder/old.ini", 0x6666);
    put("file", 0x6666);
    put("readonly.ini", 0x4444);
    put("secret.ini", 0x2222);
    QVERIFY(QFile::setPermissions(Path("folder"), QFileDevice::Permissions(0x5555)));
    {
        const OrdinaryUser user;
        QCOMPARE(Save(m_folder->filePath(path)), EProfileProblem::Unwritable);
    }
    for (const char* name : {"folder/old.ini", "file", "readonly.ini", "secret.ini"}) {
        QCOMPARE(Files::Read(Path(name)), content);
    }
    QVERIFY(QFile::setPermissions(Path("folder"), QFileDevice::Permissions(0x7777)));
    QCOMPARE(QDir(Path("folder")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList{QStringLiteral("old.ini")});
}

#ifdef Q_OS_UNIX
void TestProfileFile::failedWriteLeavesTheOldFile()
{
    // Large enough for the new content not to fit, malformed so that the store has something else to complain of.
    const QByteArray content = "no key\n[Property]\nold=" + QByteArray(5000, 'x') + '\n';
    const QString path = Files::Write(Path("a.ini"), content);
    {
        const FullDisk full(5000);
        QCOMPARE(Save(path), EProfileProblem::Unwritable);
        QCOMPARE(Save(Path("new.ini")), EProfileProblem::None);
    }
    QCOMPARE(Files::Read(path), content);
    QCOMPARE(Save(path), EProfileProblem::None);
    QVERIFY(Files::Read(path) != content);
}

void TestProfileFile::fullDiskIsNoticed_data()
{
    QTest::addColumn<int>("room");
    // At the end of a line, within a value, within a name, and one byte too little.
    const QByteArray text(savedText);
    QTest::newRow("nothing fits") << 0;
    QTest::newRow("first line") << text.indexOf('\n') + 1;
    QTest::newRow("first group") << text.indexOf("\n\n") + 1;
    QTest::newRow("within a value") << text.indexOf("key=Property") + 8;
    QTest::newRow("within a name") << text.lastIndexOf("key=") + 2;
    QTest::newRow("all but the last line end") << text.size() - 1;
}

void TestProfileFile::fullDiskIsNoticed()
{
    QFETCH(const int, room);
    {
        const FullDisk full{rlim_t(room)};
        QCOMPARE(Save(Path("new.ini")), EProfileProblem::Unwritable);
    }
    QVERIFY(!QFileInfo::exists(Path("new.ini")));
    const FullDisk enough(rlim_t(qstrlen(savedText)));
    QCOMPARE(Save(Path("new.ini")), EProfileProblem::None);
    QCOMPARE(Files::Read(Path("new.ini")), QByteArray(savedText));
}

#endif

void TestProfileFile::refusedSaveLeavesNoTrace()
{
    const QByteArray content = "[Property]\na=1\n";
    Files::OpenToAll(m_folder->path());
    const QString path = Files::Write(Path("folder/a.ini"), content);
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions(0x6666)));
    {
#ifdef Q_OS_UNIX
        const FileRefusal refusal(Path("folder"), FileRefusal::Of::Writing);
#else
        const FileRefusal refusal(path, FileRefusal::Of::Writing);
#endif
        QCOMPARE(Save(path), EProfileProblem::Unwritable);
    }
    m_handled.clear();
    Load(path);
    QCOMPARE(m_handled, QStringList{QStringLiteral("Property")});
    QCOMPARE(Files::Read(path), content);
}

void TestProfileFile::savingLeavesNoOtherFiles()
{
    QCOMPARE(Save(Path("a.ini")), EProfileProblem::None);
    QCOMPARE(Save(Path("a.ini")), EProfileProblem::None);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("a.ini")});
}

void TestProfileFile::savedFileKeepsItsPermissions()
{
    const QString path = Files::Write(Path("a.ini"), "[Property]\na=1\n");
    const QFileDevice::Permissions permissions(0x6640);
    QVERIFY(QFile::setPermissions(path, permissions));
    const QFileDevice::Permissions before = QFileInfo(path).permissions();
    QCOMPARE(Save(path), EProfileProblem::None);
    QCOMPARE(QFileInfo(path).permissions(), before);
}

QTEST_MAIN(TestProfileFile)
#include "tst_profile_file.moc"
