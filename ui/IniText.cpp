#include "ui/IniText.h"

#include <functional>
#include <optional>

namespace MV {

namespace {

constexpr const char* byteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

bool IsByteOrderMark(const QByteArray& text, int position)
{
    return qstrncmp(text.constData() + position, byteOrderMark, 3) == 0;
}

/// Goes through a file line by line as QSettings does: quotes and a backslash carry a line on over its end, a semicolon
/// outside of quotes ends it.
class CLines
{
public:
    explicit CLines(const QByteArray& ini)
        : m_ini(ini)
        , m_position(IsByteOrderMark(ini, 0) ? 3 : 0)
    {
    }

    /// Finds the next line that has an equals sign. \return false at the end
    bool Next()
    {
        while (m_position < m_ini.size()) {
            SkipToLine();
            const int start = m_position;
            ReadLine();
            if (m_equals >= 0 && m_ini.at(start) != '[') {
                return true;
            }
        }
        return false;
    }

    int ValueBegin() const { return m_equals + 1; }
    int ValueEnd() const { return m_position; }

private:
    void SkipToLine()
    {
        while (m_position < m_ini.size()) {
            const char c = m_ini.at(m_position);
            if (c == ';') {
                while (m_position < m_ini.size() && !IsLineEnd(m_ini.at(m_position))) {
                    ++m_position;
                }
            } else if (IsBlank(c) || IsLineEnd(c)) {
                ++m_position;
            } else {
                return;
            }
        }
    }

    void ReadLine()
    {
        m_equals = -1;
        bool isQuoted = false;
        for (; m_position < m_ini.size(); ++m_position) {
            const char c = m_ini.at(m_position);
            if (c == '\\') {
                SkipEscaped();
            } else if (c == '"') {
                isQuoted = !isQuoted;
            } else if (c == '=' && !isQuoted && m_equals < 0) {
                m_equals = m_position;
            } else if (!isQuoted && (IsLineEnd(c) || c == ';')) {
                return;
            }
        }
    }

    /// Leaves the position at the last character that the backslash covers; a line end may have two.
    void SkipEscaped()
    {
        if (++m_position + 1 < m_ini.size()) {
            const char c = m_ini.at(m_position);
            const char next = m_ini.at(m_position + 1);
            if (IsLineEnd(c) && IsLineEnd(next) && c != next) {
                ++m_position;
            }
        }
    }

    const QByteArray& m_ini;
    int m_position;
    int m_equals = -1;
};

int DigitOf(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

/// Whether an escape sequence gives "@" by its number. Only its last 16 bits count.
bool HasEscapedAt(const QByteArray& value)
{
    for (int i = value.indexOf('\\'); i >= 0 && i + 1 < value.size(); i = value.indexOf('\\', i)) {
        const bool isHex = value.at(i + 1) == 'x';
        const int base = isHex ? 16 : 8;
        quint16 number = 0;
        int digit = i + (isHex ? 2 : 1);
        for (; digit < value.size() && DigitOf(value.at(digit)) < base; ++digit) {
            number = quint16(number * unsigned(base) + unsigned(DigitOf(value.at(digit))));
        }
        if (number == '@') {
            return true;
        }
        i = qMax(digit, i + 2);
    }
    return false;
}

/// The value with "@" doubled where it begins an element. There are no escape sequences in it.
QByteArray WithDoubledAts(const QByteArray& value)
{
    QByteArray result;
    bool isQuoted = false;
    bool isBeginning = true;
    for (int i = 0; i < value.size(); ++i) {
        const char c = value.at(i);
        if (isBeginning && IsByteOrderMark(value, i)) {
            result += byteOrderMark;
            i += 2;
            continue;
        }
        if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == ',' && !isQuoted) {
            isBeginning = true;
        } else if (isBeginning && !(IsBlank(c) && !isQuoted)) {
            if (c == '@') {
                result += '@';
            }
            isBeginning = false;
        }
        result += c;
    }
    return result;
}

/// A harmless text in place of \p value; none when it is harmless as it is.
std::optional<QByteArray> HarmlessValue(const QByteArray& value)
{
    const bool hasEscapes = value.contains('\\');
    if (hasEscapes) {
        return value.contains('@') || HasEscapedAt(value) ? std::make_optional(QByteArray()) : std::nullopt;
    }
    if (!value.contains('@')) {
        return std::nullopt;
    }
    const QByteArray doubled = WithDoubledAts(value);
    return doubled == value ? std::nullopt : std::make_optional(doubled);
}

/// The file with what \p replace makes of each value that is not harmless.
/// \param replace  gets the value and its harmless text
QByteArray WithValues(const QByteArray& ini,
                      const std::function<QByteArray(const QByteArray&, const QByteArray&)>& replace)
{
    if (!ini.contains('@') && !ini.contains('\\')) {
        return ini;
    }
    QByteArray result;
    int copied = 0;
    for (CLines lines(ini); lines.Next();) {
        const QByteArray value = ini.mid(lines.ValueBegin(), lines.ValueEnd() - lines.ValueBegin());
        if (const auto harmless = HarmlessValue(value)) {
            result += ini.mid(copied, lines.ValueBegin() - copied) + replace(value, *harmless);
            copied = lines.ValueEnd();
        }
    }
    return result + ini.mid(copied);
}

/// The value so that it ends at its end: at the end of a file, it can lack a quote or what a backslash covers.
QByteArray Completed(const QByteArray& value)
{
    bool isQuoted = false;
    bool isEscaped = false;
    for (const char c : value) {
        if (isEscaped) {
            isEscaped = false;
        } else if (c == '\\') {
            isEscaped = true;
        } else if (c == '"') {
            isQuoted = !isQuoted;
        }
    }
    return value + (isEscaped ? "\\" : "") + (isQuoted ? "\"" : "");
}

/// The beginning of words that occur nowhere in \p ini.
QByteArray UnusedWord(const QByteArray& ini)
{
    QByteArray word;
    int number = 0;
    do {
        word = "kept" + QByteArray::number(number++) + 'v';
    } while (ini.contains(word));
    return word;
}

} // namespace

QByteArray HarmlessForReading(const QByteArray& ini)
{
    return WithValues(ini, [](const QByteArray& /*value*/, const QByteArray& harmless) { return harmless; });
}

CShelteredIni::CShelteredIni(const QByteArray& ini)
{
    const QByteArray beginning = UnusedWord(ini);
    m_content = WithValues(ini, [&](const QByteArray& value, const QByteArray& /*harmless*/) {
        // The letter behind the number keeps one word from being the beginning of another.
        const QByteArray word = beginning + QByteArray::number(m_kept.size()) + 'e';
        m_kept.append({word, Completed(value)});
        return word;
    });
}

QByteArray CShelteredIni::Restored(QByteArray written) const
{
    for (const Kept& kept : m_kept) {
        const int found = written.indexOf('=' + kept.word);
        if (found >= 0) {
            written.replace(found + 1, kept.word.size(), kept.text);
        }
    }
    return written;
}

} // namespace MV
