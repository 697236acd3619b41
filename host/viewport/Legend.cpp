#include "host/viewport/Legend.h"

#include "host/viewport/WeightColours.h"

#include <QPainter>

#include <algorithm>

namespace Host {

namespace {

constexpr int margin = 8;
constexpr int barWidth = 14;
constexpr int barHeight = 120;
constexpr int gap = 6;
const QColor ground(30, 30, 32, 190);
const QColor ink(225, 225, 225);

} // namespace

Legend::Legend(QWidget* parent)
    : QWidget(parent)
    , m_held(tr("Held (black)"))
    , m_free(tr("Free (white)"))
    , m_none(tr("No weight image"))
{
    setObjectName(QStringLiteral("weightLegend"));
    setAccessibleName(tr("Legend of the weights"));
    setAccessibleDescription(QStringList{m_free, m_held, m_none}.join(QLatin1String(", ")));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Legend::sizeHint() const
{
    int text = 0;
    for (const QString& line : {m_held, m_free, m_none}) {
        text = std::max(text, fontMetrics().horizontalAdvance(line));
    }
    return {2 * margin + barWidth + gap + text,
            2 * margin + barHeight + gap + std::max(barWidth, fontMetrics().height())};
}

void Legend::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(rect(), 4.0, 4.0);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const int left = isMirrored ? width() - margin - barWidth : margin;
    const int textLeft = isMirrored ? margin : left + barWidth + gap;
    const int textWidth = width() - 2 * margin - barWidth - gap;

    const QRect bar(left, margin, barWidth, barHeight);
    QLinearGradient gradient(bar.bottomLeft(), bar.topLeft());
    const std::array<QRgb, 256> colours = WeightColours();
    for (std::size_t gray = 0; gray < colours.size(); gray += 5) {
        gradient.setColorAt(double(gray) / double(colours.size() - 1), QColor(colours[gray]));
    }
    painter.fillRect(bar, gradient);
    const QRect swatch(left, bar.bottom() + 1 + gap, barWidth, barWidth);
    painter.fillRect(swatch, QColor(92, 92, 92));
    painter.fillRect(swatch, QBrush(QColor(150, 150, 150), Qt::BDiagPattern));

    painter.setPen(ink);
    const int line = fontMetrics().height();
    const int flags = int(Qt::AlignVCenter) | int(isMirrored ? Qt::AlignRight : Qt::AlignLeft);
    painter.drawText(QRect(textLeft, bar.top(), textWidth, line), flags, m_free);
    painter.drawText(QRect(textLeft, bar.bottom() + 1 - line, textWidth, line), flags, m_held);
    painter.drawText(QRect(textLeft, swatch.center().y() - line / 2, textWidth, line), flags, m_none);
}

} // namespace Host
