#pragma once

#include "host/scene/Entities.h"
#include "host/scene/SceneEdit.h"
#include "host/scene/SceneIndex.h"
#include "host/scene/SceneSize.h"

#include <QObject>
#include <QUndoStack>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

namespace Host {

/// The scene of the stand-in host: objects, selection, modes, and edits with undo. Knows nothing of widgets or of the
/// plug-in; whoever changes it sends the host's events.
///
/// Handles and ids are looked up and never dereferenced, so anything may be passed; an unknown one finds nothing.
/// Deleted objects are kept for undo but are not found any more.
class Scene : public QObject
{
    Q_OBJECT

public:
    explicit Scene(QObject* parent = nullptr);
    ~Scene() override;

    // --- objects ---

    /// Takes over \p object and gives it a handle, and its meshes and materials ids. Slots name their materials by
    /// position: on entry a slot's material is the index in \p object.materials plus one; a slot that names none is
    /// left out.
    /// \return the stored object; its address stays valid while the scene lives
    Object& AddObject(Object object);

    /// Of all objects together, deleted ones included.
    const SceneSize& Size() const { return m_size; }

    /// The objects that exist, in the order of adding.
    std::vector<Object*> Objects() const;
    /// All objects, deleted ones included.
    const std::vector<std::unique_ptr<Object>>& AllObjects() const { return m_objects; }

    Object* FindObject(const BF::CHandle* handle) const;
    Mesh* FindMesh(Id id) const;
    Material* FindMaterial(Id id) const;
    Object* OwnerOfMesh(Id id) const;
    Object* OwnerOfMaterial(Id id) const;
    /// Null unless the object exists, has the mesh, and the mesh has the material.
    MaterialSlot* FindSlot(const ClothAddress& address) const;

    /// The position of a material among the materials of \p object; none when it is not one of them.
    std::optional<std::size_t> PositionOfMaterial(const Object& object, Id id) const;
    /// Whether a material is offered for the soft cloth: switched on, and ignored on none of its meshes.
    bool MayTakePart(Id material) const;

    /// Every (mesh, material) of \p object, in the order of its meshes and slots.
    static std::vector<ClothAddress> SlotsOf(const Object& object);

    /// Display name of an object, a mesh or a material; a null string for an unknown handle or id.
    QString NameOf(const BF::CHandle* handleOrId) const;

    // --- session state, neither undoable nor saved ---

    const QVector<BF::CHandle*>& Selection() const { return m_selection; }
    /// Unknown handles and repetitions are left out. \return true when the selection changed
    bool SetSelection(const QVector<BF::CHandle*>& handles);

    int physicsEngine = 1;
    bool playing = false;
    MV::EDialogMode dialogMode = MV::EDialogMode::None;
    MV::EPickMode pickMode = MV::EPickMode::None;

    // --- edits ---

    /// Applies \p edit as one undo step. Its before-states are taken from the scene, whatever it holds; changes of
    /// unknown things are left out. \return true when it became a step; an edit that changes nothing does not, unless
    /// it is to be one anyway
    bool Push(SceneEdit edit);

    /// What is pushed from here on, up to the next call, is one user action and becomes one undo step. Left out are
    /// edits that can be taken back by themselves, and objects that come or go.
    /// Before the first call each edit is a step of its own.
    void BeginUserAction() { ++m_userAction; }

    /// The objects that an edit touches, each once, in scene order; deleted ones included.
    QVector<BF::CHandle*> ObjectsOf(const SceneEdit& edit) const;

    /// Applied edits, then undone ones: the undo stack from bottom to top.
    std::vector<SceneEdit> UndoSteps() const;
    /// Replaces the undo stack by \p steps of which the first \p applied count as done, without touching any state.
    void RestoreUndoSteps(const std::vector<SceneEdit>& steps, int applied);

    QUndoStack& UndoStack() { return m_undoStack; }
    const QUndoStack& UndoStack() const { return m_undoStack; }

Q_SIGNALS:
    /// Objects came, went or were renamed.
    void ObjectsChanged();
    void SelectionChanged();
    /// An edit was applied, undone or redone; \p objects are those that it touches.
    void EditApplied(const QVector<BF::CHandle*>& objects);

private:
    class EditCommand;

    /// What was applied but not yet announced.
    struct Applied
    {
        QVector<BF::CHandle*> objects;
        bool objectsChanged = false;
        bool selectionChanged = false;
    };

    void Apply(const SceneEdit& edit, bool forward);
    void AnnounceApplied();

    std::vector<std::unique_ptr<Object>> m_objects;
    SceneIndex m_index; ///< Of all objects, deleted ones included.
    SceneSize m_size;
    QVector<BF::CHandle*> m_selection;
    QUndoStack m_undoStack;
    Applied m_applied;
    bool m_restoring = false;
    int m_userAction = SceneEdit::noAction;
};

} // namespace Host
