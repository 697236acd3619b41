#pragma once

#include <QObject>

class QAction;
class QMainWindow;

namespace Host {

class HostApplication;

/// The command that opens and closes the weight map dialog, in the menu View and in a tool bar.
class PanelActions : public QObject
{
    Q_OBJECT

public:
    PanelActions(HostApplication& host, QMainWindow& window);

    QAction* WeightMapDialog() const { return m_weightMap; }

private:
    void ShowMode();

    HostApplication& m_host;
    QAction* m_weightMap;
};

} // namespace Host
