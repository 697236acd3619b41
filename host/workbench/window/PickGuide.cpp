#include "host/workbench/window/PickGuide.h"

#include "host/services/HostApplication.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace Host {

PickGuide::PickGuide(HostApplication& host, QMainWindow& window)
    : QObject(&window)
    , m_host(host)
    , m_window(window)
    , m_advice(new QLabel(tr("Click a material to pick it; Escape ends picking.")))
{
    m_advice->setObjectName(QStringLiteral("pickAdvice"));
    window.statusBar()->addPermanentWidget(m_advice);
    m_advice->hide();
    QCoreApplication::instance()->installEventFilter(this);
    connect(&host, &HostApplication::StateChanged, this, &PickGuide::Show);
    connect(&host, &HostApplication::SceneReplaced, this, &PickGuide::Show);
}

bool PickGuide::IsPicking() const
{
    return m_host.CurrentScene().pickMode == MV::EPickMode::Material;
}

void PickGuide::Show()
{
    if (!m_advice) {
        return;
    }
    m_advice->setVisible(IsPicking());
    if (IsPicking()) {
        m_window.setCursor(Qt::CrossCursor);
    } else {
        m_window.unsetCursor();
    }
}

bool PickGuide::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress && watched->isWidgetType();
    if (!isKey || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape || !IsPicking() ||
        QApplication::activePopupWidget() || QApplication::activeModalWidget()) {
        return false;
    }
    m_host.SetPickMode(MV::EPickMode::None);
    return true;
}

} // namespace Host
