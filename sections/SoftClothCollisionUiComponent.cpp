#include "sections/SoftClothCollisionUiComponent.h"

#include "ui/QtUiLoader.h"

#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

void CSoftClothCollisionUiComponent::SetupUi(CQtUiLoader& loader)
{
    collideWithRigidCheckBox = loader.Find<QCheckBox>(QStringLiteral("qtCollideWithRigidCheckBox"));
    selfCollisionCheckBox = loader.Find<QCheckBox>(QStringLiteral("qtSelfCollisionCheckBox"));
    rigidMarginSpinBox = loader.FindCustom<QDoubleSpinBoxEx>(QStringLiteral("qtCollideWithRigidMarginDoubleEXSpinBox"));
    selfMarginSpinBox = loader.FindCustom<QDoubleSpinBoxEx>(QStringLiteral("qtSelfCollisionMarginDoubleEXSpinBox"));
    sectionGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtSectionGroupBox"));
    selfMarginLabel = loader.Find<QLabel>(QStringLiteral("qtSelfCollisionMarginLabel"));
    rigidMarginLabel = loader.Find<QLabel>(QStringLiteral("qtSoftRigidCollisionMarginLabel"));
    expandButton = loader.Find<QPushButton>(QStringLiteral("qtExpandPushButton"));
    root = loader.Find<QWidget>(QStringLiteral("SoftClothCollision"));
    horizontalLayout_2 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_2"));
    verticalLayout_4 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_4"));
    horizontalLayout = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout"));
    verticalLayout_3 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_3"));
    verticalLayout = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout"));
    verticalLayout_2 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_2"));
}

QWidget* CSoftClothCollisionUiComponent::GetRootWidget()
{
    return root;
}
