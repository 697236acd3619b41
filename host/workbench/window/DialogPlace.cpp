#include "host/workbench/window/DialogPlace.h"

#include <MVPluginQt/PluginDialog.h>

#include <QApplication>
#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace Host {

namespace {

constexpr int gap = 8;
/// What a window manager puts around a window, before it has done so.
constexpr QSize frame(8, 32);

} // namespace

QPoint PlaceBeside(const QRect& panel, const QSize& size, const QRect& screen)
{
    const QSize outer = size + frame;
    int left = panel.left() - gap - outer.width();
    if (left < screen.left() && panel.right() + gap + outer.width() <= screen.right()) {
        left = panel.right() + gap;
    }
    const int top = std::min(panel.top(), screen.bottom() + 1 - outer.height());
    return {std::max(left, screen.left()), std::max(top, screen.top())};
}

DialogPlace::DialogPlace(QWidget* panel, QObject* parent)
    : QObject(parent)
    , m_panel(panel)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool DialogPlace::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && !event->spontaneous() && m_panel && m_panel->isVisible()) {
        auto* dialog = qobject_cast<MV::CPluginDialog*>(watched);
        if (dialog && !dialog->isModal() && !dialog->testAttribute(Qt::WA_Moved)) {
            const QRect panel(m_panel->mapToGlobal({}), m_panel->size());
            const QRect screen = m_panel->screen()->availableGeometry();
            dialog->resize(dialog->size().boundedTo(screen.size() - frame));
            dialog->move(PlaceBeside(panel, dialog->size(), screen));
        }
    }
    return false;
}

} // namespace Host
