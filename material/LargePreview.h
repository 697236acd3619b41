#pragma once

#include <QObject>
#include <QPixmap>
#include <QSize>

#include <functional>

class QImage;
class QLabel;
class QPainter;

namespace MV {

/// Draws the large preview into its label: in its true colours, which the label itself would grey while it is disabled,
/// and as large as the label has room. For a room with more pixels than the picture has, a larger one is fetched after
/// the label was painted, once for each picture and size.
class CLargePreview : public QObject
{
    Q_OBJECT

public:
    /// Draws the picture shown at present with so many pixels, on demand; null when that fails.
    using Render = std::function<QImage(const QSize& pixels)>;

    /// \param label   owns the object
    /// \param render  is called from the event loop, never while the label is painted; may end the label
    CLargePreview(QLabel* label, Render render);

    /// Shows \p picture, which may have fewer pixels than there is room for; nothing when it is null.
    void Show(const QPixmap& picture);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A picture that was asked for.
    struct Request
    {
        qint64 picture = 0; ///< The cache key of the smaller one.
        QSize pixels;

        bool operator==(const Request& other) const { return picture == other.picture && pixels == other.pixels; }
    };

    QSize ShownPixels() const;
    void Paint();
    void DrawFrame(QPainter& painter) const;
    void RequestLarger();
    void Fetch();

    QLabel* m_label;
    Render m_render;
    QPixmap m_picture;
    QPixmap m_larger;  ///< The same with more pixels; null for none yet.
    Request m_request; ///< The latest one, whatever came of it.
};

} // namespace MV
