// Deleting, undo and redo.

#include "host/services/HostApplication.h"
#include "host/services/WeightImages.h"

#include <algorithm>
#include <unordered_set>

namespace Host {

using MV::CEventSender;

namespace {

BF::CArrayList<BF::CHandle*> ToList(const QVector<BF::CHandle*>& handles)
{
    BF::CArrayList<BF::CHandle*> list;
    for (BF::CHandle* handle : handles) {
        list.Add(handle);
    }
    return list;
}

} // namespace

void HostApplication::DeleteObjects(const QVector<BF::CHandle*>& objects)
{
    SceneEdit edit;
    QVector<BF::CHandle*> deleted;
    for (BF::CHandle* object : objects) {
        if (const Object* found = m_scene->FindObject(object)) {
            ObjectState gone = found->state;
            gone.exists = false;
            edit.objects.push_back({object, {}, gone});
            edit.text = tr("Delete %1").arg(found->name);
            deleted.append(object);
        }
    }
    if (deleted.isEmpty()) {
        return;
    }
    if (deleted.size() > 1) {
        edit.text = tr("Delete %1 objects").arg(deleted.size());
    }
    const QVector<BF::CHandle*> selectedBefore = m_scene->Selection();
    m_scene->Push(std::move(edit));
    Send("ObjectDeleted", &CEventSender::ObjectDeleted, ToList(deleted));
    if (m_scene->Selection() != selectedBefore) {
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

/// After the step the panel reloads its material list; the images event makes it read the values again without
/// losing the row that the user was at.
void HostApplication::StepUndoStack(bool forward)
{
    QUndoStack& stack = m_scene->UndoStack();
    if (!(forward ? stack.canRedo() : stack.canUndo())) {
        return;
    }
    const QVector<BF::CHandle*> selectedBefore = m_scene->Selection();
    const std::vector<Object*> existedBefore = m_scene->Objects();
    QVector<BF::CHandle*> touched;
    const auto connection = connect(m_scene.get(), &Scene::EditApplied, this,
                                    [&touched](const QVector<BF::CHandle*>& objects) { touched = objects; });
    if (forward) {
        stack.redo();
    } else {
        stack.undo();
    }
    disconnect(connection);
    SelectNewObjects(existedBefore);

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

/// What has come back is selected, as it was when it went or came.
void HostApplication::SelectNewObjects(const std::vector<Object*>& existedBefore)
{
    const std::unordered_set<const Object*> before(existedBefore.begin(), existedBefore.end());
    QVector<BF::CHandle*> added;
    for (const Object* object : m_scene->Objects()) {
        if (before.count(object) == 0) {
            added.append(object->handle);
        }
    }
    if (!added.isEmpty()) {
        m_scene->SetSelection(added);
    }
}

} // namespace Host
