#pragma once

class QString;
class QWidget;

namespace MV::Internal {

/// Applies a layout file to a loaded form.
///
/// The file is an INI file with a group per form, named like the form's top widget. Each entry
/// `objectName/property=value` sets a property of the form's top widget or of an object below it through the
/// meta-object; enumerations and flags are given by key, sizes in the settings store's own form
/// (`@Size(96 24)`) or as two whole numbers with a blank between them. Entries are applied in alphabetical order, so
/// that a range is set before the value.
///
/// An entry that names an unknown object or property, or a value that the property does not take, is reported once
/// with a warning and skipped. An empty \p iniPath does nothing.
void ApplyLayoutIni(const QString& iniPath, QWidget* form);

} // namespace MV::Internal
