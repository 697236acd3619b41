#include "material/SoftClothMaterialDlgUiComponent.h"

#include "ui/QtUiLoader.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Finds a row of layouts of one kind that differ in their number.
template <class Layout, std::size_t count>
void FindLayouts(CQtUiLoader& loader, const char* kind, const std::array<const char*, count>& endings,
                 std::array<Layout*, count>& layouts)
{
    for (std::size_t i = 0; i < count; ++i) {
        layouts[i] = loader.Find<Layout>(QLatin1String(kind) + QLatin1String(endings[i]));
    }
}

constexpr std::array<const char*, 5> horizontalEndings{"", "_2", "_3", "_4", "_8"};
constexpr std::array<const char*, 14> verticalEndings{"",   "_2", "_3",  "_4",  "_5",  "_6",  "_7",
                                                      "_8", "_9", "_10", "_11", "_12", "_13", "_14"};

} // namespace

void CSoftClothMaterialDlgUiComponent::SetupUi(CQtUiLoader& loader)
{
    brightnessComboSpinBox = loader.FindCustom<QComboSpinBox>(QStringLiteral("qtBrightnessCombospinbox"));
    contrastComboSpinBox = loader.FindCustom<QComboSpinBox>(QStringLiteral("qtContrastCombospinbox"));
    frame = loader.Find<QFrame>(QStringLiteral("frame"));
    line_2 = loader.Find<QFrame>(QStringLiteral("line_2"));
    label = loader.Find<QLabel>(QStringLiteral("label"));
    label_2 = loader.Find<QLabel>(QStringLiteral("label_2"));
    label_3 = loader.Find<QLabel>(QStringLiteral("label_3"));
    label_4 = loader.Find<QLabel>(QStringLiteral("label_4"));
    materialGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtMaterialGroupBox"));
    diffuseItemLabel = loader.FindCustom<QItemLabel>(QStringLiteral("qtDiffuseItemLabel"));
    opacityItemLabel = loader.FindCustom<QItemLabel>(QStringLiteral("qtOpacityItemLabel"));
    weightingItemLabel = loader.FindCustom<QItemLabel>(QStringLiteral("qtWeightingItemLabel"));
    bitmapLabel = loader.Find<QLabel>(QStringLiteral("qtBitmapLabel"));
    bitmapPathLineEdit = loader.Find<QLineEdit>(QStringLiteral("qtBitmapPathLineEdit"));
    materialListWidget = loader.Find<QListWidget>(QStringLiteral("qtMaterialListWidget"));
    deleteFilePushButton = loader.Find<QPushButton>(QStringLiteral("qtDeleteFilePushButton"));
    embedTexturePushButton = loader.Find<QPushButton>(QStringLiteral("qtEmbedTexturePushButton"));
    launchPushButton = loader.Find<QPushButton>(QStringLiteral("qtLaunchPushButton"));
    openFilePushButton = loader.Find<QPushButton>(QStringLiteral("qtOpenFilePushButton"));
    openPathPushButton = loader.Find<QPushButton>(QStringLiteral("qtOpenPathPushButton"));
    pickMaterialPushButton = loader.Find<QPushButton>(QStringLiteral("qtPickMaterialPushButton"));
    saveFilePushButton = loader.Find<QPushButton>(QStringLiteral("qtSaveFilePushButton"));
    showMaterialTableButton = loader.Find<QPushButton>(QStringLiteral("qtShowMaterialTableButton"));
    uvRefPushButton = loader.Find<QPushButton>(QStringLiteral("qtUvRefPushButton"));
    root = loader.Find<QWidget>(QStringLiteral("SoftClothMaterialDlg"));
    listBorderWidget = loader.Find<QWidget>(QStringLiteral("ListBorderWidget"));
    textureEditButtonWidget = loader.Find<QWidget>(QStringLiteral("qtTextureEditButtonWidget"));
    textureSettingWidget = loader.Find<QWidget>(QStringLiteral("qtTextureSettingWidget"));
    doEscapeAction = loader.Find<QAction>(QStringLiteral("qtDoEscapeAction"));
    brightnessLabel = loader.Find<QLabel>(QStringLiteral("qtBrightnessLabel"));
    contrastLabel = loader.Find<QLabel>(QStringLiteral("qtContrastLabel"));
    FindLayouts(loader, "horizontalLayout", horizontalEndings, horizontalLayouts);
    FindLayouts(loader, "verticalLayout", verticalEndings, verticalLayouts);
}

QWidget* CSoftClothMaterialDlgUiComponent::GetRootWidget()
{
    return root;
}
