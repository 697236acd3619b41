#include "BFQtCustomWidgetPluginU/QSpinBoxEx.h"

QSpinBoxEx::QSpinBoxEx(QWidget* parent)
    : SpinBoxCommit<QSpinBox>(parent)
{
}

void QSpinBoxEx::Committed()
{
    Q_EMIT RecordEditingValue();
}
