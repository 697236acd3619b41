#pragma once

#include <QFileDialog>

#include <functional>

/// Deals with the file dialogs that the code under test opens, as a user would. A dialog that stays open in spite of
/// that is closed after some seconds, and the test fails.
namespace UserDialogs {

/// Runs \p trigger, lets \p use deal with the file dialog that it opens, and fails the test when none comes.
void WithFileDialog(const std::function<void()>& trigger, const std::function<void(QFileDialog&)>& use);

/// Runs \p trigger, types \p path into the file dialog that it opens and accepts; an empty path cancels.
/// \param accepted  run after the choice and before the code under test knows of it
void ChooseFile(const std::function<void()>& trigger, const QString& path, const std::function<void()>& accepted = {});

/// Whether \p trigger opens a modal dialog; one that comes is closed.
bool OpensDialog(const std::function<void()>& trigger);

} // namespace UserDialogs
