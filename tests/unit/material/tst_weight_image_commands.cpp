#include "tests/support/TestCase.h"
#include "tests/unit/material/FailingFileDialogs.h"
#include "tests/unit/material/WeightFixture.h"

#include <QDesktopServices>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>

/// Saving, deleting and embedding the weight image, and opening the folder of its file.
class TestWeightImageCommands : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void savingTellsARefusal_data();
    void savingTellsARefusal();
    void savingWithoutAPathDoesNothing_data();
    void savingWithoutAPathDoesNothing();
    void chosenPathCountsWhateverTheStatus();
    void deletingRefreshes_data();
    void deletingRefreshes();
    void embeddingDrawsAndUpdates_data();
    void embeddingDrawsAndUpdates();
    void embeddingSwitchesTheWidgets();
    void failedStepEndsTheEmbedding_data();
    void failedStepEndsTheEmbedding();
    void folderIsOpened();
    void folderOfAMissingFileIsToldToTheUser_data();
    void folderOfAMissingFileIsToldToTheUser();
};

/// Takes the place of the desktop's opener.
class FolderOpener : public QObject
{
    Q_OBJECT

public:
    FolderOpener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    ~FolderOpener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QVector<QUrl> opened;

public Q_SLOTS:
    void Open(const QUrl& url) { opened.append(url); }
};

void TestWeightImageCommands::savingTellsARefusal_data()
{
    QTest::addColumn<quint32>("status");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("saved") << 0U << false;
    QTest::newRow("refused") << 0x80000006U << true;
    QTest::newRow("another failure") << 0x80000003U << false;
    QTest::newRow("nothing done") << 1U << false;
}

void TestWeightImageCommands::savingTellsARefusal()
{
    QFETCH(const quint32, status);
    QFETCH(const bool, isTold);
    WeightFixture fixture;
    const QString path = QStringLiteral("/somewhere/new.png");
    fixture.host.Answers().AddFile(path);
    if (status != 0) {
        fixture.host.Faults().FailOperation(QStringLiteral("SaveWeightImage"), BF::Result(status));
    }
    fixture.Click("qtSaveFilePushButton");
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.at(0), QStringLiteral("GetSaveImageFileName(\"%1\", 4, 71, 4, \"\") -> 0").arg(path));
    QVERIFY(calls.at(1).startsWith(QStringLiteral("SaveWeightImage(%1, \"%2\") -> ").arg(triple, path)));
    QCOMPARE(calls.mid(2),
             isTold ? QStringList{Journal::Message(QStringLiteral("Failed to save weight image."))} : QStringList());
}

void TestWeightImageCommands::savingWithoutAPathDoesNothing_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("cancelled") << false;
    QTest::newRow("failed") << true;
}

void TestWeightImageCommands::savingWithoutAPathDoesNothing()
{
    QFETCH(const bool, fails);
    WeightFixture fixture;
    if (fails) {
        fixture.host.Faults().FailOperation(QStringLiteral("GetSaveImageFileName"), BF::Results::Refused);
    }
    fixture.Click("qtSaveFilePushButton");
    QCOMPARE(fixture.TakeOperations(), QStringList{QStringLiteral("GetSaveImageFileName")});
}

void TestWeightImageCommands::chosenPathCountsWhateverTheStatus()
{
    WeightFixture fixture;
    FailingFileDialogs scene(fixture.host, QStringLiteral("/somewhere/new.png"));
    HostWithScene host(fixture.host, scene);
    MV::CSoftClothMaterialDlg dialog(&fixture.window, &fixture.plugin);
    QCOMPARE(dialog.Init({}, {}, &host), BF::Results::Success);
    fixture.Take();
    QTest::mouseClick(Child<QPushButton>(&dialog, "qtSaveFilePushButton"), Qt::LeftButton);
    QCOMPARE(fixture.Take(),
             QStringList{QStringLiteral("SaveWeightImage(%1, \"/somewhere/new.png\") -> 0").arg(triple)});
}

void TestWeightImageCommands::deletingRefreshes_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("deleted") << false;
    QTest::newRow("failed") << true;
}

void TestWeightImageCommands::deletingRefreshes()
{
    QFETCH(const bool, fails);
    WeightFixture fixture;
    if (fails) {
        fixture.host.Faults().FailOperation(QStringLiteral("DeleteWeightImage"), BF::Results::Refused);
    }
    fixture.Click("qtDeleteFilePushButton");
    const QStringList calls = fixture.Take();
    QVERIFY(calls.first().startsWith(QStringLiteral("DeleteWeightImage(%1)").arg(triple)));
    QCOMPARE(calls.size(), 11);
    QVERIFY(calls.at(1).startsWith(QStringLiteral("GetMaterialTextureState(\"Skin\", 0")));
    QVERIFY(!calls.contains(Journal::Refresh()));
}

void TestWeightImageCommands::embeddingDrawsAndUpdates_data()
{
    QTest::addColumn<bool>("hasTexture");
    QTest::addColumn<QStringList>("calls");
    const QString embed = QStringLiteral("EmbedWeightImage(%1) -> 0").arg(triple);
    const QString texture = QStringLiteral("GetWeightTexture(%1, %2) -> 0");
    const QString draw = Journal::Draw(QStringLiteral("%1"), QStringLiteral("%2"));
    const QString none = QStringLiteral("null");
    const QString weight = QStringLiteral("unknown 0xe0");
    const QString standIn = QStringLiteral("unknown 0xd0");
    const QString source = QStringLiteral("unknown 0xe1");
    const QString getDefault = QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0");
    QTest::newRow("with a texture")
        << true
        << QStringList{embed,
                       texture.arg(triple, weight),
                       draw.arg(weight, none),
                       texture.arg(triple, weight),
                       QStringLiteral("GetWeightImageState(%1, {hasFile=false, embedded=false, reload=false}) -> 0")
                           .arg(triple),
                       QStringLiteral("IsMaterialSoftClothEnabled(\"Skin\") -> true"),
                       QStringLiteral("GetThumbnailSourceImage(unknown 0xe0, unknown 0xe1) -> true"),
                       draw.arg(weight, source)};
    QTest::newRow("without a texture")
        << false
        << QStringList{embed,
                       texture.arg(triple, none),
                       getDefault,
                       draw.arg(standIn, none),
                       texture.arg(triple, none),
                       getDefault,
                       QStringLiteral("GetThumbnailSourceImage(unknown 0xd0, unknown 0xe1) -> true"),
                       draw.arg(standIn, source)};
}

void TestWeightImageCommands::embeddingDrawsAndUpdates()
{
    QFETCH(const bool, hasTexture);
    QFETCH(const QStringList, calls);
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = hasTexture;
    fixture.host.plan.weightHasSource = true;
    fixture.Click("qtEmbedTexturePushButton");
    QCOMPARE(fixture.Take(), calls);
}

void TestWeightImageCommands::embeddingSwitchesTheWidgets()
{
    WeightFixture fixture;
    const QStringList off{QStringLiteral("qtBitmapLabel"), QStringLiteral("qtBitmapPathLineEdit"),
                          QStringLiteral("qtOpenPathPushButton"), QStringLiteral("qtEmbedTexturePushButton")};
    const QStringList on{QStringLiteral("qtLaunchPushButton"), QStringLiteral("qtBrightnessCombospinbox"),
                         QStringLiteral("qtContrastCombospinbox")};
    for (const QString& name : on) {
        fixture.Find<QWidget>(name.toLatin1().constData())->setEnabled(false);
    }
    fixture.Find<QLineEdit>("qtBitmapPathLineEdit")->setText(QStringLiteral("stale"));
    // The last question comes after the switching and decides again; without its answer only the switching counts.
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.Faults().FailOperation(QStringLiteral("GetWeightImageState"), BF::Results::Refused);
    fixture.Click("qtEmbedTexturePushButton");
    QCOMPARE(fixture.EnabledOf(off), QStringList());
    QCOMPARE(fixture.EnabledOf(on), on);
    QCOMPARE(fixture.Find<QLineEdit>("qtBitmapPathLineEdit")->text(), QString());
}

void TestWeightImageCommands::failedStepEndsTheEmbedding_data()
{
    QTest::addColumn<int>("call"); ///< Number of the failing call among those that have a status.
    QTest::addColumn<QString>("operation");
    QTest::newRow("embedding") << 1 << QStringLiteral("EmbedWeightImage");
    QTest::newRow("texture") << 2 << QStringLiteral("GetWeightTexture");
    QTest::newRow("default thumbnail") << 3 << QStringLiteral("GetDefaultThumbnail");
    QTest::newRow("drawing") << 4 << QStringLiteral("RenderThumbnail");
}

void TestWeightImageCommands::failedStepEndsTheEmbedding()
{
    QFETCH(const int, call);
    QFETCH(const QString, operation);
    WeightFixture fixture;
    fixture.host.Faults().FailCall(call, BF::Results::Refused);
    fixture.Click("qtEmbedTexturePushButton");
    const QStringList operations = fixture.TakeOperations();
    QCOMPARE(operations.size(), call);
    QCOMPARE(operations.last(), operation);
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtEmbedTexturePushButton")));
}

void TestWeightImageCommands::folderIsOpened()
{
    FolderOpener opener;
    WeightFixture fixture;
    // By a way round, so that the canonical path shows.
    QVERIFY(QDir(fixture.folder.path()).mkdir(QStringLiteral("side")));
    fixture.host.plan.weightPath = fixture.folder.filePath(QStringLiteral("side/../gray.png"));
    fixture.Click("qtOpenPathPushButton");
    QCOMPARE(opener.opened, QVector<QUrl>{QUrl::fromLocalFile(QDir(fixture.folder.path()).canonicalPath())});
    QCOMPARE(
        fixture.Take(),
        QStringList{QStringLiteral("GetWeightImagePath(%1, \"%2\") -> 0").arg(triple, fixture.host.plan.weightPath)});
}

void TestWeightImageCommands::folderOfAMissingFileIsToldToTheUser_data()
{
    QTest::addColumn<bool>("fails");
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << false << QStringLiteral("/nowhere/gray.png");
    QTest::newRow("empty") << false << QString();
    QTest::newRow("no answer") << true << QString();
}

void TestWeightImageCommands::folderOfAMissingFileIsToldToTheUser()
{
    QFETCH(const bool, fails);
    QFETCH(const QString, path);
    FolderOpener opener;
    WeightFixture fixture;
    fixture.host.plan.weightPath = path;
    if (fails) {
        fixture.host.Faults().FailOperation(QStringLiteral("GetWeightImagePath"), BF::Results::Refused);
    }
    fixture.Click("qtOpenPathPushButton");
    QCOMPARE(opener.opened, QVector<QUrl>());
    QCOMPARE(fixture.Take().mid(1), QStringList{Journal::Message(QStringLiteral("InValid File Path."))});
}

SOFTCLOTH_TEST(TestWeightImageCommands)
#include "tst_weight_image_commands.moc"
