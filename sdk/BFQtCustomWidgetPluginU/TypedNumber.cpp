#include "BFQtCustomWidgetPluginU/TypedNumber.h"

#include <QLocale>

TypedNumber::TypedNumber(const QString& text, const QString& prefix, const QString& suffix, const QLocale& locale)
    : m_text(text)
    , m_prefixLength(prefix.size())
    , m_decimalPoint(locale.decimalPoint())
{
    const int start = text.startsWith(prefix) ? prefix.size() : 0;
    const int afterPrefix = text.size() - start;
    const int length = !suffix.isEmpty() && text.endsWith(suffix) && afterPrefix >= suffix.size()
                           ? afterPrefix - suffix.size()
                           : afterPrefix;
    // A blank at an end is none of the number's: it may be what is left of a suffix.
    const QString number = text.mid(start, length).trimmed();
    const int numberStart = text.indexOf(number, start);
    for (int i = 0; i < number.size(); ++i) {
        const QChar character = number.at(i);
        const bool isSeparator =
            character == m_decimalPoint || character == QLatin1Char('.') || character == QLatin1Char(',');
        m_refused = m_refused || (isSeparator && HasSeparator()) || character.isSpace() ||
                    (!isSeparator && character == locale.groupSeparator());
        if (isSeparator) {
            m_separator = numberStart + i;
        }
    }
}

QString TypedNumber::InLocale() const
{
    QString text = m_text;
    if (HasSeparator()) {
        text[m_separator] = m_decimalPoint;
    }
    return text;
}

QString TypedNumber::AsTyped(const QString& inLocale) const
{
    QString text = inLocale;
    const int separator = HasSeparator() ? text.indexOf(m_decimalPoint, m_prefixLength) : -1;
    if (separator >= 0) {
        text[separator] = m_text.at(m_separator);
    }
    return text;
}
