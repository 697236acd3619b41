#pragma once

#include "ui/FormComponent.h"

#include <QAction>
#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>

/// The widgets of the form "SoftClothMaterialTable".
class CSoftClothMaterialTableUiComponent : public CFormComponent
{
public:
    QWidget* GetRootWidget() override { return root; }

    Found<QGroupBox> materialTableGroupBox{*this, "qtMaterialTableGroupBox"};
    Found<QLabel> materialTableLabel{*this, "qtMaterialTableLabel"};
    Found<QPushButton> cancelPushButton{*this, "qtCancelPushButton"};
    Found<QPushButton> confirmPushButton{*this, "qtConfirmPushButton"};
    Found<QTableWidget> materialTableWidget{*this, "qtMaterialTableWidget"};
    Found<QWidget> root{*this, "SoftClothMaterialTable"};
    Found<QWidget> materialTableBorderWidget{*this, "qtMaterialTableBorderWidget"};
    Found<QWidget> materialTableButtonWidget{*this, "qtMaterialTableButtonWidget"};
    Found<QAction> doEscapeAction{*this, "qtDoEscapeAction"};
    Found<QHBoxLayout> materialTableButtonLayout{*this, "qtMaterialTableButtonLayout"};
    Found<QVBoxLayout> materialTableLayout{*this, "qtMaterialTableLayout"};
    Found<QHBoxLayout> materialTableHBoxLayout{*this, "qtMaterialTableHBoxLayout"};
    Found<QVBoxLayout> groupBoxLayout{*this, "qtGroupBoxLayout"};
    Found<QVBoxLayout> widgetLayout{*this, "qtWidgetLayout"};
};
