#include "host/scene/Scene.h"

#include "host/scene/Handles.h"

#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace Host {

namespace {

using ObjectList = std::vector<std::unique_ptr<Object>>;

template <class Things, class Match>
auto Find(Things& things, Match match) -> decltype(&*things.begin())
{
    const auto found = std::find_if(things.begin(), things.end(), match);
    return found == things.end() ? nullptr : &*found;
}

template <class Thing>
Thing* FindById(std::vector<Thing>& things, Id id)
{
    return Find(things, [id](const Thing& thing) { return thing.id == id; });
}

/// The first object, deleted ones included, of which \p match holds.
template <class Match>
Object* FindAny(const ObjectList& objects, Match match)
{
    const auto* found = Find(objects, [&](const std::unique_ptr<Object>& object) { return match(*object); });
    return found ? found->get() : nullptr;
}

Object* AnyObject(const ObjectList& objects, const BF::CHandle* handle)
{
    return FindAny(objects, [handle](const Object& object) { return object.handle == handle; });
}

Object* AnyOwnerOfMesh(const ObjectList& objects, Id id)
{
    return FindAny(objects, [id](Object& object) { return FindById(object.meshes, id) != nullptr; });
}

Object* AnyOwnerOfMaterial(const ObjectList& objects, Id id)
{
    return FindAny(objects, [id](Object& object) { return FindById(object.materials, id) != nullptr; });
}

MaterialSlot* SlotOf(Object& object, const ClothAddress& address)
{
    Mesh* const mesh = FindById(object.meshes, address.mesh);
    return mesh ? Find(mesh->materialSlots, [&](const MaterialSlot& slot) { return slot.material == address.material; })
                : nullptr;
}

Object* IfExists(Object* object)
{
    return object && object->state.exists ? object : nullptr;
}

// What a change is about: the object that it belongs to, and the state that it changes there.

Object* OwnerOf(const ObjectList& objects, const SceneEdit::ClothChange& change)
{
    return AnyObject(objects, change.address.object);
}

Object* OwnerOf(const ObjectList& objects, const SceneEdit::MaterialChange& change)
{
    return AnyOwnerOfMaterial(objects, change.material);
}

Object* OwnerOf(const ObjectList& objects, const SceneEdit::ObjectChange& change)
{
    return AnyObject(objects, change.object);
}

ClothState* StateIn(Object& owner, const SceneEdit::ClothChange& change)
{
    MaterialSlot* const slot = SlotOf(owner, change.address);
    return slot ? &slot->cloth : nullptr;
}

MaterialState* StateIn(Object& owner, const SceneEdit::MaterialChange& change)
{
    Material* const material = FindById(owner.materials, change.material);
    return material ? &material->state : nullptr;
}

ObjectState* StateIn(Object& owner, const SceneEdit::ObjectChange& /*change*/)
{
    return &owner.state;
}

/// The owner that \p change can be applied to; null when it is unknown or deleted.
template <class Change>
Object* ChangeableOwner(const ObjectList& objects, const Change& change)
{
    return IfExists(OwnerOf(objects, change));
}

/// A deleted object can still be brought back.
Object* ChangeableOwner(const ObjectList& objects, const SceneEdit::ObjectChange& change)
{
    Object* const owner = OwnerOf(objects, change);
    return change.after.exists ? owner : IfExists(owner);
}

/// Takes the before-states from the scene and leaves out changes of what does not exist there.
template <class Change>
void TakeBefore(std::vector<Change>& changes, const ObjectList& objects)
{
    std::vector<Change> known;
    for (Change& change : changes) {
        Object* const owner = ChangeableOwner(objects, change);
        if (const auto* state = owner ? StateIn(*owner, change) : nullptr) {
            change.before = *state;
            known.push_back(std::move(change));
        }
    }
    changes = std::move(known);
}

template <class Change>
void ApplyAll(const std::vector<Change>& changes, bool forward, const ObjectList& objects)
{
    for (const Change& change : changes) {
        Object* const owner = OwnerOf(objects, change);
        if (auto* state = owner ? StateIn(*owner, change) : nullptr) {
            *state = forward ? change.after : change.before;
        }
    }
}

bool ChangesExistence(const SceneEdit& edit)
{
    return std::any_of(edit.objects.begin(), edit.objects.end(), [](const SceneEdit::ObjectChange& change) {
        return change.before.exists != change.after.exists;
    });
}

template <class Change>
void AppendOwners(QVector<BF::CHandle*>& owners, const std::vector<Change>& changes, const ObjectList& objects)
{
    for (const Change& change : changes) {
        if (const Object* owner = OwnerOf(objects, change)) {
            owners.append(owner->handle);
        }
    }
}

} // namespace

/// The undo stack's view of an edit.
class Scene::EditCommand : public QUndoCommand
{
public:
    EditCommand(Scene& scene, SceneEdit edit)
        : QUndoCommand(edit.text)
        , m_scene(scene)
        , m_edit(std::move(edit))
    {
    }

    void undo() override { m_scene.Apply(m_edit, false); }
    void redo() override { m_scene.Apply(m_edit, true); }

    const SceneEdit& Edit() const { return m_edit; }

private:
    Scene& m_scene;
    SceneEdit m_edit;
};

Scene::Scene(QObject* parent)
    : QObject(parent)
{
    // The stack moves its index last, so whoever hears of an edit may push the next one.
    connect(&m_undoStack, &QUndoStack::indexChanged, this, &Scene::AnnounceApplied);
}

Scene::~Scene()
{
    // The stack outlives this body and says its index once more when it is cleared.
    disconnect(&m_undoStack, nullptr, this, nullptr);
}

Object& Scene::AddObject(Object object)
{
    const auto namesNoMaterial = [count = object.materials.size()](const MaterialSlot& slot) {
        return slot.material == 0 || slot.material > count;
    };
    object.handle = ToHandle(NewId());
    for (Material& material : object.materials) {
        material.id = NewId();
    }
    for (Mesh& mesh : object.meshes) {
        mesh.id = NewId();
        auto& slots = mesh.materialSlots;
        slots.erase(std::remove_if(slots.begin(), slots.end(), namesNoMaterial), slots.end());
        for (MaterialSlot& slot : slots) {
            slot.material = object.materials[slot.material - 1].id;
        }
    }
    m_objects.push_back(std::make_unique<Object>(std::move(object)));
    Object& stored = *m_objects.back();
    Q_EMIT ObjectsChanged();
    return stored;
}

std::vector<Object*> Scene::Objects() const
{
    std::vector<Object*> existing;
    for (const auto& object : m_objects) {
        if (object->state.exists) {
            existing.push_back(object.get());
        }
    }
    return existing;
}

Object* Scene::FindObject(const BF::CHandle* handle) const
{
    return IfExists(AnyObject(m_objects, handle));
}

Mesh* Scene::FindMesh(Id id) const
{
    Object* const owner = OwnerOfMesh(id);
    return owner ? FindById(owner->meshes, id) : nullptr;
}

Material* Scene::FindMaterial(Id id) const
{
    Object* const owner = OwnerOfMaterial(id);
    return owner ? FindById(owner->materials, id) : nullptr;
}

Object* Scene::OwnerOfMesh(Id id) const
{
    return IfExists(AnyOwnerOfMesh(m_objects, id));
}

Object* Scene::OwnerOfMaterial(Id id) const
{
    return IfExists(AnyOwnerOfMaterial(m_objects, id));
}

MaterialSlot* Scene::FindSlot(const ClothAddress& address) const
{
    Object* const object = FindObject(address.object);
    return object ? SlotOf(*object, address) : nullptr;
}

std::vector<ClothAddress> Scene::SlotsOf(const Object& object)
{
    std::vector<ClothAddress> addresses;
    for (const Mesh& mesh : object.meshes) {
        for (const MaterialSlot& slot : mesh.materialSlots) {
            addresses.push_back({object.handle, mesh.id, slot.material});
        }
    }
    return addresses;
}

QString Scene::NameOf(const BF::CHandle* handleOrId) const
{
    if (const Object* object = FindObject(handleOrId)) {
        return object->name;
    }
    const Id id = ToId(handleOrId);
    if (const Mesh* mesh = FindMesh(id)) {
        return mesh->name;
    }
    const Material* material = FindMaterial(id);
    return material ? material->name : QString();
}

bool Scene::SetSelection(const QVector<BF::CHandle*>& handles)
{
    QVector<BF::CHandle*> selection;
    for (BF::CHandle* handle : handles) {
        if (FindObject(handle) && !selection.contains(handle)) {
            selection.append(handle);
        }
    }
    if (selection == m_selection) {
        return false;
    }
    m_selection = selection;
    Q_EMIT SelectionChanged();
    return true;
}

bool Scene::Push(SceneEdit edit)
{
    TakeBefore(edit.cloths, m_objects);
    TakeBefore(edit.materials, m_objects);
    TakeBefore(edit.objects, m_objects);
    if (edit.ChangesNothing()) {
        return false;
    }
    m_undoStack.push(std::make_unique<EditCommand>(*this, std::move(edit)).release());
    return true;
}

void Scene::Apply(const SceneEdit& edit, bool forward)
{
    if (m_restoring) {
        return;
    }
    ApplyAll(edit.cloths, forward, m_objects);
    ApplyAll(edit.materials, forward, m_objects);
    ApplyAll(edit.objects, forward, m_objects);
    m_applied.objectsChanged |= ChangesExistence(edit);
    const QVector<BF::CHandle*> touched = ObjectsOf(edit);
    for (BF::CHandle* handle : touched) {
        if (!m_applied.objects.contains(handle)) {
            m_applied.objects.append(handle);
        }
        if (!FindObject(handle)) {
            m_applied.selectionChanged |= m_selection.removeAll(handle) > 0;
        }
    }
}

void Scene::AnnounceApplied()
{
    const Applied applied = std::exchange(m_applied, {});
    if (applied.objects.isEmpty()) {
        return;
    }
    if (applied.objectsChanged) {
        Q_EMIT ObjectsChanged();
    }
    if (applied.selectionChanged) {
        Q_EMIT SelectionChanged();
    }
    Q_EMIT EditApplied(applied.objects);
}

QVector<BF::CHandle*> Scene::ObjectsOf(const SceneEdit& edit) const
{
    QVector<BF::CHandle*> touched;
    AppendOwners(touched, edit.cloths, m_objects);
    AppendOwners(touched, edit.materials, m_objects);
    AppendOwners(touched, edit.objects, m_objects);
    QVector<BF::CHandle*> inOrder;
    for (const auto& object : m_objects) {
        if (touched.contains(object->handle)) {
            inOrder.append(object->handle);
        }
    }
    return inOrder;
}

std::vector<SceneEdit> Scene::UndoSteps() const
{
    std::vector<SceneEdit> steps;
    for (int i = 0; i < m_undoStack.count(); ++i) {
        if (const auto* command = dynamic_cast<const EditCommand*>(m_undoStack.command(i))) {
            steps.push_back(command->Edit());
        }
    }
    return steps;
}

void Scene::RestoreUndoSteps(const std::vector<SceneEdit>& steps, int applied)
{
    m_restoring = true;
    m_undoStack.clear();
    for (const SceneEdit& step : steps) {
        m_undoStack.push(std::make_unique<EditCommand>(*this, step).release());
    }
    m_undoStack.setIndex(applied);
    m_undoStack.setClean();
    m_restoring = false;
}

} // namespace Host
