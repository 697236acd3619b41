#include "host/services/HostApplication.h"

#include "host/services/AuxService.h"
#include "host/services/EditService.h"
#include "host/services/FileService.h"
#include "host/services/HotKeyService.h"
#include "host/services/ImageEditor.h"
#include "host/services/Pictures.h"
#include "host/services/SceneService.h"
#include "host/services/SoftClothService.h"
#include "host/services/UiService.h"
#include "host/services/WeightImages.h"

#include <algorithm>

namespace Host {

namespace {

using MV::CEventSender;
using Objects = BF::CArrayList<BF::CHandle*>;

Objects ToList(const QVector<BF::CHandle*>& handles)
{
    Objects list;
    for (BF::CHandle* handle : handles) {
        list.Add(handle);
    }
    return list;
}

constexpr int noConversion = 3;

} // namespace

HostApplication::HostApplication(QObject* parent)
    : QObject(parent)
    , m_scene(std::make_unique<Scene>())
    , m_pictures(std::make_unique<Host::Pictures>(*this))
    , m_weightImages(std::make_unique<Host::WeightImages>(*this))
    , m_imageEditor(std::make_unique<Host::ImageEditor>(*this))
    , m_sceneService(std::make_unique<SceneService>(*this))
    , m_editService(std::make_unique<EditService>(*this))
    , m_fileService(std::make_unique<FileService>(*this))
    , m_uiService(std::make_unique<UiService>(*this))
    , m_hotKeyService(std::make_unique<HotKeyService>(*this))
    , m_softClothService(std::make_unique<SoftClothService>(*this))
    , m_auxService(std::make_unique<AuxService>(*this))
{
    const ImageStore& store = m_pictures->Store();
    connect(&store, &ImageStore::LoadingStarted, this,
            [this] { Send("ImageAsyncLoadStart", &CEventSender::ImageAsyncLoadStart); });
    connect(&store, &ImageStore::LoadingDone, this,
            [this] { Send("ImageAsyncLoadAllDone", &CEventSender::ImageAsyncLoadAllDone); });
}

HostApplication::~HostApplication() = default;

MV::CEventSender* HostApplication::GetEventSender()
{
    return &m_eventSender;
}

MV::CEditService* HostApplication::GetEditService()
{
    return m_editService.get();
}

MV::CFileService* HostApplication::GetFileService()
{
    return m_fileService.get();
}

MV::CSceneService* HostApplication::GetSceneService()
{
    return m_sceneService.get();
}

MV::CUiService* HostApplication::GetUiService()
{
    return m_uiService.get();
}

MV::CHotKeyService* HostApplication::GetHotKeyService()
{
    return m_hotKeyService.get();
}

MV::CSoftClothService* HostApplication::GetSoftClothService()
{
    return m_softClothService.get();
}

MV::CAuxService* HostApplication::GetAuxService()
{
    return m_auxService.get();
}

void HostApplication::ReplaceScene(std::unique_ptr<Scene> scene, MV::EFileType type)
{
    SetPlaying(false);
    SetPickMode(MV::EPickMode::None);
    SetDialogMode(MV::EDialogMode::None);
    // The old scene lives until everybody has heard of the new one.
    const std::unique_ptr<Scene> old = std::exchange(m_scene, std::move(scene));
    m_scene->physicsEngine = old->physicsEngine;
    m_weightImages->EndAdjusting();
    m_pictures->Handles().Clear();
    Q_EMIT SceneReplaced();
    Send("FileLoaded", &CEventSender::FileLoaded, type);
    Send("AfterFileLoaded", &CEventSender::AfterFileLoaded, type);
}

BF::CHandle* HostApplication::AddModel(Object object)
{
    // Added as an object that does not exist yet, so that undo can take it away again.
    object.state.exists = false;
    const Object& added = m_scene->AddObject(std::move(object));
    ObjectState present = added.state;
    present.exists = true;
    SceneEdit edit;
    edit.text = tr("Import %1").arg(added.name);
    edit.objects.push_back({added.handle, {}, present});
    m_scene->Push(std::move(edit));
    Send("HierarchyChanged", &CEventSender::HierarchyChanged);
    Send("FileLoaded", &CEventSender::FileLoaded, MV::EFileType::Model);
    m_scene->SetSelection({added.handle});
    Send("AfterFileLoaded", &CEventSender::AfterFileLoaded, MV::EFileType::Model);
    return added.handle;
}

void HostApplication::DeleteObject(BF::CHandle* object)
{
    const Object* found = m_scene->FindObject(object);
    if (!found) {
        return;
    }
    const bool wasSelected = m_scene->Selection().contains(object);
    ObjectState gone = found->state;
    gone.exists = false;
    SceneEdit edit;
    edit.text = tr("Delete %1").arg(found->name);
    edit.objects.push_back({object, {}, gone});
    m_scene->Push(std::move(edit));
    Send("ObjectDeleted", &CEventSender::ObjectDeleted, Objects{object});
    if (wasSelected) {
        Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
    }
}

void HostApplication::Select(const QVector<BF::CHandle*>& objects)
{
    if (m_scene->SetSelection(objects)) {
        Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
    }
}

void HostApplication::Undo()
{
    m_weightImages->EndAdjusting();
    StepUndoStack(false);
}

void HostApplication::Redo()
{
    m_weightImages->EndAdjusting();
    StepUndoStack(true);
}

void HostApplication::TakeBack()
{
    StepUndoStack(false);
}

void HostApplication::LoadImages(BF::CHandle* object)
{
    if (const Object* found = m_scene->FindObject(object)) {
        m_pictures->LoadInBackground(*found);
    }
}

void HostApplication::TellProblem(const QString& sentence)
{
    Q_EMIT ProblemTold(sentence);
}

JournalText HostApplication::Text() const
{
    return JournalText(*m_scene, &m_pictures->Handles());
}

/// After the step the panel reloads its material list; the images event makes it read the values again without
/// losing the row that the user was at.
void HostApplication::StepUndoStack(bool forward)
{
    QUndoStack& stack = m_scene->UndoStack();
    if (!(forward ? stack.canRedo() : stack.canUndo())) {
        return;
    }
    const QVector<BF::CHandle*> selectedBefore = m_scene->Selection();
    QVector<BF::CHandle*> touched;
    const auto connection = connect(m_scene.get(), &Scene::EditApplied, this,
                                    [&touched](const QVector<BF::CHandle*>& objects) { touched = objects; });
    if (forward) {
        stack.redo();
    } else {
        stack.undo();
    }
    disconnect(connection);

    Send("UndoRedoDone", &CEventSender::UndoRedoDone);
    const bool allExist = std::all_of(touched.cbegin(), touched.cend(),
                                      [this](BF::CHandle* handle) { return m_scene->FindObject(handle); });
    if (!allExist) {
        Send("ObjectDeleted", &CEventSender::ObjectDeleted, ToList(touched));
    }
    if (m_scene->Selection() != selectedBefore) {
        Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
    } else if (allExist) {
        Send("LaunchedImageChanged", &CEventSender::LaunchedImageChanged, ToList(touched));
    }
}

void HostApplication::SetPhysicsEngine(int engine)
{
    if (m_scene->physicsEngine == engine) {
        return;
    }
    m_scene->physicsEngine = engine;
    Q_EMIT StateChanged();
    Send("PhysicsEngineChanged", &CEventSender::PhysicsEngineChanged, MV::EPhysicsEngineType(engine));
}

void HostApplication::SetPlaying(bool playing)
{
    if (m_scene->playing == playing) {
        return;
    }
    m_scene->playing = playing;
    Q_EMIT StateChanged();
    if (playing) {
        Send("Played", &CEventSender::Played);
    } else {
        Send("Stopped", &CEventSender::Stopped);
    }
}

void HostApplication::SetDialogMode(MV::EDialogMode mode)
{
    if (m_scene->dialogMode == mode) {
        return;
    }
    m_scene->dialogMode = mode;
    Q_EMIT StateChanged();
    Send("DialogModeChanged", &CEventSender::DialogModeChanged, mode);
}

void HostApplication::SetPickMode(MV::EPickMode mode)
{
    const MV::EPickMode old = m_scene->pickMode;
    if (old == mode) {
        return;
    }
    m_scene->pickMode = mode;
    Q_EMIT StateChanged();
    Send("PickedModeChanged", &CEventSender::PickedModeChanged, mode, old);
}

void HostApplication::SetTraits(BF::CHandle* object, const ObjectTraits& traits)
{
    Object* found = m_scene->FindObject(object);
    if (!found || found->traits == traits) {
        return;
    }
    found->traits = traits;
    Q_EMIT StateChanged();
    Send("ObjectDataChanged", &CEventSender::ObjectDataChanged, Objects{object}, MV::EObjectChangedDataType::Topology);
}

void HostApplication::SetConvertState(BF::CHandle* object, int state)
{
    const Object* found = m_scene->FindObject(object);
    if (!found || found->traits.convertState == state) {
        return;
    }
    if (found->traits.convertState == noConversion) {
        Send("AboutToConvertPhysicsObjectType", &CEventSender::AboutToConvertPhysicsObjectType);
    }
    ObjectTraits traits = found->traits;
    traits.convertState = state;
    SetTraits(object, traits);
}

void HostApplication::RenameMaterial(Id material, const QString& name)
{
    Material* found = m_scene->FindMaterial(material);
    if (!found || found->name == name) {
        return;
    }
    found->name = name;
    Q_EMIT m_scene->ObjectsChanged();
    Send("ObjectDataChanged", &CEventSender::ObjectDataChanged, Objects{m_scene->OwnerOfMaterial(material)->handle},
         MV::EObjectChangedDataType::MaterialNames);
}

bool HostApplication::SetSoftClothActive(BF::CHandle* object, bool active)
{
    const Object* found = m_scene->FindObject(object);
    if (!found) {
        return false;
    }
    SceneEdit edit;
    edit.text = active ? tr("Soft cloth on") : tr("Soft cloth off");
    ObjectState state = found->state;
    state.softCloth = active;
    state.rigidBody = state.rigidBody && !active;
    edit.objects.push_back({object, {}, state});
    if (active && ActiveSlotCount(*found) == 0) {
        for (const ClothAddress& address : Scene::SlotsOf(*found)) {
            if (m_scene->MayTakePart(address.material)) {
                ClothState cloth = m_scene->FindSlot(address)->cloth;
                cloth.active = true;
                edit.cloths.push_back({address, {}, cloth});
            }
        }
    }
    PushObjectEdit(object, std::move(edit));
    return true;
}

void HostApplication::ConvertToSoftCloth(BF::CHandle* object)
{
    const Object* found = m_scene->FindObject(object);
    if (!found) {
        return;
    }
    const int activeBefore = ActiveSlotCount(*found);
    SetSoftClothActive(object, true);
    if (ActiveSlotCount(*found) > activeBefore + 1) {
        Send("PhysicsSoftClothMultiMaterialsDetected", &CEventSender::PhysicsSoftClothMultiMaterialsDetected, object);
    }
}

bool HostApplication::CancelSoftCloth(BF::CHandle* object)
{
    const Object* found = m_scene->FindObject(object);
    if (!found) {
        return false;
    }
    SceneEdit edit;
    edit.text = tr("Cancel soft cloth");
    ObjectState state = found->state;
    state.softCloth = false;
    edit.objects.push_back({object, {}, state});
    for (const ClothAddress& address : Scene::SlotsOf(*found)) {
        ClothState cloth = m_scene->FindSlot(address)->cloth;
        cloth.active = false;
        edit.cloths.push_back({address, {}, cloth});
    }
    PushObjectEdit(object, std::move(edit));
    return true;
}

void HostApplication::PushObjectEdit(BF::CHandle* object, SceneEdit edit, MV::EObjectChangedDataType changedData)
{
    if (m_scene->Push(std::move(edit))) {
        Send("ObjectDataChanged", &CEventSender::ObjectDataChanged, Objects{object}, changedData);
    }
}

int HostApplication::ActiveSlotCount(const Object& object) const
{
    const std::vector<ClothAddress> all = Scene::SlotsOf(object);
    return int(std::count_if(all.begin(), all.end(),
                             [this](const ClothAddress& address) { return m_scene->FindSlot(address)->cloth.active; }));
}

} // namespace Host
