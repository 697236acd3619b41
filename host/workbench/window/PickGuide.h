#pragma once

#include <QObject>
#include <QPointer>

class QLabel;
class QMainWindow;

namespace Host {

class HostApplication;

/// Shows by cursor and status bar that a click picks a material, and ends it by Escape wherever the focus is.
class PickGuide : public QObject
{
    Q_OBJECT

public:
    PickGuide(HostApplication& host, QMainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsPicking() const;
    void Show();

    HostApplication& m_host;
    QMainWindow& m_window;
    QPointer<QLabel> m_advice;
};

} // namespace Host
