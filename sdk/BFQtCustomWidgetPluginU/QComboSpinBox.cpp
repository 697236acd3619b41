#include "BFQtCustomWidgetPluginU/QComboSpinBox.h"

QComboSpinBox::QComboSpinBox(QWidget* parent)
    : ComboSpinBoxBase<QSpinBoxEx>(parent)
{
}

void QComboSpinBox::TellValueChanged(int value)
{
    Q_EMIT ValueChanged(value);
}

void QComboSpinBox::TellEditFinished()
{
    Q_EMIT EditFinished();
}
