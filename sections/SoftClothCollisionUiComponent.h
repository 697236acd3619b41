#pragma once

#include "ui/FormComponent.h"

#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

/// The widgets of the form "SoftClothCollision".
class CSoftClothCollisionUiComponent : public CFormComponent
{
public:
    QWidget* GetRootWidget() override { return root; }

    Found<QCheckBox> collideWithRigidCheckBox{*this, "qtCollideWithRigidCheckBox"};
    Found<QCheckBox> selfCollisionCheckBox{*this, "qtSelfCollisionCheckBox"};
    FoundCustom<QDoubleSpinBoxEx> rigidMarginSpinBox{*this, "qtCollideWithRigidMarginDoubleEXSpinBox"};
    FoundCustom<QDoubleSpinBoxEx> selfMarginSpinBox{*this, "qtSelfCollisionMarginDoubleEXSpinBox"};
    Found<QGroupBox> sectionGroupBox{*this, "qtSectionGroupBox"};
    Found<QLabel> selfMarginLabel{*this, "qtSelfCollisionMarginLabel"};
    Found<QLabel> rigidMarginLabel{*this, "qtSoftRigidCollisionMarginLabel"};
    Found<QPushButton> expandButton{*this, "qtExpandPushButton"};
    Found<QWidget> root{*this, "SoftClothCollision"};
    Found<QHBoxLayout> horizontalLayout_2{*this, "horizontalLayout_2"};
    Found<QVBoxLayout> verticalLayout_4{*this, "verticalLayout_4"};
    Found<QHBoxLayout> horizontalLayout{*this, "horizontalLayout"};
    Found<QVBoxLayout> verticalLayout_3{*this, "verticalLayout_3"};
    Found<QVBoxLayout> verticalLayout{*this, "verticalLayout"};
    Found<QVBoxLayout> verticalLayout_2{*this, "verticalLayout_2"};
};
