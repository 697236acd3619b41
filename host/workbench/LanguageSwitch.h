#pragma once

#include <QObject>

#include <memory>

namespace Host {

class Languages;
class MainWindow;

/// Keeps the workbench's window and exchanges it for another one when the user chooses another language. The new one
/// shows the same host, with the plug-in started again: so every text, the plug-in's included, is asked for again.
class LanguageSwitch : public QObject
{
    Q_OBJECT

public:
    /// \param languages  outlives the switch
    LanguageSwitch(Languages& languages, std::unique_ptr<MainWindow> window);
    ~LanguageSwitch() override;

    /// The window of the moment.
    MainWindow& Window() { return *m_window; }

    /// Shows everything in another language. Does nothing for a code that is none of the languages'.
    void Choose(const QString& code);

private:
    void ConnectWindow();

    Languages& m_languages;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace Host
