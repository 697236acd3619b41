#pragma once

#include <QObject>

namespace Host {

class HostApplication;

/// Tells the host where one user action ends and the next one begins: at each event of mouse or keyboard and each time
/// the program waits. What is written in between, as all values of a preset are, becomes one undo step.
class UserActions : public QObject
{
    Q_OBJECT

public:
    explicit UserActions(HostApplication& host, QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Begin() const;

    HostApplication& m_host;
};

} // namespace Host
