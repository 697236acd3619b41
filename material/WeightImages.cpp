// The weight image of the selected material: loading, saving, adjusting, and what the dialog shows of it.
#include "material/SoftClothMaterialDlg.h"

#include "panel/HostCodes.h"
#include "panel/MessageBox.h"
#include "panel/OutOfDate.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/EditService.h"
#include "plugin/services/FileService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "ui/WidgetAccess.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QDesktopServices>
#include <QFileInfo>
#include <QFrame>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QUrl>

#include <initializer_list>
#include <utility>

namespace MV {

namespace {

constexpr int loadMode = 2;

/// Objects of these types are addressed by one of their meshes where the host asks for a material's place.
bool HasMeshHandles(quint32 objectType)
{
    return objectType >= 1 && objectType <= 3;
}

} // namespace

// Loading, saving, deleting, embedding.

void CSoftClothMaterialDlg::OnClickOpenFilePushButton()
{
    const QPointer<CSoftClothMaterialDlg> self(this);
    QString path;
    Scene().GetOpenImageFileName(path, weightImageDialog[0], weightImageDialog[1], weightImageDialog[2]);
    if (self) {
        OnLoadWeightImage(path);
    }
}

void CSoftClothMaterialDlg::OnLoadWeightImage(const QString& kFilePath)
{
    if (kFilePath.isEmpty()) {
        return;
    }
    if (!QFileInfo(kFilePath).isFile()) {
        ShowMessage(tr("InValid File Path."));
        return;
    }
    const QPointer<CSoftClothMaterialDlg> self(this);
    LoadWeightImage(kFilePath);
    if (self) {
        m_plugin->UpdateAllUIs(true);
    }
}

/// Loads an image and has it taken back when the host refuses it, or the user does after a warning.
BF::Result CSoftClothMaterialDlg::LoadWeightImage(const QString& path)
{
    const QPointer<CSoftClothMaterialDlg> self(this);
    const BF::Result loaded = m_host->GetFileService()->LoadWeightImage(
        Selection().object, Selection().mesh, Selection().material, path.toStdWString(), loadMode);
    if (self && !loaded.IsSuccess()) {
        const bool keeps = TellLoadProblem(loaded);
        if (!self) {
            return outOfDate;
        }
        const BF::Result undone = keeps ? BF::Results::Success : Edit().UndoLastEdit();
        if (undone.IsFailure()) {
            return undone;
        }
    }
    return self ? Ui().RefreshScene(0) : outOfDate;
}

/// Tells the user why an image is no good. \return whether it is to be kept all the same
bool CSoftClothMaterialDlg::TellLoadProblem(BF::Result loaded)
{
    if (loaded == BF::Results::NothingDone) {
        const QString question = tr("The Generated cloth mesh count has exceeded the maximum 20,000 limit. "
                                    "Please try another legal image. ");
        return AskOkOrCancel(*m_host, question, QString(), this);
    }
    const QString text = loaded == BF::Results::Refused
                             ? tr("This image would create a soft cloth without any physics effect,\n "
                                  "because all the vertices of cloth mesh were set as zero weighting\n"
                                  "( black color ). Please modify the gray map or load other valid images.")
                             : QString();
    ShowInformation(*m_host, text, QString(), this);
    return !loaded.IsFailure();
}

void CSoftClothMaterialDlg::OnClickSaveFilePushButton()
{
    const QPointer<CSoftClothMaterialDlg> self(this);
    QString path;
    Scene().GetSaveImageFileName(path, weightImageDialog[0], weightImageDialog[1], weightImageDialog[2], QString());
    if (!self || path.isEmpty()) {
        return;
    }
    const BF::Result saved = m_host->GetFileService()->SaveWeightImage(Selection().object, Selection().mesh,
                                                                       Selection().material, path.toStdWString());
    if (self && saved == BF::Results::Refused) {
        ShowMessage(tr("Failed to save weight image."));
    }
}

void CSoftClothMaterialDlg::OnClickDeleteFilePushButton()
{
    const QPointer<CSoftClothMaterialDlg> self(this);
    Edit().DeleteWeightImage(Selection().object, Selection().mesh, Selection().material);
    if (self) {
        UpdateUi();
    }
}

void CSoftClothMaterialDlg::OnClickEmbedTexturePushButton()
{
    EmbedWeightImage();
}

BF::Result CSoftClothMaterialDlg::EmbedWeightImage()
{
    const QPointer<CSoftClothMaterialDlg> self(this);
    const BF::Result embedded = Edit().EmbedWeightImage(Selection().object, Selection().mesh, Selection().material);
    if (!self || embedded.IsFailure()) {
        return embedded;
    }
    Drawing drawing;
    bool isDefault = false;
    const BF::Result known = FindWeightThumbnail(drawing.thumbnail, isDefault);
    if (known.IsFailure()) {
        return known;
    }
    const BF::Result drawn = DrawThumbnail(m_ui.weightingItemLabel, drawing);
    if (drawn.IsFailure()) {
        return drawn;
    }
    EnableWidget(m_ui.bitmapLabel, false);
    ShowPath({});
    EnableWidget(m_ui.bitmapPathLineEdit, false);
    EnableWidget(m_ui.openPathPushButton, false);
    EnableWidget(m_ui.embedTexturePushButton, false);
    EnableWidget(m_ui.launchPushButton, true);
    EnableAdjustWidgets(true);
    return UpdateWeightSettings(true, true);
}

void CSoftClothMaterialDlg::OnClickOpenPathPushButton()
{
    std::wstring path;
    const BF::Result known =
        Scene().GetWeightImagePath(Selection().object, Selection().mesh, Selection().material, path);
    const QFileInfo file(QString::fromStdWString(path));
    if (known.IsFailure() || !file.isFile()) {
        ShowMessage(tr("InValid File Path."));
        return;
    }
    QDesktopServices::openUrl(QUrl::fromLocalFile(file.canonicalPath()));
}

// Brightness and contrast.

void CSoftClothMaterialDlg::WriteWeightAdjust(bool flag1, bool flag2)
{
    if (IsDroppingEdits()) {
        return;
    }
    const QPointer<CSoftClothMaterialDlg> self(this);
    const WeightImageAdjust adjust{0, ValueOf(m_ui.brightnessComboSpinBox), ValueOf(m_ui.contrastComboSpinBox)};
    const BF::Result written =
        Edit().SetWeightImageAdjust(Selection().object, Selection().mesh, Selection().material, adjust, flag1, flag2);
    if (self && written == BF::Results::Refused) {
        Edit().UndoLastEdit();
        if (self) {
            UpdateUi();
        }
    } else if (self) {
        UpdateWeightSettings(true, false);
    }
}

BF::Result CSoftClothMaterialDlg::ReloadWeightAdjust()
{
    WeightImageAdjust adjust;
    const BF::Result known =
        Scene().GetWeightImageAdjust(Selection().object, Selection().mesh, Selection().material, adjust);
    if (known.IsFailure()) {
        return known;
    }
    ShowValue(m_ui.brightnessComboSpinBox, adjust.brightness);
    ShowValue(m_ui.contrastComboSpinBox, adjust.contrast);
    return BF::Results::Success;
}

// What the dialog shows of the weight image.

/// What the host reports of the weight image.
struct CSoftClothMaterialDlg::WeightImage
{
    BF::CHandle* thumbnail = nullptr; ///< The default one where there is no image.
    WeightImageState state;
    bool listed = false; ///< There is an image, and the current row's material takes part in the soft cloth.
    QString path;        ///< Of the linked file; empty unless listed.
};

/// The texture of the weight image, or the default thumbnail in its place.
BF::Result CSoftClothMaterialDlg::FindWeightThumbnail(BF::CHandle*& thumbnail, bool& isDefault) const
{
    const BF::Result known =
        Scene().GetWeightTexture(Selection().object, Selection().mesh, Selection().material, thumbnail);
    if (known.IsFailure()) {
        return known;
    }
    isDefault = thumbnail == nullptr;
    return isDefault ? Scene().GetDefaultThumbnail(thumbnail) : BF::Results::Success;
}

BF::Result CSoftClothMaterialDlg::ReadWeightImage(WeightImage& image) const
{
    bool isDefault = false;
    const BF::Result found = FindWeightThumbnail(image.thumbnail, isDefault);
    if (found.IsFailure() || isDefault) {
        return found;
    }
    const SoftClothSelection& selection = Selection();
    const BF::Result stateKnown =
        Scene().GetWeightImageState(selection.object, selection.mesh, selection.material, image.state);
    if (stateKnown.IsFailure()) {
        return stateKnown;
    }
    image.listed = Scene().IsMaterialSoftClothEnabled(CurrentMaterial());
    if (!image.listed || !image.state.hasFile) {
        return BF::Results::Success;
    }
    std::wstring path;
    const BF::Result pathKnown = Scene().GetWeightImagePath(selection.object, selection.mesh, selection.material, path);
    image.path = QString::fromStdWString(path);
    return pathKnown;
}

/// \param redraw  draws the picture; brightness and contrast are read again when the image's state says so
/// \param reload  without \p redraw: brightness and contrast are read again
BF::Result CSoftClothMaterialDlg::UpdateWeightSettings(bool redraw, bool reload)
{
    WeightImage image;
    const BF::Result read = ReadWeightImage(image);
    if (read.IsFailure()) {
        return read;
    }
    if (redraw) {
        Drawing drawing{image.thumbnail, nullptr};
        FindSource(drawing);
        const BF::Result drawn = DrawThumbnail(m_ui.weightingItemLabel, drawing);
        if (drawn.IsFailure()) {
            return drawn;
        }
    }
    if (m_currentLabel && m_currentLabel == m_ui.weightingItemLabel) {
        EnableWeightWidgets(image);
    }
    return (redraw ? image.state.reload : reload) ? ReloadWeightAdjust() : BF::Results::Success;
}

void CSoftClothMaterialDlg::EnableWeightWidgets(const WeightImage& image)
{
    const bool adjustable = HasAnyBit(m_plugin->GetCurrentAp(), ECompatibleApp::FamilyA) ||
                            HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyB);
    const bool linked = image.listed && image.state.hasFile;
    const bool unlinked = image.listed && !image.state.hasFile;
    for (const auto& [widget, enable] : std::initializer_list<std::pair<QWidget*, bool>>{
             {m_ui.frame, adjustable},
             {m_ui.textureEditButtonWidget, adjustable},
             {m_ui.textureSettingWidget, adjustable},
             {m_ui.openFilePushButton, true},
             {m_ui.uvRefPushButton, true},
             {m_ui.launchPushButton, unlinked},
             {m_ui.embedTexturePushButton, image.state.hasFile && !image.state.embedded},
             {m_ui.deleteFilePushButton, image.listed},
             {m_ui.saveFilePushButton, image.listed},
             {m_ui.openPathPushButton, linked},
             {m_ui.bitmapLabel, linked},
             {m_ui.bitmapPathLineEdit, linked}}) {
        EnableWidget(widget, enable);
    }
    ShowPath(image.path);
    EnableAdjustWidgets(unlinked && adjustable);
}

// Image editor.

/// The file behind the current texture.
BF::Result CSoftClothMaterialDlg::FindImageToEdit(std::wstring& path) const
{
    const SoftClothSelection& selection = Selection();
    if (m_currentLabel && m_currentLabel == m_ui.weightingItemLabel) {
        return Scene().GetWeightImageEditFile(selection.object, selection.mesh, selection.material, path);
    }
    std::size_t index = 0;
    const BF::Result known = Scene().GetMaterialIndex(selection.object, selection.material, index);
    return known.IsFailure() ? known : Scene().GetTexturePath(selection.object, index, ChannelOf(m_currentLabel), path);
}

void CSoftClothMaterialDlg::OnClickLaunchFilePushButton()
{
    std::wstring path;
    const BF::Result found = FindImageToEdit(path);
    const BF::Result launched = found.IsFailure() ? found : Ui().LaunchImageEditor({path});
    if (launched.IsFailure()) {
        ShowMessage(tr("Failed to launch image editor."));
    }
}

void CSoftClothMaterialDlg::OnClickUvRefPushButton()
{
    bool hasTexture = false;
    const BF::Result launched = EditUvTexture(hasTexture);
    if (launched.IsFailure()) {
        ShowMessage(tr("Failed to launch image editor."));
    } else if (!hasTexture) {
        ShowMessage(tr("Diffuse Uv Texture does not exist."));
    }
}

/// Opens the UV layout over the diffuse texture in the image editor.
/// \param hasTexture  false when the host knows of no diffuse texture, and nothing was opened
BF::Result CSoftClothMaterialDlg::EditUvTexture(bool& hasTexture)
{
    const SoftClothSelection selection = Selection();
    BF::CHandle* handle = selection.object;
    if (HasMeshHandles(selection.objectType)) {
        const BF::Result resolved = Scene().GetMeshHandle(selection.mesh, handle);
        if (resolved.IsFailure()) {
            return resolved;
        }
    }
    std::size_t index = 0;
    const BF::Result indexKnown = Scene().GetMaterialIndex(handle, selection.material, index);
    if (indexKnown.IsFailure()) {
        return indexKnown;
    }
    bool unused1 = false;
    bool unused2 = false;
    bool unused3 = false;
    const BF::Result stateKnown = Scene().GetMaterialTextureState(selection.material, ETextureChannel::Diffuse,
                                                                  hasTexture, unused1, unused2, unused3);
    hasTexture = hasTexture && !stateKnown.IsFailure();
    if (!hasTexture) {
        return BF::Results::Success;
    }
    BF::CArrayList<std::wstring> files;
    const BF::Result exported = Scene().ExportUvTexture(handle, index, ETextureChannel::Diffuse, files);
    return exported.IsFailure() ? exported : Ui().LaunchImageEditor(files);
}

} // namespace MV
