#pragma once

#include <QByteArray>

namespace MV {

/// Goes through the text of an INI file line by line as QSettings does: quotes and a backslash carry a line on over its
/// end, a semicolon outside of quotes ends it. Blank lines and comments are passed over.
class CIniLines
{
public:
    /// \param ini  must outlive the object
    explicit CIniLines(const QByteArray& ini);

    /// Goes to the next line. \return false at the end
    bool Next();

    /// Whether the line names the group of the lines behind it.
    bool IsHeader() const;
    /// Whether the line holds a key and a value.
    bool HasValue() const { return m_equals >= 0 && !IsHeader(); }

    // Positions in the text.
    int Begin() const { return m_begin; }
    int End() const { return m_position; }
    int KeyEnd() const { return m_equals; }         ///< Only while HasValue().
    int ValueBegin() const { return m_equals + 1; } ///< Only while HasValue().

private:
    void SkipToLine();
    void ReadLine();
    void SkipEscaped();

    const QByteArray& m_ini;
    int m_begin = 0;
    int m_position;
    int m_equals = -1;
};

/// Whether \p c is white space within a line.
bool IsIniBlank(char c);

/// Whether \p text has a byte order mark of UTF-8 at \p position.
bool IsByteOrderMark(const QByteArray& text, int position);

/// The bytes of that mark.
inline constexpr int byteOrderMarkSize = 3;

} // namespace MV
