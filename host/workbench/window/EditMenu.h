#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

namespace Host {

class HostApplication;

/// The Edit menu: undo, redo, deleting, the program for images.
class EditMenu : public QObject
{
    Q_OBJECT

public:
    EditMenu(HostApplication& host, QMainWindow& window);

    /// Lets the key for deleting delete the selected objects while the focus is in \p view, as it does nowhere else.
    void DeleteFrom(QWidget* view);

    void AddMenu(QMenu* menu);

    /// Sets what the user chose in an earlier run: the program for images, the UV layouts kept.
    void RestoreImageEditor();
    /// With nobody to click, nothing is remembered from one run to the next.
    void SetUnattended() { m_unattended = true; }

private:
    void CreateActions();
    void ShowSteps();
    void ConnectScene();
    void DeleteSelected();
    void ChooseImageEditor();
    void Remember(const QString& key, const QVariant& value) const;

    HostApplication& m_host;
    QMainWindow& m_window;
    QMenu* m_menu = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_delete = nullptr;
    bool m_unattended = false;
};

} // namespace Host
