#pragma once

#include "panel/SoftClothSelection.h"
#include "ui/QtUiLoader.h"

#include <MVPluginQt/AbstractPlugin.h>
#include <MVPluginQt/ArrayList.h>

#include <QPointer>
#include <QSharedPointer>
#include <QWidget>

namespace MV {

class CEventSender;
class CSceneService;
class CSoftClothCollisionSection;
class CSoftClothMaterialDlg;
class CSoftClothMaterialTable;
class CSoftClothPresetSection;
class CSoftClothPropertySection;
class CSoftClothWindSection;

/// The object that the host creates from the library.
///
/// It owns the four sections and the two dialogs of the soft cloth panel, hands the host the list of its sections and
/// follows the host's events: each one ends in a decision whether the panel is shown at all and in a refresh of every
/// part. A part that does not exist, or was destroyed with its Qt parent, is skipped everywhere.
///
/// Everything runs on the host's GUI thread; host events arrive inside host calls too.
class CPhysicsSoftClothPlugin : public QWidget, public CQtUiLoader, public CAbstractPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Brightfold.Movira.CPluginInterface/7.0")
    Q_INTERFACES(MV::CAbstractPlugin)

public:
    explicit CPhysicsSoftClothPlugin(QWidget* parent = nullptr);
    ~CPhysicsSoftClothPlugin() override;

    /// What the panel edits. The Preset section and the material dialog write their fields of it.
    SoftClothSelection& Selection() { return m_selection; }
    const SoftClothSelection& Selection() const { return m_selection; }

    // Parts that the Preset section works with; null for one that does not exist or was destroyed.
    CSoftClothMaterialDlg* MaterialDlg() const { return m_materialDlg.data(); }
    CSoftClothPropertySection* PropertySection() const { return m_propertySection.data(); }
    CSoftClothCollisionSection* CollisionSection() const { return m_collisionSection.data(); }
    CSoftClothWindSection* WindSection() const { return m_windSection.data(); }

    // The plug-in interface.

    /// Registers the resource file, creates and initialises the parts and connects to the host's events.
    /// Called again, it starts over: earlier parts are destroyed and earlier connections end first.
    /// \return 0; 0x80000003 for a null \p host; 0x80000002 for a part that could not be made; else the first failure
    BF::Result Initialize(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host) override;
    /// Appends the Preset, Property, Collision and Wind sections, always four entries; null for a missing section.
    BF::Result GetSectionList(QList<CSectionInterface*>& sections) override;
    BF::Result GetMenusList(QList<QMenu*>& menus) override;
    BF::Result GetToolBarsList(QList<QToolBar*>& toolBars) override;
    /// The plug-in has neither context actions, nor docks, nor dialogs to offer. \return 1
    BF::Result GetContextList(QList<QAction*>& actions) override;
    BF::Result GetDockWidgetList(QList<QDockWidget*>& docks) override;
    BF::Result GetDialogList(QList<QDialog*>& dialogs) override;
    bool IsValid(CMoviraInterface* host) override;
    ECompatibleApp GetCompatibleApps() override;

    // Refreshing the panel.

    /// Decides from the host's state whether the panel is shown, adopts the selected object and refreshes all parts.
    /// \return 0 when shown and refreshed, 1 when hidden, or the host's failure
    BF::Result UpdateUi();
    /// Reads whether soft cloth is active, enables the sections accordingly and refreshes all parts in order.
    /// \param sameObject  the panel already showed this object before
    /// \return 0, or the first failure, at which the refresh ends
    BF::Result UpdateAllUIs(bool sameObject);
    /// Shows the four sections; or clears the selection, leaves the weight-map mode and hides them.
    void ShowAll(bool show);
    /// Enables or disables the four sections.
    void EnableAll(bool enable);
    /// Drops what the user has begun in the sections and the material dialog and not committed. To be called before the
    /// selection's object, mesh or material changes: it was meant for those.
    void DropEdits();

private Q_SLOTS:
    void ObjectDataChanged(const BF::CArrayList<BF::CHandle*>& objects, MV::EObjectChangedDataType changed);
    void OnAboutToConvertPhysicsObjectType();
    void OnHierarchyChanged();
    void OnPickModeChanged(MV::EPickMode mode);
    void OnPlayStopChanged();
    void OnUndoRedoDone();
    void PickedMaterialIndexChanged(BF::CHandle* object, size_t materialIndex);

private:
    /// The host's scene service, asked for at each use.
    CSceneService& Scene() const;

    BF::Result CreateParts(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host);
    template <class Part, class... Arguments>
    BF::Result CreatePart(QSharedPointer<Part>& part, Arguments... arguments);
    /// Disconnects from the host, then destroys the parts in reverse order of declaration.
    void ReleaseParts();
    void ConnectHostEvents(CEventSender* sender);

    BF::Result CheckGates(BF::CHandle*& candidate);
    BF::Result CheckApplicationGate(BF::CHandle* candidate);
    BF::Result CheckObjectGates(BF::CHandle* candidate);
    BF::Result AdoptObject(BF::CHandle* candidate);
    BF::Result ReloadMaterials(bool reset);
    bool IsShownObjectSelected() const;
    void DropSectionEdits();
    void ClearSelectionAndUpdate();

    SoftClothSelection m_selection;
    QSharedPointer<CSoftClothPresetSection> m_presetSection;
    QSharedPointer<CSoftClothMaterialDlg> m_materialDlg;
    QSharedPointer<CSoftClothPropertySection> m_propertySection;
    QSharedPointer<CSoftClothCollisionSection> m_collisionSection;
    QSharedPointer<CSoftClothWindSection> m_windSection;
    QSharedPointer<CSoftClothMaterialTable> m_materialTable;
    QPointer<CEventSender> m_eventSender; ///< Whom to disconnect from without asking the host.
};

} // namespace MV
