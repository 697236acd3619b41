#include "material/SoftClothMaterialDlg.h"

#include "material/LargePreview.h"
#include "panel/HostCodes.h"
#include "panel/MessageBox.h"
#include "panel/PanelForm.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/EditService.h"
#include "plugin/services/HotKeyService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "ui/WidgetAccess.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>
#include <MVPluginQt/EventSender.h>

#include <QAction>
#include <QCoreApplication>
#include <QHideEvent>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>

#include <initializer_list>
#include <new>

namespace MV {

CSoftClothMaterialDlg::CSoftClothMaterialDlg(QWidget* parent, CPhysicsSoftClothPlugin* plugin)
    : CPluginDialog(parent)
    , m_plugin(plugin)
{
}

CSoftClothMaterialDlg::~CSoftClothMaterialDlg()
{
    for (const QMetaObject::Connection& connection : m_imageLoadEvents) {
        disconnect(connection);
    }
}

BF::Result CSoftClothMaterialDlg::Init(const QString& /*pluginPath*/, const QString& resourceBase,
                                       CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    m_host = host;
    const BF::Result built = BuildPanelForm(QStringLiteral("SoftClothMaterialDlg"), this, m_ui, resourceBase, host);
    if (built.IsFailure()) {
        return built;
    }
    if (m_ui.weightingItemLabel) {
        m_ui.weightingItemLabel->SetGetOpenFileNameFunctor([host] {
            QString path;
            host->GetSceneService()->GetOpenImageFileName(path, weightImageDialog[0], weightImageDialog[1],
                                                          weightImageDialog[2]);
            return path;
        });
        m_ui.weightingItemLabel->SetFileFilter(QStringLiteral("jpg jpeg bmp gif png tga"));
    }
    if (m_ui.bitmapLabel) {
        m_preview = new CLargePreview(m_ui.bitmapLabel, [this](const QSize& pixels) { return RenderPreview(pixels); });
    }
    ConnectWidgets();
    ConnectHostEvents();
    auto* filterShortcut = new (std::nothrow) QShortcut(QKeySequence(QStringLiteral("Alt+Shift+F")), this);
    if (!filterShortcut) {
        return BF::Results::ResourceFailure;
    }
    connect(filterShortcut, &QShortcut::activated, this, &CSoftClothMaterialDlg::OnFilterMaterialList);
    return RegisterHotKeys();
}

void CSoftClothMaterialDlg::ConnectWidgets()
{
    using Dialog = CSoftClothMaterialDlg;
    ConnectClicked(m_ui.openFilePushButton, this, &Dialog::OnClickOpenFilePushButton);
    ConnectClicked(m_ui.saveFilePushButton, this, &Dialog::OnClickSaveFilePushButton);
    ConnectClicked(m_ui.deleteFilePushButton, this, &Dialog::OnClickDeleteFilePushButton);
    ConnectClicked(m_ui.launchPushButton, this, &Dialog::OnClickLaunchFilePushButton);
    ConnectClicked(m_ui.uvRefPushButton, this, &Dialog::OnClickUvRefPushButton);
    ConnectClicked(m_ui.openPathPushButton, this, &Dialog::OnClickOpenPathPushButton);
    ConnectClicked(m_ui.embedTexturePushButton, this, &Dialog::OnClickEmbedTexturePushButton);
    ConnectClicked(m_ui.pickMaterialPushButton, this, &Dialog::OnClickPickMaterialPushButton);
    ConnectClicked(m_ui.showMaterialTableButton, this, &Dialog::OnClickShowMaterialTablePushButton);

    for (QComboSpinBox* box : {m_ui.brightnessComboSpinBox, m_ui.contrastComboSpinBox}) {
        if (box) {
            connect(box, &QComboSpinBox::ValueChanged, this, [this] { WriteWeightAdjust(false, false); });
            connect(box, &QComboSpinBox::EditFinished, this, [this] { WriteWeightAdjust(true, true); });
        }
    }
    for (QItemLabel* label : {m_ui.diffuseItemLabel, m_ui.opacityItemLabel, m_ui.weightingItemLabel}) {
        if (label) {
            connect(label, &QItemLabel::SelectedChanged, this, &Dialog::OnItemSelectedChanged);
        }
    }
    if (m_ui.weightingItemLabel) {
        connect(m_ui.weightingItemLabel, &QItemLabel::PreImageLoaded, this, &Dialog::OnLoadWeightImage);
    }
    if (m_ui.materialListWidget) {
        connect(m_ui.materialListWidget, &QListWidget::currentItemChanged, this,
                &Dialog::OnChangeCurrentItemOfMaterialList);
    }
}

void CSoftClothMaterialDlg::ConnectHostEvents()
{
    using Dialog = CSoftClothMaterialDlg;
    CEventSender* sender = m_host->GetEventSender();
    if (!sender) {
        return;
    }
    connect(sender, &CEventSender::DialogModeChanged, this, &Dialog::ShowDialog);
    connect(sender, &CEventSender::PickedMaterialTextureChanged, this, &Dialog::OnMaterialTextureChanged);
    m_imageLoadEvents = {
        connect(sender, &CEventSender::ImageAsyncLoadStart, sender, [this] { SetImageLoading(true); }),
        connect(sender, &CEventSender::ImageAsyncLoadAllDone, sender, [this] { SetImageLoading(false); })};
    if (!HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyB)) {
        return;
    }
    connect(sender, &CEventSender::UndoRedoDone, this, &Dialog::UpdateUi);
    connect(sender, &CEventSender::ObjectSelectionChanged, this, &Dialog::UpdateUi);
    connect(sender, &CEventSender::FileLoaded, this, [this] {
        if (isVisible()) {
            hide();
        }
    });
    if (m_ui.materialListWidget) {
        connect(m_ui.materialListWidget, &QListWidget::itemClicked, this, [this] {
            if (isVisible()) {
                UpdateWeightSettings(false, false);
            }
        });
    }
}

BF::Result CSoftClothMaterialDlg::RegisterHotKeys()
{
    const quint64 registration = m_host->GetHotKeyService()->RegisterSectionHotKeys(
        {QCoreApplication::translate("Modify Panel hot key", "[Hot Key] Modify").toStdWString(),
         QCoreApplication::translate("LensFlare section hot key", "[Hot Key] Physics").toStdWString()},
        L"MVPhysicsSoftCloth");
    if (m_ui.doEscapeAction) {
        connect(m_ui.doEscapeAction, &QAction::triggered, this, &CSoftClothMaterialDlg::DoHotkeyEscape);
    }
    const BF::Result registered =
        m_host->GetHotKeyService()->RegisterEscapeAction(registration, m_ui.doEscapeAction, this);
    if (registered.IsFailure()) {
        return registered;
    }
    const BF::Result disabled = m_host->GetHotKeyService()->DisableHotKeyAction(m_ui.doEscapeAction);
    return disabled.IsFailure() ? disabled : BF::Results::Success;
}

CSceneService& CSoftClothMaterialDlg::Scene() const
{
    return *m_host->GetSceneService();
}

CEditService& CSoftClothMaterialDlg::Edit() const
{
    return *m_host->GetEditService();
}

CUiService& CSoftClothMaterialDlg::Ui() const
{
    return *m_host->GetUiService();
}

SoftClothSelection& CSoftClothMaterialDlg::Selection() const
{
    return m_plugin->Selection();
}

void CSoftClothMaterialDlg::ShowMessage(const QString& text)
{
    ShowInformation(*m_host, text, MessageTitle(), this);
}

BF::Result CSoftClothMaterialDlg::UpdateUi()
{
    if (!isVisible()) {
        return BF::Results::NothingDone;
    }
    if (Selection().mesh == 0 || Selection().material == 0) {
        EnableEditWidgets(false);
        return BF::Results::NothingDone;
    }
    EnableEditWidgets(true);
    // Typed text goes even where the host has the values not read again.
    for (QComboSpinBox* box : {m_ui.brightnessComboSpinBox, m_ui.contrastComboSpinBox}) {
        ShowValue(box, ValueOf(box));
    }
    const BF::Result diffuse = ShowThumbnail(m_ui.diffuseItemLabel, true);
    if (diffuse.IsFailure()) {
        return diffuse;
    }
    const BF::Result opacity = ShowThumbnail(m_ui.opacityItemLabel, true);
    return opacity.IsFailure() ? opacity : UpdateWeightSettings(true, true);
}

void CSoftClothMaterialDlg::EnableEditWidgets(bool enable)
{
    for (QWidget* widget : std::initializer_list<QWidget*>{
             m_ui.weightingItemLabel, m_ui.label, m_ui.label_2, m_ui.label_3, m_ui.label_4, m_ui.openFilePushButton,
             m_ui.saveFilePushButton, m_ui.deleteFilePushButton, m_ui.launchPushButton, m_ui.uvRefPushButton,
             m_ui.embedTexturePushButton, m_ui.openPathPushButton, m_ui.pickMaterialPushButton, m_ui.bitmapLabel,
             m_ui.bitmapPathLineEdit, m_ui.listBorderWidget}) {
        EnableWidget(widget, enable);
    }
    EnableAdjustWidgets(enable);
    ShowPath({});
    EnableWidget(m_ui.diffuseItemLabel, enable && !m_imageLoading);
    EnableWidget(m_ui.opacityItemLabel, enable && !m_imageLoading);
}

void CSoftClothMaterialDlg::EnableAdjustWidgets(bool enable)
{
    for (QWidget* widget : std::initializer_list<QWidget*>{m_ui.brightnessComboSpinBox, m_ui.brightnessLabel,
                                                           m_ui.contrastComboSpinBox, m_ui.contrastLabel}) {
        EnableWidget(widget, enable);
    }
}

void CSoftClothMaterialDlg::ShowPath(const QString& path)
{
    if (m_ui.bitmapPathLineEdit) {
        const CSignalBlocker silent{m_ui.bitmapPathLineEdit};
        m_ui.bitmapPathLineEdit->setText(path);
    }
}

void CSoftClothMaterialDlg::SetImageLoading(bool loading)
{
    m_imageLoading = loading;
    UpdateUi();
}

void CSoftClothMaterialDlg::ShowDialog(EDialogMode eMode)
{
    m_isShownForMode = eMode == EDialogMode::WeightMap;
    if (m_isShownForMode) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        show();
        UpdateUi();
    } else if (isVisible()) {
        hide();
    }
}

bool CSoftClothMaterialDlg::ShowAgainInOpenMode()
{
    const bool wasClosed = m_isShownForMode && !isVisible();
    if (wasClosed) {
        ShowDialog(EDialogMode::WeightMap);
    }
    return wasClosed;
}

void CSoftClothMaterialDlg::hideEvent(QHideEvent* event)
{
    // Minimising counts as well: out of sight, a mode would go on unnoticed.
    if (m_host) {
        if (Scene().GetCurrentPickMode() == EPickMode::Material) {
            Ui().CancelPickMode();
        }
        if (Scene().GetDialogMode() == EDialogMode::WeightMap && !Ui().SetDialogMode(EDialogMode::None).IsFailure()) {
            m_isShownForMode = false;
        }
    }
    CPluginDialog::hideEvent(event);
}

void CSoftClothMaterialDlg::OnClickPickMaterialPushButton()
{
    const QPointer<CSoftClothMaterialDlg> self(this);
    Ui().ChangePickMode(EPickMode::Material);
    // The click has switched the button over, whatever came of it.
    if (self) {
        ShowPicking();
    }
}

void CSoftClothMaterialDlg::ShowPicking()
{
    if (m_ui.pickMaterialPushButton) {
        m_ui.pickMaterialPushButton->setChecked(m_isPicking);
    }
}

BF::Result CSoftClothMaterialDlg::OnPickModeChanged(EPickMode mode)
{
    m_isPicking = mode == EPickMode::Material;
    ShowPicking();
    if (!m_host) {
        return BF::Results::InvalidArgument;
    }
    CHotKeyService& hotKeys = *m_host->GetHotKeyService();
    return mode == EPickMode::Material ? hotKeys.EnableHotKeyAction(m_ui.doEscapeAction)
                                       : hotKeys.DisableHotKeyAction(m_ui.doEscapeAction);
}

void CSoftClothMaterialDlg::DoHotkeyEscape()
{
    if (Scene().GetCurrentPickMode() == EPickMode::Material) {
        Ui().ChangePickMode(EPickMode::None);
    }
}

} // namespace MV
