#pragma once

#include <QMenu>

namespace Host {

class Languages;

/// The menu from which the user chooses a language.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent = nullptr);

    /// Offers the language of the system and each language by its own name; the chosen one is ticked.
    void Offer(const Languages& languages);

Q_SIGNALS:
    /// The user has chosen a language of those offered; empty for the system's.
    void Chosen(const QString& code);
};

} // namespace Host
