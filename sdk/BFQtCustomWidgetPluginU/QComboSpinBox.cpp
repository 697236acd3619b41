#include "BFQtCustomWidgetPluginU/QComboSpinBox.h"

#include <QMetaMethod>

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

bool QComboSpinBox::IsValueFollowed() const
{
    static const QMetaMethod valueChanged = QMetaMethod::fromSignal(&QComboSpinBox::ValueChanged);
    return isSignalConnected(valueChanged);
}
