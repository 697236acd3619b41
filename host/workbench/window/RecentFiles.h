#pragma once

#include <QObject>
#include <QStringList>

class QMenu;

namespace Host {

/// The menu of the models and scenes that were opened last, the latest first, kept from one run to the next.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int most = 8;

    explicit RecentFiles(QObject* parent = nullptr);

    /// Fills \p menu each time it is opened.
    void ShowIn(QMenu* menu);

    /// The files, as absolute paths.
    static QStringList Files();
    /// \p path was opened or saved.
    /// \param unit  the one in which the user said that the model was made; empty for none
    static void Add(const QString& path, const QString& unit = {});
    /// The unit that came with \p path; empty for none.
    static QString UnitOf(const QString& path);
    /// \p path cannot be opened any more.
    static void Remove(const QString& path);
    static void Clear();

Q_SIGNALS:
    void Chosen(const QString& path);

private:
    void Fill(QMenu* menu);
};

} // namespace Host
