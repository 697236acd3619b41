#pragma once

#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Result.h>

#include <QPluginLoader>
#include <QString>
#include <QVector>

namespace MV {
class CPluginInterface;
class CSectionInterface;
} // namespace MV

namespace Host {

class HostApplication;

/// A plug-in library loaded the way the host loads it. Must be destroyed before the host application.
class PluginHost
{
public:
    explicit PluginHost(HostApplication& host);
    ~PluginHost();
    Q_DISABLE_COPY_MOVE(PluginHost)

    /// Loads the library and starts its plug-in for an application of kind \p app.
    /// \return whether it runs; Error() says why not
    bool Start(const QString& libraryFile, MV::ECompatibleApp app);
    /// Destroys the plug-in; the library itself stays loaded.
    void Stop();

    const QString& Error() const { return m_error; }
    /// What the plug-in's Initialize returned; success before Start().
    BF::Result InitializeResult() const { return m_initializeResult; }

    /// Null until Start() has found the plug-in object, which it may have even when it returns false.
    MV::CPluginInterface* Plugin() const { return m_plugin; }
    /// The plug-in's sections, the missing ones left out.
    QVector<MV::CSectionInterface*> Sections() const;

private:
    HostApplication& m_host;
    QPluginLoader m_loader;
    MV::CPluginInterface* m_plugin = nullptr;
    BF::Result m_initializeResult;
    QString m_error;
};

} // namespace Host
