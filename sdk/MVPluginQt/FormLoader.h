#pragma once

class QString;
class QWidget;

namespace MV::Internal {

/// Loads the form \p path into \p parent, custom widgets of the host included.
/// \param workingFolder  where relative file names inside the form start from; empty for the form's own folder
/// \return the form's top widget, owned by \p parent; null, after a warning, when the form cannot be read
QWidget* LoadForm(const QString& path, const QString& workingFolder, QWidget* parent);

} // namespace MV::Internal
