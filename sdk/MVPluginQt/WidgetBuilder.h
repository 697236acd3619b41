#pragma once

#include "MVPluginQt/Export.h"
#include "MVPluginQt/Result.h"

#include <QString>

class CUiComponent;
class QWidget;

namespace MV {

class CMoviraInterface;
class CPluginDialog;

/// Builds a form into a section or a dialog.
class MVPLUGINQT_EXPORT CWidgetBuilder
{
public:
    /// \param formPath      the form file, usually in a resource: ":/plugin/<library>/<form>.ui"
    /// \param resourceBase  folder that relative file names inside the form start from; empty for none
    CWidgetBuilder(const QString& formPath, const QString& resourceBase);

    const QString& FormPath() const { return m_formPath; }
    /// The form path in which the last ".preset" is replaced by "."; the same path when it has none.
    const QString& PlainFormPath() const { return m_plainFormPath; }

    /// The layout file whose group of the form's name is applied to the form; empty for none.
    void SetLayoutIniPath(QString path);

    /// Loads the form into \p target, applies the layout file and lets \p component look up its widgets.
    /// \param fill  true: the form fills the target through a layout without margins; false: it only becomes a child
    /// \return 0; 0x80000003 when an argument is null; 0x80000002 when the form is missing or cannot be read
    BF::Result InitUi(QWidget* target, CUiComponent* component, CMoviraInterface* host, bool fill);

    /// The same for a dialog.
    /// \param adoptWindow  true: the dialog takes over the form's window title and window icon
    BF::Result InitUi(CPluginDialog* target, CUiComponent* component, CMoviraInterface* host, bool fill,
                      bool adoptWindow);

private:
    QWidget* LoadInto(QWidget* target, CUiComponent* component, bool fill) const;

    QString m_formPath;
    QString m_plainFormPath;
    QString m_resourceBase;
    QString m_layoutIniPath;
};

} // namespace MV
