#pragma once

#include <QObject>
#include <QPointer>

class QLabel;
class QWidget;

namespace Host {

class Legend;

/// What is written in the view: the scale of the grid, the material that the pointer is at, what cannot be shown, and
/// the legend of the weights. None of it takes the mouse.
class ViewTexts : public QObject
{
    Q_OBJECT

public:
    explicit ViewTexts(QWidget& view);

    /// \param centimetres  between two lines of the grid
    void ShowScale(double centimetres);
    /// An empty name for none.
    void ShowPointed(const QString& name);
    void ShowProblems(const QString& sentences);
    void ShowLegend(bool isShown);

private:
    QPointer<QLabel> m_scale;
    QPointer<QLabel> m_pointed;
    QPointer<QLabel> m_problems;
    QPointer<Legend> m_legend;
    double m_shownScale = 0.0;
};

} // namespace Host
