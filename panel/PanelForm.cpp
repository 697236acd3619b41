#include "panel/PanelForm.h"

#include <MVPluginQt/PluginDialog.h>
#include <MVPluginQt/WidgetBuilder.h>

namespace MV {

namespace {

CWidgetBuilder BuilderFor(const QString& formName, const QString& resourceBase)
{
    CWidgetBuilder builder(PanelResource(formName + QLatin1String(".ui")), resourceBase);
    builder.SetLayoutIniPath(PanelResource(QStringLiteral("LayoutUI.ini")));
    return builder;
}

} // namespace

QString PanelResource(const QString& file)
{
    return QLatin1String(":/plugin/MVPhysicsSoftClothSection/") + file;
}

BF::Result BuildPanelForm(const QString& formName, QWidget* target, CUiComponent& component,
                          const QString& resourceBase, CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    return BuilderFor(formName, resourceBase).InitUi(target, &component, host, true);
}

BF::Result BuildPanelForm(const QString& formName, CPluginDialog* target, CUiComponent& component,
                          const QString& resourceBase, CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    return BuilderFor(formName, resourceBase).InitUi(target, &component, host, true, true);
}

} // namespace MV
