#include "ui/IniText.h"

#include "ui/IniLines.h"

namespace MV {

namespace {

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

/// Whether an element begins with "@". There are no escape sequences in the value.
bool HasLeadingAt(const QByteArray& value)
{
    bool isQuoted = false;
    bool isBeginning = true;
    for (int i = 0; i < value.size(); ++i) {
        const char c = value.at(i);
        if (isBeginning && IsByteOrderMark(value, i)) {
            i += byteOrderMarkSize - 1;
        } else if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == ',' && !isQuoted) {
            isBeginning = true;
        } else if (isBeginning && (isQuoted || !IsIniBlank(c))) {
            if (c == '@') {
                return true;
            }
            isBeginning = false;
        }
    }
    return false;
}

/// Whether QSettings might see an object in \p value, or writes it otherwise than it was.
bool MayBeObject(const QByteArray& value)
{
    if (value.contains('\\')) {
        return value.contains('@') || HasEscapedAt(value);
    }
    return value.contains('@') && HasLeadingAt(value);
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

CShelteredIni::CShelteredIni(const QByteArray& ini)
    : m_content(ini)
{
    if (!ini.contains('@') && !ini.contains('\\')) {
        return;
    }
    const QByteArray beginning = UnusedWord(ini);
    m_content.clear();
    int copied = 0;
    for (CIniLines line(ini); line.Next();) {
        const QByteArray value = line.HasValue() ? ini.mid(line.ValueBegin(), line.End() - line.ValueBegin()) : "";
        if (MayBeObject(value)) {
            // The letter behind the number keeps one word from being the beginning of another.
            const QByteArray word = beginning + QByteArray::number(m_kept.size()) + 'e';
            m_kept.append({word, Completed(value)});
            m_content += ini.mid(copied, line.ValueBegin() - copied) + word;
            copied = line.End();
        }
    }
    m_content += ini.mid(copied);
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
