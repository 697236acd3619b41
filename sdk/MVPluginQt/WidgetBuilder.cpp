#include "MVPluginQt/WidgetBuilder.h"

#include "MVPluginQt/FormLoader.h"
#include "MVPluginQt/LayoutIni.h"
#include "MVPluginQt/PluginDialog.h"
#include "ui/QtUiLoader.h"
#include "ui/UiComponent.h"

#include <QIcon>
#include <QVBoxLayout>

#include <utility>

namespace MV {

namespace {

QString WithoutLastPreset(const QString& path)
{
    const QString preset = QStringLiteral(".preset");
    const int at = path.lastIndexOf(preset);
    return at < 0 ? path : QString(path).replace(at, preset.size(), QLatin1Char('.'));
}

void FillWith(QWidget* target, QWidget* form)
{
    auto* layout = target->layout();
    if (!layout) {
        layout = new QVBoxLayout(target);
        layout->setContentsMargins(0, 0, 0, 0);
    }
    layout->addWidget(form);
}

} // namespace

CWidgetBuilder::CWidgetBuilder(const QString& formPath, const QString& resourceBase)
    : m_formPath(formPath)
    , m_plainFormPath(WithoutLastPreset(formPath))
    , m_resourceBase(resourceBase)
{
}

void CWidgetBuilder::SetLayoutIniPath(QString path)
{
    m_layoutIniPath = std::move(path);
}

BF::Result CWidgetBuilder::InitUi(QWidget* target, CUiComponent* component, CMoviraInterface* host, bool fill)
{
    if (!target || !component || !host) {
        return BF::Results::InvalidArgument;
    }
    return LoadInto(target, component, fill) ? BF::Results::Success : BF::Results::ResourceFailure;
}

BF::Result CWidgetBuilder::InitUi(CPluginDialog* target, CUiComponent* component, CMoviraInterface* host, bool fill,
                                  bool adoptWindow)
{
    if (!target || !component || !host) {
        return BF::Results::InvalidArgument;
    }
    const QWidget* form = LoadInto(target, component, fill);
    if (!form) {
        return BF::Results::ResourceFailure;
    }
    if (adoptWindow) {
        target->setWindowTitle(form->windowTitle());
        target->setWindowIcon(form->windowIcon());
    }
    return BF::Results::Success;
}

/// Loads the form and sets up \p component with it. \return the form's top widget; null when it cannot be read
QWidget* CWidgetBuilder::LoadInto(QWidget* target, CUiComponent* component, bool fill) const
{
    QWidget* form = Internal::LoadForm(m_formPath, m_resourceBase, target);
    if (!form) {
        return nullptr;
    }
    if (form->isWindow()) {
        // A form made as a dialog is a part of its target all the same.
        form->setWindowFlags(Qt::Widget);
    }
    if (fill) {
        FillWith(target, form);
    }
    Internal::ApplyLayoutIni(m_layoutIniPath, form);
    CQtUiLoader loader(form, target);
    component->SetupUi(loader);
    return form;
}

} // namespace MV
