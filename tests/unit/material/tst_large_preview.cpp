#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QApplication>
#include <QImage>
#include <QLabel>

/// The large preview: true colours, as large as there is room for, and sharp without costing a refresh anything.
class TestLargePreview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void disabledPreviewKeepsItsColours();
    void previewGrowsWithTheDialog();
    void previewOfNothingIsEmpty();
    void largerPictureIsFetchedAfterThePaint();
    void refreshItselfAsksForNothingMore();
    void failingCallKeepsTheSmallerPicture_data();
    void failingCallKeepsTheSmallerPicture();
    void pictureThatIsShownNoMoreIsDropped();
    void dialogMayEndInTheCall();
};

namespace {

/// The open dialog with the weight image, nothing of which waits to be painted.
struct Preview : DialogFixture
{
    Preview()
    {
        host.plan.hasWeightTexture = true;
        host.plan.textures[MV::ETextureChannel::Diffuse].hasTexture = true;
        Open();
        label = Find<QLabel>("qtBitmapLabel");
        dialog->UpdateUi();
        Settle();
        Take();
    }

    void Settle()
    {
        // Painting comes first, what it asks for second, and the painting of that last.
        for (int i = 0; i < 4; ++i) {
            QApplication::sendPostedEvents();
            QApplication::processEvents();
        }
    }

    /// What was drawn since the last time.
    QStringList Drawn() { return Take().filter(QStringLiteral("RenderThumbnail")); }

    /// The pixels that the picture has in the label.
    int Side() const
    {
        const QSize room = label->contentsRect().size() * label->devicePixelRatio();
        return qMin(room.width(), room.height());
    }

    QString LargeDraw() const { return QStringLiteral("RenderThumbnail(%1, %1, unknown 0xe0, null) -> 0").arg(Side()); }

    QLabel* label = nullptr;
};

const QColor weightColour = ImagePlan::Colour(ImagePlan::weightTexture);

/// How many pixels of \p image in the row through its middle have that colour.
int Width(const QImage& image, const QColor& colour)
{
    int width = 0;
    for (int x = 0; x < image.width(); ++x) {
        width += image.pixelColor(x, image.height() / 2) == colour ? 1 : 0;
    }
    return width;
}

void ClickLabel(const DialogFixture& fixture, const char* label)
{
    QTest::mouseClick(fixture.Find<QItemLabel>(label), Qt::LeftButton);
}

} // namespace

void TestLargePreview::disabledPreviewKeepsItsColours()
{
    Preview preview;
    preview.label->setEnabled(true);
    const QImage enabled = preview.label->grab().toImage();
    QCOMPARE(Width(enabled, weightColour), preview.Side());
    preview.label->setEnabled(false);
    const QImage disabled = preview.label->grab().toImage();
    QCOMPARE(Width(disabled, weightColour), preview.Side());

    ClickLabel(preview, "qtDiffuseItemLabel");
    QVERIFY(!preview.label->isEnabled());
    QCOMPARE(Width(preview.label->grab().toImage(), ImagePlan::Colour(ImagePlan::textureThumbnail)), preview.Side());
}

void TestLargePreview::previewGrowsWithTheDialog()
{
    Preview preview;
    const QSize before = preview.label->size();
    const QSize dialogBefore = preview.dialog->size();
    const int sideBefore = preview.Side();
    preview.dialog->resize(dialogBefore + QSize(600, 300));
    QTRY_COMPARE(preview.label->height(), before.height() + 300);
    QVERIFY(preview.label->width() > before.width());
    QVERIFY(preview.Side() > sideBefore + 200);
    QCOMPARE(Width(preview.label->grab().toImage(), weightColour), preview.Side());
    // The picture's size keeps nobody from making the dialog smaller again.
    preview.Settle();
    preview.dialog->resize(dialogBefore);
    QTRY_COMPARE(preview.label->size(), before);
    QCOMPARE(Width(preview.label->grab().toImage(), weightColour), preview.Side());
}

void TestLargePreview::previewOfNothingIsEmpty()
{
    DialogFixture fixture;
    fixture.Open(SampleModels::Flag());
    fixture.Find<QItemLabel>("qtWeightingItemLabel")->clear();
    fixture.dialog->SelectWeightingLabel();
    const auto* label = fixture.Find<QLabel>("qtBitmapLabel");
    QVERIFY(label->pixmap(Qt::ReturnByValue).isNull());
    QLabel plain(label->parentWidget());
    plain.setFrameStyle(label->frameStyle());
    plain.resize(label->size());
    plain.setEnabled(label->isEnabled());
    QCOMPARE(fixture.Find<QLabel>("qtBitmapLabel")->grab().toImage(), plain.grab().toImage());
}

void TestLargePreview::largerPictureIsFetchedAfterThePaint()
{
    Preview preview;
    preview.label->update();
    preview.Settle();
    QCOMPARE(preview.Take(), QStringList());

    const int before = preview.Side();
    preview.dialog->resize(preview.dialog->size() + QSize(100, 100));
    QCOMPARE(preview.Take(), QStringList());
    preview.Settle();
    QVERIFY(preview.Side() > before);
    QCOMPARE(preview.Drawn(), QStringList{preview.LargeDraw()});
    preview.label->update();
    preview.Settle();
    QCOMPARE(preview.Take(), QStringList());
}

void TestLargePreview::refreshItselfAsksForNothingMore()
{
    Preview preview;
    preview.dialog->UpdateUi();
    // One for each of the three labels.
    QCOMPARE(preview.Drawn().size(), 3);
    preview.Settle();
    QCOMPARE(preview.Drawn(), QStringList{preview.LargeDraw()});
    ClickLabel(preview, "qtDiffuseItemLabel");
    QCOMPARE(preview.Drawn(), QStringList());
}

void TestLargePreview::failingCallKeepsTheSmallerPicture_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("texture") << QStringLiteral("GetWeightTexture");
    QTest::newRow("drawing") << QStringLiteral("RenderThumbnail");
}

void TestLargePreview::failingCallKeepsTheSmallerPicture()
{
    QFETCH(const QString, operation);
    Preview preview;
    preview.dialog->UpdateUi();
    preview.Take();
    preview.host.Faults().FailOperation(operation, BF::Results::Refused);
    preview.Settle();
    QCOMPARE(preview.Take().filter(operation).size(), 1);
    QCOMPARE(Width(preview.label->grab().toImage(), weightColour), preview.Side());
    preview.Settle();
    QCOMPARE(preview.Take(), QStringList());
}

void TestLargePreview::pictureThatIsShownNoMoreIsDropped()
{
    Preview preview;
    preview.dialog->UpdateUi();
    preview.Take();
    preview.During("RenderThumbnail", [&preview] { ClickLabel(preview, "qtDiffuseItemLabel"); });
    preview.Settle();
    QCOMPARE(Width(preview.label->grab().toImage(), ImagePlan::Colour(ImagePlan::textureThumbnail)), preview.Side());
}

void TestLargePreview::dialogMayEndInTheCall()
{
    Preview preview;
    preview.dialog->UpdateUi();
    preview.Take();
    preview.During("RenderThumbnail", [&preview] { delete preview.dialog; });
    preview.Settle();
    QVERIFY(!preview.dialog);
    QCOMPARE(preview.Drawn().size(), 1);
}

SOFTCLOTH_TEST(TestLargePreview)
#include "tst_large_preview.moc"
