#pragma once

#include <QScrollArea>

namespace Host {

/// A column of controls at the window's side: scrolls vertically and is never narrower than its controls.
class SidePanel : public QScrollArea
{
    Q_OBJECT

public:
    explicit SidePanel(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Host
