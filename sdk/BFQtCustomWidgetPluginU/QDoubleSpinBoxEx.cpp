#include "BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h"

QDoubleSpinBoxEx::QDoubleSpinBoxEx(QWidget* parent)
    : SpinBoxCommit<QDoubleSpinBox>(parent)
{
}

void QDoubleSpinBoxEx::Committed()
{
    Q_EMIT RecordEditingValue();
}
