#pragma once

#include "MVPluginQt/Export.h"

#include <QDialog>

namespace MV {

/// Base of the host's dialogs.
class MVPLUGINQT_EXPORT CDialogEx : public QDialog
{
    Q_OBJECT

public:
    explicit CDialogEx(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
};

/// Base of the dialogs that a plug-in brings. A dialog of a mode shows and hides with the host's dialog mode; the
/// hooks run around each showing and hiding.
class MVPLUGINQT_EXPORT CPluginDialog : public CDialogEx
{
    Q_OBJECT

public:
    explicit CPluginDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

protected:
    virtual void BeforeDialogModeChangedToShow();
    virtual void AfterDialogModeChangedToShow();
    virtual void BeforeDialogModeChangedTHide();
    virtual void AfterDialogModeChangedTHide();

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
};

} // namespace MV
