#pragma once

#include "BFQtCustomWidgetPluginU/Export.h"

#include <QBasicTimer>
#include <QSlider>

/// The slider of a combo spin box. Tells when the user is done with it: on letting go of the mouse or of an arrow key,
/// on loss of focus, and a moment after the last wheel step.
class BFQTCUSTOMWIDGETPLUGINU_EXPORT ComboSlider : public QSlider
{
    Q_OBJECT

public:
    explicit ComboSlider(QWidget* parent = nullptr);

Q_SIGNALS:
    void EditEnded();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QRect HandleRect() const;
    void TakeHandleTo(int x);
    void EndRun();
    void EndEdit();

    QBasicTimer m_wheelPause;
};
