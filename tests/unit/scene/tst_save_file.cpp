#include "host/scene/SaveFile.h"

#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"
#include "tests/support/KilledProcess.h"
#include "tests/support/TestCase.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>

using Host::SaveFile;

/// What all of the host's saves go through.
class TestSaveFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contentTakesThePlaceOfTheOldOne_data();
    void contentTakesThePlaceOfTheOldOne();
    void impossiblePlaceIsNamed();
#ifdef Q_OS_UNIX // Elsewhere no limit makes a disk look full, and no process is copied.
    void fullDiskIsNoticedAndLeavesTheOldFile_data();
    void fullDiskIsNoticedAndLeavesTheOldFile();
    void killedSaveLeavesTheOldOrTheNewFile();
#endif

private:
    void SetUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }
    QString PathOf(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    QStringList Files() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSaveFile::contentTakesThePlaceOfTheOldOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a byte") << QByteArray(1, '\0');
    QTest::newRow("more than a buffer") << QByteArray(100000, 'n');
}

void TestSaveFile::contentTakesThePlaceOfTheOldOne()
{
    QFETCH(const QByteArray, content);
    Files::Write(PathOf("a"), QByteArray(50000, 'o'));
    QCOMPARE(SaveFile(PathOf("a"), content), QString());
    QCOMPARE(Files::Read(PathOf("a")), content);
    QCOMPARE(SaveFile(PathOf("b"), content), QString());
    QCOMPARE(Files::Read(PathOf("b")), content);
    QCOMPARE(Files(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

void TestSaveFile::impossiblePlaceIsNamed()
{
    QVERIFY(!SaveFile(PathOf("no/such/folder"), "new").isEmpty());
    QVERIFY(!SaveFile(m_folder->path(), "new").isEmpty());
    QCOMPARE(Files(), QStringList());
}

#ifdef Q_OS_UNIX
void TestSaveFile::fullDiskIsNoticedAndLeavesTheOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("room");
    for (const int size : {1, 1000, 16383, 16384, 16385, 100000}) {
        for (const int room : {0, size / 2, size - 1}) {
            QTest::addRow("%d of %d bytes", room, size) << size << room;
        }
    }
}

void TestSaveFile::fullDiskIsNoticedAndLeavesTheOldFile()
{
    QFETCH(const int, size);
    QFETCH(const int, room);
    Files::Write(PathOf("a"), "old");
    const QByteArray content(size, 'n');
    {
        const FullDisk full{rlim_t(room)};
        QVERIFY(!SaveFile(PathOf("a"), content).isEmpty());
    }
    QCOMPARE(Files::Read(PathOf("a")), QByteArray("old"));
    QCOMPARE(Files(), QStringList{QStringLiteral("a")});
    const FullDisk enough{rlim_t(size)};
    QCOMPARE(SaveFile(PathOf("a"), content), QString());
    QCOMPARE(Files::Read(PathOf("a")), content);
}

void TestSaveFile::killedSaveLeavesTheOldOrTheNewFile()
{
    const QByteArray contents[] = {QByteArray(60000, 'a'), QByteArray(90000, 'b')};
    QRandomGenerator random(3);
    Files::Write(PathOf("a"), contents[0]);
    for (int round = 0; round < 60; ++round) {
        const auto save = [&](int number) { SaveFile(PathOf("a"), contents[number % 2]); };
        QVERIFY(RunUntilKilled(save, 200 + random.bounded(6000)));
        const QByteArray left = Files::Read(PathOf("a"));
        QVERIFY2(left == contents[0] || left == contents[1], qPrintable(QString::number(left.size())));
    }
}
#endif

SOFTCLOTH_TEST_WITH(TestSaveFile, QCoreApplication)

#include "tst_save_file.moc"
