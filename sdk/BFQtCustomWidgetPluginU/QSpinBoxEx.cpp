#include "BFQtCustomWidgetPluginU/QSpinBoxEx.h"

#include "BFQtCustomWidgetPluginU/TypedNumber.h"

QSpinBoxEx::QSpinBoxEx(QWidget* parent)
    : SpinBoxCommit<QSpinBox>(parent)
{
}

QValidator::State QSpinBoxEx::validate(QString& input, int& position) const
{
    const TypedNumber typed(input, prefix(), suffix(), locale());
    const bool isRefused = typed.IsRefused() || typed.HasSeparator();
    if (isRefused && !isGroupSeparatorShown() && input != specialValueText()) {
        return QValidator::Invalid;
    }
    return QSpinBox::validate(input, position);
}

void QSpinBoxEx::DropEdit()
{
    DropCurrentEdit();
}

void QSpinBoxEx::Committed()
{
    Q_EMIT RecordEditingValue();
}

void QSpinBoxEx::Dropped()
{
    Q_EMIT EditDropped();
}
