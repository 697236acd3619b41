#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace Host {

/// The commands of the view: in its context menu, with keys that count while it has the focus.
class ViewActions : public QObject
{
    Q_OBJECT

public:
    /// Adds them to \p view.
    explicit ViewActions(QWidget& view);

    /// Checkable; it is also offered outside of the view.
    QAction* ShowWeights() const { return m_showWeights; }
    QAction* FrameSelection() const { return m_frameSelection; }
    QAction* FrameAll() const { return m_frameAll; }
    QAction* Front() const { return m_front; }
    QAction* Side() const { return m_side; }
    QAction* Top() const { return m_top; }

private:
    QAction* m_frameSelection;
    QAction* m_frameAll;
    QAction* m_front;
    QAction* m_side;
    QAction* m_top;
    QAction* m_showWeights;
};

} // namespace Host
