#include "preset/PanelProfiles.h"

#include "panel/HostCodes.h"
#include "plugin/PhysicsSoftClothPlugin.h"
#include "plugin/services/FileService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "preset/SoftClothPresetSection.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"

#include <QFileDialog>

#include <utility>

namespace MV {

namespace {

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
QString ChooseIniFile(QWidget* parent, QFileDialog::AcceptMode mode, const QString& title, const QString& folder)
{
    // Not on the stack: the parent, and the dialog with it, can die while the dialog is open.
    const QPointer<QFileDialog> dialog =
        new QFileDialog(parent, title, folder, CSoftClothPresetSection::tr("INI Files (*.ini)"));
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

CPanelProfiles::CPanelProfiles(CSoftClothPresetSection* section, CPhysicsSoftClothPlugin* plugin,
                               CMoviraInterface* host, ProfileGroup own)
    : m_section(section)
    , m_plugin(plugin)
    , m_host(host)
    , m_own(std::move(own))
{
}

/// The order of the groups is that of loading and of saving.
std::vector<ProfileGroup> CPanelProfiles::Groups() const
{
    using Plugin = CPhysicsSoftClothPlugin;
    return {m_own, GroupOf(QStringLiteral("Property"), m_plugin, &Plugin::PropertySection),
            GroupOf(QStringLiteral("Collision"), m_plugin, &Plugin::CollisionSection),
            GroupOf(QStringLiteral("Wind_Setting"), m_plugin, &Plugin::WindSection)};
}

BF::Result CPanelProfiles::Load(const QString& path)
{
    BF::Result result;
    const EProfileProblem problem = LoadProfile(path, Groups(), result);
    if (problem == EProfileProblem::None) {
        return result.IsFailure() ? result : BF::Results::Success;
    }
    m_section->ShowMessage(problem == EProfileProblem::Unreadable ? CSoftClothPresetSection::tr("File is Unreadable.")
                                                                  : CSoftClothPresetSection::tr("InValid File Path."));
    return BF::Results::NothingDone;
}

QString CPanelProfiles::DefaultFolder() const
{
    QString folder;
    m_host->GetSceneService()->GetDefaultFolder(folder, profileFolder);
    return folder;
}

void CPanelProfiles::ChooseAndLoad()
{
    const QString title = CSoftClothPresetSection::tr("Load Soft Cloth Custom Profile", "Open File title");
    const QString path = ChooseIniFile(m_section, QFileDialog::AcceptOpen, title, DefaultFolder());
    if (m_section && !path.isEmpty()) {
        Load(path);
    }
}

void CPanelProfiles::ChooseAndSave()
{
    const QString title = CSoftClothPresetSection::tr("Save Soft Cloth Custom Profile", "Open File title");
    const QString path = ChooseIniFile(m_section, QFileDialog::AcceptSave, title, DefaultFolder());
    if (m_section && !path.isEmpty() && SaveProfile(path, Groups()) != EProfileProblem::None) {
        m_section->ShowMessage(CSoftClothPresetSection::tr("File is Unwritable."));
    }
}

void CPanelProfiles::ChooseForHost()
{
    const QString title = CSoftClothPresetSection::tr("Load Soft Ini Profile", "Open File title");
    const QString path = ChooseIniFile(m_section, QFileDialog::AcceptOpen, title, DefaultFolder());
    if (m_section) {
        m_host->GetFileService()->LoadSoftIniProfile(path.toStdWString());
    }
}

} // namespace MV
