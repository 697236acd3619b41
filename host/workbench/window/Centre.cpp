#include "host/workbench/window/Centre.h"

#include "host/services/HostApplication.h"
#include "host/workbench/HostCallsView.h"

#ifdef SOFTCLOTH_HAS_VIEWPORT
#include "host/viewport/GlProbe.h"
#include "host/viewport/ViewActions.h"
#include "host/viewport/ViewportWidget.h"
#endif

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QVBoxLayout>

namespace Host {

Centre::Centre(HostApplication& host, QMainWindow& window)
    : QObject(&window)
    , m_window(window)
{
    auto* calls = new HostCallsView(host.Journal(), &window);
#ifdef SOFTCLOTH_HAS_VIEWPORT
    if (HasViewportGl()) {
        m_view = new ViewportWidget(host, &window);
        window.setCentralWidget(m_view);
        ShowCallsBelow(calls);
        return;
    }
    ShowCallsAlone(calls, tr("The model is not shown, because there is no OpenGL 3.3 on this display."));
#else
    ShowCallsAlone(calls, tr("The model is not shown, because this workbench was built without a view of it."));
#endif
}

QList<QAction*> Centre::Commands() const
{
#ifdef SOFTCLOTH_HAS_VIEWPORT
    if (const auto* view = static_cast<ViewportWidget*>(m_view)) {
        const ViewActions& actions = view->Actions();
        return {actions.ShowWeights(), actions.FrameSelection(), actions.FrameAll()};
    }
#endif
    return {};
}

void Centre::TakeOver([[maybe_unused]] const Centre& other)
{
#ifdef SOFTCLOTH_HAS_VIEWPORT
    if (m_view && other.m_view) {
        static_cast<ViewportWidget*>(m_view)->TakeOver(*static_cast<ViewportWidget*>(other.m_view));
    }
#endif
}

void Centre::ShowCallsBelow(QWidget* calls)
{
    auto* dock = new QDockWidget(tr("Host Calls"), &m_window);
    dock->setObjectName(QStringLiteral("callsDock"));
    dock->setWidget(calls);
    m_window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    m_window.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    constexpr int height = 180;
    m_window.resizeDocks({dock}, {height}, Qt::Vertical);
}

void Centre::ShowCallsAlone(QWidget* calls, const QString& reason)
{
    auto* centre = new QWidget(&m_window);
    auto* label = new QLabel(reason, centre);
    label->setObjectName(QStringLiteral("viewportMissing"));
    label->setWordWrap(true);
    constexpr int margin = 6;
    label->setMargin(margin);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(label);
    layout->addWidget(calls, 1);
    m_window.setCentralWidget(centre);
}

} // namespace Host
