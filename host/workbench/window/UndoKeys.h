#pragma once

#include <QObject>

namespace Host {

class HostApplication;

/// Lets the keys for undo and redo reach the scene from every window of the application: from text boxes in which
/// there is nothing to take back, and from the modal dialogs that the plug-in brings.
class UndoKeys : public QObject
{
    Q_OBJECT

public:
    explicit UndoKeys(HostApplication& host, QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    HostApplication& m_host;
};

} // namespace Host
