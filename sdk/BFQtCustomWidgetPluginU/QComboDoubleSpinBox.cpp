#include "BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h"

#include <QMetaMethod>

QComboDoubleSpinBox::QComboDoubleSpinBox(QWidget* parent)
    : ComboSpinBoxBase<QDoubleSpinBoxEx>(parent)
{
}

int QComboDoubleSpinBox::Decimals() const
{
    return Box().decimals();
}

void QComboDoubleSpinBox::SetDecimals(int decimals)
{
    ChangeSilently([decimals](QDoubleSpinBoxEx& box) { box.setDecimals(decimals); });
}

void QComboDoubleSpinBox::TellValueChanged(double value)
{
    Q_EMIT ValueChanged(value);
}

void QComboDoubleSpinBox::TellEditFinished()
{
    Q_EMIT EditFinished();
}

bool QComboDoubleSpinBox::IsValueFollowed() const
{
    static const QMetaMethod valueChanged = QMetaMethod::fromSignal(&QComboDoubleSpinBox::ValueChanged);
    return isSignalConnected(valueChanged);
}
