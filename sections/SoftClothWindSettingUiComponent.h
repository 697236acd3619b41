#pragma once

#include "ui/FormComponent.h"

#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QBoxLayout>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

/// The widgets of the form "SoftClothWindSetting".
class CSoftClothWindSettingUiComponent : public CFormComponent
{
public:
    QWidget* GetRootWidget() override { return root; }

    Found<QVBoxLayout> verticalLayout_5{*this, "verticalLayout_5"};
    Found<QVBoxLayout> verticalLayout_6{*this, "verticalLayout_6"};
    Found<QHBoxLayout> horizontalLayout_8{*this, "horizontalLayout_8"};
    Found<QHBoxLayout> horizontalLayout_7{*this, "horizontalLayout_7"};
    Found<QHBoxLayout> horizontalLayout_6{*this, "horizontalLayout_6"};
    Found<QHBoxLayout> horizontalLayout_5{*this, "horizontalLayout_5"};
    Found<QVBoxLayout> verticalLayout_10{*this, "verticalLayout_10"};
    Found<QVBoxLayout> verticalLayout_3{*this, "verticalLayout_3"};
    Found<QVBoxLayout> verticalLayout_8{*this, "verticalLayout_8"};
    Found<QHBoxLayout> horizontalLayout_3{*this, "horizontalLayout_3"};
    Found<QHBoxLayout> horizontalLayout_2{*this, "horizontalLayout_2"};
    Found<QHBoxLayout> horizontalLayout{*this, "horizontalLayout"};
    Found<QHBoxLayout> horizontalLayout_4{*this, "horizontalLayout_4"};
    Found<QVBoxLayout> verticalLayout_9{*this, "verticalLayout_9"};
    Found<QVBoxLayout> verticalLayout_2{*this, "verticalLayout_2"};
    Found<QVBoxLayout> verticalLayout_7{*this, "verticalLayout_7"};
    Found<QVBoxLayout> verticalLayout_4{*this, "verticalLayout_4"};
    Found<QVBoxLayout> verticalLayout{*this, "verticalLayout"};
    FoundCustom<QComboDoubleSpinBox> frequencySpinBox{*this, "qtFrequencyCombodoublespinbox"};
    Found<QFrame> line{*this, "line"};
    Found<QGroupBox> sectionGroupBox{*this, "qtSectionGroupBox"};
    Found<QLabel> label_10{*this, "label_10"};
    Found<QLabel> label_11{*this, "label_11"};
    Found<QLabel> label_12{*this, "label_12"};
    Found<QLabel> label_13{*this, "label_13"};
    Found<QLabel> label_2{*this, "label_2"};
    Found<QLabel> label_3{*this, "label_3"};
    Found<QLabel> label_4{*this, "label_4"};
    Found<QLabel> label_5{*this, "label_5"};
    Found<QLabel> label_6{*this, "label_6"};
    Found<QLabel> label_7{*this, "label_7"};
    Found<QLabel> label_8{*this, "label_8"};
    Found<QLabel> label_9{*this, "label_9"};
    Found<QPushButton> expandButton{*this, "qtExpandPushButton"};
    FoundCustom<QSpinBoxEx> externalXSpinBox{*this, "qtExternalXEXSpinBox"};
    FoundCustom<QSpinBoxEx> externalYSpinBox{*this, "qtExternalYEXSpinBox"};
    FoundCustom<QSpinBoxEx> externalZSpinBox{*this, "qtExternalZEXSpinBox"};
    FoundCustom<QSpinBoxEx> randomXSpinBox{*this, "qtRandomXEXSpinBox"};
    FoundCustom<QSpinBoxEx> randomYSpinBox{*this, "qtRandomYEXSpinBox"};
    FoundCustom<QSpinBoxEx> randomZSpinBox{*this, "qtRandomZEXSpinBox"};
    Found<QWidget> root{*this, "SoftClothWindSetting"};
    Found<QWidget> randomFactorWidget{*this, "qtRandomFactorWidget"}; ///< Receives the random-factor slider.
};
