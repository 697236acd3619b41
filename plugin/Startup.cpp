#include "plugin/PhysicsSoftClothPlugin.h"

#include "material/SoftClothMaterialDlg.h"
#include "material/SoftClothMaterialTable.h"
#include "plugin/Parts.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "preset/SoftClothPresetSection.h"
#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"

#include <MVPluginQt/EventSender.h>

#include <memory>
#include <new>

namespace MV {

namespace {

/// Makes \p holder own \p part, which may be destroyed by its Qt parent before and takes itself out of the holder
/// then. A widget reports its destruction while QPointers to it are still set, so the guard is cleared by hand.
template <class Part>
void Own(QSharedPointer<Part>& holder, Part* part, const QObject* context)
{
    // What is held goes first: in its last moment it would empty the holder of its successor.
    holder.clear();
    const auto guard = std::make_shared<QPointer<Part>>(part);
    holder = QSharedPointer<Part>(part, [guard](Part*) { delete guard->data(); });
    QObject::connect(part, &QObject::destroyed, context, [guard, &holder] {
        guard->clear();
        holder.clear();
    });
}

template <class Part>
CSectionInterface* SectionOf(const QSharedPointer<Part>& part)
{
    CSectionInterface* section = nullptr;
    VisitPart(part, [&section](auto& existing) { section = &existing; });
    return section;
}

} // namespace

BF::Result CPhysicsSoftClothPlugin::Initialize(const QString& pluginPath, const QString& resourceBase,
                                               CMoviraInterface* host)
{
    if (!host) {
        return BF::Results::InvalidArgument;
    }
    const BF::Result registered =
        InitResource(pluginPath, QStringLiteral("MVPhysicsSoftClothSection.rcc"), resourceBase, host);
    if (registered.IsFailure()) {
        return registered;
    }
    // A host may start the plug-in again; nothing of the time before reaches into the new one.
    ReleaseParts();
    m_selection = {};
    if (HasAnyBit(GetCurrentAp(), ECompatibleApp::Both)) {
        const BF::Result created = CreateParts(pluginPath, resourceBase, host);
        if (created.IsFailure()) {
            return created;
        }
    }
    ConnectHostEvents(host->GetEventSender());
    return BF::Results::Success;
}

BF::Result CPhysicsSoftClothPlugin::GetSectionList(QList<CSectionInterface*>& sections)
{
    sections.append(SectionOf(m_presetSection));
    sections.append(SectionOf(m_propertySection));
    sections.append(SectionOf(m_collisionSection));
    sections.append(SectionOf(m_windSection));
    return BF::Results::Success;
}

/// Creates one part; 0x80000002 when there is no memory for it.
template <class Part, class... Arguments>
BF::Result CPhysicsSoftClothPlugin::CreatePart(QSharedPointer<Part>& part, Arguments... arguments)
{
    auto* created = new (std::nothrow) Part(arguments...);
    if (!created) {
        return BF::Results::ResourceFailure;
    }
    Own(part, created, this);
    return BF::Results::Success;
}

BF::Result CPhysicsSoftClothPlugin::CreateParts(const QString& pluginPath, const QString& resourceBase,
                                                CMoviraInterface* host)
{
    BF::Result result;
    // Each part is initialised right after its creation; the first failure ends the row.
    const auto create = [&](auto& part, auto... arguments) {
        if (!result.IsFailure()) {
            result = CreatePart(part, arguments...);
        }
        if (!result.IsFailure()) {
            result = AskPart(part, [&](auto& created) { return created.Init(pluginPath, resourceBase, host); });
        }
    };
    QWidget* mainWindow = host->GetSceneService()->GetMainWindow();
    create(m_materialTable, mainWindow, this);
    create(m_materialDlg, mainWindow, this);
    VisitPart(m_materialDlg, [this](auto& dialog) { dialog.SetMaterialTable(m_materialTable); });
    create(m_presetSection, this);
    create(m_propertySection, this);
    create(m_collisionSection, this);
    create(m_windSection, this);
    return result;
}

void CPhysicsSoftClothPlugin::ConnectHostEvents(CEventSender* sender)
{
    m_eventSender = sender;
    if (!sender) {
        return;
    }
    using Plugin = CPhysicsSoftClothPlugin;
    const auto clearAndUpdate = [this] { ClearSelectionAndUpdate(); };

    connect(sender, &CEventSender::ObjectDeleted, this, &Plugin::UpdateUi);
    connect(sender, &CEventSender::PhysicsEngineChanged, this, &Plugin::UpdateUi);
    connect(sender, &CEventSender::AboutToConvertPhysicsObjectType, this, &Plugin::OnAboutToConvertPhysicsObjectType);
    connect(sender, &CEventSender::HierarchyChanged, this, &Plugin::OnHierarchyChanged);
    connect(sender, &CEventSender::Played, this, &Plugin::OnPlayStopChanged);
    connect(sender, &CEventSender::Stopped, this, &Plugin::OnPlayStopChanged);
    connect(sender, &CEventSender::ObjectDataChanged, this, &Plugin::ObjectDataChanged);
    connect(sender, &CEventSender::LaunchedImageChanged, this, &Plugin::UpdateUi);
    connect(sender, &CEventSender::ObjectSelectionChanged, this, clearAndUpdate);
    connect(sender, &CEventSender::AfterFileLoaded, this, clearAndUpdate);
    if (HasAnyBit(GetCurrentAp(), ECompatibleApp::FamilyB)) {
        connect(sender, &CEventSender::DialogModeChanged, this, &Plugin::UpdateUi);
    }
    connect(sender, &CEventSender::PickedModeChanged, this, &Plugin::OnPickModeChanged);
    connect(sender, &CEventSender::UndoRedoDone, this, &Plugin::OnUndoRedoDone);
    connect(sender, &CEventSender::PickedMaterialIndexChanged, this, &Plugin::PickedMaterialIndexChanged);
}

} // namespace MV
