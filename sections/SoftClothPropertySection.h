#pragma once

#include "sections/SoftClothPropertyUiComponent.h"

#include <MVPluginQt/AbstractSection.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Result.h>

#include <QWidget>

class QSettings;

namespace MV {

class CIniGroup;
class CMoviraInterface;
class CPhysicsSoftClothPlugin;
enum class ESoftClothPropertyType;
struct SoftClothPropertyData;

/// The property section: what the cloth is made of and how it is simulated.
/// Keeps no values: a refresh reads the host, every committed edit is written straight back.
class CSoftClothPropertySection : public QWidget, public CCoreBase, public CAbstractSection
{
    Q_OBJECT

public:
    /// \param plugin  Qt parent and keeper of the selection that the section edits
    explicit CSoftClothPropertySection(CPhysicsSoftClothPlugin* plugin);
    ~CSoftClothPropertySection() override;

    /// Builds the form and connects its widgets.
    /// \return 0; 0x80000003 for a null \p host, and nothing is done; or the form's failure, the section stays empty
    BF::Result Init(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host);

    /// Shows the host's values of the current selection.
    /// \return 0; 1 when there is no active soft cloth to show; or the host's failure
    BF::Result UpdateUi();
    /// Enables or disables everything below the expand button.
    void EnableUi(bool enable);

    /// Shows and writes the values of a profile's property group. A missing key counts
    /// as 0. The host gets the values as they are in the file, the boxes bring them into their ranges.
    void LoadProfile(const CIniGroup& profile);
    /// Writes what the boxes show into the profile's current group, and what the host holds of the fields that have
    /// no box of their own.
    void SaveProfile(QSettings& profile) const;

    int GetSectionPage() override { return 4; }
    int GetSectionOrder() override { return 16; }
    int GetSectionApplications() override { return 7; }
    QWidget* GetSectionWidget() override { return this; }

private:
    void ConnectWidgets();
    void Write(ESoftClothPropertyType type, const SoftClothPropertyData& record);

    CPhysicsSoftClothPlugin* m_plugin;
    CMoviraInterface* m_host = nullptr;
    CSoftClothPropertyUiComponent m_ui;
};

} // namespace MV
