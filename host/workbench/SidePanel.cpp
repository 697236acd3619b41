#include "host/workbench/SidePanel.h"

#include <QEvent>
#include <QScrollBar>

namespace Host {

SidePanel::SidePanel(QWidget* parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

bool SidePanel::eventFilter(QObject* watched, QEvent* event)
{
    // The base class watches its widget already, for its own scroll bars.
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        setMinimumWidth(widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width());
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace Host
