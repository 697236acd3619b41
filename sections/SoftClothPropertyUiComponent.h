#pragma once

#include "ui/FormComponent.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

/// The widgets of the form "SoftClothProperty".
class CSoftClothPropertyUiComponent : public CFormComponent
{
public:
    QWidget* GetRootWidget() override { return root; }

    Found<QVBoxLayout> verticalLayout_9{*this, "verticalLayout_9"};
    Found<QVBoxLayout> verticalLayout_8{*this, "verticalLayout_8"};
    Found<QVBoxLayout> verticalLayout_7{*this, "verticalLayout_7"};
    Found<QVBoxLayout> verticalLayout_6{*this, "verticalLayout_6"};
    Found<QGridLayout> gridLayout{*this, "gridLayout"};
    Found<QVBoxLayout> verticalLayout{*this, "verticalLayout"};
    Found<QVBoxLayout> verticalLayout_2{*this, "verticalLayout_2"};
    FoundCustom<QComboSpinBox> bendingSpinBox{*this, "qtBendingCombospinbox"};
    FoundCustom<QComboSpinBox> inertiaScaleSpinBox{*this, "qtInertiaScaleCombospinbox"};
    FoundCustom<QComboSpinBox> stiffnessSpinBox{*this, "qtStiffnessCombospinbox"};
    FoundCustom<QComboSpinBox> tetherStiffnessSpinBox{*this, "qtTetherStiffnessCombospinbox"};
    FoundCustom<QDoubleSpinBoxEx> dampingSpinBox{*this, "qtDampingDoubleEXSpinBox"};
    FoundCustom<QDoubleSpinBoxEx> dragSpinBox{*this, "qtDragDoubleEXSpinBox"};
    FoundCustom<QDoubleSpinBoxEx> frictionSpinBox{*this, "qtFricionDoubleEXSpinBox"};
    FoundCustom<QDoubleSpinBoxEx> tetherLimitSpinBox{*this, "qtTetherLimitDoubleEXSpinBox"};
    Found<QGroupBox> sectionGroupBox{*this, "qtSectionGroupBox"};
    Found<QLabel> label_10{*this, "label_10"};
    Found<QLabel> label_3{*this, "label_3"};
    Found<QLabel> label_4{*this, "label_4"};
    Found<QLabel> label_5{*this, "label_5"};
    Found<QLabel> label_7{*this, "label_7"};
    Found<QLabel> label_9{*this, "label_9"};
    Found<QPushButton> expandButton{*this, "qtExpandPushButton"};
    FoundCustom<QSpinBoxEx> massSpinBox{*this, "qtMassEXSpinBox"};
    FoundCustom<QSpinBoxEx> solverFrequencySpinBox{*this, "qtSolverFrequencyEXSpinBox"};
    Found<QWidget> root{*this, "SoftClothProperty"};
};
