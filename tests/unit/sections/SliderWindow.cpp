#include "tests/unit/sections/SliderWindow.h"

#include <QImage>
#include <QPainter>
#include <QTest>
#include <QWindow>

#include <utility>

SliderSetup::SliderSetup()
    : levels(Levels({0, 10}))
    , normal(MakeImage(Qt::blue))
    , disabled(MakeImage(Qt::darkGray))
    , selected(MakeImage(Qt::red))
    , hover(MakeImage(Qt::cyan))
{
}

BF::Result SliderSetup::Apply(MV::CMultiLevelSlider& slider) const
{
    return slider.InitSlider(minimum, maximum, allowCross, levels, normal, disabled, useSelected, selected, hover,
                             lineColor);
}

QPixmap MakePixmap(const QColor& color, const QSize& size, int ratio)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    image.setPixelColor(0, 0, Qt::white);
    image.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(image);
}

MV::CMultiLevelSlider::Image MakeImage(const QColor& color, const QSize& size, int ratio)
{
    return MV::CMultiLevelSlider::Image(new QPixmap(MakePixmap(color, size, ratio)));
}

std::vector<MV::SliderLevel> Levels(const std::vector<int>& values)
{
    std::vector<MV::SliderLevel> levels(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        levels[i].value = values[i];
    }
    return levels;
}

SliderWindow::SliderWindow(const SliderSetup& setup, int width)
    : slider(this)
{
    setup.Apply(slider);
    const auto tell = [this](const char* what) {
        return [this, what](std::size_t index) {
            m_told.append(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(index));
        };
    };
    slider.valueChanging = tell("changing");
    slider.valueChanged = tell("changed");
    slider.selectionChanged = tell("selected");
    slider.spare = tell("spare");
    resize(width + 200, 100);
    slider.setGeometry(100, 20, width, 30);
    show();
    // The window system reports no move to where the mouse is already, as an earlier window may have left it.
    QTest::mouseMove(windowHandle(), QPoint(1, 1));
}

QPoint SliderWindow::InWindow(int x, int y) const
{
    return slider.mapTo(this, QPoint(x, y));
}

void SliderWindow::Press(int x, int y, Qt::MouseButton button)
{
    QTest::mousePress(windowHandle(), button, Qt::NoModifier, InWindow(x, y));
}

void SliderWindow::Move(int x, int y)
{
    QTest::mouseMove(windowHandle(), InWindow(x, y));
}

void SliderWindow::Release(int x, int y, Qt::MouseButton button)
{
    QTest::mouseRelease(windowHandle(), button, Qt::NoModifier, InWindow(x, y));
}

QStringList SliderWindow::Take()
{
    return std::exchange(m_told, {});
}

std::vector<int> SliderWindow::Values(std::size_t count) const
{
    std::vector<int> values;
    for (std::size_t i = 0; i < count; ++i) {
        values.push_back(slider.LevelValue(i));
    }
    return values;
}

QImage SliderWindow::Picture(int ratio)
{
    QImage picture(slider.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    slider.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}
