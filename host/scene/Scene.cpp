#include "host/scene/Scene.h"

#include "host/scene/EditMerge.h"
#include "host/scene/Handles.h"

#include <QSet>
#include <QUndoCommand>

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace Host {

namespace {

Object* IfExists(Object* object)
{
    return object && object->state.exists ? object : nullptr;
}

// What a change is about: the object that it belongs to, and the state that it changes there.

Object* OwnerOf(const SceneIndex& index, const SceneEdit::ClothChange& change)
{
    return index.FindObject(change.address.object);
}

Object* OwnerOf(const SceneIndex& index, const SceneEdit::MaterialChange& change)
{
    return index.OwnerOfMaterial(change.material);
}

Object* OwnerOf(const SceneIndex& index, const SceneEdit::ObjectChange& change)
{
    return index.FindObject(change.object);
}

ClothState* StateIn(const SceneIndex& index, const SceneEdit::ClothChange& change)
{
    MaterialSlot* const slot = index.FindSlot(change.address);
    return slot ? &slot->cloth : nullptr;
}

MaterialState* StateIn(const SceneIndex& index, const SceneEdit::MaterialChange& change)
{
    Material* const material = index.FindMaterial(change.material);
    return material ? &material->state : nullptr;
}

ObjectState* StateIn(const SceneIndex& index, const SceneEdit::ObjectChange& change)
{
    Object* const object = index.FindObject(change.object);
    return object ? &object->state : nullptr;
}

/// The owner that \p change can be applied to; null when it is unknown or deleted.
template <class Change>
Object* ChangeableOwner(const SceneIndex& index, const Change& change)
{
    return IfExists(OwnerOf(index, change));
}

/// A deleted object can still be brought back.
Object* ChangeableOwner(const SceneIndex& index, const SceneEdit::ObjectChange& change)
{
    Object* const owner = OwnerOf(index, change);
    return change.after.exists ? owner : IfExists(owner);
}

/// Takes the before-states from the scene and leaves out changes of what does not exist there.
template <class Change>
void TakeBefore(std::vector<Change>& changes, const SceneIndex& index)
{
    std::vector<Change> known;
    for (Change& change : changes) {
        Object* const owner = ChangeableOwner(index, change);
        if (const auto* state = owner ? StateIn(index, change) : nullptr) {
            change.before = *state;
            known.push_back(std::move(change));
        }
    }
    changes = std::move(known);
}

template <class Change>
void ApplyAll(const std::vector<Change>& changes, bool forward, const SceneIndex& index)
{
    for (const Change& change : changes) {
        if (auto* state = StateIn(index, change)) {
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

/// Leaves each object once. Handles are given in the order of adding.
void SortInSceneOrder(QVector<BF::CHandle*>& objects)
{
    std::sort(objects.begin(), objects.end(),
              [](const BF::CHandle* a, const BF::CHandle* b) { return ToId(a) < ToId(b); });
    objects.erase(std::unique(objects.begin(), objects.end()), objects.end());
}

template <class Change>
void AppendOwners(QVector<BF::CHandle*>& owners, const std::vector<Change>& changes, const SceneIndex& index)
{
    for (const Change& change : changes) {
        if (const Object* owner = OwnerOf(index, change)) {
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

    void undo() override
    {
        m_scene.Apply(m_edit, false);
        setObsolete(m_edit.refused);
    }
    void redo() override { m_scene.Apply(m_edit, true); }

    /// Commands with the same number become one: runs count upwards from 0, user actions downwards from -2.
    int id() const override
    {
        constexpr int never = -1;
        return m_edit.run != SceneEdit::noRun ? m_edit.run : never - m_edit.action;
    }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* later = dynamic_cast<const EditCommand*>(other);
        SceneEdit merged = m_edit;
        if (!later || !MergeEdits(merged, later->m_edit)) {
            return false;
        }
        m_edit = std::move(merged);
        setText(m_edit.text);
        setObsolete(m_edit.ChangesNothing());
        return true;
    }

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
    m_index.Add(stored);
    m_size += SceneSize::Of(stored);
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
    return IfExists(m_index.FindObject(handle));
}

Mesh* Scene::FindMesh(Id id) const
{
    return OwnerOfMesh(id) ? m_index.FindMesh(id) : nullptr;
}

Material* Scene::FindMaterial(Id id) const
{
    return OwnerOfMaterial(id) ? m_index.FindMaterial(id) : nullptr;
}

Object* Scene::OwnerOfMesh(Id id) const
{
    return IfExists(m_index.OwnerOfMesh(id));
}

Object* Scene::OwnerOfMaterial(Id id) const
{
    return IfExists(m_index.OwnerOfMaterial(id));
}

MaterialSlot* Scene::FindSlot(const ClothAddress& address) const
{
    return FindObject(address.object) ? m_index.FindSlot(address) : nullptr;
}

std::optional<std::size_t> Scene::PositionOfMaterial(const Object& object, Id id) const
{
    return OwnerOfMaterial(id) == &object ? std::make_optional(m_index.PositionOfMaterial(id)) : std::nullopt;
}

bool Scene::MayTakePart(Id materialId) const
{
    const Material* const material = FindMaterial(materialId);
    if (!material || !material->state.softClothEnabled) {
        return false;
    }
    const Object& owner = *OwnerOfMaterial(materialId);
    const auto& ignored = owner.state.ignoredMaterials;
    return ignored.isEmpty() || std::none_of(owner.meshes.begin(), owner.meshes.end(), [&](const Mesh& mesh) {
               return m_index.FindSlot({owner.handle, mesh.id, materialId}) &&
                      ignored.value(mesh.name).contains(material->name);
           });
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
    QSet<BF::CHandle*> taken;
    for (BF::CHandle* handle : handles) {
        if (FindObject(handle) && !taken.contains(handle)) {
            taken.insert(handle);
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
    TakeBefore(edit.cloths, m_index);
    TakeBefore(edit.materials, m_index);
    TakeBefore(edit.objects, m_index);
    if (edit.ChangesNothing() && !edit.isStepAnyway && !edit.refused) {
        return false;
    }
    if (!edit.isStepAnyway && !edit.refused && !ChangesExistence(edit)) {
        edit.action = m_userAction;
    }
    m_undoStack.push(std::make_unique<EditCommand>(*this, std::move(edit)).release());
    return true;
}

void Scene::Apply(const SceneEdit& edit, bool forward)
{
    if (m_restoring) {
        return;
    }
    ApplyAll(edit.cloths, forward, m_index);
    ApplyAll(edit.materials, forward, m_index);
    ApplyAll(edit.objects, forward, m_index);
    m_applied.objectsChanged |= ChangesExistence(edit);
    m_applied.objects += ObjectsOf(edit);
    const auto isGone = [this](const BF::CHandle* handle) { return !FindObject(handle); };
    const auto gone = std::remove_if(m_selection.begin(), m_selection.end(), isGone);
    m_applied.selectionChanged |= gone != m_selection.end();
    m_selection.erase(gone, m_selection.end());
}

void Scene::AnnounceApplied()
{
    Applied applied = std::exchange(m_applied, {});
    if (applied.objects.isEmpty()) {
        return;
    }
    SortInSceneOrder(applied.objects);
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
    AppendOwners(touched, edit.cloths, m_index);
    AppendOwners(touched, edit.materials, m_index);
    AppendOwners(touched, edit.objects, m_index);
    SortInSceneOrder(touched);
    return touched;
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
