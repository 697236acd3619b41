#include "tests/support/TestCase.h"
#include "tests/unit/material/WeightFixture.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QSpinBox>

using MV::ECompatibleApp;

/// What the dialog shows of the weight image, and the writing of its brightness and contrast.
class TestWeightImage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void adjustmentIsWritten_data();
    void adjustmentIsWritten();
    void draggedSliderWritesWhileItMoves();
    void refusedAdjustmentIsTakenBack_data();
    void refusedAdjustmentIsTakenBack();
    void otherFailureOfAnAdjustmentUpdatesTheSettings();
    void adjustmentIsReloadedWithoutAnEcho();
    void reloadIsDecidedByStateOrArgument_data();
    void reloadIsDecidedByStateOrArgument();
    void settingsAreReadInOrder_data();
    void settingsAreReadInOrder();
    void failedStepEndsTheSettings_data();
    void failedStepEndsTheSettings();
    void currentRowDecidesWhetherTheImageIsListed_data();
    void currentRowDecidesWhetherTheImageIsListed();
    void settingsDecideWhatIsEnabled_data();
    void settingsDecideWhatIsEnabled();
    void linkedThenEmbeddedSwapsTheWidgets();
    void adjustingDependsOnTheApplication_data();
    void adjustingDependsOnTheApplication();
    void otherCurrentLabelLeavesTheWidgetsAlone();
};

namespace {

/// The calls of a settings update with redraw, where brightness and contrast are not read again.
const QStringList drawnSettings{QStringLiteral("GetWeightTexture"), QStringLiteral("GetWeightImageState"),
                                QStringLiteral("IsMaterialSoftClothEnabled"), QStringLiteral("GetThumbnailSourceImage"),
                                QStringLiteral("RenderThumbnail")};

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

void TestWeightImage::adjustmentIsWritten_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("record");
    QTest::newRow("brightness") << QStringLiteral("qtBrightnessCombospinbox")
                                << QStringLiteral("{zero=0, brightness=-35, contrast=7}");
    QTest::newRow("contrast") << QStringLiteral("qtContrastCombospinbox")
                              << QStringLiteral("{zero=0, brightness=5, contrast=-35}");
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
        QVERIFY(writes.first().endsWith(
            QStringLiteral("{zero=0, brightness=%1, contrast=0}, false, false) -> 0").arg(value)));
    }
    QTest::mouseRelease(slider, Qt::LeftButton, {}, start + QPoint(40, 0));
    const QStringList writes = fixture.Take().filter(QStringLiteral("SetWeightImageAdjust"));
    QCOMPARE(writes.size(), 1);
    QVERIFY(
        writes.first().endsWith(QStringLiteral("{zero=0, brightness=%1, contrast=0}, true, true) -> 0").arg(value)));
}

void TestWeightImage::refusedAdjustmentIsTakenBack_data()
{
    QTest::addColumn<bool>("undoFails");
    QTest::newRow("taken back") << false;
    QTest::newRow("not taken back") << true;
}

void TestWeightImage::refusedAdjustmentIsTakenBack()
{
    QFETCH(const bool, undoFails);
    WeightFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("SetWeightImageAdjust"), BF::Results::Refused);
    if (undoFails) {
        fixture.host.Faults().FailOperation(QStringLiteral("UndoLastEdit"), BF::Results::IndexOutOfRange);
    }
    fixture.Brightness().SetValue(-100);
    const QStringList operations = fixture.TakeOperations();
    QCOMPARE(operations, QStringList({QStringLiteral("SetWeightImageAdjust"), QStringLiteral("UndoLastEdit")}) +
                             Journal::DialogRefresh());
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
    QTest::addColumn<QByteArray>("by");
    QTest::addColumn<bool>("stateSaysReload");
    QTest::addColumn<bool>("reloads");
    // A refresh draws again and asks for a reload, a click on the label only asks for one, a click on a row does
    // neither.
    const auto rows = [](const char* by, bool reloadsIfStateSaysSo, bool reloadsOtherwise) {
        QTest::addRow("%s, state yes", by) << QByteArray(by) << true << reloadsIfStateSaysSo;
        QTest::addRow("%s, state no", by) << QByteArray(by) << false << reloadsOtherwise;
    };
    rows("refresh", true, false);
    rows("label", true, true);
    rows("row", false, false);
}

void TestWeightImage::reloadIsDecidedByStateOrArgument()
{
    QFETCH(const QByteArray, by);
    QFETCH(const bool, stateSaysReload);
    QFETCH(const bool, reloads);
    WeightFixture fixture(ECompatibleApp::FamilyB);
    fixture.host.plan.hasWeightTexture = true;
    fixture.host.plan.weightState.reload = stateSaysReload;
    if (by == "refresh") {
        fixture.dialog->UpdateUi();
    } else if (by == "label") {
        QTest::mouseClick(fixture.Find<QItemLabel>("qtWeightingItemLabel"), Qt::LeftButton);
    } else {
        auto* list = fixture.Find<QListWidget>("qtMaterialListWidget");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    }
    const QStringList operations = fixture.TakeOperations();
    QVERIFY(operations.contains(QStringLiteral("GetWeightImageState")));
    QCOMPARE(operations.contains(QStringLiteral("GetWeightImageAdjust")), reloads);
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
                     QStringLiteral("GetWeightImageAdjust(%1, {zero=0, brightness=0, contrast=0}) -> 0").arg(triple)});
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

void TestWeightImage::currentRowDecidesWhetherTheImageIsListed_data()
{
    QTest::addColumn<bool>("rowIsOffered");
    QTest::newRow("row offered, selected material not") << true;
    QTest::newRow("selected material offered, row not") << false;
}

void TestWeightImage::currentRowDecidesWhetherTheImageIsListed()
{
    QFETCH(const bool, rowIsOffered);
    WeightFixture fixture;
    fixture.host.plan.hasWeightTexture = true;
    fixture.object->materials.at(0).state.softClothEnabled = rowIsOffered;
    fixture.object->materials.at(1).state.softClothEnabled = !rowIsOffered;
    fixture.Selection().material = fixture.MaterialId(1);
    fixture.dialog->UpdateUi();
    const QStringList calls = fixture.Take();
    QVERIFY(calls.contains(QStringLiteral(R"(GetWeightTexture("Hero", "Body", "Hair", unknown 0xe0) -> 0)")));
    QCOMPARE(calls.filter(QStringLiteral("IsMaterialSoftClothEnabled")),
             QStringList{QStringLiteral("IsMaterialSoftClothEnabled(\"Skin\") -> %1")
                             .arg(rowIsOffered ? QStringLiteral("true") : QStringLiteral("false"))});
    QCOMPARE(fixture.IsEnabled(QStringLiteral("qtDeleteFilePushButton")), rowIsOffered);
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

SOFTCLOTH_TEST(TestWeightImage)
#include "tst_weight_image.moc"
