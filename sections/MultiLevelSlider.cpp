#include "sections/MultiLevelSlider.h"

#include "sections/Rounding.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <limits>

namespace MV {

namespace {

constexpr int lineY = 5;
constexpr int lineWidth = 1;
constexpr int gapBelowLine = 2;
constexpr int handleY = lineY + lineWidth + gapBelowLine;
const QColor disabledLineColor(70, 70, 70, 255);

bool IsGiven(const CMultiLevelSlider::Image& image)
{
    return image && !image->isNull();
}

QSizeF LogicalSize(const QPixmap& image)
{
    return QSizeF(image.size()) / image.devicePixelRatioF();
}

bool HasSizeOf(const QPixmap& normal, const CMultiLevelSlider::Image& image)
{
    return !IsGiven(image) || LogicalSize(*image) == LogicalSize(normal);
}

bool AreInRange(const std::vector<SliderLevel>& levels, int minimum, int maximum)
{
    return std::all_of(levels.begin(), levels.end(), [minimum, maximum](const SliderLevel& level) {
        return level.value >= minimum && level.value <= maximum;
    });
}

bool AreRising(const std::vector<SliderLevel>& levels)
{
    const auto isNotBelow = [](const SliderLevel& a, const SliderLevel& b) { return a.value >= b.value; };
    return std::adjacent_find(levels.begin(), levels.end(), isNotBelow) == levels.end();
}

/// How far a value may be from another; wide enough for any two.
qint64 Distance(int from, int to)
{
    return qint64(to) - from;
}

/// \p value, or the nearest that an int can hold.
int ToInt(qint64 value)
{
    return int(qBound(qint64(std::numeric_limits<int>::min()), value, qint64(std::numeric_limits<int>::max())));
}

/// The position of a level that has its own height.
int OwnY(const SliderLevel& level)
{
    return level.yOffset - gapBelowLine - lineWidth + lineY;
}

} // namespace

CMultiLevelSlider::CMultiLevelSlider(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

CMultiLevelSlider::~CMultiLevelSlider() = default;

BF::Result CMultiLevelSlider::InitSlider(int minimum, int maximum, bool allowCross,
                                         const std::vector<SliderLevel>& levels, const Image& normal,
                                         const Image& disabled, bool useSelected, const Image& selected,
                                         const Image& hover, const QColor& lineColor)
{
    if (maximum <= minimum || !AreInRange(levels, minimum, maximum) || (!allowCross && !AreRising(levels)) ||
        !IsGiven(normal) || (useSelected && !IsGiven(selected))) {
        return BF::Results::InvalidArgument;
    }
    if (!IsGiven(disabled)) {
        return BF::Results::MissingDisabledPixmap;
    }
    if (!HasSizeOf(*normal, selected) || !HasSizeOf(*normal, hover)) {
        return BF::Results::InvalidArgument;
    }
    m_minimum = minimum;
    m_maximum = maximum;
    m_allowCross = allowCross;
    m_levels = levels;
    m_normal = normal;
    m_disabled = disabled;
    m_useSelected = useSelected;
    m_selected = selected;
    m_hover = hover;
    m_lineColor = lineColor;
    m_handleSize = LogicalSize(*normal).toSize();
    m_halfWidth = m_handleSize.width() / 2;
    m_draggedIndex = -1;
    m_hoveredIndex = -1;
    if (!layout()) {
        setLayout(new QHBoxLayout);
    }
    update();
    return BF::Results::Success;
}

BF::Result CMultiLevelSlider::SetLevelValue(std::size_t index, int value)
{
    if (index >= m_levels.size()) {
        return BF::Results::IndexOutOfRange;
    }
    m_levels[index].value = qBound(m_minimum, value, m_maximum);
    update();
    return BF::Results::Success;
}

int CMultiLevelSlider::LevelValue(std::size_t index) const
{
    return index < m_levels.size() ? m_levels[index].value : m_minimum;
}

/// How far a handle can move; not above 0 where there is no room.
int CMultiLevelSlider::TrackLength() const
{
    return width() - 2 * m_halfWidth - 1;
}

int CMultiLevelSlider::LevelPosition(std::size_t index) const
{
    if (index >= m_levels.size()) {
        return 0;
    }
    const auto above = float(Distance(m_minimum, m_levels[index].value));
    return RoundHalfAway(float(TrackLength()) * above / float(Distance(m_minimum, m_maximum)));
}

void CMultiLevelSlider::SetSelectedIndex(std::size_t index)
{
    m_selectedIndex = index;
    update();
}

QRect CMultiLevelSlider::HandleRect(std::size_t index) const
{
    return {QPoint(LevelPosition(index), handleY), m_handleSize};
}

int CMultiLevelSlider::LevelAt(const QPoint& position, bool selectableOnly) const
{
    for (std::size_t i = m_levels.size(); i-- > 0;) {
        if (HandleRect(i).contains(position) && (m_levels[i].selectable || !selectableOnly)) {
            return int(i);
        }
    }
    return -1;
}

const QPixmap& CMultiLevelSlider::ImageOf(std::size_t index) const
{
    if (m_levels[index].pixmap) {
        return *m_levels[index].pixmap;
    }
    if (!isEnabled()) {
        return *m_disabled;
    }
    if (m_useSelected && index == m_selectedIndex) {
        return *m_selected;
    }
    return int(index) == m_hoveredIndex && IsGiven(m_hover) ? *m_hover : *m_normal;
}

void CMultiLevelSlider::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_normal) {
        return;
    }
    QPainter painter(this);
    // For an image that was made for another screen than the one that it is shown on.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QPen pen(isEnabled() ? m_lineColor : disabledLineColor, lineWidth);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawLine(m_halfWidth, lineY, width() - m_halfWidth - 1, lineY);
    for (std::size_t i = 0; i < m_levels.size(); ++i) {
        const SliderLevel& level = m_levels[i];
        const int x = LevelPosition(i);
        painter.drawPixmap(x, level.customY ? OwnY(level) : handleY, ImageOf(i));
        PlaceLabel(level, x);
    }
}

void CMultiLevelSlider::PlaceLabel(const SliderLevel& level, int x)
{
    if (!level.label) {
        return;
    }
    level.label->setGeometry(x + level.labelXOffset, OwnY(level) + level.labelYOffset, level.labelWidth,
                             level.labelHeight);
    level.label->setAlignment(Qt::AlignCenter);
    // Once: adding it again would lay it out again, and painting would never come to an end.
    if (layout()->indexOf(level.label) < 0) {
        layout()->addWidget(level.label);
    }
}

void CMultiLevelSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_draggedIndex = -1;
    m_dragOffset = 0;
    const int index = LevelAt(event->pos(), true);
    if (index >= 0) {
        Select(std::size_t(index));
        StartDrag(std::size_t(index), event->pos().x());
        update();
    }
    QWidget::mousePressEvent(event);
}

void CMultiLevelSlider::Select(std::size_t index)
{
    if (m_selectedIndex != index) {
        m_selectedIndex = index;
        Report(selectionChanged);
        // Whatever the owner selected when it heard of it, a press selects what it hits.
        m_selectedIndex = index;
    }
}

void CMultiLevelSlider::StartDrag(std::size_t index, int cursorX)
{
    // The owner may have set the slider up again when it was notified of the selection.
    if (index < m_levels.size() && !m_levels[index].fixed) {
        m_draggedIndex = int(index);
        m_dragStart = m_levels[index].value;
        m_dragOffset = m_halfWidth - cursorX + LevelPosition(index);
    }
}

void CMultiLevelSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (m_draggedIndex >= 0) {
        DragTo(event->pos().x());
    }
    if (event->button() == Qt::NoButton) {
        m_hoveredIndex = LevelAt(event->pos(), false);
        update();
    }
    QWidget::mouseMoveEvent(event);
}

void CMultiLevelSlider::DragTo(int cursorX)
{
    const int track = TrackLength();
    if (track <= 0) {
        return;
    }
    const auto range = float(Distance(m_minimum, m_maximum));
    const int x = qBound(m_halfWidth, cursorX + m_dragOffset, width() - m_halfWidth - 1);
    // A drag counts from 0, whatever the minimum is.
    const int value = RoundHalfAway(float(x - m_halfWidth) / float(track) * range);
    const int gap = qMax(RoundHalfAway(float(m_halfWidth + 1) / float(track) * range), 1);
    m_levels[std::size_t(m_draggedIndex)].value = m_allowCross ? value : KeepDistance(value, gap);
    update();
    Report(valueChanging);
}

/// \p value of the dragged level, kept \p gap away from the neighbours that it would overrun: those before it from the
/// nearest on, then those after it. The last one met has the last word, even against the range.
int CMultiLevelSlider::KeepDistance(int value, int gap) const
{
    for (int i = m_draggedIndex - 1; i >= 0; --i) {
        const SliderLevel& before = m_levels[std::size_t(i)];
        if (!before.free && before.value >= value) {
            value = qMax(value, ToInt(qint64(before.value) + gap));
        }
    }
    for (std::size_t i = std::size_t(m_draggedIndex) + 1; i < m_levels.size(); ++i) {
        const SliderLevel& after = m_levels[i];
        if (!after.free && after.value <= value) {
            value = qMin(value, ToInt(qint64(after.value) - gap));
        }
    }
    return value;
}

void CMultiLevelSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_draggedIndex >= 0) {
        const QPointer<CMultiLevelSlider> self(this);
        Report(valueChanged);
        if (!self) {
            return;
        }
        m_draggedIndex = -1;
    }
    QWidget::mouseReleaseEvent(event);
}

void CMultiLevelSlider::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        // A disabled widget never sees the release.
        DropDrag();
    }
    QWidget::changeEvent(event);
}

void CMultiLevelSlider::hideEvent(QHideEvent* event)
{
    DropDrag();
    QWidget::hideEvent(event);
}

void CMultiLevelSlider::DropDrag()
{
    if (m_draggedIndex < 0) {
        return;
    }
    m_levels[std::size_t(m_draggedIndex)].value = m_dragStart;
    m_draggedIndex = -1;
    update();
    Report(valueChanging);
}

/// Takes a copy: the owner may exchange the function from within the call.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void CMultiLevelSlider::Report(Callback callback) const
{
    if (callback) {
        callback(m_selectedIndex);
    }
}

} // namespace MV
