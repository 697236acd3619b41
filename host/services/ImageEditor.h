#pragma once

#include "host/scene/SceneEdit.h"
#include "host/services/UvLayoutFiles.h"

#include <MVPluginQt/Result.h>

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>

class QTemporaryDir;

namespace Host {

class HostApplication;

/// The program outside in which the user edits image files, and the watch over the files that were opened in it. When
/// one is saved, what the scene shows of it is read again and the host's event is sent.
class ImageEditor : public QObject
{
    Q_OBJECT

public:
    explicit ImageEditor(HostApplication& host);
    ~ImageEditor() override;

    /// A program file, or a command line without the files; empty for what the desktop opens images with.
    void SetProgram(const QString& program) { m_program = program; }
    const QString& Program() const { return m_program; }

    /// Opens \p files in the program and watches them from then on.
    /// \return 0; 1 when there are none; 0x80000006 when one of them is not the absolute path of a file that begins as
    /// an image does, or the
    ///         program does not start
    BF::Result Launch(const QStringList& files);

    /// A file that holds the weight image at \p address: the linked one, or a copy of the embedded image; the image
    /// follows the copy when that is saved.
    /// \return a null string when there is no image or the copy cannot be written
    QString FileForWeightImage(const ClothAddress& address);

    /// The UV layouts that were handed out for painting.
    UvLayoutFiles& Layouts() { return m_layouts; }

    /// A path at which there is no file yet, in the folder of this session, for a file called after \p name; a null
    /// string when there is no such folder.
    QString NewFilePath(const QString& name, const QString& suffix);
    /// Writes \p content into the file \p path.
    /// \param problem  why there is no content; empty for none
    /// \return false when there is a problem, which the box that the caller shows then explains
    bool WriteFile(const QString& path, const QByteArray& content, QString problem = {});

private:
    void Watch(const QString& file);
    void OnTouched(const QString& fileOrFolder);
    void CheckTouchedFiles();
    void TakeChange(const QString& file, const QByteArray& bytes);
    void ForgetScene();

    HostApplication& m_host;
    UvLayoutFiles m_layouts;
    QString m_program;
    QFileSystemWatcher m_watcher;
    QHash<QString, QByteArray> m_watched;        ///< Files, and the check sums of their contents.
    QHash<QString, ClothAddress> m_weightCopies; ///< Files that hold an embedded weight image.
    QSet<QString> m_touched;                     ///< Watched files that may have changed.
    QTimer m_settled;                            ///< Runs while changes come in; programs write files in pieces.
    std::unique_ptr<QTemporaryDir> m_folder;
    int m_fileNumber = 0;
};

} // namespace Host
