#pragma once

#include "host/scene/SceneEdit.h"

#include <MVPluginQt/Result.h>

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

class QImage;

namespace Host {

class HostApplication;

/// The files of the UV layouts that the user paints over. Each lies where the user wants to keep it, and what is
/// painted in it is the weight image of the materials that it was drawn for.
class UvLayoutFiles : public QObject
{
    Q_OBJECT

public:
    using Slots = std::vector<ClothAddress>;

    explicit UvLayoutFiles(HostApplication& host)
        : m_host(host)
    {
    }

    static constexpr int most = 100;

    /// The files that the user has kept, the latest first, as they are known from one run to the next.
    void SetKept(const QStringList& files) { m_kept = files; }
    const QStringList& Kept() const { return m_kept; }

    /// The file in which the layout of exactly these slots is: of this session, or the kept one that is their weight
    /// image. A null string when there is none any more.
    QString FileOf(const Slots& drawn);

    /// Asks the user where to keep \p layout, proposing \p name, and writes it there. With nobody to ask it is kept for
    /// the session.
    /// \param file  gets the path
    /// \return 0; 1 when the user would rather not; another failure when it cannot be written, and the reason
    ///         is in the box that the caller shows then
    BF::Result Keep(const QString& name, const QImage& layout, const Slots& drawn, QString& file);

    /// Makes \p file the weight image of the materials that it was drawn for, unless it is already.
    void TakePainted(const QString& file);

    /// Forgets whose the files are. They stay where they are.
    void Clear() { m_drawn.clear(); }

Q_SIGNALS:
    /// The user keeps one more.
    void KeptChanged(const QStringList& files);

private:
    QString Ask(const QString& name) const;
    void AddKept(const QString& file);
    QString LinkedFile(const Slots& drawn) const;

    HostApplication& m_host;
    QHash<QString, Slots> m_drawn; ///< By the files of this session.
    QStringList m_kept;
};

} // namespace Host
