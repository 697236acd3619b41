#include "tests/support/FileRefusal.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/MissingTemporaryFolder.h"
#include "tests/unit/preset/NotedGroups.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRandomGenerator>
#include <QSettings>
#include <QSysInfo>
#include <QTemporaryDir>

#include <memory>

using MV::EProfileProblem;

/// The writing of profiles, whatever their groups mean.
class TestProfileSave : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
    void missingTemporaryFolderIsNoObstacle();
#endif
    void refusedSaveLeavesNoTrace();
    void savingLeavesNoOtherFiles();
    void savedFileKeepsItsPermissions();
#ifdef Q_OS_UNIX
    void linkStaysALink();
#endif
    void largeFileIsSavedOver();
    void objectsOfOthersKeepTheirText();
    void keysThatShareALineAreSavedOver_data();
    void keysThatShareALineAreSavedOver();
    void foldersOfKilledSavesAreRemoved();

protected:
    void SetUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
    }

private:
    QString Path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    EProfileProblem Load(const QString& path)
    {
        return MV::LoadProfile(path, m_groups.Make(), m_result);
    }
    EProfileProblem Save(const QString& path)
    {
        return MV::SaveProfile(path, m_groups.Make());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    NotedGroups m_groups;
    BF::Result m_result;
};

namespace {

constexpr const char* savedText = "[Collision]\nkey=Collision\n\n[Preset]\nkey=Preset\n\n[Property]\nkey=Property\n\n"
                                  "[Wind_Setting]\nkey=Wind_Setting\n";

} // namespace

void TestProfileSave::savedGroupsAreInTheFile()
{
    QCOMPARE(Save(Path("new.ini")), EProfileProblem::None);
    const QStringList handled = m_groups.Take();
    QCOMPARE(handled, (QStringList{QStringLiteral("Preset"), QStringLiteral("Property"), QStringLiteral("Collision"),
                                   QStringLiteral("Wind_Setting")}));
    QSettings saved(Path("new.ini"), QSettings::IniFormat);
    for (const QString& group : handled) {
        QCOMPARE(saved.value(group + QLatin1String("/key")).toString(), group);
    }
    QCOMPARE(saved.allKeys().size(), 4);
}

void TestProfileSave::savingKeepsWhatItDoesNotWrite()
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

void TestProfileSave::savingOverNoiseGivesAProfile_data()
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

void TestProfileSave::savingOverNoiseGivesAProfile()
{
    QFETCH(const QByteArray, content);
    const QString path = Files::Write(Path("a.ini"), content);
    Load(path);
    QCOMPARE(Save(path), EProfileProblem::None);
    m_groups.Take();
    QCOMPARE(Load(path), EProfileProblem::None);
    QCOMPARE(m_groups.Take().size(), 4);
}

void TestProfileSave::anyNoiseCanBeSavedOver()
{
    QRandomGenerator random(7);
    // The zero that ends the text is one of the bytes.
    constexpr char alphabet[] = "[]=;#\\/%\"'\n\r \t,@()xuU0Preset\xC3\xB6\xEF\xBB\xBF";
    for (int round = 0; round < 50; ++round) {
        QByteArray noise;
        for (int i = random.bounded(400); i > 0; --i) {
            noise += alphabet[random.bounded(int(sizeof(alphabet)))];
        }
        const QString path = Files::Write(m_folder->filePath(QStringLiteral("%1.ini").arg(round)), noise);
        QVERIFY2(Save(path) == EProfileProblem::None, noise.toPercentEncoding());
        m_groups.Take();
        QCOMPARE(Load(path), EProfileProblem::None);
        QVERIFY2(m_groups.Take().size() == 4, noise.toPercentEncoding());
    }
}

void TestProfileSave::missingFoldersAreMade()
{
    const QString path = Path("one/two/new.ini");
    QCOMPARE(Save(path), EProfileProblem::None);
    QVERIFY(QFileInfo(path).isFile());
}

void TestProfileSave::unwritableTargetIsTold_data()
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

void TestProfileSave::unwritableTargetIsTold()
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

#ifdef Q_OS_UNIX // Elsewhere no limit makes a disk look full, and the test cannot take a folder away.
void TestProfileSave::failedWriteLeavesTheOldFile()
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

void TestProfileSave::fullDiskIsNoticed_data()
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

void TestProfileSave::fullDiskIsNoticed()
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

void TestProfileSave::missingTemporaryFolderIsNoObstacle()
{
    Files::OpenToAll(m_folder->path());
    {
        const MissingTemporaryFolder missing;
        QCOMPARE(Save(Path("new.ini")), EProfileProblem::None);
    }
    QCOMPARE(Files::Read(Path("new.ini")), QByteArray(savedText));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("new.ini")});
}
#endif

void TestProfileSave::refusedSaveLeavesNoTrace()
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
    m_groups.Take();
    Load(path);
    QCOMPARE(m_groups.Take(), QStringList{QStringLiteral("Property")});
    QCOMPARE(Files::Read(path), content);
}

void TestProfileSave::savingLeavesNoOtherFiles()
{
    QCOMPARE(Save(Path("a.ini")), EProfileProblem::None);
    QCOMPARE(Save(Path("a.ini")), EProfileProblem::None);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("a.ini")});
}

void TestProfileSave::savedFileKeepsItsPermissions()
{
    const QString path = Files::Write(Path("a.ini"), "[Property]\na=1\n");
    const QFileDevice::Permissions permissions(0x6640);
    QVERIFY(QFile::setPermissions(path, permissions));
    const QFileDevice::Permissions before = QFileInfo(path).permissions();
    QCOMPARE(Save(path), EProfileProblem::None);
    QCOMPARE(QFileInfo(path).permissions(), before);
}

#ifdef Q_OS_UNIX // A shortcut of Windows is a file, which programs do not follow.
void TestProfileSave::linkStaysALink()
{
    const QString target = Files::Write(Path("target.ini"), "[Other]\na=1\n");
    QVERIFY(QFile::link(target, Path("link.ini")));
    QCOMPARE(Save(Path("link.ini")), EProfileProblem::None);
    QVERIFY(QFileInfo(Path("link.ini")).isSymLink());
    const QByteArray saved = Files::Read(target);
    QVERIFY(saved.contains("[Other]\na=1\n"));
    QVERIFY(saved.contains("key=Wind_Setting"));
}
#endif

void TestProfileSave::largeFileIsSavedOver()
{
    QByteArray content = "[Property]\n";
    const QByteArray value(1000, 'x');
    for (int i = 0; content.size() < 2 * 1024 * 1024; ++i) {
        content += "key" + QByteArray::number(i) + '=' + value + '\n';
    }
    const QString path = Files::Write(Path("large.ini"), content);
    QCOMPARE(Save(path), EProfileProblem::None);
    const QByteArray saved = Files::ReadText(path);
    QCOMPARE(saved.count('='), content.count('=') + 4);
    QVERIFY(saved.contains("\nkey=Wind_Setting\n"));
}

void TestProfileSave::objectsOfOthersKeepTheirText()
{
    const QByteArray list = "a=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n";
    const QByteArray others = list + "b=@Rect(1 2 3 4)\nc=\"@x\", \\x40y\nd=plain\n";
    const QString path = Files::Write(Path("a.ini"), "[Other]\n" + others + "[Property]\nkey=@Invalid()\n");
    QCOMPARE(Save(path), EProfileProblem::None);
    const QByteArray saved = Files::Read(path);
    QVERIFY2(saved.contains("[Other]\n" + others), saved.constData());
    QVERIFY(saved.contains("[Property]\nkey=Property\n"));
    QVERIFY(!saved.contains("kept"));
}

void TestProfileSave::keysThatShareALineAreSavedOver_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("with and without a separator") << QByteArray("x=1\n\\x=2\n");
    QTest::newRow("empty key") << QByteArray("=5\n[Other]\n=6\n");
}

void TestProfileSave::keysThatShareALineAreSavedOver()
{
    QFETCH(const QByteArray, content);
    const QString path = Files::Write(Path("a.ini"), content + "[Other]\nb=7\n");
    m_groups.Take();
    QCOMPARE(Save(path), EProfileProblem::None);
    QVERIFY(Files::Read(path).contains("b=7\n"));
    QVERIFY(Files::Read(path).contains("key=Wind_Setting\n"));
    // Once each, although the first place for the work may not do.
    QCOMPARE(m_groups.Take().size(), 4);
}

void TestProfileSave::foldersOfKilledSavesAreRemoved()
{
    const QString folder = QDir::tempPath() + QLatin1String("/softcloth-profile-test");
    QVERIFY(QDir().mkpath(folder));
    Files::Write(folder + QLatin1String("/profile.ini"), "[Property]\na=1\n");
    // The lock of a process that no longer exists.
    Files::Write(folder + QLatin1String(".lock"), "4194303\nsoftcloth\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    QCOMPARE(Save(Path("a.ini")), EProfileProblem::None);
    QVERIFY(!QFileInfo::exists(folder));
    QVERIFY(!QFileInfo::exists(folder + QLatin1String(".lock")));
    // One that is in use stays.
    QVERIFY(QDir().mkpath(folder));
    {
        QLockFile owner(folder + QLatin1String(".lock"));
        QVERIFY(owner.tryLock());
        QCOMPARE(Save(Path("a.ini")), EProfileProblem::None);
        QVERIFY(QFileInfo::exists(folder));
        QVERIFY(QDir(folder).removeRecursively());
    }
}

SOFTCLOTH_TEST(TestProfileSave)
#include "tst_profile_save.moc"
