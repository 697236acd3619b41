#pragma once

#include <MVPluginQt/Result.h>

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QSharedPointer>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <vector>

namespace MV {

/// One handle of a multi-level slider. Positions are in the slider's pixels, relative to the handle where not said
/// otherwise.
struct SliderLevel
{
    int value = 0;
    int yOffset = 0; ///< Position of the handle with customY, and of its label always; 6 is the usual height.
    int labelYOffset = 0;
    int labelXOffset = 0;
    int labelHeight = 0;
    int labelWidth = 0;
    bool fixed = false;              ///< Can be selected but not dragged.
    bool selectable = true;          ///< A press selects it, and drags it unless it is fixed.
    bool free = false;               ///< The other handles may pass it.
    bool customY = false;            ///< Drawn at yOffset instead of the common height.
    const QPixmap* pixmap = nullptr; ///< Its own image, which it shows in every state; not owned.
    QPointer<QLabel> label;          ///< A text beside it; a child of the slider from the first painting on.
};

/// A horizontal track with several handles, called levels, each of which holds a whole number of a common range.
///
/// Tells its owner through functions, which are called from its own mouse handling only. Handles are images; all
/// measures are the images' logical pixels, so that a handle keeps its size where its image has more of them.
/// Safe to show without images: nothing is drawn and the mouse does nothing until InitSlider() has succeeded.
class CMultiLevelSlider : public QWidget
{
    Q_OBJECT

public:
    using Image = QSharedPointer<const QPixmap>;
    /// Called with the index of the selected level.
    using Callback = std::function<void(std::size_t)>;

    explicit CMultiLevelSlider(QWidget* parent = nullptr);
    ~CMultiLevelSlider() override;

    /// Sets the slider up; on failure it stays as it was.
    /// \param levels       in order of drawing; a press takes the last of those that overlap
    /// \param allowCross   handles may be dragged past each other, and their values need not rise
    /// \param useSelected  the selected level shows \p selected, which must be given then
    /// \param hover        may be missing: a level under the cursor shows \p normal
    /// \return 0; or what is found first: 0x80000003 for an empty range, for a value out of the range or not above its
    ///         predecessor's, or without \p normal or \p selected; 0x80000005 without \p disabled; 0x80000003 for a
    ///         selected or hover image of another size than \p normal. An empty pixmap counts as missing.
    BF::Result InitSlider(int minimum, int maximum, bool allowCross, const std::vector<SliderLevel>& levels,
                          const Image& normal, const Image& disabled, bool useSelected, const Image& selected,
                          const Image& hover, const QColor& lineColor);

    /// Sets a level's value, brought into the range. Calls nobody and keeps no distance from other levels.
    /// \return 0, or 0x80000004 when there is no such level
    BF::Result SetLevelValue(std::size_t index, int value);
    /// The value of a level; the minimum when there is no such level.
    int LevelValue(std::size_t index) const;
    /// Left edge of a level's image; 0 when there is no such level. On a slider narrower than an image those above the
    /// minimum are left of 0.
    int LevelPosition(std::size_t index) const;

    /// Where a level takes the mouse, which is where its image is unless it has its own height.
    QRect HandleRect(std::size_t index) const;

    std::size_t SelectedIndex() const { return m_selectedIndex; }
    /// Selects a level without calling anybody.
    void SetSelectedIndex(std::size_t index);

    /// Drops a drag: the level is back where it was, and only valueChanging is called. It happens by itself when the
    /// slider is disabled or hidden.
    void DropDrag();

    // Set by the owner; an empty one is not called.
    Callback valueChanging;    ///< A drag has moved a level.
    Callback valueChanged;     ///< A drag is ending, whether or not it moved anything.
    Callback selectionChanged; ///< A press selects another level; it does so whatever the owner selects meanwhile.
    Callback spare;            ///< Never called.

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    int TrackLength() const;
    /// The last level at \p position, or the last selectable one; -1 for none.
    int LevelAt(const QPoint& position, bool selectableOnly) const;
    const QPixmap& ImageOf(std::size_t index) const;
    void PlaceLabel(const SliderLevel& level, int x);
    void Select(std::size_t index);
    void StartDrag(std::size_t index, int cursorX);
    void DragTo(int cursorX);
    int KeepDistance(int value, int gap) const;
    void Report(Callback callback) const;

    Image m_normal;
    Image m_selected;
    Image m_hover;
    Image m_disabled;
    bool m_useSelected = false;
    int m_minimum = 0;
    int m_maximum = 0;
    bool m_allowCross = false;
    std::vector<SliderLevel> m_levels;
    int m_halfWidth = 0;
    QSize m_handleSize;
    int m_draggedIndex = -1;
    int m_dragOffset = 0;
    int m_dragStart = 0; ///< The dragged level's value before.
    std::size_t m_selectedIndex = 0;
    int m_hoveredIndex = -1;
    QColor m_lineColor{200, 200, 200, 255};
};

} // namespace MV
