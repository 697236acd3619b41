#pragma once

#include "sections/MultiLevelSlider.h"

#include <QStringList>
#include <QWidget>

/// What InitSlider() takes; by default a slider from 0 to 10 with two handles at its ends that may not cross, and
/// images of 8 x 8 pixels.
struct SliderSetup
{
    SliderSetup();
    BF::Result Apply(MV::CMultiLevelSlider& slider) const;

    int minimum = 0;
    int maximum = 10;
    bool allowCross = false;
    std::vector<MV::SliderLevel> levels;
    MV::CMultiLevelSlider::Image normal;
    MV::CMultiLevelSlider::Image disabled;
    bool useSelected = true;
    MV::CMultiLevelSlider::Image selected;
    MV::CMultiLevelSlider::Image hover;
    QColor lineColor{10, 200, 30};
};

/// An opaque image of \p color with a white corner, which shows where it is. Sizes are in logical pixels.
QPixmap MakePixmap(const QColor& color, const QSize& size = {8, 8}, int ratio = 1);
MV::CMultiLevelSlider::Image MakeImage(const QColor& color, const QSize& size = {8, 8}, int ratio = 1);
/// Levels with these values.
std::vector<MV::SliderLevel> Levels(const std::vector<int>& values);

/// A slider in a shown window, moved by mouse events that come from the window system. Positions are the slider's.
class SliderWindow : public QWidget
{
public:
    explicit SliderWindow(const SliderSetup& setup = SliderSetup(), int width = 100);

    void Press(int x, int y = 12, Qt::MouseButton button = Qt::LeftButton);
    void Move(int x, int y = 12);
    void Release(int x, int y = 12, Qt::MouseButton button = Qt::LeftButton);

    /// What the slider has reported to its owner since the last time: "changing 1", "changed 1", "selected 0".
    QStringList Take();
    std::vector<int> Values(std::size_t count = 2) const;
    /// What the slider draws, on a transparent ground.
    QImage Picture(int ratio = 1);

    MV::CMultiLevelSlider slider;

private:
    QPoint InWindow(int x, int y) const;

    QStringList m_told;
};
