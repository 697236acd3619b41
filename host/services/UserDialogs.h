#pragma once

#include <QMessageBox>
#include <QString>

#include <optional>

namespace Host {

// The host's own message boxes and file dialogs. Everything may happen behind one: also its parent, or whoever asked
// for it, may be destroyed, and the box with it. A box belongs to the window that the user is in, if that belongs to
// the parent given.

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

/// What a line of text is asked for.
struct TextQuestion
{
    QString title;
    QString label;
    QString text; ///< What is in the line at first.
};

/// Shows a box with a line of text and waits. \return none when the user cancelled or the box was destroyed
std::optional<QString> AskForText(QWidget* parent, const TextQuestion& question);

} // namespace Host
