#include "sections/SoftClothWindSettingUiComponent.h"

#include "ui/QtUiLoader.h"

#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

void CSoftClothWindSettingUiComponent::SetupUi(CQtUiLoader& loader)
{
    verticalLayout_5 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_5"));
    verticalLayout_6 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_6"));
    horizontalLayout_8 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_8"));
    horizontalLayout_7 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_7"));
    horizontalLayout_6 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_6"));
    horizontalLayout_5 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_5"));
    verticalLayout_10 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_10"));
    verticalLayout_3 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_3"));
    verticalLayout_8 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_8"));
    horizontalLayout_3 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_3"));
    horizontalLayout_2 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_2"));
    horizontalLayout = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout"));
    horizontalLayout_4 = loader.Find<QHBoxLayout>(QStringLiteral("horizontalLayout_4"));
    verticalLayout_9 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_9"));
    verticalLayout_2 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_2"));
    verticalLayout_7 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_7"));
    verticalLayout_4 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_4"));
    verticalLayout = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout"));

    frequencySpinBox = loader.FindCustom<QComboDoubleSpinBox>(QStringLiteral("qtFrequencyCombodoublespinbox"));
    line = loader.Find<QFrame>(QStringLiteral("line"));
    sectionGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtSectionGroupBox"));
    label_10 = loader.Find<QLabel>(QStringLiteral("label_10"));
    label_11 = loader.Find<QLabel>(QStringLiteral("label_11"));
    label_12 = loader.Find<QLabel>(QStringLiteral("label_12"));
    label_13 = loader.Find<QLabel>(QStringLiteral("label_13"));
    label_2 = loader.Find<QLabel>(QStringLiteral("label_2"));
    label_3 = loader.Find<QLabel>(QStringLiteral("label_3"));
    label_4 = loader.Find<QLabel>(QStringLiteral("label_4"));
    label_5 = loader.Find<QLabel>(QStringLiteral("label_5"));
    label_6 = loader.Find<QLabel>(QStringLiteral("label_6"));
    label_7 = loader.Find<QLabel>(QStringLiteral("label_7"));
    label_8 = loader.Find<QLabel>(QStringLiteral("label_8"));
    label_9 = loader.Find<QLabel>(QStringLiteral("label_9"));
    expandButton = loader.Find<QPushButton>(QStringLiteral("qtExpandPushButton"));
    externalXSpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtExternalXEXSpinBox"));
    externalYSpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtExternalYEXSpinBox"));
    externalZSpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtExternalZEXSpinBox"));
    randomXSpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtRandomXEXSpinBox"));
    randomYSpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtRandomYEXSpinBox"));
    randomZSpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtRandomZEXSpinBox"));
    root = loader.Find<QWidget>(QStringLiteral("SoftClothWindSetting"));
    randomFactorWidget = loader.Find<QWidget>(QStringLiteral("qtRandomFactorWidget"));
}

QWidget* CSoftClothWindSettingUiComponent::GetRootWidget()
{
    return root;
}
