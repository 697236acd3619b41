#pragma once

#include "preset/SoftClothPresetUiComponent.h"

#include <MVPluginQt/AbstractSection.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Handle.h>
#include <MVPluginQt/Result.h>

#include <QWidget>

class QListWidget;

namespace MV {

class CEditService;
class CMoviraInterface;
class CPanelProfiles;
class CPhysicsSoftClothPlugin;
class CSceneService;
class CUiService;
struct ProfileGroup;
struct SoftClothSelection;

/// The preset section: the panel's master switch, the choice between rigid body and soft cloth, the options that hold
/// for the whole panel, the way to the weight maps, the gallery of presets, and custom profiles.
///
/// Keeps no values: a refresh reads the host and the plug-in's selection, every edit is written straight back. Host
/// calls can send events and message boxes run an event loop of their own, so the selection is read at each use.
class CSoftClothPresetSection : public QWidget, public CCoreBase, public CAbstractSection
{
    Q_OBJECT

public:
    /// \param plugin  Qt parent, keeper of the selection and of the parts that this section works with
    explicit CSoftClothPresetSection(CPhysicsSoftClothPlugin* plugin);
    ~CSoftClothPresetSection() override;

    /// Builds the form, connects its widgets and the host's event, and fills the gallery from the host's presets.
    /// \return 0; 0x80000003 for a null \p host, and nothing is done; or the form's failure, the section stays empty
    BF::Result Init(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host);

    /// Shows the state of the current selection.
    /// \param sameObject  false turns the gallery back to its first page
    /// \return 0; 1 when there is no active soft cloth to show; or the host's failure, at which the refresh ends
    BF::Result UpdateUi(bool sameObject);

    /// Enables or disables everything but the switch of the physics itself. The choice between rigid body and soft
    /// cloth is left alone outside application family A.
    void EnableUi(bool enable);

    /// Tells the user that the object has several materials, with soft cloth switched off, and lets the user choose
    /// one and give it a weight map.
    /// \return 0; 2 when the user refused; or 0x80000003 before Init()
    BF::Result ConfirmMultipleMaterials();

    /// Applies the profile at \p path: the groups that it has, in a fixed order.
    /// \return 0; 1 when there is no such file or it cannot be read, after a message; or the failure of a host
    ///         call, at which the loading ends
    BF::Result LoadProfileFile(const QString& path);

    /// Tells the user something in a message box of the section. Without a host nothing is shown.
    void ShowMessage(const QString& text);

    int GetSectionPage() override { return 4; }
    int GetSectionOrder() override { return 0; }
    int GetSectionApplications() override { return 7; }
    QWidget* GetSectionWidget() override { return this; }

private Q_SLOTS:
    // The order of the slots is part of the section's interface.
    void OnClickActivePhysicsCheckBox();
    void OnClickUseWorldGravityCheckBox();
    void OnClickAffectAllMaterialsCheckBox();
    void OnClickLoadIniPushButton();
    void OnClickOpenFilePushButton();
    void OnClickSaveFilePushButton();
    void OnClickPaintPushButton();
    void OnChangeCurrentItemOfPresetContentListWidget(QListWidget* pListWidget);
    void PhysicsSoftClothMultiMaterialsDetected(BFHANDLE hObject);

private:
    CSceneService& Scene() const;
    CEditService& Edit() const;
    CUiService& Ui() const;
    SoftClothSelection& Selection() const;
    bool IsFamilyA() const;

    void RegisterHotKeys();
    void ConnectWidgets();
    void ShowEditedMaterial();
    void FillGallery();

    void ConvertToRigidBody();
    bool IsWeightMapMode() const;
    BF::Result EnableRadioButtons();
    BF::Result ShowGravity(const SoftClothSelection& shown);
    void ShowAffectAllMaterials();
    BF::Result WriteGravity(bool useGlobalGravity);

    ProfileGroup GravityGroup();
    CPanelProfiles Profiles();

    CPhysicsSoftClothPlugin* m_plugin;
    CMoviraInterface* m_host = nullptr;
    quint64 m_hotKeys = 0; ///< The host's registration of the section's hot keys.
    CSoftClothPresetUiComponent m_ui;
};

} // namespace MV
