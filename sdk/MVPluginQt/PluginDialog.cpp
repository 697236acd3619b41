#include "MVPluginQt/PluginDialog.h"

#include <QHideEvent>
#include <QKeyEvent>
#include <QShowEvent>

namespace MV {

CDialogEx::CDialogEx(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

CPluginDialog::CPluginDialog(QWidget* parent, Qt::WindowFlags flags)
    : CDialogEx(parent, flags)
{
}

void CPluginDialog::BeforeDialogModeChangedToShow() {}

void CPluginDialog::AfterDialogModeChangedToShow() {}

void CPluginDialog::BeforeDialogModeChangedTHide() {}

void CPluginDialog::AfterDialogModeChangedTHide() {}

// A spontaneous event comes from the window system (minimising, another desktop), not from a mode.
void CPluginDialog::showEvent(QShowEvent* event)
{
    if (event->spontaneous()) {
        CDialogEx::showEvent(event);
        return;
    }
    BeforeDialogModeChangedToShow();
    CDialogEx::showEvent(event);
    AfterDialogModeChangedToShow();
}

void CPluginDialog::hideEvent(QHideEvent* event)
{
    if (event->spontaneous()) {
        CDialogEx::hideEvent(event);
        return;
    }
    BeforeDialogModeChangedTHide();
    CDialogEx::hideEvent(event);
    AfterDialogModeChangedTHide();
}

void CPluginDialog::keyPressEvent(QKeyEvent* event)
{
    // Return commits the field that has the focus; it must not press a default button as well.
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn) {
        event->accept();
        return;
    }
    CDialogEx::keyPressEvent(event);
}

void CPluginDialog::keyReleaseEvent(QKeyEvent* event)
{
    CDialogEx::keyReleaseEvent(event);
}

} // namespace MV
