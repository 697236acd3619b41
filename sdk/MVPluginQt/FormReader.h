#pragma once

class QDir;
class QIODevice;
class QString;
class QWidget;

namespace MV::Internal {

/// Builds the form in \p device as ReadFormWithUiTools() does, for a Qt without UI Tools. Knows the widgets, layouts
/// and properties of the panel's forms; anything else is skipped with a warning. \param workingFolder  where
/// relative file names inside the form start from \param error  what is wrong with the form, when it cannot be built
/// \return the form's top widget, owned by \p parent; null when the form cannot be built
QWidget* ReadForm(QIODevice& device, const QDir& workingFolder, QWidget* parent, QString& error);

} // namespace MV::Internal
