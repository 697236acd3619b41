#pragma once

#include "host/scene/SceneEdit.h"

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
    /// \return 0; 0x80000006 when one of them is not the absolute path of a file that begins as an image does, or the
    ///         program does not start
    BF::Result Launch(const QStringList& files);

    /// A file that holds the weight image at \p address: the linked one, or a copy of the embedded image; the image
    /// follows the copy when that is saved.
    /// \return a null string when there is no image or the copy cannot be written
    QString FileForWeightImage(const ClothAddress& address);

    /// Writes \p content into a new file of this session, called after \p name.
    /// \return its path; a null string, after a message, when it cannot be written
    QString SaveNewFile(const QString& name, const QString& suffix, const QByteArray& content);

private:
    QString NewFilePath(const QString& name, const QString& suffix);
    void Watch(const QString& file);
    void OnTouched(const QString& fileOrFolder);
    void CheckTouchedFiles();
    void TakeChange(const QString& file, const QByteArray& bytes);
    void ForgetScene();

    HostApplication& m_host;
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
