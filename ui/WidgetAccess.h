#pragma once

#include "ui/EditDrop.h"
#include "ui/FormComponent.h"
#include "ui/SignalBlocker.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QWidget>

#include <type_traits>

/// Small operations on a form's widgets. A widget that the form lacks is null and skipped everywhere.
///
/// A box is one of the host's four: QSpinBoxEx, QDoubleSpinBoxEx, QComboSpinBox or QComboDoubleSpinBox.
namespace MV {

inline void EnableWidget(QWidget* widget, bool enable)
{
    if (widget) {
        widget->setEnabled(enable);
    }
}

inline void SetText(QLabel* label, const QString& text)
{
    if (label) {
        label->setText(text);
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

/// Whether a box is one of the combo spin boxes, whose operations have other names.
template <class Box, class = void>
inline constexpr bool IsComboBox = false;
template <class Box>
inline constexpr bool IsComboBox<Box, std::void_t<decltype(&Box::EditFinished)>> = true;

/// Whether \p widget or one inside it has the keyboard.
inline bool HasFocusWithin(const QWidget& widget)
{
    const QWidget* focus = QApplication::focusWidget();
    return focus && (focus == &widget || widget.isAncestorOf(focus));
}

/// What a box holds; 0 for a missing one.
template <class Box>
auto ValueOf(const Box* box)
{
    if constexpr (IsComboBox<Box>) {
        return box ? box->Value() : decltype(box->Value()){};
    } else {
        return box ? box->value() : decltype(box->value()){};
    }
}

template <class Box>
auto ValueOf(const FoundPointer<Box>& box)
{
    return ValueOf(static_cast<const Box*>(box));
}

/// Shows \p value in a box without a signal of it.
template <class Box>
void ShowValue(Box* box, decltype(ValueOf(static_cast<const Box*>(nullptr))) value)
{
    // A box without the focus shows what it holds: setting the same again would only lay out its text once more.
    if (!box || (ValueOf(box) == value && !HasFocusWithin(*box))) {
        return;
    }
    const CSignalBlocker silent{box};
    if constexpr (IsComboBox<Box>) {
        box->SetValue(value);
    } else {
        box->setValue(value);
    }
}

template <class Box, class Value>
void ShowValue(const FoundPointer<Box>& box, Value value)
{
    ShowValue(static_cast<Box*>(box), value);
}

/// Calls \p handler of \p section when the user clicks \p button.
template <class Section>
void ConnectClicked(QAbstractButton* button, Section* section, void (Section::*handler)())
{
    if (button) {
        QObject::connect(button, &QAbstractButton::clicked, section, handler);
    }
}

/// Calls \p handler with the box's value each time the user commits an edit, while \p section lives. What a box commits
/// while edits are dropped is not the user's.
template <class Box, class Handler>
void ConnectEdited(Box* box, const QObject* section, Handler handler)
{
    if (!box) {
        return;
    }
    const auto pass = [box, handler] {
        if (!IsDroppingEdits()) {
            handler(ValueOf(box));
        }
    };
    if constexpr (IsComboBox<Box>) {
        QObject::connect(box, &Box::EditFinished, section, pass);
    } else {
        QObject::connect(box, &Box::RecordEditingValue, section, pass);
    }
}

template <class Box, class Handler>
void ConnectEdited(const FoundPointer<Box>& box, const QObject* section, Handler handler)
{
    ConnectEdited(static_cast<Box*>(box), section, handler);
}

} // namespace MV
