#include "sections/SoftClothPropertyUiComponent.h"

#include "ui/QtUiLoader.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

void CSoftClothPropertyUiComponent::SetupUi(CQtUiLoader& loader)
{
    verticalLayout_9 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_9"));
    verticalLayout_8 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_8"));
    verticalLayout_7 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_7"));
    verticalLayout_6 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_6"));
    gridLayout = loader.Find<QGridLayout>(QStringLiteral("gridLayout"));
    verticalLayout = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout"));
    verticalLayout_2 = loader.Find<QVBoxLayout>(QStringLiteral("verticalLayout_2"));

    bendingSpinBox = loader.FindCustom<QComboSpinBox>(QStringLiteral("qtBendingCombospinbox"));
    inertiaScaleSpinBox = loader.FindCustom<QComboSpinBox>(QStringLiteral("qtInertiaScaleCombospinbox"));
    stiffnessSpinBox = loader.FindCustom<QComboSpinBox>(QStringLiteral("qtStiffnessCombospinbox"));
    tetherStiffnessSpinBox = loader.FindCustom<QComboSpinBox>(QStringLiteral("qtTetherStiffnessCombospinbox"));
    dampingSpinBox = loader.FindCustom<QDoubleSpinBoxEx>(QStringLiteral("qtDampingDoubleEXSpinBox"));
    dragSpinBox = loader.FindCustom<QDoubleSpinBoxEx>(QStringLiteral("qtDragDoubleEXSpinBox"));
    frictionSpinBox = loader.FindCustom<QDoubleSpinBoxEx>(QStringLiteral("qtFricionDoubleEXSpinBox"));
    tetherLimitSpinBox = loader.FindCustom<QDoubleSpinBoxEx>(QStringLiteral("qtTetherLimitDoubleEXSpinBox"));
    sectionGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtSectionGroupBox"));
    label_10 = loader.Find<QLabel>(QStringLiteral("label_10"));
    label_3 = loader.Find<QLabel>(QStringLiteral("label_3"));
    label_4 = loader.Find<QLabel>(QStringLiteral("label_4"));
    label_5 = loader.Find<QLabel>(QStringLiteral("label_5"));
    label_7 = loader.Find<QLabel>(QStringLiteral("label_7"));
    label_9 = loader.Find<QLabel>(QStringLiteral("label_9"));
    expandButton = loader.Find<QPushButton>(QStringLiteral("qtExpandPushButton"));
    massSpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtMassEXSpinBox"));
    solverFrequencySpinBox = loader.FindCustom<QSpinBoxEx>(QStringLiteral("qtSolverFrequencyEXSpinBox"));
    root = loader.Find<QWidget>(QStringLiteral("SoftClothProperty"));
}

QWidget* CSoftClothPropertyUiComponent::GetRootWidget()
{
    return root;
}
