#pragma once

#include "ui/UiComponent.h"

#include <array>

class QCheckBox;
class QFrame;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QVBoxLayout;

/// The widgets of the form "SoftClothPreset".
class CSoftClothPresetUiComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override;
    QWidget* GetRootWidget() override;

    QCheckBox* activePhysicsCheckBox = nullptr;
    QCheckBox* affectAllMaterialsCheckBox = nullptr;
    QCheckBox* useWorldGravityCheckBox = nullptr;
    QGroupBox* baseGroupBox = nullptr;
    QGroupBox* sectionGroupBox = nullptr;
    QGroupBox* softPresetGroupBox = nullptr;
    QGroupBox* weightSelectGroupBox = nullptr;
    QListWidget* presetClothListWidget = nullptr;
    QListWidget* presetHairListWidget = nullptr;
    QListWidget* presetWindListWidget = nullptr;
    QPushButton* expandButton = nullptr;
    QPushButton* openFilePushButton = nullptr;
    QPushButton* paintPushButton = nullptr;
    QPushButton* saveFilePushButton = nullptr;
    QRadioButton* rigidBodyRadioButton = nullptr;
    QRadioButton* softClothRadioButton = nullptr;
    QTabWidget* presetTabWidget = nullptr;
    QWidget* root = nullptr;
    QWidget* clothTab = nullptr;
    QWidget* hairTab = nullptr;
    QWidget* windTab = nullptr;

    /// "verticalLayout", "verticalLayout_2" to "verticalLayout_9", "verticalLayout_16".
    std::array<QVBoxLayout*, 10> verticalLayouts{};
    /// "horizontalLayout", "horizontalLayout_2", "horizontalLayout_4" to "horizontalLayout_6".
    std::array<QHBoxLayout*, 5> horizontalLayouts{};
    QFrame* line_13 = nullptr;
    QLabel* label = nullptr;
};
