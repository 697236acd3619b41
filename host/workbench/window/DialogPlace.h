#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>

namespace Host {

/// Where a window of \p size goes so that it does not cover \p panel: to its left at the same height or, where there is
/// no room, to its right; within \p screen in any case.
QPoint PlaceBeside(const QRect& panel, const QSize& size, const QRect& screen);

/// Opens the modeless dialogs that the plug-in brings beside the panel instead of over it. From then on they stay where
/// the user puts them.
class DialogPlace : public QObject
{
    Q_OBJECT

public:
    DialogPlace(QWidget* panel, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> m_panel;
};

} // namespace Host
