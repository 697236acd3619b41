#pragma once

#include "BFQtCustomWidgetPluginU/Export.h"
#include "BFQtCustomWidgetPluginU/HeldInput.h"

#include <QBasicTimer>
#include <QSlider>

/// The slider of a combo spin box. Tells when the user is done with it: on letting go of the mouse or of an arrow key,
/// on loss of focus, and a moment after the last wheel step. When the slider is disabled or hidden, the edit is
/// dropped.
class BFQTCUSTOMWIDGETPLUGINU_EXPORT ComboSlider : public QSlider
{
    Q_OBJECT

public:
    explicit ComboSlider(QWidget* parent = nullptr);

    /// Ends a run of steps or a drag without EditEnded(). The handle stays where it is, whatever is still held.
    void DropEdit();

Q_SIGNALS:
    void EditEnded();
    /// An edit, if there was one, was dropped.
    void EditDropped();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QRect HandleRect() const;
    void TakeHandleTo(int x);
    void EndRun();
    void EndEdit();

    HeldInput m_key;
    HeldInput m_button;
    QBasicTimer m_wheelPause;
};
