#pragma once

#include <QObject>

class QMainWindow;

namespace Host {

class HostApplication;

/// The middle of the workbench: the view of the model with the host calls below, or the host calls alone where nothing
/// can be drawn.
class Centre : public QObject
{
    Q_OBJECT

public:
    Centre(HostApplication& host, QMainWindow& window);

private:
    void ShowCallsBelow(QWidget* calls);
    void ShowCallsAlone(QWidget* calls, const QString& reason);

    QMainWindow& m_window;
};

} // namespace Host
