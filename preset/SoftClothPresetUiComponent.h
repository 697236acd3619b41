#pragma once

#include "ui/FormComponent.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QWidget>

/// The widgets of the form "SoftClothPreset".
class CSoftClothPresetUiComponent : public CFormComponent
{
public:
    QWidget* GetRootWidget() override { return root; }

    Found<QVBoxLayout> verticalLayout{*this, "verticalLayout"};
    Found<QVBoxLayout> verticalLayout_2{*this, "verticalLayout_2"};
    Found<QVBoxLayout> verticalLayout_3{*this, "verticalLayout_3"};
    Found<QVBoxLayout> verticalLayout_4{*this, "verticalLayout_4"};
    Found<QVBoxLayout> verticalLayout_5{*this, "verticalLayout_5"};
    Found<QVBoxLayout> verticalLayout_6{*this, "verticalLayout_6"};
    Found<QVBoxLayout> verticalLayout_7{*this, "verticalLayout_7"};
    Found<QVBoxLayout> verticalLayout_8{*this, "verticalLayout_8"};
    Found<QVBoxLayout> verticalLayout_9{*this, "verticalLayout_9"};
    Found<QVBoxLayout> verticalLayout_16{*this, "verticalLayout_16"};
    Found<QHBoxLayout> horizontalLayout{*this, "horizontalLayout"};
    Found<QHBoxLayout> horizontalLayout_2{*this, "horizontalLayout_2"};
    Found<QHBoxLayout> horizontalLayout_4{*this, "horizontalLayout_4"};
    Found<QHBoxLayout> horizontalLayout_5{*this, "horizontalLayout_5"};
    Found<QHBoxLayout> horizontalLayout_6{*this, "horizontalLayout_6"};
    Found<QFrame> line_13{*this, "line_13"};
    Found<QLabel> label{*this, "label"};
    Found<QCheckBox> activePhysicsCheckBox{*this, "qtActivePhysicsCheckBox"};
    Found<QCheckBox> affectAllMaterialsCheckBox{*this, "qtAffectAllMaterialsCheckBox"};
    Found<QCheckBox> useWorldGravityCheckBox{*this, "qtUseWorldGravityCheckBox"};
    Found<QGroupBox> baseGroupBox{*this, "qtBaseGroupBox"};
    Found<QGroupBox> sectionGroupBox{*this, "qtSectionGroupBox"};
    Found<QGroupBox> softPresetGroupBox{*this, "qtSoftPresetGroupBox"};
    Found<QGroupBox> weightSelectGroupBox{*this, "qtWeightSelectGroupBox"};
    Found<QListWidget> presetClothListWidget{*this, "qtPresetClothListWidget"};
    Found<QListWidget> presetHairListWidget{*this, "qtPresetHairListWidget"};
    Found<QListWidget> presetWindListWidget{*this, "qtPresetWindListWidget"};
    Found<QPushButton> expandButton{*this, "qtExpandPushButton"};
    Found<QPushButton> openFilePushButton{*this, "qtOpenFilePushButton"};
    Found<QPushButton> paintPushButton{*this, "qtPaintPushButton"};
    Found<QPushButton> saveFilePushButton{*this, "qtSaveFilePushButton"};
    Found<QRadioButton> rigidBodyRadioButton{*this, "qtRigidBodyRadioButton"};
    Found<QRadioButton> softClothRadioButton{*this, "qtSoftClothRadioButton"};
    Found<QTabWidget> presetTabWidget{*this, "qtPresetTabWidget"};
    Found<QWidget> root{*this, "SoftClothPreset"};
    Found<QWidget> clothTab{*this, "qtClothTab"};
    Found<QWidget> hairTab{*this, "qtHairTab"};
    Found<QWidget> windTab{*this, "qtWindTab"};

    Found<QLabel> editedMaterialLabel{*this, "qtEditedMaterialLabel"};
};
