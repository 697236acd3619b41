#include "host/scene/EditMerge.h"

#include "host/scene/SceneEdit.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstddef>
#include <map>
#include <tuple>

namespace Host {

namespace {

// What distinguishes changes of different things.

auto KeyOf(const SceneEdit::ClothChange& change)
{
    return std::make_tuple(change.address.object, change.address.mesh, change.address.material);
}

auto KeyOf(const SceneEdit::MaterialChange& change)
{
    return change.material;
}

auto KeyOf(const SceneEdit::ObjectChange& change)
{
    return change.object;
}

/// Lets \p changes end where \p later ones of the same things do. \return false when they are about other things
template <class Change>
bool TakeAfter(std::vector<Change>& changes, const std::vector<Change>& later)
{
    const auto sameThing = [](const Change& a, const Change& b) { return KeyOf(a) == KeyOf(b); };
    if (!std::equal(changes.begin(), changes.end(), later.begin(), later.end(), sameThing)) {
        return false;
    }
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i].after = later[i].after;
    }
    return true;
}

/// Adds one later change, which may be of the same thing as an earlier one or of another.
template <class Change>
void AddChange(std::vector<Change>& changes, const Change& later)
{
    const auto same = std::find_if(changes.begin(), changes.end(),
                                   [&](const Change& earlier) { return KeyOf(earlier) == KeyOf(later); });
    if (same == changes.end()) {
        changes.push_back(later);
    } else {
        same->after = later.after;
    }
}

/// Adds \p later changes, which may be of the same things or of others.
template <class Change>
void AddChanges(std::vector<Change>& changes, const std::vector<Change>& later)
{
    if (later.size() == 1) {
        AddChange(changes, later.front());
        return;
    }
    std::map<decltype(KeyOf(later.front())), std::size_t> places;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        places.emplace(KeyOf(changes[i]), i);
    }
    for (const Change& change : later) {
        const auto [place, isNew] = places.emplace(KeyOf(change), changes.size());
        if (isNew) {
            changes.push_back(change);
        } else {
            changes[place->second].after = change.after;
        }
    }
}

/// Lets a run of edits of the same things go on with \p later. \return false when it is about other things
bool ContinueRun(SceneEdit& edit, const SceneEdit& later)
{
    return TakeAfter(edit.cloths, later.cloths) && TakeAfter(edit.materials, later.materials) &&
           TakeAfter(edit.objects, later.objects);
}

void AddToAction(SceneEdit& edit, const SceneEdit& later)
{
    AddChanges(edit.cloths, later.cloths);
    AddChanges(edit.materials, later.materials);
    AddChanges(edit.objects, later.objects);
    if (edit.text != later.text) {
        edit.text = QCoreApplication::translate("Scene", "Several values");
    }
}

} // namespace

bool MergeEdits(SceneEdit& edit, const SceneEdit& later)
{
    if (edit.refused || later.refused) {
        return false;
    }
    if (edit.run != SceneEdit::noRun) {
        return ContinueRun(edit, later);
    }
    AddToAction(edit, later);
    return true;
}

} // namespace Host
