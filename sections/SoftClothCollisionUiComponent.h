#pragma once

#include "ui/UiComponent.h"

class QCheckBox;
class QDoubleSpinBoxEx;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// The widgets of the form "SoftClothCollision".
class CSoftClothCollisionUiComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override;
    QWidget* GetRootWidget() override;

    QCheckBox* collideWithRigidCheckBox = nullptr;
    QCheckBox* selfCollisionCheckBox = nullptr;
    QDoubleSpinBoxEx* rigidMarginSpinBox = nullptr;
    QDoubleSpinBoxEx* selfMarginSpinBox = nullptr;
    QGroupBox* sectionGroupBox = nullptr;
    QLabel* selfMarginLabel = nullptr;
    QLabel* rigidMarginLabel = nullptr;
    QPushButton* expandButton = nullptr;
    QWidget* root = nullptr;

    QHBoxLayout* horizontalLayout_2 = nullptr;
    QVBoxLayout* verticalLayout_4 = nullptr;
    QHBoxLayout* horizontalLayout = nullptr;
    QVBoxLayout* verticalLayout_3 = nullptr;
    QVBoxLayout* verticalLayout = nullptr;
    QVBoxLayout* verticalLayout_2 = nullptr;
};
