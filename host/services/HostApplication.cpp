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
#include "panel/HostCodes.h"

#include <algorithm>

namespace Host {

namespace {

using MV::CEventSender;
using Objects = BF::CArrayList<BF::CHandle*>;

using MV::notConverting;

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
    SceneSize size = m_scene->Size();
    size += SceneSize::Of(object);
    const QString tooMuch = size.ReasonToRefuse();
    if (!tooMuch.isNull()) {
        TellProblem(tr("The model \"%1\" is too large for this scene: %2.").arg(object.name, tooMuch));
        return nullptr;
    }
    // Added as an object that does not exist yet, so that undo can take it away again.
    object.state.exists = false;
    const Object& added = m_scene->AddObject(std::move(object));
    BF::CHandle* const handle = added.handle;
    ObjectState present = added.state;
    present.exists = true;
    SceneEdit edit;
    edit.text = tr("Import %1").arg(added.name);
    edit.objects.push_back({handle, {}, present});
    m_scene->Push(std::move(edit));
    Send("HierarchyChanged", &CEventSender::HierarchyChanged);
    Send("FileLoaded", &CEventSender::FileLoaded, MV::EFileType::Model);
    if (!m_scene->FindObject(handle)) {
        return nullptr;
    }
    m_scene->SetSelection({handle});
    Send("AfterFileLoaded", &CEventSender::AfterFileLoaded, MV::EFileType::Model);
    return m_scene->FindObject(handle) ? handle : nullptr;
}

void HostApplication::Select(const QVector<BF::CHandle*>& objects)
{
    if (m_scene->SetSelection(objects)) {
        Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
    }
}

void HostApplication::SelectAgain()
{
    Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
}

void HostApplication::Click(BF::CHandle* object, int index, bool hasSelected)
{
    const bool choosesMaterials =
        m_scene->dialogMode == MV::EDialogMode::WeightMap || m_scene->pickMode == MV::EPickMode::Material;
    if (index >= 0 && choosesMaterials) {
        PickMaterial(object, index);
    } else if (!hasSelected) {
        SelectAgain();
    }
}

void HostApplication::PickMaterial(BF::CHandle* object, int index)
{
    Send("PickedMaterialIndexChanged", &CEventSender::PickedMaterialIndexChanged, object,
         static_cast<unsigned long long>(index));
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
    if (found->traits.convertState == notConverting) {
        Send("AboutToConvertPhysicsObjectType", &CEventSender::AboutToConvertPhysicsObjectType);
        found = m_scene->FindObject(object);
        if (!found) {
            return;
        }
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
    const Objects owner{m_scene->OwnerOfMaterial(material)->handle};
    Q_EMIT m_scene->ObjectsChanged();
    Send("ObjectDataChanged", &CEventSender::ObjectDataChanged, owner, MV::EObjectChangedDataType::MaterialNames);
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
    found = m_scene->FindObject(object);
    if (found && ActiveSlotCount(*found) > activeBefore + 1) {
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
