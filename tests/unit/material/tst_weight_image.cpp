#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QDesktopServices>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QUrl>

using MV::ECompatibleApp;

/// The commands on the weight image: loading with its checks, saving, deleting, embedding, its folder, brightness and
/// contrast, and what the dialog shows of it.
class TestWeightImage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void openButtonAsksTheHostForAFile();
    void openButtonWithoutAChoiceDoesNothing_data();
    void openButtonWithoutAChoiceDoesNothing();
    void loadingIsChecked_data();
    void loadingIsChecked();
    void failedUndoEndsTheLoad_data();
    void failedUndoEndsTheLoad();
    void pathThatIsNoFileIsNotLoaded_data();
    void pathThatIsNoFileIsNotLoaded();
    void labelTakesImageFiles_data();
    void labelTakesImageFiles();
    void labelAsksTheHostForAFile();
    void droppedFileIsLoaded();
    void selectionMayChangeDuringTheMessage();
    void dialogMayDieDuringTheMessage_data();
    void dialogMayDieDuringTheMessage();
    void dialogMayDieDuringTheFileDialogs_data();
    void dialogMayDieDuringTheFileDialogs();
    void savingTellsARefusal_data();
    void savingTellsARefusal();
    void savingWithoutAPathDoesNothing_data();
    void savingWithoutAPathDoesNothing();
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
    void adjustmentIsWritten_data();
    void adjustmentIsWritten();
    void draggedSliderWritesWhileItMoves();
    void refusedAdjustmentIsTakenBack();
    void otherFailureOfAnAdjustmentUpdatesTheSettings();
    void adjustmentIsReloadedWithoutAnEcho();
    void reloadIsDecidedByStateOrArgument_data();
    void reloadIsDecidedByStateOrArgument();
    void settingsAreReadInOrder_data();
    void settingsAreReadInOrder();
    void failedStepEndsTheSettings_data();
    void failedStepEndsTheSettings();
    void settingsDecideWhatIsEnabled_data();
    void settingsDecideWhatIsEnabled();
    void linkedThenEmbeddedSwapsTheWidgets();
    void adjustingDependsOnTheApplication_data();
    void adjustingDependsOnTheApplication();
    void otherCurrentLabelLeavesTheWidgetsAlone();
};

namespace {

const QString triple = QStringLiteral(R"("Hero", "Body", "Skin")");
const QString refusal =
    QStringLiteral("This image would create a soft cloth without any physics effect,\n because all the vertices of "
                   "cloth mesh were set as zero weighting\n( black color ). Please modify the gray map or load other "
                   "valid images.");
const QString tooMany = QStringLiteral(
    "The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. ");

constexpr int ok = 0x400;
constexpr int cancel = 0x400000;

/// An open dialog whose weighting label is current, and a folder with an image file.
struct WeightFixture : DialogFixture
{
    explicit WeightFixture(ECompatibleApp app = ECompatibleApp::FamilyA)
        : DialogFixture(app)
    {
        Open();
        dialog->SelectWeightingLabel();
        image = AddFile(QStringLiteral("gray.png"));
    }

    QString AddFile(const QString& name) const
    {
        const QString path = folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("%s cannot be written", qPrintable(path));
        }
        return path;
    }

    void Load(const QString& path)
    {
        host.Answers().AddFile(path);
        Click("qtOpenFilePushButton");
    }

    QComboSpinBox& Brightness() const { return *Find<QComboSpinBox>("qtBrightnessCombospinbox"); }
    QComboSpinBox& Contrast() const { return *Find<QComboSpinBox>("qtContrastCombospinbox"); }

    QString OpenCall(const QString& path) const
    {
        return QStringLiteral("GetOpenImageFileName(\"%1\", 4, 71, 4) -> 0").arg(path);
    }
    QString LoadCall(const QString& path, const QString& result = QStringLiteral("0")) const
    {
        return QStringLiteral("LoadWeightImage(%1, \"%2\", 2) -> %3").arg(triple, path, result);
    }

    QTemporaryDir folder;
    QString image;
};

/// The calls of a settings update with redraw, where brightness and contrast are not read again.
const QStringList drawnSettings{QStringLiteral("GetWeightTexture"), QStringLiteral("GetWeightImageState"),
                                QStringLiteral("IsMaterialSoftClothEnabled"), QStringLiteral("GetThumbnailSourceImage"),
                                QStringLiteral("RenderThumbnail")};

QString BoxText(const QString& text, int buttons, int defaultButton, int answer)
{
    return QStringLiteral("ShowMessageBox(\"%1\", \"\", MV::CSoftClothMaterialDlg, 2, %2, %3) -> %4")
        .arg(text)
        .arg(buttons)
        .arg(defaultButton)
        .arg(answer);
}

/// Widgets that the settings of the weight image switch.
const QStringList settingWidgets{QStringLiteral("frame"),
                                 QStringLiteral("qtTextureEditButtonWidget"),
                                 QStringLiteral("qtTextureSettingWidget"),
                                 QStringLiteral("qtOpenFilePushButton"),
                                 QStringLiteral("qtUvRefPushButton"),
                                 QStringLiteral("qtLaunchPushButton"),
                                 QStringLiteral("qtEmbedTexturePushButton"),
                                 QStringLiteral("qtDeleteFilePushButton"),
                                 QStringLiteral("qtSaveFilePushButton"),
                                 QStringLiteral("qtOpenPathPushButton"),
                                 QStringLiteral("qtBitmapLabel"),
                                 QStringLiteral("qtBitmapPathLineEdit"),
                                 QStringLiteral("qtBrightnessCombospinbox"),
                                 QStringLiteral("qtContrastCombospinbox")};

} // namespace

void TestWeightImage::openButtonAsksTheHostForAFile()
{
    WeightFixture fixture;
    fixture.Load(fixture.image);
    QCOMPARE(fixture.Take(), (QStringList{fixture.OpenCall(fixture.image), fixture.LoadCall(fixture.image),
                                          Journal::RefreshScene(), Journal::Refresh()}));
}

void TestWeightImage::openButtonWithoutAChoiceDoesNothing_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("cancelled") << false;
    QTest::newRow("failed") << true;
}

void TestWeightImage::openButtonWithoutAChoiceDoesNothing()
{
    QFETCH(const bool, fails);
    WeightFixture fixture;
    if (fails) {
        fixture.host.Faults().FailOperation(QStringLiteral("GetOpenImageFileName"), BF::Results::Refused);
    }
    fixture.Load({});
    QCOMPARE(fixture.TakeOperations(), QStringList{QStringLiteral("GetOpenImageFileName")});
}

void TestWeightImage::loadingIsChecked_data()
{
    QTest::addColumn<quint32>("status");
    QTest::addColumn<int>("answer"); ///< 0: the box is closed without a choice.
    QTest::addColumn<QStringList>("calls");
    const QString undo = QStringLiteral("UndoLastEdit() -> 0");
    const QString scene = Journal::RefreshScene();
    QTest::newRow("all black") << 0x80000006U << ok << QStringList{BoxText(refusal, ok, 0, ok), undo, scene};
    QTest::newRow("another failure") << 0x80000004U << ok << QStringList{BoxText({}, ok, 0, ok), undo, scene};
    QTest::newRow("too many vertices, kept") << 1U << ok << QStringList{BoxText(tooMany, 0x400400, ok, ok), scene};
    QTest::newRow("too many vertices, taken back")
        << 1U << cancel << QStringList{BoxText(tooMany, 0x400400, ok, cancel), undo, scene};
    QTest::newRow("too many vertices, box closed")
        << 1U << 0 << QStringList{BoxText(tooMany, 0x400400, ok, cancel), undo, scene};
    QTest::newRow("any other answer takes it back")
        << 1U << 0x800 << QStringList{BoxText(tooMany, 0x400400, ok, 0x800), undo, scene};
    QTest::newRow("cancelled by the user") << 2U << ok << QStringList{BoxText({}, ok, 0, ok), scene};
}

void TestWeightImage::loadingIsChecked()
{
    QFETCH(const quint32, status);
    QFETCH(const int, answer);
    QFETCH(const QStringList, calls);
    WeightFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("LoadWeightImage"), BF::Result(status));
    if (answer != 0) {
        fixture.host.Answers().AddButton(answer);
    }
    fixture.Load(fixture.image);
    const BF::Result result(status);
    const QString shown = result.IsFailure() ? QStringLiteral("0x%1").arg(status, 0, 16) : QString::number(status);
    QCOMPARE(fixture.Take(), QStringList({fixture.OpenCall(fixture.image), fixture.LoadCall(fixture.image, shown)}) +
                                 calls + QStringList{Journal::Refresh()});
}

void TestWeightImage::failedUndoEndsTheLoad_data()
{
    QTest::addColumn<quint32>("status");
    QTest::addColumn<int>("answer");
    QTest::newRow("all black") << 0x80000006U << ok;
    QTest::newRow("taken back by the user") << 1U << cancel;
}

void TestWeightImage::failedUndoEndsTheLoad()
{
    QFETCH(const quint32, status);
    QFETCH(const int, answer);
    WeightFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("LoadWeightImage"), BF::Result(status));
    fixture.host.Faults().FailOperation(QStringLiteral("UndoLastEdit"), BF::Results::IndexOutOfRange);
    fixture.host.Answers().AddButton(answer);
    fixture.Load(fixture.image);
    QCOMPARE(fixture.TakeOperations(),
             (QStringList{QStringLiteral("GetOpenImageFileName"), QStringLiteral("LoadWeightImage"),
                          QStringLiteral("ShowMessageBox"), QStringLiteral("UndoLastEdit"),
                          QStringLiteral("IsPhysicsActive")}));
}

void TestWeightImage::pathThatIsNoFileIsNotLoaded_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.png");
    QTest::newRow("folder") << QString();
}

void TestWeightImage::pathThatIsNoFileIsNotLoaded()
{
    QFETCH(const QString, name);
    WeightFixture fixture;
    const QString path = fixture.folder.filePath(name);
    fixture.Load(path);
    QCOMPARE(fixture.Take(),
             (QStringList{fixture.OpenCall(path), Journal::Message(QStringLiteral("InValid File Path."))}));
}

void TestWeightImage::labelTakesImageFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isTaken");
    for (const char* suffix : {"jpg", "jpeg", "bmp", "gif", "png", "tga", "PNG"}) {
        QTest::newRow(suffix) << QStringLiteral("image.") + QLatin1String(suffix) << true;
    }
    QTest::newRow("tiff") << QStringLiteral("image.tiff") << false;
    QTest::newRow("no suffix") << QStringLiteral("image") << false;
}

void TestWeightImage::labelTakesImageFiles()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isTaken);
    WeightFixture fixture;
    const QString path = fixture.AddFile(name);
    fixture.host.Answers().AddFile(path);
    QTest::mouseDClick(fixture.Find<QItemLabel>("qtWeightingItemLabel"), Qt::LeftButton);
    const QStringList calls = fixture.Take();
    QVERIFY(calls.contains(fixture.OpenCall(path)));
    QCOMPARE(calls.contains(fixture.LoadCall(path)), isTaken);
}

void TestWeightImage::labelAsksTheHostForAFile()
{
    WeightFixture fixture;
    QTest::mouseDClick(fixture.Find<QItemLabel>("qtWeightingItemLabel"), Qt::LeftButton);
    QVERIFY(fixture.TakeOperations().endsWith(QStringLiteral("GetOpenImageFileName")));
    for (const char* other : {"qtDiffuseItemLabel", "qtOpacityItemLabel"}) {
        QTest::mouseDClick(fixture.Find<QItemLabel>(other), Qt::LeftButton);
        QVERIFY(!fixture.TakeOperations().contains(QStringLiteral("GetOpenImageFileName")));
    }
}

void TestWeightImage::droppedFileIsLoaded()
{
    WeightFixture fixture;
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(fixture.image)});
    auto* label = fixture.Find<QItemLabel>("qtWeightingItemLabel");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &drop);
    QCOMPARE(fixture.Take(),
             (QStringList{fixture.LoadCall(fixture.image), Journal::RefreshScene(), Journal::Refresh()}));
}

void TestWeightImage::selectionMayChangeDuringTheMessage()
{
    WeightFixture fixture;
    BF::CHandle* other = fixture.host.CurrentScene().AddObject(SampleModels::Flag()).handle;
    fixture.host.Faults().FailOperation(QStringLiteral("LoadWeightImage"), BF::Results::Refused);
    fixture.During("ShowMessageBox", [&] { fixture.Selection().object = other; });
    fixture.Load(fixture.image);
    QCOMPARE(fixture.Take().constLast(), QStringLiteral(R"(IsPhysicsActive("Flag", 3, false) -> 0)"));
}

void TestWeightImage::dialogMayDieDuringTheMessage_data()
{
    QTest::addColumn<quint32>("status");
    QTest::newRow("all black") << 0x80000006U;
    QTest::newRow("too many vertices") << 1U;
}

void TestWeightImage::dialogMayDieDuringTheMessage()
{
    QFETCH(const quint32, status);
    WeightFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("LoadWeightImage"), BF::Result(status));
    fixture.During("ShowMessageBox", [&] { delete fixture.dialog; });
    QMetaObject::invokeMethod(fixture.dialog, "OnLoadWeightImage", Q_ARG(QString, fixture.image));
    QVERIFY(!fixture.dialog);
    QCOMPARE(fixture.TakeOperations(),
             (QStringList{QStringLiteral("LoadWeightImage"), QStringLiteral("ShowMessageBox")}));
}

void TestWeightImage::dialogMayDieDuringTheFileDialogs_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("button");
    QTest::newRow("open") << QStringLiteral("GetOpenImageFileName") << QStringLiteral("OnClickOpenFilePushButton");
    QTest::newRow("save") << QStringLiteral("GetSaveImageFileName") << QStringLiteral("OnClickSaveFilePushButton");
}

void TestWeightImage::dialogMayDieDuringTheFileDialogs()
{
    QFETCH(const QString, operation);
    QFETCH(const QString, button);
    WeightFixture fixture;
    fixture.host.Answers().AddFile(fixture.image);
    fixture.During(operation.toLatin1().constData(), [&] { delete fixture.dialog; });
    QMetaObject::invokeMethod(fixture.dialog, button.toLatin1().constData());
    QVERIFY(!fixture.dialog);
    QCOMPARE(fixture.TakeOperations(), QStringList{operation});
}

void TestWeightImage::savingTellsARefusal_data()
{
    QTest::addColumn<quint32>("status");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("saved") << 0U << false;
    QTest::newRow("refused") << 0x80000006U << true;
    QTest::newRow("another failure") << 0x80000003U << false;
    QTest::newRow("nothing done") << 1U << false;
}

void TestWeightImage::savingTellsARefusal()
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

void TestWeightImage::savingWithoutAPathDoesNothing_data()
{
    openButtonWithoutAChoiceDoesNothing_data();
}

void TestWeightImage::savingWithoutAPathDoesNothing()
{
    QFETCH(const bool, fails);
    WeightFixture fixture;
    if (fails) {
        fixture.host.Faults().FailOperation(QStringLiteral("GetSaveImageFileName"), BF::Results::Refused);
    }
    fixture.Click("qtSaveFilePushButton");
    QCOMPARE(fixture.TakeOperations(), QStringList{QStringLiteral("GetSaveImageFileName")});
}

void TestWeightImage::deletingRefreshes_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("deleted") << false;
    QTest::newRow("failed") << true;
}

void TestWeightImage::deletingRefreshes()
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

void TestWeightImage::embeddingDrawsAndUpdates_data()
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

void TestWeightImage::embeddingDrawsAndUpdates()
{
    QFETCH(const bool, hasTexture);
    QFETCH(const QStringList, calls);
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = hasTexture;
    fixture.host.plan.weightHasSource = true;
    fixture.Click("qtEmbedTexturePushButton");
    QCOMPARE(fixture.Take(), calls);
}

void TestWeightImage::embeddingSwitchesTheWidgets()
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
    // The last question comes after the switching and decides anew; without its answer the switching stands alone.
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.Faults().FailOperation(QStringLiteral("GetWeightImageState"), BF::Results::Refused);
    fixture.Click("qtEmbedTexturePushButton");
    QCOMPARE(fixture.EnabledOf(off), QStringList());
    QCOMPARE(fixture.EnabledOf(on), on);
    QCOMPARE(fixture.Find<QLineEdit>("qtBitmapPathLineEdit")->text(), QString());
}

void TestWeightImage::failedStepEndsTheEmbedding_data()
{
    QTest::addColumn<int>("call"); ///< Number of the failing call among those that have a status.
    QTest::addColumn<QString>("operation");
    QTest::newRow("embedding") << 1 << QStringLiteral("EmbedWeightImage");
    QTest::newRow("texture") << 2 << QStringLiteral("GetWeightTexture");
    QTest::newRow("default thumbnail") << 3 << QStringLiteral("GetDefaultThumbnail");
    QTest::newRow("drawing") << 4 << QStringLiteral("RenderThumbnail");
}

void TestWeightImage::failedStepEndsTheEmbedding()
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

void TestWeightImage::folderIsOpened()
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

void TestWeightImage::folderOfAMissingFileIsToldToTheUser_data()
{
    QTest::addColumn<bool>("fails");
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << false << QStringLiteral("/nowhere/gray.png");
    QTest::newRow("empty") << false << QString();
    QTest::newRow("no answer") << true << QString();
}

void TestWeightImage::folderOfAMissingFileIsToldToTheUser()
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

void TestWeightImage::adjustmentIsWritten_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("record");
    QTest::newRow("brightness") << QStringLiteral("qtBrightnessCombospinbox")
                                << QStringLiteral("{brightness=-35, contrast=7}");
    QTest::newRow("contrast") << QStringLiteral("qtContrastCombospinbox")
                              << QStringLiteral("{brightness=5, contrast=-35}");
}

void TestWeightImage::adjustmentIsWritten()
{
    QFETCH(const QString, box);
    QFETCH(const QString, record);
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = true;
    {
        const QSignalBlocker silentBrightness(fixture.Brightness());
        const QSignalBlocker silentContrast(fixture.Contrast());
        fixture.Brightness().SetValue(5);
        fixture.Contrast().SetValue(7);
    }
    auto* field = fixture.Find<QComboSpinBox>(box.toLatin1().constData())->findChild<QSpinBox*>();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("-35"));
    QCOMPARE(fixture.Take(), QStringList());
    QTest::keyClick(field, Qt::Key_Return);
    const QStringList calls = fixture.Take();
    const QString write = QStringLiteral("SetWeightImageAdjust(%1, 0, %2, %3, %3) -> 0");
    QCOMPARE(calls.size(), 2 * (1 + drawnSettings.size()));
    QCOMPARE(calls.at(0), write.arg(triple, record, QStringLiteral("false")));
    QCOMPARE(calls.at(6), write.arg(triple, record, QStringLiteral("true")));
    for (const int first : {1, 7}) {
        for (int i = 0; i < drawnSettings.size(); ++i) {
            QVERIFY(calls.at(first + i).startsWith(drawnSettings.at(i)));
        }
    }
}

void TestWeightImage::draggedSliderWritesWhileItMoves()
{
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = true;
    auto* slider = fixture.Brightness().findChild<QSlider*>();
    const QPoint start = slider->rect().center();
    QTest::mousePress(slider, Qt::LeftButton, {}, start);
    fixture.Take();
    int value = fixture.Brightness().Value();
    for (const int distance : {20, 40}) {
        QMouseEvent move(QEvent::MouseMove, start + QPoint(distance, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &move);
        QVERIFY(fixture.Brightness().Value() > value);
        value = fixture.Brightness().Value();
        const QStringList writes = fixture.Take().filter(QStringLiteral("SetWeightImageAdjust"));
        QCOMPARE(writes.size(), 1);
        QVERIFY(writes.first().endsWith(QStringLiteral("{brightness=%1, contrast=0}, false, false) -> 0").arg(value)));
    }
    QTest::mouseRelease(slider, Qt::LeftButton, {}, start + QPoint(40, 0));
    const QStringList writes = fixture.Take().filter(QStringLiteral("SetWeightImageAdjust"));
    QCOMPARE(writes.size(), 1);
    QVERIFY(writes.first().endsWith(QStringLiteral("{brightness=%1, contrast=0}, true, true) -> 0").arg(value)));
}

void TestWeightImage::refusedAdjustmentIsTakenBack()
{
    WeightFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("SetWeightImageAdjust"), BF::Results::Refused);
    fixture.Brightness().SetValue(-100);
    const QStringList operations = fixture.TakeOperations();
    QCOMPARE(operations.mid(0, 3), (QStringList{QStringLiteral("SetWeightImageAdjust"), QStringLiteral("UndoLastEdit"),
                                                QStringLiteral("GetMaterialTextureState")}));
    QCOMPARE(operations.size(), 12);
    QVERIFY(!operations.contains(QStringLiteral("ShowMessageBox")));
}

void TestWeightImage::otherFailureOfAnAdjustmentUpdatesTheSettings()
{
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.Faults().FailOperation(QStringLiteral("SetWeightImageAdjust"), BF::Results::IndexOutOfRange);
    fixture.Brightness().SetValue(-100);
    QCOMPARE(fixture.TakeOperations(), QStringList{QStringLiteral("SetWeightImageAdjust")} + drawnSettings);
}

void TestWeightImage::adjustmentIsReloadedWithoutAnEcho()
{
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.plan.weightState.reload = true;
    fixture.host.plan.weightAdjust = {0, 30, -40};
    fixture.Contrast().blockSignals(true);
    fixture.dialog->UpdateUi();
    QCOMPARE(fixture.Brightness().Value(), 30);
    QCOMPARE(fixture.Contrast().Value(), -40);
    QVERIFY(!fixture.TakeOperations().contains(QStringLiteral("SetWeightImageAdjust")));
    QVERIFY(!fixture.Brightness().signalsBlocked());
    QVERIFY(fixture.Contrast().signalsBlocked());
}

void TestWeightImage::reloadIsDecidedByStateOrArgument_data()
{
    QTest::addColumn<bool>("redraw");
    QTest::addColumn<bool>("stateSaysReload");
    QTest::addColumn<bool>("reloads");
    // With redraw by a refresh, without by a click on the weighting label, which asks for it.
    QTest::newRow("redraw, state yes") << true << true << true;
    QTest::newRow("redraw, state no; the argument is ignored") << true << false << false;
    QTest::newRow("no redraw, state no; the argument counts") << false << false << true;
    QTest::newRow("no redraw, state yes") << false << true << true;
}

void TestWeightImage::reloadIsDecidedByStateOrArgument()
{
    QFETCH(const bool, redraw);
    QFETCH(const bool, stateSaysReload);
    QFETCH(const bool, reloads);
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.plan.weightState.reload = stateSaysReload;
    if (redraw) {
        fixture.dialog->UpdateUi();
    } else {
        QTest::mouseClick(fixture.Find<QItemLabel>("qtWeightingItemLabel"), Qt::LeftButton);
    }
    QCOMPARE(fixture.TakeOperations().contains(QStringLiteral("GetWeightImageAdjust")), reloads);
}

void TestWeightImage::settingsAreReadInOrder_data()
{
    QTest::addColumn<bool>("hasSource");
    QTest::addColumn<bool>("offered");
    QTest::addColumn<QString>("source");
    QTest::newRow("with a source image") << true << true << QStringLiteral("unknown 0xe1");
    QTest::newRow("without") << false << true << QStringLiteral("null");
    QTest::newRow("not offered") << false << false << QStringLiteral("null");
}

void TestWeightImage::settingsAreReadInOrder()
{
    QFETCH(const bool, hasSource);
    QFETCH(const bool, offered);
    QFETCH(const QString, source);
    WeightFixture fixture;
    ImagePlan& plan = fixture.host.plan;
    plan.hasWeightTexture = true;
    plan.weightHasSource = hasSource;
    plan.weightState = {true, false, true};
    plan.weightPath = QStringLiteral("/images/gray.png");
    fixture.object->materials.at(0).state.softClothEnabled = offered;
    fixture.dialog->UpdateUi();
    const QString answer = hasSource ? QStringLiteral("true") : QStringLiteral("false");
    QStringList expected{
        QStringLiteral("GetWeightTexture(%1, unknown 0xe0) -> 0").arg(triple),
        QStringLiteral("GetWeightImageState(%1, {hasFile=true, embedded=false, reload=true}) -> 0").arg(triple),
        QStringLiteral("IsMaterialSoftClothEnabled(\"Skin\") -> %1")
            .arg(offered ? QStringLiteral("true") : QStringLiteral("false"))};
    if (offered) {
        expected.append(QStringLiteral("GetWeightImagePath(%1, \"/images/gray.png\") -> 0").arg(triple));
    }
    expected.append({QStringLiteral("GetThumbnailSourceImage(unknown 0xe0, unknown 0xe1) -> ") + answer,
                     Journal::Draw(QStringLiteral("unknown 0xe0"), QStringLiteral("%1")).arg(source),
                     QStringLiteral("GetWeightImageAdjust(%1, {brightness=0, contrast=0}) -> 0").arg(triple)});
    // After the three calls each of the diffuse and the opacity texture.
    QCOMPARE(fixture.Take().mid(6), expected);
}

void TestWeightImage::failedStepEndsTheSettings_data()
{
    QTest::addColumn<QString>("operation");
    for (const char* operation :
         {"GetWeightTexture", "GetWeightImageState", "GetWeightImagePath", "GetWeightImageAdjust"}) {
        QTest::newRow(operation) << QString::fromLatin1(operation);
    }
}

void TestWeightImage::failedStepEndsTheSettings()
{
    QFETCH(const QString, operation);
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.plan.weightState = {true, false, true};
    fixture.host.Faults().FailOperation(operation, BF::Results::IndexOutOfRange);
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::IndexOutOfRange);
    QCOMPARE(fixture.TakeOperations().constLast(), operation);
}

void TestWeightImage::settingsDecideWhatIsEnabled_data()
{
    QTest::addColumn<bool>("hasTexture");
    QTest::addColumn<bool>("offered");
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<QStringList>("further"); ///< Beside frame and holders, open-file and UV reference.
    const QStringList linked{QStringLiteral("qtDeleteFilePushButton"), QStringLiteral("qtSaveFilePushButton"),
                             QStringLiteral("qtOpenPathPushButton"), QStringLiteral("qtBitmapLabel"),
                             QStringLiteral("qtBitmapPathLineEdit")};
    const QStringList unlinked{QStringLiteral("qtLaunchPushButton"), QStringLiteral("qtDeleteFilePushButton"),
                               QStringLiteral("qtSaveFilePushButton"), QStringLiteral("qtBrightnessCombospinbox"),
                               QStringLiteral("qtContrastCombospinbox")};
    const QString embed = QStringLiteral("qtEmbedTexturePushButton");
    const auto row = [](const char* name, bool hasTexture, bool offered, bool hasFile, bool embedded,
                        const QStringList& further) {
        QTest::newRow(name) << hasTexture << offered << hasFile << embedded << further;
    };
    row("no texture", false, true, true, false, {});
    row("linked", true, true, true, false, QStringList{embed} + linked);
    row("linked and embedded", true, true, true, true, linked);
    row("embedded only", true, true, false, true, unlinked);
    row("neither linked nor embedded", true, true, false, false, unlinked);
    row("linked, not offered", true, false, true, false, {embed});
    row("embedded, not offered", true, false, false, true, {});
}

void TestWeightImage::settingsDecideWhatIsEnabled()
{
    QFETCH(const bool, hasTexture);
    QFETCH(const bool, offered);
    QFETCH(const bool, hasFile);
    QFETCH(const bool, embedded);
    QFETCH(const QStringList, further);
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = hasTexture;
    fixture.host.plan.weightState = {hasFile, embedded, false};
    fixture.host.plan.weightPath = QStringLiteral("/images/gray.png");
    fixture.object->materials.at(0).state.softClothEnabled = offered;
    QStringList expected{QStringLiteral("frame"), QStringLiteral("qtTextureEditButtonWidget"),
                         QStringLiteral("qtTextureSettingWidget"), QStringLiteral("qtOpenFilePushButton"),
                         QStringLiteral("qtUvRefPushButton")};
    for (const QString& name : settingWidgets) {
        if (further.contains(name)) {
            expected.append(name);
        }
    }
    fixture.dialog->UpdateUi();
    QCOMPARE(fixture.EnabledOf(settingWidgets), expected);
    const bool showsPath = hasTexture && offered && hasFile;
    QCOMPARE(fixture.Find<QLineEdit>("qtBitmapPathLineEdit")->text(),
             showsPath ? QStringLiteral("/images/gray.png") : QString());

    // A click on the label comes to the same, whatever the widgets were before.
    for (const QString& name : settingWidgets) {
        QWidget* widget = fixture.Find<QWidget>(name.toLatin1().constData());
        widget->setEnabled(!widget->isEnabledTo(widget->parentWidget()));
    }
    QTest::mouseClick(fixture.Find<QItemLabel>("qtWeightingItemLabel"), Qt::LeftButton);
    QCOMPARE(fixture.EnabledOf(settingWidgets), expected);
}

void TestWeightImage::linkedThenEmbeddedSwapsTheWidgets()
{
    WeightFixture fixture;
    const QStringList ofLinked{QStringLiteral("qtOpenPathPushButton"), QStringLiteral("qtBitmapPathLineEdit"),
                               QStringLiteral("qtEmbedTexturePushButton")};
    const QStringList ofEmbedded{QStringLiteral("qtLaunchPushButton"), QStringLiteral("qtBrightnessCombospinbox"),
                                 QStringLiteral("qtContrastCombospinbox")};
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.plan.weightState = {true, false, false};
    fixture.dialog->UpdateUi();
    QCOMPARE(fixture.EnabledOf(ofLinked), ofLinked);
    QCOMPARE(fixture.EnabledOf(ofEmbedded), QStringList());
    fixture.During("EmbedWeightImage", [&] { fixture.host.plan.weightState = {false, true, false}; });
    fixture.Click("qtEmbedTexturePushButton");
    QCOMPARE(fixture.EnabledOf(ofLinked), QStringList());
    QCOMPARE(fixture.EnabledOf(ofEmbedded), ofEmbedded);
}

void TestWeightImage::adjustingDependsOnTheApplication_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<bool>("adjustable");
    QTest::newRow("family A") << ECompatibleApp::FamilyA << true;
    QTest::newRow("one of family A") << ECompatibleApp(0x4) << true;
    QTest::newRow("family B") << ECompatibleApp::FamilyB << true;
    QTest::newRow("one of family B") << ECompatibleApp(0x1000000) << true;
    QTest::newRow("neither") << ECompatibleApp(0x8) << false;
}

void TestWeightImage::adjustingDependsOnTheApplication()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, adjustable);
    WeightFixture fixture(app);
    fixture.host.plan.hasWeightTexture = true;
    fixture.dialog->UpdateUi();
    for (const char* name : {"frame", "qtTextureEditButtonWidget", "qtTextureSettingWidget", "qtBrightnessCombospinbox",
                             "qtContrastCombospinbox"}) {
        QCOMPARE(fixture.IsEnabled(QLatin1String(name)), adjustable);
    }
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtLaunchPushButton")));
}

void TestWeightImage::otherCurrentLabelLeavesTheWidgetsAlone()
{
    WeightFixture fixture;
    QTest::mouseClick(fixture.Find<QItemLabel>("qtOpacityItemLabel"), Qt::LeftButton);
    const QStringList before = fixture.EnabledOf(settingWidgets);
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.plan.weightState = {true, false, true};
    fixture.host.plan.weightPath = QStringLiteral("/images/gray.png");
    fixture.host.plan.weightAdjust = {0, 11, 12};
    fixture.dialog->UpdateUi();
    QCOMPARE(fixture.EnabledOf(settingWidgets), before);
    QCOMPARE(fixture.Find<QLineEdit>("qtBitmapPathLineEdit")->text(), QString());
    // The values follow all the same.
    QCOMPARE(fixture.Brightness().Value(), 11);
    QCOMPARE(fixture.Contrast().Value(), 12);
}

QTEST_MAIN(TestWeightImage)
#include "tst_weight_image.moc"
