#pragma once

#include <QString>

class QLocale;

/// The number in the text of a spin box while it is typed, between the box's prefix and suffix.
///
/// People type a point or a comma as their keyboard has it, whatever the locale: both are the decimal point. Thousands
/// separators, which would be mistaken for one, are refused.
class TypedNumber
{
public:
    TypedNumber(const QString& text, const QString& prefix, const QString& suffix, const QLocale& locale);

    /// Whether there is anything but one number: a thousands separator, a blank, or a second decimal point.
    bool IsRefused() const { return m_refused; }
    /// Whether there is a point or a comma.
    bool HasSeparator() const { return m_separator >= 0; }

    /// The whole text with the locale's own decimal point.
    QString InLocale() const;
    /// \p inLocale, which a spin box may have completed, with the decimal point as it was typed.
    QString AsTyped(const QString& inLocale) const;

private:
    QString m_text;
    int m_prefixLength;
    int m_separator = -1; ///< Its place in the text; negative for none.
    QChar m_decimalPoint;
    bool m_refused = false;
};
