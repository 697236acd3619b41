#include "ui/IniValue.h"

#include "ui/IniLines.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <cstring>

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

/// Reads a percent sign and the number of a character behind it. \return behind it; or \p at when it is none
const char* ReadKeyEscape(const char* at, const char* end, QString& key)
{
    const bool isLong = end - at > 1 && at[1] == 'U';
    const int digits = isLong ? 4 : 2;
    const char* const number = at + (isLong ? 2 : 1);
    if (end - number < digits) {
        return at;
    }
    bool isNumber = false;
    const int code = QByteArray(number, digits).toInt(&isNumber, 16);
    if (!isNumber) {
        return at;
    }
    key += QChar(code);
    return number + digits;
}

/// Takes a value apart into its elements.
class CElements
{
public:
    CElements(const char* begin, const char* end)
        : m_at(begin)
        , m_end(end)
    {
    }

    QVariant Read();

private:
    void ReadElement();
    void ReadPlain();
    void ReadEscape();
    void ReadNumber(int base);
    void SkipBlanks();
    void ChopBlanks();

    const char* m_at;
    const char* m_end;
    QString m_text;          ///< The element so far.
    int m_kept = 0;          ///< Up to where it is no plain text: blanks there stay.
    bool m_isQuoted = false; ///< Whether we are between quotes.
    bool m_hadQuotes = false;
};

/// The element without the sign that says that it is a text.
QString Unmarked(const QString& element)
{
    return element.startsWith(QLatin1String("@@")) ? element.mid(1) : element;
}

QVariant CElements::Read()
{
    ReadElement();
    if (m_at == m_end) {
        return m_text == QLatin1String("@Invalid()") ? QVariant() : QVariant(Unmarked(m_text));
    }
    QStringList list{Unmarked(m_text)};
    while (m_at < m_end) {
        ++m_at;
        ReadElement();
        list.append(Unmarked(m_text));
    }
    return list;
}

/// Reads up to the comma that ends the element, or to the end.
void CElements::ReadElement()
{
    m_text.clear();
    m_kept = 0;
    m_hadQuotes = false;
    SkipBlanks();
    while (m_at < m_end) {
        const char c = *m_at;
        if (c == '\\') {
            ReadEscape();
            m_kept = m_text.size();
        } else if (c == '"') {
            ++m_at;
            m_hadQuotes = true;
            m_isQuoted = !m_isQuoted;
            if (!m_isQuoted) {
                SkipBlanks();
            }
        } else if (c == ',' && !m_isQuoted) {
            break;
        } else {
            ReadPlain();
        }
    }
    if (!m_hadQuotes) {
        ChopBlanks();
    }
}

void CElements::ReadPlain()
{
    const char* const end = std::find_if(m_at + 1, m_end, [](char c) { return c == '\\' || c == '"' || c == ','; });
    m_text += QString::fromUtf8(m_at, int(end - m_at));
    m_at = end;
}

void CElements::ReadEscape()
{
    if (++m_at == m_end) {
        return;
    }
    static constexpr char letters[] = "abfnrtv\"?'\\";
    static constexpr char meanings[] = "\a\b\f\n\r\t\v\"?'\\";
    const char c = *m_at;
    const char* const letter = c != '\0' ? std::strchr(letters, c) : nullptr;
    if (letter) {
        ++m_at;
        m_text += QLatin1Char(meanings[letter - letters]);
    } else if (c == 'x') {
        ++m_at;
        if (m_at < m_end && DigitOf(*m_at) < 16) {
            ReadNumber(16);
        }
    } else if (DigitOf(c) < 8) {
        ReadNumber(8);
    } else {
        ++m_at;
        // A line that goes on behind its end, which may have two characters.
        const bool isLineEnd = c == '\n' || c == '\r';
        if (isLineEnd && m_at < m_end && (*m_at == '\n' || *m_at == '\r') && *m_at != c) {
            ++m_at;
        }
    }
}

void CElements::ReadNumber(int base)
{
    unsigned number = 0;
    for (; m_at < m_end && DigitOf(*m_at) < base; ++m_at) {
        number = number * unsigned(base) + unsigned(DigitOf(*m_at));
    }
    m_text += QChar(ushort(number));
}

void CElements::SkipBlanks()
{
    while (m_at < m_end && IsIniBlank(*m_at)) {
        ++m_at;
    }
}

void CElements::ChopBlanks()
{
    int size = m_text.size();
    while (size > m_kept && IsIniBlank(m_text.at(size - 1).toLatin1())) {
        --size;
    }
    m_text.truncate(size);
}

} // namespace

QString IniKey(const char* begin, const char* end)
{
    if (std::none_of(begin, end, [](char c) { return c == '%' || c == '\\'; })) {
        return QString::fromLatin1(begin, int(end - begin));
    }
    QString key;
    for (const char* at = begin; at < end;) {
        const char* const behind = *at == '%' ? ReadKeyEscape(at, end, key) : at;
        if (behind == at) {
            key += *at == '\\' ? QLatin1Char('/') : QLatin1Char(*at);
            ++at;
        } else {
            at = behind;
        }
    }
    return key;
}

QVariant IniValue(const char* begin, const char* end)
{
    return CElements(begin, end).Read();
}

} // namespace MV
