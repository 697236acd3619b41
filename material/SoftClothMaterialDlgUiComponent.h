#pragma once

#include "ui/UiComponent.h"

#include <array>

class QAction;
class QComboSpinBox;
class QFrame;
class QGroupBox;
class QHBoxLayout;
class QItemLabel;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QVBoxLayout;

/// The widgets of the form "SoftClothMaterialDlg".
class CSoftClothMaterialDlgUiComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override;
    QWidget* GetRootWidget() override;

    QComboSpinBox* brightnessComboSpinBox = nullptr;
    QComboSpinBox* contrastComboSpinBox = nullptr;
    QFrame* frame = nullptr;
    QFrame* line_2 = nullptr;
    QLabel* label = nullptr;
    QLabel* label_2 = nullptr;
    QLabel* label_3 = nullptr;
    QLabel* label_4 = nullptr;
    QGroupBox* materialGroupBox = nullptr;
    QItemLabel* diffuseItemLabel = nullptr;
    QItemLabel* opacityItemLabel = nullptr;
    QItemLabel* weightingItemLabel = nullptr;
    QLabel* bitmapLabel = nullptr;
    QLineEdit* bitmapPathLineEdit = nullptr;
    QListWidget* materialListWidget = nullptr;
    QPushButton* deleteFilePushButton = nullptr;
    QPushButton* embedTexturePushButton = nullptr;
    QPushButton* launchPushButton = nullptr;
    QPushButton* openFilePushButton = nullptr;
    QPushButton* openPathPushButton = nullptr;
    QPushButton* pickMaterialPushButton = nullptr;
    QPushButton* saveFilePushButton = nullptr;
    QPushButton* showMaterialTableButton = nullptr;
    QPushButton* uvRefPushButton = nullptr;
    QWidget* root = nullptr;
    QWidget* listBorderWidget = nullptr;
    QWidget* textureEditButtonWidget = nullptr;
    QWidget* textureSettingWidget = nullptr;
    QAction* doEscapeAction = nullptr;

    // Captions of the two combo spin boxes, enabled like these.
    QLabel* brightnessLabel = nullptr;
    QLabel* contrastLabel = nullptr;

    std::array<QHBoxLayout*, 5> horizontalLayouts{}; ///< "horizontalLayout", then the numbers 2, 3, 4 and 8.
    std::array<QVBoxLayout*, 14> verticalLayouts{};  ///< "verticalLayout", then the numbers 2 to 14.
};
