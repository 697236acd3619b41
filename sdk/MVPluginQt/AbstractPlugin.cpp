#include "MVPluginQt/AbstractPlugin.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QResource>
#include <QToolBar>

namespace MV {

namespace {

/// Path of \p rccName beside the library or in \p resourceBase; empty when it is in neither.
QString FindResourceFile(const QString& pluginPath, const QString& rccName, const QString& resourceBase)
{
    const QFileInfo plugin(pluginPath);
    const QString libraryFolder = plugin.isDir() ? plugin.filePath() : plugin.path();
    for (const QString& folder : {libraryFolder, resourceBase}) {
        if (folder.isEmpty()) {
            continue;
        }
        const QFileInfo file(QDir(folder), rccName);
        if (file.isFile()) {
            return file.absoluteFilePath();
        }
    }
    return {};
}

} // namespace

CAbstractPlugin::CAbstractPlugin() = default;

CAbstractPlugin::~CAbstractPlugin()
{
    UnregisterResource();
}

BF::Result CAbstractPlugin::InitResource(const QString& pluginPath, const QString& rccName, const QString& resourceBase,
                                         CMoviraInterface* host)
{
    if (!host || rccName.isEmpty()) {
        return BF::Results::InvalidArgument;
    }
    const QString file = FindResourceFile(pluginPath, rccName, resourceBase);
    if (file.isEmpty() || !QResource::registerResource(file)) {
        return BF::Results::ResourceFailure;
    }
    UnregisterResource();
    m_registeredFile = file;
    m_host = host;
    return BF::Results::Success;
}

void CAbstractPlugin::UnregisterResource()
{
    if (!m_registeredFile.isEmpty()) {
        QResource::unregisterResource(m_registeredFile);
        m_registeredFile.clear();
    }
}

ECompatibleApp CAbstractPlugin::GetCurrentApp()
{
    return GetCurrentAp();
}

void CAbstractPlugin::SetCurrentApp(ECompatibleApp app)
{
    SetProcessApp(app);
}

BF::Result CAbstractPlugin::RestoreLayout()
{
    return BF::Results::Success;
}

void CAbstractPlugin::AddMenu(QMenu* menu)
{
    m_menus.append(menu);
}

void CAbstractPlugin::AddToolBar(QToolBar* toolBar)
{
    m_toolBars.append(toolBar);
}

} // namespace MV
