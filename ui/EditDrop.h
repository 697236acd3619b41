#pragma once

class QWidget;

/// What the user has typed, stepped or dragged and not committed belongs to what was shown then. Before something else
/// is shown it is dropped: it must not be written to that.
namespace MV {

/// Drops the edits that the user has begun in \p root and the widgets inside it and not committed. Nothing is written.
///
/// A widget that has a function DropEdit() is asked to, and shows the value from before the edit. A spin box that has
/// none, as another widget library's may, loses the focus for a moment, and what it commits at that is ignored; it is
/// the caller's to show another value.
void DropEdits(QWidget& root);

/// Whether DropEdits() is at work. What a box commits now is not to be written.
bool IsDroppingEdits();

} // namespace MV
