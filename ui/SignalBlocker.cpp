#include "ui/SignalBlocker.h"

CSignalBlocker::CSignalBlocker(std::initializer_list<QWidget*> widgets)
{
    for (QWidget* widget : widgets) {
        Add(widget);
    }
}

CSignalBlocker::~CSignalBlocker()
{
    for (int i = m_widgets.size() - 1; i >= 0; --i) {
        if (QWidget* widget = m_widgets.at(i)) {
            widget->blockSignals(m_wasBlocked.testBit(i));
        }
    }
}

void CSignalBlocker::Add(QWidget* widget)
{
    if (!widget) {
        return;
    }
    const int index = m_widgets.size();
    m_widgets.append(widget);
    m_wasBlocked.resize(index + 1);
    m_wasBlocked.setBit(index, widget->blockSignals(true));
}
