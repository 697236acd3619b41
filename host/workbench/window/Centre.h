#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMainWindow;
class QWidget;

namespace Host {

class HostApplication;

/// The middle of the workbench: the view of the model with the host calls below, or the host calls alone where nothing
/// can be drawn.
class Centre : public QObject
{
    Q_OBJECT

public:
    Centre(HostApplication& host, QMainWindow& window);

    /// The view of the model; null where there is none.
    QWidget* View() const { return m_view; }
    /// Commands of the view for the window's menu; none where there is no view.
    QList<QAction*> Commands() const;
    /// Shows the same of the model as \p other does.
    void TakeOver(const Centre& other);

private:
    void ShowCallsBelow(QWidget* calls);
    void ShowCallsAlone(QWidget* calls, const QString& reason);

    QMainWindow& m_window;
    QWidget* m_view = nullptr;
};

} // namespace Host
