#include "MVPluginQt/UiToolsReader.h"

#include "MVPluginQt/FormLimits.h"

#include <BFQtCustomWidgetPluginU/CustomWidgetFactory.h>

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QUiLoader>
#include <QWidget>

namespace MV::Internal {

namespace {

/// Takes the application's library paths away for its life time.
///
/// QUiLoader's constructor loads every library that it finds in the "designer" folders below these paths, which
/// would bring foreign code into the host. The widgets of the host are known without that.
class CLibraryPathsHidden
{
public:
    CLibraryPathsHidden()
        : m_paths(QCoreApplication::libraryPaths())
    {
        QCoreApplication::setLibraryPaths({});
    }
    ~CLibraryPathsHidden() { QCoreApplication::setLibraryPaths(m_paths); }
    Q_DISABLE_COPY_MOVE(CLibraryPathsHidden)

private:
    QStringList m_paths;
};

class CFormLoader : public QUiLoader
{
public:
    static CFormLoader& Instance()
    {
        // Made at the first form and kept: setting up a loader costs more than loading a form with it.
        static QPointer<CFormLoader> loader;
        if (!loader) {
            loader = Create();
        }
        return *loader;
    }

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override
    {
        if (QWidget* widget = CreateCustomWidget(className, parent)) {
            widget->setObjectName(name);
            return widget;
        }
        return QUiLoader::createWidget(className, parent, name);
    }

private:
    explicit CFormLoader(QObject* parent)
        : QUiLoader(parent)
    {
        clearPluginPaths();
    }

    static CFormLoader* Create()
    {
        const CLibraryPathsHidden hidden;
        return new CFormLoader(QCoreApplication::instance());
    }
};

} // namespace

QWidget* ReadFormWithUiTools(QIODevice& device, const QDir& workingFolder, QWidget* parent, QString& error)
{
    QBuffer form;
    if (!TakeForm(device, form, error)) {
        return nullptr;
    }
    CFormLoader& loader = CFormLoader::Instance();
    loader.setWorkingDirectory(workingFolder);
    QWidget* root = loader.load(&form, parent);
    if (!root) {
        error = loader.errorString();
    }
    return root;
}

} // namespace MV::Internal
