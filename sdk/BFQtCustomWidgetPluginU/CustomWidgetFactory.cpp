#include "BFQtCustomWidgetPluginU/CustomWidgetFactory.h"

#include "BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h"
#include "BFQtCustomWidgetPluginU/QComboSpinBox.h"
#include "BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h"
#include "BFQtCustomWidgetPluginU/QItemLabel.h"
#include "BFQtCustomWidgetPluginU/QSpinBoxEx.h"

namespace {

template <class Widget>
QWidget* Create(QWidget* parent)
{
    return new Widget(parent);
}

template <class Widget>
CustomWidgetInfo Info(const char* baseClassName, const QString& toolTip, QSize size)
{
    return {QLatin1String(Widget::staticMetaObject.className()), QLatin1String(baseClassName), toolTip, size,
            &Create<Widget>};
}

} // namespace

const QVector<CustomWidgetInfo>& CustomWidgets()
{
    static const QVector<CustomWidgetInfo> widgets{
        Info<QSpinBoxEx>("QSpinBox", QStringLiteral("Whole number that tells when an edit is committed"), {90, 24}),
        Info<QDoubleSpinBoxEx>("QDoubleSpinBox", QStringLiteral("Decimal number that tells when an edit is committed"),
                               {90, 24}),
        Info<QComboSpinBox>("QWidget", QStringLiteral("Slider and spin box for a whole number"), {180, 24}),
        Info<QComboDoubleSpinBox>("QWidget", QStringLiteral("Slider and spin box for a decimal number"), {180, 24}),
        Info<QItemLabel>("QLabel", QStringLiteral("Selectable picture that takes image files"), {96, 96}),
    };
    return widgets;
}

QWidget* CreateCustomWidget(const QString& className, QWidget* parent)
{
    for (const CustomWidgetInfo& info : CustomWidgets()) {
        if (info.className == className) {
            return info.create(parent);
        }
    }
    return nullptr;
}
