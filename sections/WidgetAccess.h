#pragma once

#include "ui/SignalBlocker.h"

#include <QAbstractButton>
#include <QWidget>

/// Small operations on a form's widgets. A widget that the form lacks is null and passed over everywhere.
namespace MV {

inline void EnableWidget(QWidget* widget, bool enable)
{
    if (widget) {
        widget->setEnabled(enable);
    }
}

inline void SetChecked(QAbstractButton* button, bool checked)
{
    if (button) {
        button->setChecked(checked);
    }
}

inline bool IsChecked(const QAbstractButton* button)
{
    return button && button->isChecked();
}

/// Shows \p value in a spin box without a signal of it.
template <class SpinBox, class Value>
void ShowValue(SpinBox* box, Value value)
{
    if (box) {
        const CSignalBlocker silent{box};
        box->setValue(value);
    }
}

/// What a spin box holds; 0 for a missing one.
template <class SpinBox>
auto ValueOf(const SpinBox* box) -> decltype(box->value())
{
    return box ? box->value() : decltype(box->value()){};
}

/// Calls \p handler of \p section when the user clicks \p button.
template <class Section>
void ConnectClicked(QAbstractButton* button, Section* section, void (Section::*handler)())
{
    if (button) {
        QObject::connect(button, &QAbstractButton::clicked, section, handler);
    }
}

/// Calls \p handler of \p section with the box's value each time the user commits an edit.
/// \param box  a QSpinBoxEx or QDoubleSpinBoxEx
template <class SpinBox, class Section, class Value>
void ConnectSpinBox(SpinBox* box, Section* section, void (Section::*handler)(Value))
{
    if (box) {
        QObject::connect(box, &SpinBox::RecordEditingValue, section,
                         [box, section, handler] { (section->*handler)(box->value()); });
    }
}

} // namespace MV
