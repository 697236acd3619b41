#pragma once

#include "sections/SoftClothWindSettingUiComponent.h"

#include <MVPluginQt/AbstractSection.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Result.h>

#include <QPointer>
#include <QSharedPointer>
#include <QWidget>

#include <array>

class QPixmap;
class QSettings;

namespace MV {

class CIniGroup;
class CMoviraInterface;
class CMultiLevelSlider;
class CPhysicsSoftClothPlugin;
class CSliderKeys;
enum class ESoftClothWindType;
struct SoftClothWindData;

/// The wind section: a constant and a random acceleration, how often the wind changes, and how much it varies.
/// Keeps no values: a refresh reads the host, every committed edit is written straight back.
class CSoftClothWindSection : public QWidget, public CCoreBase, public CAbstractSection
{
    Q_OBJECT

public:
    /// \param plugin  Qt parent and keeper of the selection that the section edits
    explicit CSoftClothWindSection(CPhysicsSoftClothPlugin* plugin);
    ~CSoftClothWindSection() override;

    /// Builds the form and the random-factor slider in it, and connects the widgets.
    /// \return 0; 0x80000003 for a null \p host, and nothing is done; the form's failure, the section stays empty;
    ///         0x80000002 when the slider cannot be made or an image of it is missing
    BF::Result Init(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host);

    /// Shows the host's values of the current selection.
    /// \return 0; 1 when there is no active soft cloth to show; or the host's failure
    BF::Result UpdateUi();

    /// Drops a drag of the random factor's handles, and a run of keys on them, that has not been committed.
    Q_INVOKABLE void DropEdit();

    /// Shows and writes the values of a profile's wind group. A missing key or list element counts as 0. The
    /// host gets the values as they are in the file, the widgets bring them into their ranges.
    void LoadProfile(const CIniGroup& profile);
    /// Writes what the widgets show into the profile's current group.
    void SaveProfile(QSettings& profile) const;

    int GetSectionPage() override { return 4; }
    int GetSectionOrder() override { return 48; }
    int GetSectionApplications() override { return 7; }
    QWidget* GetSectionWidget() override { return this; }

private Q_SLOTS:
    void OnChangeExternalAcceleration();
    void OnChangeRandomAcceleration();
    void OnChangeFrequency(double fValue);
    void OnChangeRandomFactor();

private:
    /// The boxes of an acceleration: X, Y, Z.
    std::array<QSpinBoxEx*, 3> ExternalBoxes() const;
    std::array<QSpinBoxEx*, 3> RandomBoxes() const;

    void ConnectWidgets();
    BF::Result CreateSlider();
    BF::Result LoadDiamonds();
    void FitSlider();
    /// The values of the slider's two handles; 0 for both without a slider.
    std::array<int, 2> RandomFactor() const;
    void ShowRandomFactor(int first, int second);
    void ShowFactorTexts();
    void Write(ESoftClothWindType type, const SoftClothWindData& record);

    CPhysicsSoftClothPlugin* m_plugin;
    CMoviraInterface* m_host = nullptr;
    CSoftClothWindSettingUiComponent m_ui;
    QPointer<CMultiLevelSlider> m_slider; ///< Owned by its container in the form.
    QPointer<CSliderKeys> m_sliderKeys;
    std::array<QSharedPointer<const QPixmap>, 4> m_diamonds; ///< Unselected, selected, hover, disabled.
};

} // namespace MV
