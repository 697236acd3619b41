#pragma once

#include "host/import/ModelImport.h"
#include "host/import/Units.h"
#include "host/workbench/window/RecentFiles.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

class QMainWindow;
class QMenu;

namespace Host {

class HostApplication;

/// The File menu and what is behind it: models and scenes from and to files, by menu, by dropping them on the window,
/// and from the list of those that were opened last; and the question about changes that are not saved.
class SceneFiles : public QObject
{
    Q_OBJECT

public:
    SceneFiles(HostApplication& host, QMainWindow& window);

    /// Reads a model into the current scene and selects it, with a progress dialog that can cancel it. The first one of
    /// an untitled scene is no change that would have to be saved.
    /// \param unit  of a model whose file does not name one; without it the user is asked
    /// \return false when it failed, after Failed(), or was cancelled
    bool Import(const QString& path, const std::optional<LengthUnit>& unit = {});
    /// Exchanges the scene for one that was saved before. \return false, after Failed(), when the file is no good
    bool Open(const QString& path);
    /// \return false, after Failed(), when it cannot be written
    bool Save(const QString& path);
    void New();
    /// Opens a scene, after asking about the current one, or imports a model, in the unit that was chosen for it
    /// before.
    bool OpenOrImport(const QString& path);

    /// Lets the user save changes that are not saved. \return false when the user would rather stay
    bool MayDiscard();
    /// The scene has changes that are worth a question.
    bool IsModified() const;

    /// Goes on with the scene's file that \p old knows.
    void TakeOver(const SceneFiles& old);

    /// With nobody to click, nothing is asked and nothing is remembered.
    void SetUnattended() { m_unattended = true; }

Q_SIGNALS:
    /// Something went wrong; \p sentence is for the user.
    void Failed(const QString& sentence);
    /// Something was done; \p sentence is for the status bar.
    void Done(const QString& sentence);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CreateMenu();
    void ChooseModel();
    std::optional<LengthUnit> ChooseUnit(const QString& file, double size);
    void OpenDropped(const QStringList& files);
    void ChooseScene();
    bool SaveOrChoose();
    bool ChooseAndSave();
    ImportResult Read(const QString& path, const UnitChoice& unit);
    void Remember(const QString& path, const QString& unit = {}) const;
    void ConnectScene();
    void ShowTitle();

    HostApplication& m_host;
    QMainWindow& m_window;
    RecentFiles m_recent;
    QString m_scenePath;
    bool m_unattended = false;
};

} // namespace Host
