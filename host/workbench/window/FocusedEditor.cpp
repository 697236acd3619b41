#include "host/workbench/window/FocusedEditor.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>

namespace Host {

namespace {

QLineEdit* FocusedText()
{
    QWidget* const focus = QApplication::focusWidget();
    if (const auto* combo = qobject_cast<QComboBox*>(focus)) {
        return combo->lineEdit();
    }
    if (qobject_cast<QAbstractSpinBox*>(focus)) {
        return focus->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    }
    return qobject_cast<QLineEdit*>(focus);
}

} // namespace

void CommitFocusedEditor()
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    if (!focus) {
        return;
    }
    focus->clearFocus();
    // The commit can end in anything, with the box gone as well.
    if (focus) {
        focus->setFocus();
    }
}

bool FocusedTextTakesUndo(bool redo)
{
    const QLineEdit* const text = FocusedText();
    return text && (redo ? text->isRedoAvailable() : text->isUndoAvailable());
}

} // namespace Host
