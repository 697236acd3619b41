#include "host/workbench/LanguageSwitch.h"

#include "host/workbench/Languages.h"
#include "host/workbench/MainWindow.h"

#include <utility>

namespace Host {

LanguageSwitch::LanguageSwitch(Languages& languages, std::unique_ptr<MainWindow> window)
    : m_languages(languages)
    , m_window(std::move(window))
{
    ConnectWindow();
}

LanguageSwitch::~LanguageSwitch() = default;

void LanguageSwitch::Choose(const QString& code)
{
    if (!m_languages.Choose(code)) {
        return;
    }
    auto next = std::make_unique<MainWindow>(m_window->SharedApplication());
    next->TakeOver(*m_window);
    m_window = std::move(next);
    ConnectWindow();
}

void LanguageSwitch::ConnectWindow()
{
    m_window->OfferLanguages(m_languages);
    // Not at once: the window is asked from one of its own menus, and goes.
    connect(m_window.get(), &MainWindow::LanguageChosen, this, &LanguageSwitch::Choose, Qt::QueuedConnection);
}

} // namespace Host
