#pragma once

#include "MVPluginQt/CoreBase.h"
#include "MVPluginQt/Export.h"
#include "MVPluginQt/PluginInterface.h"

#include <QList>
#include <QPointer>

class QMenu;
class QToolBar;

namespace MV {

/// Base of every plug-in object: keeps the host, the external resource file, the menus and the tool bars.
class MVPLUGINQT_EXPORT CAbstractPlugin : public CPluginInterface, public CCoreBase
{
public:
    CAbstractPlugin();
    Q_DISABLE_COPY_MOVE(CAbstractPlugin)

    /// The application as CCoreBase::GetCurrentAp() reports it.
    ECompatibleApp GetCurrentApp() override;
    void SetCurrentApp(ECompatibleApp app) override;
    /// Nothing to restore in a plug-in without tool bars. \return 0
    BF::Result RestoreLayout() override;

protected:
    ~CAbstractPlugin();

    /// Registers the plug-in's external resource file and keeps \p host.
    ///
    /// The file \p rccName is looked for beside the library (\p pluginPath, a file or a folder), then in
    /// \p resourceBase. It is unregistered when the plug-in is destroyed.
    /// \return 0; 0x80000003 without a host or a file name; 0x80000002 when the file is missing or damaged
    BF::Result InitResource(const QString& pluginPath, const QString& rccName, const QString& resourceBase,
                            CMoviraInterface* host);

    /// The host given to InitResource(); null before.
    CMoviraInterface* Host() const { return m_host; }

    void AddMenu(QMenu* menu);
    void AddToolBar(QToolBar* toolBar);
    const QList<QPointer<QMenu>>& Menus() const { return m_menus; }
    const QList<QPointer<QToolBar>>& ToolBars() const { return m_toolBars; }

private:
    void UnregisterResource();

    CMoviraInterface* m_host = nullptr;
    QList<QPointer<QMenu>> m_menus;
    QList<QPointer<QToolBar>> m_toolBars;
    QString m_registeredFile;
};

} // namespace MV

Q_DECLARE_INTERFACE(MV::CAbstractPlugin, "Brightfold.Movira.CPluginInterface/7.0")
