#include "ui/IniLines.h"

namespace MV {

namespace {

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

} // namespace

bool IsIniBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool IsByteOrderMark(const QByteArray& text, int position)
{
    return qstrncmp(text.constData() + position, "\xEF\xBB\xBF", byteOrderMarkSize) == 0;
}

CIniLines::CIniLines(const QByteArray& ini)
    : m_ini(ini)
    , m_position(IsByteOrderMark(ini, 0) ? byteOrderMarkSize : 0)
{
}

bool CIniLines::Next()
{
    SkipToLine();
    m_begin = m_position;
    ReadLine();
    return m_begin < m_position;
}

bool CIniLines::IsHeader() const
{
    return m_begin < m_ini.size() && m_ini.at(m_begin) == '[';
}

void CIniLines::SkipToLine()
{
    while (m_position < m_ini.size()) {
        const char c = m_ini.at(m_position);
        if (c == ';') {
            while (m_position < m_ini.size() && !IsLineEnd(m_ini.at(m_position))) {
                ++m_position;
            }
        } else if (IsIniBlank(c) || IsLineEnd(c)) {
            ++m_position;
        } else {
            return;
        }
    }
}

void CIniLines::ReadLine()
{
    m_equals = -1;
    bool isQuoted = false;
    while (m_position < m_ini.size()) {
        const char c = m_ini.at(m_position);
        if (!isQuoted && (IsLineEnd(c) || c == ';')) {
            return;
        }
        if (c == '\\') {
            SkipEscaped();
        } else if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == '=' && !isQuoted && m_equals < 0) {
            m_equals = m_position;
        }
        ++m_position;
    }
}

/// Leaves the position at the last character that the backslash covers; a line end may have two.
void CIniLines::SkipEscaped()
{
    if (m_position + 1 >= m_ini.size()) {
        return;
    }
    ++m_position;
    if (m_position + 1 < m_ini.size()) {
        const char c = m_ini.at(m_position);
        const char next = m_ini.at(m_position + 1);
        if (IsLineEnd(c) && IsLineEnd(next) && c != next) {
            ++m_position;
        }
    }
}

} // namespace MV
