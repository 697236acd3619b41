#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace Host {

/// The languages that the workbench and the plug-in in it can be shown in. A language is known by its code, as in "de"
/// or "zh_TW"; English, "en", is what the sources hold.
class Languages
{
public:
    /// \param folders  where the files lie: softcloth_<code>.qm for the plug-in, workbench_<code>.qm for the workbench
    ///                 and, where Qt's own folder has none, qtbase_<code>.qm for Qt
    explicit Languages(QStringList folders);
    ~Languages();
    Q_DISABLE_COPY_MOVE(Languages)

    /// The codes for which there is a file, in alphabetical order, after English.
    const QStringList& Codes() const { return m_codes; }

    /// Shows texts in a language from now on; what is shown already learns of it by QEvent::LanguageChange.
    /// \param code  one of Codes(), or empty for the language of the system
    /// \return false, and nothing changes, for another code
    bool Choose(const QString& code);

    /// What was chosen last; empty for the language of the system.
    const QString& Chosen() const { return m_chosen; }

    /// Keeps what the user has chosen for the next start.
    static void Remember(const QString& code);
    /// What was kept; empty for the language of the system.
    static QString Remembered();

    /// The name of a language in that language; empty for a code that no language has.
    static QString NameOf(const QString& code);

    /// The language among \p codes for somebody who reads \p wanted, the best first, as in "de-AT" or "zh-Hant-HK":
    /// the first one whose language and script are there; English if none is.
    static QString BestOf(const QStringList& codes, const QStringList& wanted);

private:
    void Install(const QString& file, const QStringList& folders);

    QStringList m_folders;
    QStringList m_codes;
    QString m_chosen;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Host
