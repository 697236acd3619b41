#pragma once

#include "host/scene/Entities.h"
#include "host/workbench/MainWindow.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QListWidget>
#include <QString>

#include <functional>
#include <vector>

namespace Host {

/// One step: what it shows, and what it does; the result is empty when it holds, otherwise it says what does not.
struct TourStep
{
    const char* name;
    std::function<QString()> run;
};

/// What the tour sees and does in the workbench's window: it finds widgets by their names, works them through events as
/// a user does, and reads from the scene and the journal what came of it.
class TourHands
{
public:
    /// \param folder  where the tour leaves its pictures and files
    TourHands(MainWindow& window, const QString& folder);

    MainWindow& Window() const { return m_window; }
    HostApplication& App() const { return m_window.Application(); }
    Scene& CurrentScene() const { return App().CurrentScene(); }

    /// The path of a file that the tour writes.
    QString FileInFolder(const QString& name) const { return m_folder + QLatin1Char('/') + name; }
    /// A file of the demo data that the workbench comes with.
    QString DemoFile(const QString& name) const { return App().DataFolder() + QLatin1String("/demo/") + name; }

    /// Begins a step, whose pictures have \p name in theirs.
    void BeginStep(const char* name);
    /// The user is to get so many messages in this step; none without this. Each cause gives one.
    void ExpectMessages(int count) { m_expectedMessages = count; }
    /// Empty when the user got as many messages in this step as were expected.
    QString CheckMessages() const;
    /// Writes pictures of every window that is open and of the Modify panel alone. \return false when that failed
    bool TakePictures();

    /// Lets the windows lay themselves out and paint.
    static void Settle();

    /// The widget called \p name in the form called \p form, or anywhere without one; null when there is none.
    template <class Widget>
    Widget* Find(const char* name, const char* form = nullptr) const
    {
        const QObject* parent =
            form ? m_window.findChild<QObject*>(QLatin1String(form)) : static_cast<const QObject*>(&m_window);
        return parent ? parent->findChild<Widget*>(QLatin1String(name)) : nullptr;
    }

    /// Clicks a button that can be seen and is enabled. \return what prevents it, if anything
    QString Click(const char* button, const char* form = nullptr) const;
    /// Clicks a row of a list, or double-clicks it.
    static void ClickRow(QListWidget& list, int row, bool twice = false);
    /// Types \p text into a box in place of what it holds and presses Return.
    static void Type(QAbstractSpinBox& box, const QString& text);
    /// Drags the left mouse button over \p widget.
    static void Drag(QWidget& widget, const QPoint& from, const QPoint& to);
    /// Scrolls the Modify panel so that \p widget is seen.
    static void ScrollTo(QWidget& widget);

    /// Does \p use with the modal window that \p trigger opens. \return what prevents it, if anything
    template <class Window>
    QString WithModalWindow(const std::function<QString()>& trigger, const std::function<QString(Window&)>& use) const
    {
        QString told = QStringLiteral("no window came");
        WhenModal([&told, &use](QWidget& modal) {
            auto* window = qobject_cast<Window*>(&modal);
            told = window ? use(*window) : QStringLiteral("another window came: %1").arg(modal.windowTitle());
            modal.close(); // nothing, unless it is still open
        });
        const QString problem = trigger();
        return problem.isEmpty() ? told : problem;
    }
    /// Clicks a button that opens a file dialog, and chooses \p path there.
    QString ChooseFile(const char* button, const char* form, const QString& path) const;

    /// Empty when the panel called \p operation in this step.
    QString CheckCalled(const char* operation) const;
    /// Empty when \p actual is \p expected; else a sentence about \p what.
    static QString CheckNumber(const QString& what, double actual, double expected);

    /// The selected object; null for none.
    const Object* Selected() const;
    /// The cloth that the panel edits: the first one of the selected object that is active; null for none.
    const ClothState* EditedCloth() const;

private:
    void CountProblem();
    static void WhenModal(const std::function<void(QWidget&)>& use);

    MainWindow& m_window;
    QString m_folder;
    QString m_stepName;
    int m_stepNumber = 0;
    int m_journalSize = 0; ///< When the step began.
    int m_problems = 0;    ///< That the host told in this step in a box of its own.
    int m_expectedMessages = 0;
};

/// The steps by subject, in the order in which the tour takes them.
std::vector<TourStep> ModelSteps(TourHands& hands);
std::vector<TourStep> WeightSteps(TourHands& hands);
std::vector<TourStep> TuningSteps(TourHands& hands);
std::vector<TourStep> ProfileSteps(TourHands& hands);
std::vector<TourStep> ClosingSteps(TourHands& hands);

} // namespace Host
