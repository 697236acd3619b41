#include "material/LargePreview.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTimer>

#include <utility>

namespace MV {

CLargePreview::CLargePreview(QLabel* label, Render render)
    : QObject(label)
    , m_label(label)
    , m_render(std::move(render))
{
    label->installEventFilter(this);
}

void CLargePreview::Show(const QPixmap& picture)
{
    m_picture = picture;
    m_larger = QPixmap();
    if (picture.isNull()) {
        m_label->clear();
        return;
    }
    // The label says what it shows to whoever asks it.
    QPixmap fitting = picture.scaled(ShownPixels(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    fitting.setDevicePixelRatio(m_label->devicePixelRatioF());
    m_label->setPixmap(fitting);
}

/// How many pixels the picture has on the screen.
QSize CLargePreview::ShownPixels() const
{
    const QSize room = m_label->contentsRect().size() * m_label->devicePixelRatioF();
    return m_picture.size().scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
}

bool CLargePreview::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint || m_picture.isNull()) {
        return QObject::eventFilter(watched, event);
    }
    Paint();
    RequestLarger();
    return true;
}

void CLargePreview::Paint()
{
    QPainter painter(m_label);
    DrawFrame(painter);
    const QSize pixels = ShownPixels();
    const QPixmap& best = m_larger.isNull() ? m_picture : m_larger;
    QPixmap fitting =
        best.size() == pixels ? best : best.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    fitting.setDevicePixelRatio(m_label->devicePixelRatioF());
    m_label->style()->drawItemPixmap(&painter, m_label->contentsRect(), int(m_label->alignment()), fitting);
}

void CLargePreview::DrawFrame(QPainter& painter) const
{
    QStyleOptionFrame option;
    option.initFrom(m_label);
    option.frameShape = m_label->frameShape();
    option.lineWidth = m_label->frameWidth();
    option.midLineWidth = m_label->midLineWidth();
    option.state.setFlag(QStyle::State_Sunken, m_label->frameShadow() == QFrame::Sunken);
    option.state.setFlag(QStyle::State_Raised, m_label->frameShadow() == QFrame::Raised);
    m_label->style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, m_label);
}

/// A host call can do anything, even end the label: it has to wait until the painting is over.
void CLargePreview::RequestLarger()
{
    const Request request{m_picture.cacheKey(), ShownPixels()};
    const bool isEnough = m_picture.width() >= request.pixels.width() && m_picture.height() >= request.pixels.height();
    if (!isEnough && !(request == m_request)) {
        m_request = request;
        QMetaObject::invokeMethod(this, &CLargePreview::Fetch, Qt::QueuedConnection);
    }
}

/// While a file dialog or a message box is open the panel may be ended at any time, and nobody looks at the preview.
void CLargePreview::Fetch()
{
    if (QApplication::activeModalWidget()) {
        constexpr int patience = 200; // ms
        QTimer::singleShot(patience, this, &CLargePreview::Fetch);
        return;
    }
    const Request request = m_request;
    const QPointer<CLargePreview> self(this);
    // A copy: this object can end in the call.
    const Render render = m_render;
    const QImage image = request.picture == m_picture.cacheKey() ? render(request.pixels) : QImage();
    if (self && !image.isNull() && request.picture == m_picture.cacheKey()) {
        m_larger = QPixmap::fromImage(image);
        m_label->update();
    }
}

} // namespace MV
