#pragma once

class QDir;
class QIODevice;
class QString;
class QWidget;

namespace MV::Internal {

/// Builds the form in \p device through Qt UI Tools, custom widgets of the host included.
/// \param workingFolder  where relative file names inside the form start from
/// \param error  what is wrong with the form, when it cannot be built
/// \return the form's top widget, owned by \p parent; null when the form cannot be built
QWidget* ReadFormWithUiTools(QIODevice& device, const QDir& workingFolder, QWidget* parent, QString& error);

} // namespace MV::Internal
