#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Host {

/// One line of the call journal.
struct JournalEntry
{
    enum class Kind
    {
        Call,  ///< The plug-in called a host operation.
        Event, ///< The host sent an event.
    };

    Kind kind = Kind::Call;
    int depth = 0;          ///< How many calls and events are still running around this one.
    QString service;        ///< "Scene", "Edit", …; "Event" for an event.
    QString operation;      ///< As the interface names it.
    QStringList arguments;  ///< In order; out arguments as they were left, once the call has ended.
    QString result;         ///< "0", "1", "0x80000003", a value; empty for an event and while the call runs.
    bool hasStatus = false; ///< A call that answers a status, so that it can be made to fail.

    /// "GetObjectType("spider", 1) -> 0"
    QString ToString() const;
};

/// What has passed last between the plug-in and the host, in the order of beginning.
class CallJournal : public QObject
{
    Q_OBJECT

public:
    explicit CallJournal(QObject* parent = nullptr);

    /// So many of the last entries are always there; older ones are dropped, many at a time.
    static constexpr int mostEntries = 100000;

    const QVector<JournalEntry>& Entries() const { return m_entries; }
    /// A sentence that says how many entries were dropped since the last Clear(); a null string when all are there.
    QString DroppedText() const;
    /// All entries as text, one per line, indented by depth; below DroppedText(), if any.
    QString ToText() const;
    void Clear();

    /// Opens an entry; every Begin() is followed by one End() with the number that it returned.
    qint64 Begin(JournalEntry entry);
    /// Closes an entry. One that was removed or dropped in between is ignored.
    void End(qint64 number, const QStringList& arguments, const QString& result);

Q_SIGNALS:
    void EntryAdded(int index);
    void EntryChanged(int index);
    /// The first \p count entries are dropped, between these two.
    void AboutToDropEntries(int count);
    void EntriesDropped();
    void Cleared();

private:
    void DropOldEntries();

    QVector<JournalEntry> m_entries;
    qint64 m_firstNumber = 0; ///< Number of the entry at index 0; grows when the journal is cleared.
    qint64 m_dropped = 0;     ///< Since it was cleared.
    int m_depth = 0;
};

} // namespace Host

Q_DECLARE_TYPEINFO(Host::JournalEntry, Q_MOVABLE_TYPE);
