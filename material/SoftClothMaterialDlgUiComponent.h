#pragma once

#include "ui/FormComponent.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>

#include <QAction>
#include <QBoxLayout>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

/// The widgets of the form "SoftClothMaterialDlg".
class CSoftClothMaterialDlgUiComponent : public CFormComponent
{
public:
    QWidget* GetRootWidget() override { return root; }

    FoundCustom<QComboSpinBox> brightnessComboSpinBox{*this, "qtBrightnessCombospinbox"};
    FoundCustom<QComboSpinBox> contrastComboSpinBox{*this, "qtContrastCombospinbox"};
    Found<QFrame> frame{*this, "frame"};
    Found<QFrame> line_2{*this, "line_2"};
    Found<QLabel> label{*this, "label"};
    Found<QLabel> label_2{*this, "label_2"};
    Found<QLabel> label_3{*this, "label_3"};
    Found<QLabel> label_4{*this, "label_4"};
    Found<QGroupBox> materialGroupBox{*this, "qtMaterialGroupBox"};
    FoundCustom<QItemLabel> diffuseItemLabel{*this, "qtDiffuseItemLabel"};
    FoundCustom<QItemLabel> opacityItemLabel{*this, "qtOpacityItemLabel"};
    FoundCustom<QItemLabel> weightingItemLabel{*this, "qtWeightingItemLabel"};
    Found<QLabel> bitmapLabel{*this, "qtBitmapLabel"};
    Found<QLineEdit> bitmapPathLineEdit{*this, "qtBitmapPathLineEdit"};
    Found<QListWidget> materialListWidget{*this, "qtMaterialListWidget"};
    Found<QPushButton> deleteFilePushButton{*this, "qtDeleteFilePushButton"};
    Found<QPushButton> embedTexturePushButton{*this, "qtEmbedTexturePushButton"};
    Found<QPushButton> launchPushButton{*this, "qtLaunchPushButton"};
    Found<QPushButton> openFilePushButton{*this, "qtOpenFilePushButton"};
    Found<QPushButton> openPathPushButton{*this, "qtOpenPathPushButton"};
    Found<QPushButton> pickMaterialPushButton{*this, "qtPickMaterialPushButton"};
    Found<QPushButton> saveFilePushButton{*this, "qtSaveFilePushButton"};
    Found<QPushButton> showMaterialTableButton{*this, "qtShowMaterialTableButton"};
    Found<QPushButton> uvRefPushButton{*this, "qtUvRefPushButton"};
    Found<QWidget> root{*this, "SoftClothMaterialDlg"};
    Found<QWidget> listBorderWidget{*this, "ListBorderWidget"};
    Found<QWidget> textureEditButtonWidget{*this, "qtTextureEditButtonWidget"};
    Found<QWidget> textureSettingWidget{*this, "qtTextureSettingWidget"};
    Found<QAction> doEscapeAction{*this, "qtDoEscapeAction"};

    // Captions of the two combo spin boxes, enabled like these.
    Found<QLabel> brightnessLabel{*this, "qtBrightnessLabel"};
    Found<QLabel> contrastLabel{*this, "qtContrastLabel"};

    Found<QHBoxLayout> horizontalLayout{*this, "horizontalLayout"};
    Found<QHBoxLayout> horizontalLayout_2{*this, "horizontalLayout_2"};
    Found<QHBoxLayout> horizontalLayout_3{*this, "horizontalLayout_3"};
    Found<QHBoxLayout> horizontalLayout_4{*this, "horizontalLayout_4"};
    Found<QHBoxLayout> horizontalLayout_8{*this, "horizontalLayout_8"};
    Found<QVBoxLayout> verticalLayout{*this, "verticalLayout"};
    Found<QVBoxLayout> verticalLayout_2{*this, "verticalLayout_2"};
    Found<QVBoxLayout> verticalLayout_3{*this, "verticalLayout_3"};
    Found<QVBoxLayout> verticalLayout_4{*this, "verticalLayout_4"};
    Found<QVBoxLayout> verticalLayout_5{*this, "verticalLayout_5"};
    Found<QVBoxLayout> verticalLayout_6{*this, "verticalLayout_6"};
    Found<QVBoxLayout> verticalLayout_7{*this, "verticalLayout_7"};
    Found<QVBoxLayout> verticalLayout_8{*this, "verticalLayout_8"};
    Found<QVBoxLayout> verticalLayout_9{*this, "verticalLayout_9"};
    Found<QVBoxLayout> verticalLayout_10{*this, "verticalLayout_10"};
    Found<QVBoxLayout> verticalLayout_11{*this, "verticalLayout_11"};
    Found<QVBoxLayout> verticalLayout_12{*this, "verticalLayout_12"};
    Found<QVBoxLayout> verticalLayout_13{*this, "verticalLayout_13"};
    Found<QVBoxLayout> verticalLayout_14{*this, "verticalLayout_14"};
};
