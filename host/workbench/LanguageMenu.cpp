#include "host/workbench/LanguageMenu.h"

#include "host/workbench/Languages.h"

#include <QActionGroup>

namespace Host {

LanguageMenu::LanguageMenu(QWidget* parent)
    : QMenu(tr("&Language"), parent)
{
    setObjectName(QStringLiteral("languageMenu"));
}

void LanguageMenu::Offer(const Languages& languages)
{
    clear();
    auto* group = new QActionGroup(this);
    const auto offer = [&](const QString& name, const QString& code) {
        QAction* action = addAction(name, this, [this, code] { Q_EMIT Chosen(code); });
        action->setObjectName(QLatin1String("language_") + code);
        action->setCheckable(true);
        action->setChecked(code == languages.Chosen());
        group->addAction(action);
    };
    offer(tr("&System Language"), {});
    addSeparator();
    for (const QString& code : languages.Codes()) {
        const QString name = Languages::NameOf(code);
        if (!name.isEmpty()) {
            offer(name, code);
        }
    }
}

} // namespace Host
