#pragma once

#include "ui/UiComponent.h"

class QAction;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

/// The widgets of the form "SoftClothMaterialTable".
class CSoftClothMaterialTableUiComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override;
    QWidget* GetRootWidget() override;

    QGroupBox* materialTableGroupBox = nullptr;
    QLabel* materialTableLabel = nullptr;
    QPushButton* cancelPushButton = nullptr;
    QPushButton* confirmPushButton = nullptr;
    QTableWidget* materialTableWidget = nullptr;
    QWidget* root = nullptr;
    QWidget* materialTableBorderWidget = nullptr;
    QWidget* materialTableButtonWidget = nullptr;
    QAction* doEscapeAction = nullptr;

    QHBoxLayout* materialTableButtonLayout = nullptr;
    QVBoxLayout* materialTableLayout = nullptr;
    QHBoxLayout* materialTableHBoxLayout = nullptr;
    QVBoxLayout* groupBoxLayout = nullptr;
    QVBoxLayout* widgetLayout = nullptr;
};
