#include "tests/support/TestCase.h"
#include "tests/unit/material/FailingFileDialogs.h"
#include "tests/unit/material/WeightFixture.h"

#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

/// The ways in which a weight image is loaded, and the checks that it has to pass.
class TestWeightImageChoice : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void openButtonAsksTheHostForAFile();
    void openButtonWithoutAChoiceDoesNothing_data();
    void openButtonWithoutAChoiceDoesNothing();
    void chosenPathCountsWhateverTheStatus_data();
    void chosenPathCountsWhateverTheStatus();
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
    void otherLabelsTakeNoFiles_data();
    void otherLabelsTakeNoFiles();
    void selectionMayChangeDuringTheMessage();
    void dialogMayDieDuringTheMessage_data();
    void dialogMayDieDuringTheMessage();
    void dialogMayDieDuringTheFileDialogs_data();
    void dialogMayDieDuringTheFileDialogs();
};

namespace {

const QString refusal =
    QStringLiteral("This image would create a soft cloth without any physics effect,\n because all the vertices of "
                   "cloth mesh were set as zero weighting\n( black color ). Please modify the gray map or load other "
                   "valid images.");
const QString tooMany = QStringLiteral(
    "The Generated cloth mesh count has exceeded the maximum 20,000 limit. Please try another legal image. ");

constexpr int ok = 0x400;
constexpr int cancel = 0x400000;

QString BoxText(const QString& text, int buttons, int defaultButton, int answer)
{
    return QStringLiteral("ShowMessageBox(\"%1\", \"\", MV::CSoftClothMaterialDlg, 2, %2, %3) -> %4")
        .arg(text)
        .arg(buttons)
        .arg(defaultButton)
        .arg(answer);
}

/// Drops the file at \p path on \p label as a drag does. \return whether the label takes it
bool Drop(const QString& path, QItemLabel* label)
{
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &drop);
    return enter.isAccepted();
}

} // namespace

void TestWeightImageChoice::openButtonAsksTheHostForAFile()
{
    WeightFixture fixture;
    fixture.Load(fixture.image);
    QCOMPARE(fixture.Take(), (QStringList{fixture.OpenCall(fixture.image), fixture.LoadCall(fixture.image),
                                          Journal::RefreshScene(), Journal::Refresh()}));
}

void TestWeightImageChoice::openButtonWithoutAChoiceDoesNothing_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("cancelled") << false;
    QTest::newRow("failed") << true;
}

void TestWeightImageChoice::openButtonWithoutAChoiceDoesNothing()
{
    QFETCH(const bool, fails);
    WeightFixture fixture;
    if (fails) {
        fixture.host.Faults().FailOperation(QStringLiteral("GetOpenImageFileName"), BF::Results::Refused);
    }
    fixture.Load({});
    QCOMPARE(fixture.TakeOperations(), QStringList{QStringLiteral("GetOpenImageFileName")});
}

void TestWeightImageChoice::chosenPathCountsWhateverTheStatus_data()
{
    QTest::addColumn<bool>("byLabel");
    QTest::newRow("open button") << false;
    QTest::newRow("weighting label") << true;
}

void TestWeightImageChoice::chosenPathCountsWhateverTheStatus()
{
    QFETCH(const bool, byLabel);
    WeightFixture fixture;
    FailingFileDialogs scene(fixture.host, fixture.image);
    HostWithScene host(fixture.host, scene);
    MV::CSoftClothMaterialDlg dialog(&fixture.window, &fixture.plugin);
    QCOMPARE(dialog.Init({}, {}, &host), BF::Results::Success);
    fixture.Take();
    if (byLabel) {
        QTest::mouseDClick(Child<QItemLabel>(&dialog, "qtWeightingItemLabel"), Qt::LeftButton);
    } else {
        QTest::mouseClick(Child<QPushButton>(&dialog, "qtOpenFilePushButton"), Qt::LeftButton);
    }
    QVERIFY(fixture.Take().contains(fixture.LoadCall(fixture.image)));
}

void TestWeightImageChoice::loadingIsChecked_data()
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

void TestWeightImageChoice::loadingIsChecked()
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

void TestWeightImageChoice::failedUndoEndsTheLoad_data()
{
    QTest::addColumn<quint32>("status");
    QTest::addColumn<int>("answer");
    QTest::newRow("all black") << 0x80000006U << ok;
    QTest::newRow("taken back by the user") << 1U << cancel;
}

void TestWeightImageChoice::failedUndoEndsTheLoad()
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

void TestWeightImageChoice::pathThatIsNoFileIsNotLoaded_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.png");
    QTest::newRow("folder") << QString();
}

void TestWeightImageChoice::pathThatIsNoFileIsNotLoaded()
{
    QFETCH(const QString, name);
    WeightFixture fixture;
    const QString path = fixture.folder.filePath(name);
    fixture.Load(path);
    QCOMPARE(fixture.Take(),
             (QStringList{fixture.OpenCall(path), Journal::Message(QStringLiteral("InValid File Path."))}));
}

void TestWeightImageChoice::labelTakesImageFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isTaken");
    for (const char* suffix : {"jpg", "jpeg", "bmp", "gif", "png", "tga", "PNG"}) {
        QTest::newRow(suffix) << QStringLiteral("image.") + QLatin1String(suffix) << true;
    }
    QTest::newRow("tiff") << QStringLiteral("image.tiff") << false;
    QTest::newRow("no suffix") << QStringLiteral("image") << false;
}

void TestWeightImageChoice::labelTakesImageFiles()
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

void TestWeightImageChoice::labelAsksTheHostForAFile()
{
    WeightFixture fixture;
    QTest::mouseDClick(fixture.Find<QItemLabel>("qtWeightingItemLabel"), Qt::LeftButton);
    QVERIFY(fixture.TakeOperations().endsWith(QStringLiteral("GetOpenImageFileName")));
    for (const char* other : {"qtDiffuseItemLabel", "qtOpacityItemLabel"}) {
        QTest::mouseDClick(fixture.Find<QItemLabel>(other), Qt::LeftButton);
        QVERIFY(!fixture.TakeOperations().contains(QStringLiteral("GetOpenImageFileName")));
    }
}

void TestWeightImageChoice::droppedFileIsLoaded()
{
    WeightFixture fixture;
    QVERIFY(Drop(fixture.image, fixture.Find<QItemLabel>("qtWeightingItemLabel")));
    QCOMPARE(fixture.Take(),
             (QStringList{fixture.LoadCall(fixture.image), Journal::RefreshScene(), Journal::Refresh()}));
}

void TestWeightImageChoice::otherLabelsTakeNoFiles_data()
{
    QTest::addColumn<QString>("label");
    QTest::newRow("diffuse") << QStringLiteral("qtDiffuseItemLabel");
    QTest::newRow("opacity") << QStringLiteral("qtOpacityItemLabel");
}

void TestWeightImageChoice::otherLabelsTakeNoFiles()
{
    QFETCH(const QString, label);
    WeightFixture fixture;
    QVERIFY(!Drop(fixture.image, fixture.Find<QItemLabel>(label.toLatin1().constData())));
    QCOMPARE(fixture.Take(), QStringList());
}

void TestWeightImageChoice::selectionMayChangeDuringTheMessage()
{
    WeightFixture fixture;
    BF::CHandle* other = fixture.host.CurrentScene().AddObject(SampleModels::Flag()).handle;
    fixture.host.Faults().FailOperation(QStringLiteral("LoadWeightImage"), BF::Results::Refused);
    fixture.During("ShowMessageBox", [&] { fixture.Selection().object = other; });
    fixture.Load(fixture.image);
    QCOMPARE(fixture.Take().constLast(), QStringLiteral(R"(IsPhysicsActive("Flag", 3, false) -> 0)"));
}

void TestWeightImageChoice::dialogMayDieDuringTheMessage_data()
{
    QTest::addColumn<quint32>("status");
    QTest::newRow("all black") << 0x80000006U;
    QTest::newRow("too many vertices") << 1U;
}

void TestWeightImageChoice::dialogMayDieDuringTheMessage()
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

void TestWeightImageChoice::dialogMayDieDuringTheFileDialogs_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("button");
    QTest::newRow("open") << QStringLiteral("GetOpenImageFileName") << QStringLiteral("OnClickOpenFilePushButton");
    QTest::newRow("save") << QStringLiteral("GetSaveImageFileName") << QStringLiteral("OnClickSaveFilePushButton");
}

void TestWeightImageChoice::dialogMayDieDuringTheFileDialogs()
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

SOFTCLOTH_TEST(TestWeightImageChoice)
#include "tst_weight_image_choice.moc"
