#include "BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h"

#include "BFQtCustomWidgetPluginU/TypedNumber.h"

QDoubleSpinBoxEx::QDoubleSpinBoxEx(QWidget* parent)
    : SpinBoxCommit<QDoubleSpinBox>(parent)
{
}

QValidator::State QDoubleSpinBoxEx::validate(QString& input, int& position) const
{
    if (isGroupSeparatorShown()) {
        return QDoubleSpinBox::validate(input, position);
    }
    const TypedNumber typed(input, prefix(), suffix(), locale());
    if (typed.IsRefused() && input != specialValueText()) {
        return QValidator::Invalid;
    }
    QString inLocale = typed.InLocale();
    const QValidator::State state = QDoubleSpinBox::validate(inLocale, position);
    input = typed.AsTyped(inLocale);
    return state;
}

void QDoubleSpinBoxEx::fixup(QString& input) const
{
    // What a box does otherwise, leaving out the thousands separators, would make 75 of 0,75.
    if (isGroupSeparatorShown()) {
        QDoubleSpinBox::fixup(input);
    }
}

double QDoubleSpinBoxEx::valueFromText(const QString& text) const
{
    return QDoubleSpinBox::valueFromText(
        isGroupSeparatorShown() ? text : TypedNumber(text, prefix(), suffix(), locale()).InLocale());
}

void QDoubleSpinBoxEx::DropEdit()
{
    DropCurrentEdit();
}

void QDoubleSpinBoxEx::Committed()
{
    Q_EMIT RecordEditingValue();
}

void QDoubleSpinBoxEx::Dropped()
{
    Q_EMIT EditDropped();
}
