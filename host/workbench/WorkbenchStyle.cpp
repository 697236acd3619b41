#include "host/workbench/WorkbenchStyle.h"

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

namespace Host {

namespace {

QPalette DarkPalette()
{
    const QColor window(56, 56, 56);
    const QColor base(40, 40, 40);
    const QColor text(214, 214, 214);
    const QColor disabledText(122, 122, 122);
    const QColor highlight(74, 124, 171);

    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, base.lighter(112));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, disabledText);
    palette.setColor(QPalette::Button, window.lighter(118));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Link, highlight.lighter(130));
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Light, window.lighter(150));
    palette.setColor(QPalette::Midlight, window.lighter(125));
    palette.setColor(QPalette::Mid, window.darker(130));
    palette.setColor(QPalette::Dark, window.darker(160));
    palette.setColor(QPalette::Shadow, QColor(20, 20, 20));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, window.darker(108));
    palette.setColor(QPalette::Disabled, QPalette::Light, window.darker(130));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, window.lighter(125));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, disabledText);
    return palette;
}

/// The Fusion style, which frames its boxes in a darker shade of the ground: on a dark one an empty box is not seen.
class DarkStyle : public QProxyStyle
{
public:
    DarkStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isRound = element == PE_IndicatorRadioButton;
        if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck) {
            return;
        }
        const bool isEnabled = option->state.testFlag(State_Enabled);
        const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(isEnabled ? QColor(150, 150, 150) : QColor(92, 92, 92));
        painter->setBrush(Qt::NoBrush);
        if (isRound) {
            painter->drawEllipse(frame);
        } else {
            painter->drawRect(frame);
        }
        painter->restore();
    }
};

} // namespace

void ApplyWorkbenchStyle(QApplication& application)
{
    QApplication::setStyle(new DarkStyle);
    QApplication::setPalette(DarkPalette());
    QFont font = QApplication::font();
    font.setPointSizeF(9.0);
    QApplication::setFont(font);
    // Section headers read from left to right, as in every property editor.
    application.setStyleSheet(QStringLiteral("QPushButton#qtExpandPushButton { text-align: left; padding: 5px 8px; "
                                             "font-weight: bold; }"
                                             "QToolTip { border: 1px solid #707070; }"));
}

} // namespace Host
