#pragma once

namespace Host {

/// Lets the box that the user is typing in commit what is in it, as if the user had left it. To be called before the
/// scene is saved, closed or another object is chosen by a command that does not take the focus.
void CommitFocusedEditor();

/// Whether undo (or redo, for \p redo) belongs to the text that is being typed: there is a text box with the focus in
/// which something was typed that can be taken back.
bool FocusedTextTakesUndo(bool redo);

} // namespace Host
