#pragma once

#include <QMessageBox>
#include <QString>

class QFileDialog;

namespace Host {

// The host's own message boxes and file dialogs. Everything may happen behind one: also its parent, or whoever asked
// for it, may be destroyed, and the box with it.

/// What is in a message box.
struct UserQuestion
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;

    /// What closing the box without a choice counts as: Cancel where there is one.
    QMessageBox::StandardButton EscapeAnswer() const;
};

/// Shows a message box and waits for the answer; a box that was destroyed answers as one that was closed.
QMessageBox::StandardButton AskUser(QWidget* parent, const UserQuestion& question);

/// What a file dialog is for.
struct FileQuestion
{
    QString title;
    QString filter;
    bool isForSaving = false;
    QString defaultSuffix; ///< For saving, without a dot.
    QString start;         ///< A file name or a path to begin with.
};

/// Shows a file dialog and waits for one file. \return an empty path when the user cancelled or the dialog was
/// destroyed
QString AskForFile(QWidget* parent, const FileQuestion& question);

} // namespace Host
