#include "host/services/CallJournal.h"

#include <utility>

namespace Host {

QString JournalEntry::ToString() const
{
    QString text = operation + QLatin1Char('(') + arguments.join(QLatin1String(", ")) + QLatin1Char(')');
    if (!result.isEmpty()) {
        text += QLatin1String(" -> ") + result;
    }
    return text;
}

CallJournal::CallJournal(QObject* parent)
    : QObject(parent)
{
}

QString CallJournal::DroppedText() const
{
    return m_dropped == 0 ? QString()
                          : tr("Only the last calls are kept: the first %L1 since the journal was emptied are gone.")
                                .arg(m_dropped);
}

QString CallJournal::ToText() const
{
    QString text = m_dropped == 0 ? QString() : DroppedText() + QLatin1Char('\n');
    for (const JournalEntry& entry : m_entries) {
        text += QString(entry.depth * 2, QLatin1Char(' ')) + entry.service + QLatin1Char('.') + entry.ToString() +
                QLatin1Char('\n');
    }
    return text;
}

void CallJournal::Clear()
{
    m_firstNumber += m_entries.size();
    m_entries.clear();
    m_dropped = 0;
    Q_EMIT Cleared();
}

qint64 CallJournal::Begin(JournalEntry entry)
{
    DropOldEntries();
    entry.depth = m_depth++;
    m_entries.append(std::move(entry));
    const int index = m_entries.size() - 1;
    Q_EMIT EntryAdded(index);
    return m_firstNumber + index;
}

/// Many at a time, so that dropping costs next to nothing for each.
void CallJournal::DropOldEntries()
{
    constexpr int atATime = mostEntries / 20;
    if (m_entries.size() < mostEntries + atATime) {
        return;
    }
    Q_EMIT AboutToDropEntries(atATime);
    m_entries.remove(0, atATime);
    m_firstNumber += atATime;
    m_dropped += atATime;
    Q_EMIT EntriesDropped();
}

void CallJournal::End(qint64 number, const QStringList& arguments, const QString& result)
{
    --m_depth;
    const qint64 index = number - m_firstNumber;
    if (index < 0 || index >= m_entries.size()) {
        return;
    }
    JournalEntry& entry = m_entries[int(index)];
    entry.arguments = arguments;
    entry.result = result;
    Q_EMIT EntryChanged(int(index));
}

} // namespace Host
