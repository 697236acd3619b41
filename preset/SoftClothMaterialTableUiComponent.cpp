#include "preset/SoftClothMaterialTableUiComponent.h"

#include "ui/QtUiLoader.h"

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

void CSoftClothMaterialTableUiComponent::SetupUi(CQtUiLoader& loader)
{
    materialTableGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtMaterialTableGroupBox"));
    materialTableLabel = loader.Find<QLabel>(QStringLiteral("qtMaterialTableLabel"));
    cancelPushButton = loader.Find<QPushButton>(QStringLiteral("qtCancelPushButton"));
    confirmPushButton = loader.Find<QPushButton>(QStringLiteral("qtConfirmPushButton"));
    materialTableWidget = loader.Find<QTableWidget>(QStringLiteral("qtMaterialTableWidget"));
    root = loader.Find<QWidget>(QStringLiteral("SoftClothMaterialTable"));
    materialTableBorderWidget = loader.Find<QWidget>(QStringLiteral("qtMaterialTableBorderWidget"));
    materialTableButtonWidget = loader.Find<QWidget>(QStringLiteral("qtMaterialTableButtonWidget"));
    doEscapeAction = loader.Find<QAction>(QStringLiteral("qtDoEscapeAction"));
    materialTableButtonLayout = loader.Find<QHBoxLayout>(QStringLiteral("qtMaterialTableButtonLayout"));
    materialTableLayout = loader.Find<QVBoxLayout>(QStringLiteral("qtMaterialTableLayout"));
    materialTableHBoxLayout = loader.Find<QHBoxLayout>(QStringLiteral("qtMaterialTableHBoxLayout"));
    groupBoxLayout = loader.Find<QVBoxLayout>(QStringLiteral("qtGroupBoxLayout"));
    widgetLayout = loader.Find<QVBoxLayout>(QStringLiteral("qtWidgetLayout"));
}

QWidget* CSoftClothMaterialTableUiComponent::GetRootWidget()
{
    return root;
}
