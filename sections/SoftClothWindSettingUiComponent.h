#pragma once

#include "ui/UiComponent.h"

class QComboDoubleSpinBox;
class QFrame;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpinBoxEx;
class QVBoxLayout;

/// The widgets of the form "SoftClothWindSetting".
class CSoftClothWindSettingUiComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override;
    QWidget* GetRootWidget() override;

    QVBoxLayout* verticalLayout_5 = nullptr;
    QVBoxLayout* verticalLayout_6 = nullptr;
    QHBoxLayout* horizontalLayout_8 = nullptr;
    QHBoxLayout* horizontalLayout_7 = nullptr;
    QHBoxLayout* horizontalLayout_6 = nullptr;
    QHBoxLayout* horizontalLayout_5 = nullptr;
    QVBoxLayout* verticalLayout_10 = nullptr;
    QVBoxLayout* verticalLayout_3 = nullptr;
    QVBoxLayout* verticalLayout_8 = nullptr;
    QHBoxLayout* horizontalLayout_3 = nullptr;
    QHBoxLayout* horizontalLayout_2 = nullptr;
    QHBoxLayout* horizontalLayout = nullptr;
    QHBoxLayout* horizontalLayout_4 = nullptr;
    QVBoxLayout* verticalLayout_9 = nullptr;
    QVBoxLayout* verticalLayout_2 = nullptr;
    QVBoxLayout* verticalLayout_7 = nullptr;
    QVBoxLayout* verticalLayout_4 = nullptr;
    QVBoxLayout* verticalLayout = nullptr;

    QComboDoubleSpinBox* frequencySpinBox = nullptr;
    QFrame* line = nullptr;
    QGroupBox* sectionGroupBox = nullptr;
    QLabel* label_10 = nullptr;
    QLabel* label_11 = nullptr;
    QLabel* label_12 = nullptr;
    QLabel* label_13 = nullptr;
    QLabel* label_2 = nullptr;
    QLabel* label_3 = nullptr;
    QLabel* label_4 = nullptr;
    QLabel* label_5 = nullptr;
    QLabel* label_6 = nullptr;
    QLabel* label_7 = nullptr;
    QLabel* label_8 = nullptr;
    QLabel* label_9 = nullptr;
    QPushButton* expandButton = nullptr;
    QSpinBoxEx* externalXSpinBox = nullptr;
    QSpinBoxEx* externalYSpinBox = nullptr;
    QSpinBoxEx* externalZSpinBox = nullptr;
    QSpinBoxEx* randomXSpinBox = nullptr;
    QSpinBoxEx* randomYSpinBox = nullptr;
    QSpinBoxEx* randomZSpinBox = nullptr;
    QWidget* root = nullptr;
    QWidget* randomFactorWidget = nullptr; ///< Receives the random-factor slider.
};
