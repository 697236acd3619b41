#include "preset/SoftClothPresetSection.h"

#include "panel/HostCodes.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/FileService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "preset/PresetGallery.h"
#include "preset/ProfileFile.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "ui/IniFile.h"
#include "ui/WidgetAccess.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QListWidget>
#include <QPointer>
#include <QSettings>

// The Preset section's profiles: presets of the gallery, custom profiles, and the host's own files.
namespace MV {

namespace {

const QString gravityKey = QStringLiteral("Use_Global_Gravity");

/// The group of a section that may be missing, like the whole plug-in after the host calls of another group: it is
/// skipped then.
template <class Section>
ProfileGroup GroupOf(const QString& name, const QPointer<CPhysicsSoftClothPlugin>& plugin,
                     Section* (CPhysicsSoftClothPlugin::*section)() const)
{
    const auto find = [plugin, section]() -> Section* { return plugin ? (plugin.data()->*section)() : nullptr; };
    const auto load = [find](const CIniGroup& profile) {
        if (Section* existing = find()) {
            existing->LoadProfile(profile);
        }
        return BF::Result(BF::Results::Success);
    };
    const auto save = [find](QSettings& profile) {
        if (const Section* existing = find()) {
            existing->SaveProfile(profile);
        }
    };
    return {name, load, save};
}

/// Lets the user choose an INI file. \return its path; empty when the user cancelled or \p parent is gone
QString ChooseIniFile(QWidget* parent, QFileDialog::AcceptMode mode, const QString& title, const QString& folder,
                      const QString& filter)
{
    // Not on the stack: the parent, and the dialog with it, can die while the dialog is open.
    const QPointer<QFileDialog> dialog = new QFileDialog(parent, title, folder, filter);
    dialog->setAcceptMode(mode);
    if (mode == QFileDialog::AcceptSave) {
        dialog->setDefaultSuffix(QStringLiteral("ini"));
    } else {
        dialog->setFileMode(QFileDialog::ExistingFile);
    }
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QString path = accepted && dialog ? dialog->selectedFiles().value(0) : QString();
    delete dialog.data();
    return path;
}

} // namespace

/// The order of the groups is that of loading and of saving.
std::vector<ProfileGroup> CSoftClothPresetSection::ProfileGroups()
{
    const auto load = [this](const CIniGroup& profile) {
        const QPointer<CSoftClothPresetSection> self(this);
        const bool gravity = profile.Value(gravityKey).toBool();
        // Not silent: a box that changes writes the gravity too.
        SetChecked(m_ui.useWorldGravityCheckBox, gravity);
        return self ? WriteGravity(gravity) : BF::Result(BF::Results::NothingDone);
    };
    const auto save = [this](QSettings& profile) {
        profile.setValue(gravityKey, IsChecked(m_ui.useWorldGravityCheckBox));
    };
    using Plugin = CPhysicsSoftClothPlugin;
    const QPointer<Plugin> plugin(m_plugin);
    return {{QStringLiteral("Preset"), load, save},
            GroupOf(QStringLiteral("Property"), plugin, &Plugin::PropertySection),
            GroupOf(QStringLiteral("Collision"), plugin, &Plugin::CollisionSection),
            GroupOf(QStringLiteral("Wind_Setting"), plugin, &Plugin::WindSection)};
}

BF::Result CSoftClothPresetSection::LoadProfileFile(const QString& path)
{
    if (!m_host) {
        return BF::Results::InvalidArgument;
    }
    BF::Result result;
    switch (LoadProfile(path, ProfileGroups(), result)) {
    case EProfileProblem::None:
        return result.IsFailure() ? result : BF::Results::Success;
    case EProfileProblem::Unreadable:
        ShowMessage(tr("File is Unreadable."));
        break;
    default:
        ShowMessage(tr("InValid File Path."));
    }
    return BF::Results::NothingDone;
}

void CSoftClothPresetSection::OnChangeCurrentItemOfPresetContentListWidget(QListWidget* pListWidget)
{
    LoadProfileFile(pListWidget ? ProfileOf(pListWidget->currentItem()) : QString());
}

QString CSoftClothPresetSection::DefaultFolder() const
{
    QString folder;
    Scene().GetDefaultFolder(folder, profileFolder);
    return folder;
}

void CSoftClothPresetSection::OnClickOpenFilePushButton()
{
    if (!m_host) {
        return;
    }
    const QPointer<CSoftClothPresetSection> self(this);
    const QString path =
        ChooseIniFile(this, QFileDialog::AcceptOpen, tr("Load Soft Cloth Custom Profile", "Open File title"),
                      DefaultFolder(), tr("INI Files (*.ini)"));
    if (self && !path.isEmpty()) {
        LoadProfileFile(path);
    }
}

void CSoftClothPresetSection::OnClickSaveFilePushButton()
{
    if (!m_host) {
        return;
    }
    const QPointer<CSoftClothPresetSection> self(this);
    const QString path =
        ChooseIniFile(this, QFileDialog::AcceptSave, tr("Save Soft Cloth Custom Profile", "Open File title"),
                      DefaultFolder(), tr("INI Files (*.ini)"));
    if (self && !path.isEmpty() && SaveProfile(path, ProfileGroups()) != EProfileProblem::None) {
        ShowMessage(tr("File is Unwritable."));
    }
}

void CSoftClothPresetSection::OnClickLoadIniPushButton()
{
    if (!m_host) {
        return;
    }
    const QPointer<CSoftClothPresetSection> self(this);
    const QString path = ChooseIniFile(this, QFileDialog::AcceptOpen, tr("Load Soft Ini Profile", "Open File title"),
                                       DefaultFolder(), tr("INI Files (*.ini)"));
    if (self) {
        m_host->GetFileService()->LoadSoftIniProfile(path.toStdWString());
    }
}

} // namespace MV
