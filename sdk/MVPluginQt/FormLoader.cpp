#include "MVPluginQt/FormLoader.h"

#ifdef MVPLUGINQT_WITH_UI_TOOLS
#include "MVPluginQt/UiToolsReader.h"
#else
#include "MVPluginQt/FormReader.h"
#endif

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

namespace MV::Internal {

namespace {

Q_LOGGING_CATEGORY(lcForms, "movira.sdk.forms")

#ifdef MVPLUGINQT_WITH_UI_TOOLS
constexpr auto read = &ReadFormWithUiTools;
#else
constexpr auto read = &ReadForm;
#endif

} // namespace

QWidget* LoadForm(const QString& path, const QString& workingFolder, QWidget* parent)
{
    QFile file(path);
    QString error;
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcForms, "Form %s: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
        return nullptr;
    }
    const QDir folder(workingFolder.isEmpty() ? QFileInfo(path).path() : workingFolder);
    QWidget* form = read(file, folder, parent, error);
    if (!form) {
        qCWarning(lcForms, "Form %s: %s", qUtf8Printable(path), qUtf8Printable(error));
    }
    return form;
}

} // namespace MV::Internal
