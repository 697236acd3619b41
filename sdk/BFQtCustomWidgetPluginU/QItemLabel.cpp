#include "BFQtCustomWidgetPluginU/QItemLabel.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QUrl>

#include <utility>

QItemLabel::QItemLabel(QWidget* parent)
    : QLabel(parent)
{
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
}

void QItemLabel::SetSelected(bool selected)
{
    if (m_selected != selected) {
        m_selected = selected;
        update();
    }
}

void QItemLabel::SetFileFilter(const QString& filter)
{
    m_fileFilter = filter;
}

void QItemLabel::SetGetOpenFileNameFunctor(std::function<QString()> functor)
{
    m_getOpenFileName = std::move(functor);
}

void QItemLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QLabel::mousePressEvent(event);
        return;
    }
    event->accept();
    Q_EMIT SelectedChanged();
}

void QItemLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QLabel::mouseDoubleClickEvent(event);
        return;
    }
    event->accept();
    if (!m_getOpenFileName) {
        return;
    }
    // The functor may show a dialog, during which this label can be destroyed.
    const QPointer<QItemLabel> self(this);
    const auto ask = m_getOpenFileName;
    const QString path = ask();
    if (self && !path.isEmpty() && PassesFilter(path)) {
        Q_EMIT PreImageLoaded(path);
    }
}

void QItemLabel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        Q_EMIT SelectedChanged();
        break;
    default:
        QLabel::keyPressEvent(event);
        break;
    }
}

void QItemLabel::dragEnterEvent(QDragEnterEvent* event)
{
    if (FileOf(event->mimeData()).isEmpty()) {
        event->ignore();
    } else {
        event->acceptProposedAction();
    }
}

void QItemLabel::dropEvent(QDropEvent* event)
{
    const QString path = FileOf(event->mimeData());
    if (path.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    Q_EMIT PreImageLoaded(path);
}

void QItemLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!m_selected && !hasFocus()) {
        return;
    }
    QPainter painter(this);
    constexpr int frame = 2;
    const QColor color = palette().color(QPalette::Highlight);
    painter.setPen(QPen(m_selected ? color : color.darker(), frame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(frame / 2, frame / 2, -frame / 2, -frame / 2));
}

bool QItemLabel::PassesFilter(const QString& path) const
{
    const QStringList suffixes = m_fileFilter.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return suffixes.isEmpty() || suffixes.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

QString QItemLabel::FileOf(const QMimeData* mime) const
{
    const QList<QUrl> urls = mime->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile()) {
        return {};
    }
    const QString path = urls.first().toLocalFile();
    return PassesFilter(path) ? path : QString();
}
