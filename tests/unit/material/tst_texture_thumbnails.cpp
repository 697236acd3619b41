#include "tests/support/ForwardingServices.h"
#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"
#include "tests/unit/material/HostWithScene.h"

#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPair>
#include <QPushButton>

using MV::ETextureChannel;

/// The three pictures: how they are drawn, which of them is current, and when they are drawn again.
class TestTextureThumbnails : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textureIsOpenedAndDrawn_data();
    void textureIsOpenedAndDrawn();
    void failedStepEndsTheThumbnail_data();
    void failedStepEndsTheThumbnail();
    void pictureFillsTheLabel();
    void widthIsToldBeforeTheHeight();
    void hostIsHandedAnImageOfOnePixel();
    void clickMakesALabelCurrent_data();
    void clickMakesALabelCurrent();
    void keyMakesALabelCurrent();
    void otherSendersMakeNoLabelCurrent_data();
    void otherSendersMakeNoLabelCurrent();
    void labelsAreSilentWhileOneIsSelected();
    void currentTextureDecidesWhatIsEnabled_data();
    void currentTextureDecidesWhatIsEnabled();
    void otherTextureLeavesTheWidgetsAlone();
    void weightingLabelIsSelectedWithoutAsking();
    void previewShowsTheCurrentTexture();
    void changedTextureIsDrawnAnew_data();
    void changedTextureIsDrawnAnew();
    void changedTextureOfAnotherObjectOrMaterial_data();
    void changedTextureOfAnotherObjectOrMaterial();
};

namespace {

const QStringList switchedOff{QStringLiteral("qtOpenFilePushButton"),     QStringLiteral("qtUvRefPushButton"),
                              QStringLiteral("qtEmbedTexturePushButton"), QStringLiteral("qtDeleteFilePushButton"),
                              QStringLiteral("qtSaveFilePushButton"),     QStringLiteral("qtBitmapLabel"),
                              QStringLiteral("qtBitmapPathLineEdit"),     QStringLiteral("qtOpenPathPushButton"),
                              QStringLiteral("qtBrightnessCombospinbox"), QStringLiteral("qtContrastCombospinbox")};

const QVector<const char*> labels{"qtDiffuseItemLabel", "qtOpacityItemLabel", "qtWeightingItemLabel"};

void ClickLabel(const DialogFixture& fixture, const char* label)
{
    QTest::mouseClick(fixture.Find<QItemLabel>(label), Qt::LeftButton);
}

/// Which labels are shown selected.
QStringList SelectedLabels(const DialogFixture& fixture)
{
    QStringList names;
    for (const char* label : labels) {
        if (fixture.Find<QItemLabel>(label)->IsSelected()) {
            names.append(QLatin1String(label));
        }
    }
    return names;
}

QColor ColourOf(const DialogFixture& fixture, const char* label)
{
    const QPixmap picture = fixture.Find<QLabel>(label)->pixmap(Qt::ReturnByValue);
    return picture.isNull() ? QColor() : picture.toImage().pixelColor(picture.rect().center());
}

/// Scene service that writes down what images it is handed to draw into.
class NotingScene : public Forwarding::SceneService
{
public:
    using SceneService::SceneService;

    BF::Result RenderThumbnail(int width, int height, BF::CHandle* thumbnail, BF::CHandle* source,
                               QImage& image) override
    {
        images.append({image.size(), image.format()});
        return SceneService::RenderThumbnail(width, height, thumbnail, source, image);
    }

    QVector<QPair<QSize, QImage::Format>> images;
};

QMetaMethod MethodOf(const QObject& object, const char* signature)
{
    const QMetaObject* meta = object.metaObject();
    return meta->method(meta->indexOfMethod(signature));
}

/// The calls that concern \p channel, from the first such call to its drawing.
QStringList CallsOfChannel(const QStringList& calls, int channel)
{
    const QString first = QStringLiteral("GetMaterialTextureState(\"Skin\", %1,").arg(channel);
    QStringList found;
    for (const QString& call : calls) {
        if (call.startsWith(first)) {
            found = QStringList{call};
        } else if (!found.isEmpty()) {
            found.append(call);
            if (call.startsWith(QLatin1String("RenderThumbnail"))) {
                break;
            }
        }
    }
    return found;
}

} // namespace

void TestTextureThumbnails::textureIsOpenedAndDrawn_data()
{
    QTest::addColumn<bool>("hasTexture");
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<bool>("hasSource");
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<QStringList>("calls"); ///< After the state; %1 is the channel.

    const QString isEmbedded = QStringLiteral("IsTextureEmbedded(\"Skin\") -> %1");
    const QString load = QStringLiteral("LoadTextureSource(\"Skin\", %1) -> ");
    const QString get = QStringLiteral("GetEmbeddedTexture(\"Skin\", %1) -> 0");
    const QString open = QStringLiteral("OpenTexture(\"Skin\", %1, true) -> 0");
    const QString thumbnail = QStringLiteral("GetTextureThumbnail(\"Skin\", %1, unknown 0xa%1, false) -> 0");
    const QString draw = Journal::Draw(QStringLiteral("unknown 0xa%1"), QStringLiteral("null"));
    const QString yes = QStringLiteral("true");
    const QString no = QStringLiteral("false");

    QTest::newRow("no texture") << false << false << false << false << false
                                << QStringList{QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0"),
                                               Journal::Draw(QStringLiteral("unknown 0xd0"), QStringLiteral("null"))};
    QTest::newRow("a file without a texture is no texture")
        << false << true << true << true << true
        << QStringList{QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0"),
                       Journal::Draw(QStringLiteral("unknown 0xd0"), QStringLiteral("null"))};
    QTest::newRow("texture without a file is not opened")
        << true << false << false << true << true << QStringList{thumbnail, draw};
    QTest::newRow("linked") << true << true << false << false << false
                            << QStringList{isEmbedded.arg(no), load + no, open, thumbnail, draw};
    QTest::newRow("linked and loaded") << true << true << false << false << true
                                       << QStringList{isEmbedded.arg(no), load + yes, open, thumbnail, draw};
    QTest::newRow("embedded, not loaded")
        << true << true << false << true << false << QStringList{isEmbedded.arg(yes), load + no, open, thumbnail, draw};
    QTest::newRow("embedded and loaded") << true << true << false << true << true
                                         << QStringList{isEmbedded.arg(yes), load + yes, get, thumbnail, draw};
    QTest::newRow("with a source image")
        << true << true << true << false << false
        << QStringList{isEmbedded.arg(no),
                       load + no,
                       open,
                       QStringLiteral("GetTextureThumbnail(\"Skin\", %1, unknown 0xa%1, true) -> 0"),
                       QStringLiteral("GetThumbnailSource(\"Skin\", %1, unknown 0xb%1) -> 0"),
                       Journal::Draw(QStringLiteral("unknown 0xa%1"), QStringLiteral("unknown 0xb%1"))};
}

void TestTextureThumbnails::textureIsOpenedAndDrawn()
{
    QFETCH(const bool, hasTexture);
    QFETCH(const bool, hasFile);
    QFETCH(const bool, hasSource);
    QFETCH(const bool, embedded);
    QFETCH(const bool, loads);
    QFETCH(const QStringList, calls);
    DialogFixture fixture;
    fixture.Open();
    fixture.host.plan.texturesEmbedded = embedded;
    fixture.host.plan.textureSourcesLoad = loads;
    for (const int channel : {0, 1}) {
        fixture.host.plan.textures.clear();
        fixture.host.plan.textures[ETextureChannel(channel)] = {hasTexture, hasFile, hasSource, {}};
        QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::Success);
        QStringList expected{QStringLiteral("GetMaterialTextureState(\"Skin\", %1, %2, %3, false, false) -> 0")
                                 .arg(channel)
                                 .arg(hasTexture ? QStringLiteral("true") : QStringLiteral("false"),
                                      hasFile ? QStringLiteral("true") : QStringLiteral("false"))};
        for (QString call : calls) {
            expected.append(call.replace(QStringLiteral("%1"), QString::number(channel)));
        }
        QCOMPARE(CallsOfChannel(fixture.Take(), channel), expected);
    }
}

void TestTextureThumbnails::failedStepEndsTheThumbnail_data()
{
    QTest::addColumn<bool>("hasTexture");
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<QString>("operation");
    QTest::newRow("state") << true << false << QStringLiteral("GetMaterialTextureState");
    QTest::newRow("default thumbnail") << false << false << QStringLiteral("GetDefaultThumbnail");
    QTest::newRow("opening") << true << false << QStringLiteral("OpenTexture");
    QTest::newRow("embedded texture") << true << true << QStringLiteral("GetEmbeddedTexture");
    QTest::newRow("thumbnail") << true << false << QStringLiteral("GetTextureThumbnail");
    QTest::newRow("source") << true << false << QStringLiteral("GetThumbnailSource");
    QTest::newRow("drawing") << true << false << QStringLiteral("RenderThumbnail");
}

void TestTextureThumbnails::failedStepEndsTheThumbnail()
{
    QFETCH(const bool, hasTexture);
    QFETCH(const bool, embedded);
    QFETCH(const QString, operation);
    DialogFixture fixture;
    fixture.Open();
    fixture.host.plan.textures[ETextureChannel::Diffuse] = {hasTexture, true, true, {}};
    fixture.host.plan.texturesEmbedded = embedded;
    fixture.host.plan.textureSourcesLoad = true;
    fixture.host.Faults().FailOperation(operation, BF::Results::IndexOutOfRange);
    QCOMPARE(fixture.dialog->UpdateUi(), BF::Results::IndexOutOfRange);
    QCOMPARE(fixture.TakeOperations().constLast(), operation);
}

void TestTextureThumbnails::pictureFillsTheLabel()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.host.plan.textures[ETextureChannel::Diffuse].hasTexture = true;
    fixture.host.plan.hasWeightTexture = true;
    fixture.dialog->UpdateUi();
    for (const char* label : labels) {
        const auto* shown = fixture.Find<QItemLabel>(label);
        QCOMPARE(shown->pixmap(Qt::ReturnByValue).size(), QSize(88, 88) * shown->devicePixelRatio());
        QCOMPARE(shown->size(), QSize(88, 88));
    }
    QCOMPARE(ColourOf(fixture, "qtDiffuseItemLabel"), ImagePlan::Colour(ImagePlan::textureThumbnail));
    QCOMPARE(ColourOf(fixture, "qtOpacityItemLabel"), ImagePlan::Colour(ImagePlan::defaultThumbnail));
    QCOMPARE(ColourOf(fixture, "qtWeightingItemLabel"), ImagePlan::Colour(ImagePlan::weightTexture));
}

void TestTextureThumbnails::widthIsToldBeforeTheHeight()
{
    DialogFixture fixture;
    fixture.Open();
    auto* label = fixture.Find<QItemLabel>("qtDiffuseItemLabel");
    label->setFixedSize(100, 60);
    QCOMPARE(label->size(), QSize(100, 60));
    fixture.dialog->UpdateUi();
    const QSize pixels = label->size() * label->devicePixelRatio();
    QCOMPARE(
        CallsOfChannel(fixture.Take(), 0).constLast(),
        QStringLiteral("RenderThumbnail(%1, %2, unknown 0xd0, null) -> 0").arg(pixels.width()).arg(pixels.height()));
    QCOMPARE(label->pixmap(Qt::ReturnByValue).size(), pixels);
}

void TestTextureThumbnails::hostIsHandedAnImageOfOnePixel()
{
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    NotingScene scene(*fixture.host.GetSceneService());
    HostWithScene host(fixture.host, scene);
    MV::CSoftClothMaterialDlg dialog(&fixture.window, &fixture.plugin);
    QCOMPARE(dialog.Init({}, {}, &host), BF::Results::Success);
    dialog.show();
    QCOMPARE(dialog.UpdateUi(), BF::Results::Success);
    // The diffuse texture, the opacity texture, the weight image.
    const QPair<QSize, QImage::Format> onePixel(QSize(1, 1), QImage::Format_ARGB32);
    QCOMPARE(scene.images, (QVector<QPair<QSize, QImage::Format>>{onePixel, onePixel, onePixel}));
}

void TestTextureThumbnails::clickMakesALabelCurrent_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("calls");
    const QString state = QStringLiteral("GetMaterialTextureState(\"Skin\", %1, false, false, false, false) -> 0");
    const QString none = QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0");
    QTest::newRow("diffuse") << QStringLiteral("qtDiffuseItemLabel") << QStringList{state.arg(0), none};
    QTest::newRow("opacity") << QStringLiteral("qtOpacityItemLabel") << QStringList{state.arg(1), none};
    QTest::newRow("weighting") << QStringLiteral("qtWeightingItemLabel")
                               << QStringList{QStringLiteral(R"(GetWeightTexture("Hero", "Body", "Skin", null) -> 0)"),
                                              none,
                                              QStringLiteral(R"(GetWeightImageAdjust("Hero", "Body", "Skin", )"
                                                             R"({zero=0, brightness=0, contrast=0}) -> 0)")};
}

void TestTextureThumbnails::clickMakesALabelCurrent()
{
    QFETCH(const QString, label);
    QFETCH(const QStringList, calls);
    DialogFixture fixture;
    fixture.Open();
    for (const char* before : labels) {
        ClickLabel(fixture, before);
        fixture.Take();
        ClickLabel(fixture, label.toLatin1().constData());
        QCOMPARE(SelectedLabels(fixture), QStringList{label});
        QCOMPARE(fixture.Take(), calls);
    }
}

void TestTextureThumbnails::keyMakesALabelCurrent()
{
    DialogFixture fixture;
    fixture.Open();
    QTest::keyClick(fixture.Find<QItemLabel>("qtOpacityItemLabel"), Qt::Key_Space);
    QCOMPARE(SelectedLabels(fixture), QStringList{QStringLiteral("qtOpacityItemLabel")});
}

void TestTextureThumbnails::otherSendersMakeNoLabelCurrent_data()
{
    QTest::addColumn<QByteArray>("sender");
    for (const char* sender : {"another label", "another widget", "nobody"}) {
        QTest::newRow(sender) << QByteArray(sender);
    }
}

void TestTextureThumbnails::otherSendersMakeNoLabelCurrent()
{
    QFETCH(const QByteArray, sender);
    DialogFixture fixture;
    fixture.Open();
    ClickLabel(fixture, "qtOpacityItemLabel");
    fixture.Take();
    QItemLabel label;
    QPushButton button;
    const QMetaMethod slot = MethodOf(*fixture.dialog, "OnItemSelectedChanged()");
    const auto connectTo = [&](const QObject& other, const char* signal) {
        QMetaObject::connect(&other, MethodOf(other, signal).methodIndex(), fixture.dialog, slot.methodIndex());
    };
    connectTo(label, "SelectedChanged()");
    connectTo(button, "clicked()");
    if (sender == "another label") {
        QTest::mouseClick(&label, Qt::LeftButton);
    } else if (sender == "another widget") {
        QTest::mouseClick(&button, Qt::LeftButton);
    } else {
        QVERIFY(slot.invoke(fixture.dialog));
    }
    QCOMPARE(fixture.Take(), QStringList());
    QCOMPARE(SelectedLabels(fixture), QStringList{QStringLiteral("qtOpacityItemLabel")});
    QVERIFY(!label.IsSelected());
    // The opacity texture is still the one that the buttons work on.
    fixture.dialog->UpdateUi();
    QCOMPARE(fixture.EnabledOf(switchedOff), QStringList());
}

void TestTextureThumbnails::labelsAreSilentWhileOneIsSelected()
{
    DialogFixture fixture;
    fixture.Open();
    auto* opacity = fixture.Find<QItemLabel>("qtOpacityItemLabel");
    opacity->blockSignals(true);
    ClickLabel(fixture, "qtDiffuseItemLabel");
    QVERIFY(opacity->signalsBlocked());
    opacity->blockSignals(false);
    fixture.dialog->SelectWeightingLabel();
    for (const char* label : labels) {
        QVERIFY(!fixture.Find<QItemLabel>(label)->signalsBlocked());
    }
}

void TestTextureThumbnails::currentTextureDecidesWhatIsEnabled_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("hasTexture");
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<bool>("canBeEdited");
    for (const auto& [name, label] :
         {std::pair("diffuse", "qtDiffuseItemLabel"), std::pair("opacity", "qtOpacityItemLabel")}) {
        const auto row = [&, kind = name, object = label](const char* what, bool hasTexture, bool hasFile,
                                                          bool embedded, bool canBeEdited) {
            QTest::addRow("%s, %s", kind, what)
                << QString::fromLatin1(object) << hasTexture << hasFile << embedded << canBeEdited;
        };
        row("no texture", false, false, false, false);
        row("no texture, others embedded", false, true, true, false);
        row("linked", true, true, false, true);
        row("embedded", true, true, true, false);
        row("without a file counts as not embedded", true, false, true, true);
    }
}

void TestTextureThumbnails::currentTextureDecidesWhatIsEnabled()
{
    QFETCH(const QString, label);
    QFETCH(const bool, hasTexture);
    QFETCH(const bool, hasFile);
    QFETCH(const bool, embedded);
    QFETCH(const bool, canBeEdited);
    DialogFixture fixture;
    fixture.Open();
    const bool isDiffuse = label == QLatin1String("qtDiffuseItemLabel");
    fixture.host.plan.textures[isDiffuse ? ETextureChannel::Diffuse : ETextureChannel::Opacity] = {
        hasTexture, hasFile, false, {}};
    fixture.host.plan.texturesEmbedded = embedded;
    fixture.Find<QLineEdit>("qtBitmapPathLineEdit")->setText(QStringLiteral("stale"));
    ClickLabel(fixture, label.toLatin1().constData());
    QVERIFY(!fixture.TakeOperations().contains(QStringLiteral("RenderThumbnail")));
    QCOMPARE(fixture.IsEnabled(QStringLiteral("qtLaunchPushButton")), canBeEdited);
    QCOMPARE(fixture.EnabledOf(switchedOff), QStringList());
    QCOMPARE(fixture.Find<QLineEdit>("qtBitmapPathLineEdit")->text(), QString());

    // A whole refresh comes to the same.
    fixture.dialog->UpdateUi();
    QCOMPARE(fixture.IsEnabled(QStringLiteral("qtLaunchPushButton")), canBeEdited);
    QCOMPARE(fixture.EnabledOf(switchedOff), QStringList());
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtPickMaterialPushButton")));
}

void TestTextureThumbnails::otherTextureLeavesTheWidgetsAlone()
{
    DialogFixture fixture;
    fixture.Open();
    ClickLabel(fixture, "qtOpacityItemLabel");
    fixture.host.plan.textures[ETextureChannel::Diffuse].hasTexture = true;
    fixture.dialog->UpdateUi();
    QVERIFY(!fixture.IsEnabled(QStringLiteral("qtLaunchPushButton")));
}

void TestTextureThumbnails::weightingLabelIsSelectedWithoutAsking()
{
    DialogFixture fixture;
    fixture.Open();
    ClickLabel(fixture, "qtDiffuseItemLabel");
    fixture.Take();
    fixture.dialog->SelectWeightingLabel();
    QCOMPARE(SelectedLabels(fixture), QStringList{QStringLiteral("qtWeightingItemLabel")});
    QCOMPARE(fixture.Take(), QStringList());
    fixture.dialog->UpdateUi();
    QVERIFY(fixture.IsEnabled(QStringLiteral("qtOpenFilePushButton")));
}

void TestTextureThumbnails::previewShowsTheCurrentTexture()
{
    DialogFixture fixture;
    fixture.Open();
    fixture.host.plan.textures[ETextureChannel::Diffuse].hasTexture = true;
    fixture.host.plan.hasWeightTexture = true;
    fixture.dialog->UpdateUi();
    const QColor weight = ImagePlan::Colour(ImagePlan::weightTexture);
    QCOMPARE(ColourOf(fixture, "qtBitmapLabel"), weight);
    ClickLabel(fixture, "qtDiffuseItemLabel");
    QCOMPARE(ColourOf(fixture, "qtBitmapLabel"), ImagePlan::Colour(ImagePlan::textureThumbnail));
    fixture.dialog->SelectWeightingLabel();
    QCOMPARE(ColourOf(fixture, "qtBitmapLabel"), weight);
    const auto* preview = fixture.Find<QLabel>("qtBitmapLabel");
    const QSize shown = preview->pixmap(Qt::ReturnByValue).size() / preview->devicePixelRatio();
    const QSize room = preview->contentsRect().size();
    QCOMPARE(shown.height(), qMin(room.width(), room.height()));
    QCOMPARE(shown.width(), shown.height());
}

void TestTextureThumbnails::changedTextureIsDrawnAnew_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<QVector<int>>("drawn");
    QTest::newRow("diffuse") << 0 << QVector<int>{0};
    QTest::newRow("opacity") << 1 << QVector<int>{1};
    QTest::newRow("both") << 14 << QVector<int>{0, 1};
    QTest::newRow("bump") << 2 << QVector<int>();
    QTest::newRow("weight") << -1 << QVector<int>();
}

void TestTextureThumbnails::changedTextureIsDrawnAnew()
{
    QFETCH(const int, channel);
    QFETCH(const QVector<int>, drawn);
    DialogFixture fixture;
    fixture.Open();
    Q_EMIT fixture.host.GetEventSender()->PickedMaterialTextureChanged(fixture.object->handle, {2, 0},
                                                                       ETextureChannel(channel));
    QStringList expected{QStringLiteral(R"(GetMaterialIndex("Hero", "Skin", 0) -> 0)")};
    for (const int each : drawn) {
        expected.append(
            QStringLiteral("GetMaterialTextureState(\"Skin\", %1, false, false, false, false) -> 0").arg(each));
        expected.append(QStringLiteral("GetDefaultThumbnail(unknown 0xd0) -> 0"));
        expected.append(Journal::Draw(QStringLiteral("unknown 0xd0"), QStringLiteral("null")));
    }
    QCOMPARE(fixture.Take(), expected);
}

void TestTextureThumbnails::changedTextureOfAnotherObjectOrMaterial_data()
{
    QTest::addColumn<bool>("isVisible");
    QTest::addColumn<bool>("isSelectedObject");
    QTest::addColumn<bool>("isSelectedMaterial");
    QTest::addColumn<bool>("indexFails");
    QTest::addColumn<int>("calls");
    QTest::newRow("hidden") << false << true << true << false << 0;
    QTest::newRow("another object") << true << false << true << false << 0;
    QTest::newRow("another material") << true << true << false << false << 1;
    QTest::newRow("unknown material") << true << true << true << true << 1;
    QTest::newRow("this one") << true << true << true << false << 4;
}

void TestTextureThumbnails::changedTextureOfAnotherObjectOrMaterial()
{
    QFETCH(const bool, isVisible);
    QFETCH(const bool, isSelectedObject);
    QFETCH(const bool, isSelectedMaterial);
    QFETCH(const bool, indexFails);
    QFETCH(const int, calls);
    DialogFixture fixture;
    fixture.Add();
    fixture.List();
    if (isVisible) {
        fixture.Show();
    }
    BF::CHandle* object =
        isSelectedObject ? fixture.object->handle : fixture.host.CurrentScene().AddObject(SampleModels::Flag()).handle;
    if (indexFails) {
        fixture.host.Faults().FailOperation(QStringLiteral("GetMaterialIndex"), BF::Results::InvalidArgument);
    }
    const BF::CArrayList<unsigned long long> indices =
        isSelectedMaterial ? BF::CArrayList<unsigned long long>{0} : BF::CArrayList<unsigned long long>{1, 2};
    Q_EMIT fixture.host.GetEventSender()->PickedMaterialTextureChanged(object, indices, ETextureChannel::Diffuse);
    QCOMPARE(fixture.Take().size(), calls);
}

SOFTCLOTH_TEST(TestTextureThumbnails)
#include "tst_texture_thumbnails.moc"
