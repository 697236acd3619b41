#pragma once

class QMainWindow;
class QRect;
class QSize;

namespace Host {

/// The size of the first window on a screen of which \p available is free: as large as is comfortable, and never larger
/// than the screen allows with the window's own frame.
QSize FirstWindowSize(const QRect& available);

/// Keeps place, size and docks of \p window for the next run.
void KeepWindowState(const QMainWindow& window);
/// Puts \p window and its docks where they were in the last run, or in the middle of the screen in the first one.
void RestoreWindowState(QMainWindow& window);

} // namespace Host
