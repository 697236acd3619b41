#include "MVPluginQt/AbstractSection.h"

#include <QGroupBox>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>
#include <QPushButton>

namespace MV {

namespace {

/// A triangle in the button's text colour: in the direction of reading for folded, downwards for unfolded.
QIcon ExpandArrow(const QPushButton& button, bool expanded)
{
    const int size = button.iconSize().height();
    const qreal ratio = button.devicePixelRatioF();
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(button.palette().color(QPalette::ButtonText));
    painter.translate(size / 2.0, size / 2.0);
    const qreal onwards = button.isRightToLeft() ? 180.0 : 0.0;
    painter.rotate(expanded ? 90.0 : onwards);
    painter.scale(size / 16.0, size / 16.0);
    painter.drawPolygon(QPolygonF(QVector<QPointF>{{-2.5, -5.0}, {4.0, 0.0}, {-2.5, 5.0}}));
    return QIcon(pixmap);
}

} // namespace

CSectionInterface::~CSectionInterface() = default;

CAbstractSection::CAbstractSection() = default;

CAbstractSection::~CAbstractSection()
{
    QObject::disconnect(m_clicked);
}

bool CAbstractSection::GetSectionExpandState()
{
    return m_expanded;
}

void CAbstractSection::SetSectionExpandState(bool expanded)
{
    m_expanded = expanded;
    ShowExpandState();
}

bool CAbstractSection::AbleToShowSection()
{
    return m_groupBox != nullptr;
}

void CAbstractSection::EnableSection(bool enable)
{
    if (m_groupBox) {
        m_groupBox->setEnabled(enable);
    }
}

void CAbstractSection::SetSectionWidgets(QPushButton* expandButton, QGroupBox* groupBox)
{
    QObject::disconnect(m_clicked);
    m_expandButton = expandButton;
    m_groupBox = groupBox;
    if (expandButton) {
        expandButton->setCheckable(true);
        m_clicked = QObject::connect(expandButton, &QPushButton::clicked, expandButton,
                                     [this](bool checked) { SetSectionExpandState(checked); });
    }
    ShowExpandState();
}

void CAbstractSection::ShowExpandState()
{
    if (m_expandButton) {
        m_expandButton->setChecked(m_expanded);
        m_expandButton->setIcon(ExpandArrow(*m_expandButton, m_expanded));
    }
    if (m_groupBox) {
        m_groupBox->setVisible(m_expanded);
    }
}

} // namespace MV
