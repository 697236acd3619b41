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
    int depth = 0;         ///< How many calls and events are still running around this one.
    QString service;       ///< "Scene", "Edit", …; "Event" for an event.
    QString operation;     ///< As the interface names it.
    QStringList arguments; ///< In order; out arguments as they were left, once the call has ended.
    QString result;        ///< "0", "1", "0x80000003", a value; empty for an event and while the call runs.

    /// "GetObjectType("spider", 1) -> 0"
    QString ToString() const;
};

/// Everything that passes between the plug-in and the host, in the order of beginning.
class CallJournal : public QObject
{
    Q_OBJECT

public:
    explicit CallJournal(QObject* parent = nullptr);

    const QVector<JournalEntry>& Entries() const { return m_entries; }
    /// All entries as text, one per line, indented by depth.
    QString ToText() const;
    void Clear();

    /// Opens an entry; every Begin() is followed by one End() with the number that it returned.
    qint64 Begin(JournalEntry entry);
    /// Closes an entry. One that Clear() has removed in between is passed over.
    void End(qint64 number, const QStringList& arguments, const QString& result);

Q_SIGNALS:
    void EntryAdded(int index);
    void EntryChanged(int index);
    void Cleared();

private:
    QVector<JournalEntry> m_entries;
    qint64 m_firstNumber = 0; ///< Number of the entry at index 0; grows when the journal is cleared.
    int m_depth = 0;
};

} // namespace Host
