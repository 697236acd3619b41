#pragma once

namespace Host {

struct SceneEdit;

/// Lets \p edit go on with \p later, so that both are one undo step: a run of edits with later ones of the same things,
/// a user action with whatever else belongs to it.
/// \return false when they stay two steps; then \p edit is not to be used any more
bool MergeEdits(SceneEdit& edit, const SceneEdit& later);

} // namespace Host
