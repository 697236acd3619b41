#pragma once

#include "ui/UiComponent.h"

class QComboSpinBox;
class QDoubleSpinBoxEx;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBoxEx;
class QVBoxLayout;

/// The widgets of the form "SoftClothProperty".
class CSoftClothPropertyUiComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override;
    QWidget* GetRootWidget() override;

    QVBoxLayout* verticalLayout_9 = nullptr;
    QVBoxLayout* verticalLayout_8 = nullptr;
    QVBoxLayout* verticalLayout_7 = nullptr;
    QVBoxLayout* verticalLayout_6 = nullptr;
    QGridLayout* gridLayout = nullptr;
    QVBoxLayout* verticalLayout = nullptr;
    QVBoxLayout* verticalLayout_2 = nullptr;

    QComboSpinBox* bendingSpinBox = nullptr;
    QComboSpinBox* inertiaScaleSpinBox = nullptr;
    QComboSpinBox* stiffnessSpinBox = nullptr;
    QComboSpinBox* tetherStiffnessSpinBox = nullptr;
    QDoubleSpinBoxEx* dampingSpinBox = nullptr;
    QDoubleSpinBoxEx* dragSpinBox = nullptr;
    QDoubleSpinBoxEx* frictionSpinBox = nullptr;
    QDoubleSpinBoxEx* tetherLimitSpinBox = nullptr;
    QGroupBox* sectionGroupBox = nullptr;
    QLabel* label_10 = nullptr;
    QLabel* label_3 = nullptr;
    QLabel* label_4 = nullptr;
    QLabel* label_5 = nullptr;
    QLabel* label_7 = nullptr;
    QLabel* label_9 = nullptr;
    QPushButton* expandButton = nullptr;
    QSpinBoxEx* massSpinBox = nullptr;
    QSpinBoxEx* solverFrequencySpinBox = nullptr;
    QWidget* root = nullptr;
};
