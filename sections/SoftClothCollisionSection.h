#pragma once

#include "sections/SoftClothCollisionUiComponent.h"

#include <MVPluginQt/AbstractSection.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Result.h>

#include <QWidget>

class QSettings;

namespace MV {

class CIniGroup;
class CMoviraInterface;
class CPhysicsSoftClothPlugin;
enum class ESoftClothCollisionType;
struct SoftClothCollisionData;

/// The collision section: whether the cloth collides with rigid bodies and with itself, and at what margins.
/// Keeps no values: a refresh reads the host, every committed edit is written straight back.
class CSoftClothCollisionSection : public QWidget, public CCoreBase, public CAbstractSection
{
    Q_OBJECT

public:
    /// \param plugin  Qt parent and keeper of the selection that the section edits
    explicit CSoftClothCollisionSection(CPhysicsSoftClothPlugin* plugin);
    ~CSoftClothCollisionSection() override;

    /// Builds the form and connects its widgets.
    /// \return 0; 0x80000003 for a null \p host, and nothing is done; or the form's failure, the section stays empty
    BF::Result Init(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host);

    /// Shows the host's values of the current selection.
    /// \return 0; 1 when there is no active soft cloth to show; or the host's failure
    BF::Result UpdateUi();

    /// Shows and writes the values of a profile's collision group. A missing key counts as
    /// false or 0.
    void LoadProfile(const CIniGroup& profile);
    /// Writes what the widgets show into the profile's current group.
    void SaveProfile(QSettings& profile) const;

    int GetSectionPage() override { return 4; }
    int GetSectionOrder() override { return 32; }
    int GetSectionApplications() override { return 7; }
    QWidget* GetSectionWidget() override { return this; }

private Q_SLOTS:
    void OnClickCollideWithRigidCheckBox();
    void OnClickSelfCollisionCheckBox();
    void OnClickCollideWithRigidMarginDoubleSpinBox(double fValue);
    void OnClickSelfCollisionMarginDoubleSpinBox(double fValue);

private:
    void ConnectWidgets();
    void EnableRigidMargin(bool enable);
    void EnableSelfMargin(bool enable);
    /// Writes one field of a record that holds the defaults otherwise.
    template <class Value>
    void WriteField(ESoftClothCollisionType type, Value SoftClothCollisionData::*field, Value value);
    void Write(ESoftClothCollisionType type, const SoftClothCollisionData& record);

    CPhysicsSoftClothPlugin* m_plugin;
    CMoviraInterface* m_host = nullptr;
    CSoftClothCollisionUiComponent m_ui;
};

} // namespace MV
