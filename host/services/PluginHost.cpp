#include "host/services/PluginHost.h"

#include "host/services/HostApplication.h"

#include <MVPluginQt/PluginInterface.h>
#include <MVPluginQt/SectionInterface.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>

namespace Host {

PluginHost::PluginHost(HostApplication& host)
    : m_host(host)
{
}

PluginHost::~PluginHost()
{
    Stop();
}

bool PluginHost::Start(const QString& libraryFile, MV::ECompatibleApp app)
{
    Stop();
    const QString iid = QString::fromLatin1(qobject_interface_iid<MV::CPluginInterface*>());
    m_loader.setFileName(QFileInfo(libraryFile).absoluteFilePath());
    const QString foundIid = m_loader.metaData().value(QLatin1String("IID")).toString();
    if (foundIid.isEmpty()) {
        m_loader.load(); // nothing is loaded; the loader only says why
        m_error = QCoreApplication::translate("PluginHost", "%1 is not a plug-in for this host: %2")
                      .arg(libraryFile, m_loader.errorString());
        return false;
    }
    if (foundIid != iid) {
        m_error = QCoreApplication::translate("PluginHost", "%1 is not a plug-in for this host.").arg(libraryFile);
        return false;
    }
    m_plugin = qobject_cast<MV::CPluginInterface*>(m_loader.instance());
    if (!m_plugin) {
        m_error = m_loader.errorString();
        return false;
    }
    m_plugin->SetCurrentApp(app);
    if (!m_plugin->IsValid(&m_host)) {
        m_error = QCoreApplication::translate("PluginHost", "%1 does not work in this host.").arg(libraryFile);
        return false;
    }
    m_initializeResult = m_plugin->Initialize(QFileInfo(libraryFile).absolutePath(), QString(), &m_host);
    if (m_initializeResult.IsFailure()) {
        m_error = QCoreApplication::translate("PluginHost", "%1 did not start (0x%2).")
                      .arg(libraryFile)
                      .arg(quint32(m_initializeResult.Code()), 8, 16, QLatin1Char('0'));
        const QFileInfo library(libraryFile);
        const QFileInfo resources(library.absoluteDir(), library.completeBaseName() + QLatin1String(".rcc"));
        if (!resources.exists()) {
            m_error += QLatin1Char(' ') + QCoreApplication::translate("PluginHost", "There is no resource file \"%1\".")
                                              .arg(QDir::toNativeSeparators(resources.absoluteFilePath()));
        }
        return false;
    }
    return true;
}

void PluginHost::Stop()
{
    if (m_plugin) {
        m_plugin = nullptr;
        delete m_loader.instance();
    }
    m_initializeResult = BF::Results::Success;
    m_error.clear();
}

QVector<MV::CSectionInterface*> PluginHost::Sections() const
{
    QList<MV::CSectionInterface*> sections;
    if (m_plugin) {
        m_plugin->GetSectionList(sections);
    }
    sections.removeAll(nullptr);
    return sections.toVector();
}

} // namespace Host
