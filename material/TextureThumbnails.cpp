// The pictures of the selected material's textures, and which of them is the current one.
#include "material/SoftClothMaterialDlg.h"

#include "material/LargePreview.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "ui/WidgetAccess.h"

#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>

#include <initializer_list>

namespace MV {

ETextureChannel CSoftClothMaterialDlg::ChannelOf(const QItemLabel* label) const
{
    if (label && label == m_ui.diffuseItemLabel) {
        return ETextureChannel::Diffuse;
    }
    return label && label == m_ui.opacityItemLabel ? ETextureChannel::Opacity : ETextureChannel::Weight;
}

void CSoftClothMaterialDlg::OnItemSelectedChanged()
{
    auto* label = qobject_cast<QItemLabel*>(sender());
    const bool isWeighting = label && label == m_ui.weightingItemLabel;
    const bool isTexture = label && (label == m_ui.diffuseItemLabel || label == m_ui.opacityItemLabel);
    if (isWeighting) {
        MakeLabelCurrent(label);
        UpdateWeightSettings(false, true);
    } else if (isTexture) {
        MakeLabelCurrent(label);
        ShowThumbnail(label, false);
    }
}

void CSoftClothMaterialDlg::SelectWeightingLabel()
{
    MakeLabelCurrent(m_ui.weightingItemLabel);
}

void CSoftClothMaterialDlg::MakeLabelCurrent(QItemLabel* label)
{
    m_currentLabel = label;
    const CSignalBlocker silent{m_ui.diffuseItemLabel, m_ui.opacityItemLabel, m_ui.weightingItemLabel};
    for (QItemLabel* each : {m_ui.diffuseItemLabel, m_ui.opacityItemLabel, m_ui.weightingItemLabel}) {
        if (each) {
            each->SetSelected(each == label);
            each->update();
        }
    }
    ShowPreview();
}

/// The label whose picture the preview shows: the current one, the weight image's as long as there is none.
const QItemLabel* CSoftClothMaterialDlg::PreviewedLabel() const
{
    return m_currentLabel ? m_currentLabel : m_ui.weightingItemLabel;
}

/// Shows the picture of the previewed label, enlarged.
void CSoftClothMaterialDlg::ShowPreview()
{
    const QItemLabel* shown = PreviewedLabel();
    if (m_preview && shown) {
        m_preview->Show(shown->pixmap(Qt::ReturnByValue));
    }
}

/// What the host has to draw for a label.
BF::Result CSoftClothMaterialDlg::FindDrawing(const QItemLabel* label, Drawing& drawing) const
{
    if (label != m_ui.weightingItemLabel) {
        bool canBeEdited = false;
        return FindTexture(ChannelOf(label), drawing, canBeEdited);
    }
    bool isDefault = false;
    const BF::Result found = FindWeightThumbnail(drawing.thumbnail, isDefault);
    if (!found.IsFailure()) {
        FindSource(drawing);
    }
    return found;
}

void CSoftClothMaterialDlg::FindSource(Drawing& drawing) const
{
    if (!Scene().GetThumbnailSourceImage(drawing.thumbnail, drawing.source)) {
        drawing.source = nullptr;
    }
}

/// The picture of the previewed label with so many pixels; null where there is none.
QImage CSoftClothMaterialDlg::RenderPreview(const QSize& pixels) const
{
    Drawing drawing;
    const bool isShown = isVisible() && Selection().mesh != 0 && Selection().material != 0;
    if (!isShown || FindDrawing(PreviewedLabel(), drawing).IsFailure()) {
        return {};
    }
    QImage image(1, 1, QImage::Format_ARGB32);
    const BF::Result drawn =
        Scene().RenderThumbnail(pixels.width(), pixels.height(), drawing.thumbnail, drawing.source, image);
    return drawn.IsFailure() ? QImage() : image;
}

BF::Result CSoftClothMaterialDlg::DrawThumbnail(QItemLabel* label, const Drawing& drawing)
{
    if (!label) {
        return BF::Results::Success;
    }
    // On a screen with finer pixels the picture gets as many as the label has.
    const qreal ratio = label->devicePixelRatioF();
    QImage image(1, 1, QImage::Format_ARGB32);
    const BF::Result drawn = Scene().RenderThumbnail(qRound(label->width() * ratio), qRound(label->height() * ratio),
                                                     drawing.thumbnail, drawing.source, image);
    if (drawn.IsFailure()) {
        return drawn;
    }
    image.setDevicePixelRatio(ratio);
    label->setPixmap(QPixmap::fromImage(image));
    if (label == PreviewedLabel()) {
        ShowPreview();
    }
    return BF::Results::Success;
}

/// Finds out how a texture of the selected material is to be drawn.
/// \param drawing  the default thumbnail where the channel has no texture
/// \param canBeEdited  whether there is a texture and it is not embedded
BF::Result CSoftClothMaterialDlg::FindTexture(ETextureChannel channel, Drawing& drawing, bool& canBeEdited) const
{
    const std::size_t material = Selection().material;
    bool hasTexture = false;
    bool hasFile = false;
    bool unused1 = false;
    bool unused2 = false;
    const BF::Result known = Scene().GetMaterialTextureState(material, channel, hasTexture, hasFile, unused1, unused2);
    if (known.IsFailure()) {
        return known;
    }
    canBeEdited = hasTexture;
    if (!hasTexture) {
        return Scene().GetDefaultThumbnail(drawing.thumbnail);
    }
    if (hasFile) {
        const bool embedded = Scene().IsTextureEmbedded(material);
        const bool loaded = Scene().LoadTextureSource(material, channel);
        canBeEdited = !embedded;
        const BF::Result opened = embedded && loaded ? Scene().GetEmbeddedTexture(material, channel)
                                                     : Scene().OpenTexture(material, channel, true);
        if (opened.IsFailure()) {
            return opened;
        }
    }
    bool hasSource = false;
    const BF::Result found = Scene().GetTextureThumbnail(material, channel, drawing.thumbnail, hasSource);
    if (found.IsFailure() || !hasSource) {
        return found;
    }
    return Scene().GetThumbnailSource(material, channel, drawing.source);
}

/// \param redraw  false: only the enabled states follow
BF::Result CSoftClothMaterialDlg::ShowThumbnail(QItemLabel* label, bool redraw)
{
    Drawing drawing;
    bool canBeEdited = false;
    const BF::Result known = FindTexture(ChannelOf(label), drawing, canBeEdited);
    if (known.IsFailure()) {
        return known;
    }
    if (redraw) {
        const BF::Result drawn = DrawThumbnail(label, drawing);
        if (drawn.IsFailure()) {
            return drawn;
        }
    }
    if (label && label == m_currentLabel) {
        EnableWidget(m_ui.launchPushButton, canBeEdited);
        for (QWidget* widget : std::initializer_list<QWidget*>{
                 m_ui.openFilePushButton, m_ui.uvRefPushButton, m_ui.embedTexturePushButton, m_ui.deleteFilePushButton,
                 m_ui.saveFilePushButton, m_ui.bitmapLabel, m_ui.bitmapPathLineEdit, m_ui.openPathPushButton}) {
            EnableWidget(widget, false);
        }
        ShowPath({});
        EnableAdjustWidgets(false);
    }
    return BF::Results::Success;
}

void CSoftClothMaterialDlg::OnMaterialTextureChanged(BFHANDLE hObject,
                                                     const BF::CArrayList<unsigned long long>& kMaterialIndices,
                                                     ETextureChannel eChannel)
{
    if (!isVisible() || hObject != Selection().object) {
        return;
    }
    std::size_t index = 0;
    const BF::Result known = Scene().GetMaterialIndex(hObject, Selection().material, index);
    if (known.IsFailure() || !kMaterialIndices.Contains(index)) {
        return;
    }
    const bool both = eChannel == ETextureChannel::DiffuseAndOpacity;
    if (both || eChannel == ETextureChannel::Diffuse) {
        ShowThumbnail(m_ui.diffuseItemLabel, true);
    }
    if (both || eChannel == ETextureChannel::Opacity) {
        ShowThumbnail(m_ui.opacityItemLabel, true);
    }
}

} // namespace MV
