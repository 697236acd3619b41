#pragma once

#include <QString>
#include <QVariant>

/// The texts of keys and values in an INI file, as QSettings writes and reads them.
namespace MV {

/// The name of a key or of a group that the bytes from \p begin to \p end stand for.
QString IniKey(const char* begin, const char* end);

/// The value that the bytes from \p begin to \p end stand for: a text, a list of texts where commas separate elements,
/// or nothing, which is how QSettings writes a list without elements.
///
/// Objects, which QSettings keeps in texts that begin with "@", are texts like any other here. Of two such signs at the
/// beginning of an element the first one only says that it is a text.
QVariant IniValue(const char* begin, const char* end);

} // namespace MV
