#include "host/workbench/CallJournalModel.h"

#include "host/services/CallJournal.h"

#include <QBrush>
#include <QColor>

namespace Host {

CallJournalModel::CallJournalModel(CallJournal& journal, QObject* parent)
    : QAbstractTableModel(parent)
    , m_journal(journal)
    , m_rows(journal.Entries().size())
{
    connect(&journal, &CallJournal::EntryAdded, this, [this](int index) {
        beginInsertRows({}, index, index);
        m_rows = index + 1;
        endInsertRows();
    });
    connect(&journal, &CallJournal::EntryChanged, this,
            [this](int index) { Q_EMIT dataChanged(this->index(index, 0), this->index(index, ColumnCount - 1)); });
    connect(&journal, &CallJournal::AboutToDropEntries, this, [this](int count) {
        beginRemoveRows({}, 0, count - 1);
        m_rows -= count;
    });
    connect(&journal, &CallJournal::EntriesDropped, this, [this] { endRemoveRows(); });
    connect(&journal, &CallJournal::Cleared, this, [this] {
        beginResetModel();
        m_rows = 0;
        endResetModel();
    });
}

int CallJournalModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int CallJournalModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant CallJournalModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_journal.Entries().size()) {
        return {};
    }
    const JournalEntry& entry = m_journal.Entries().at(index.row());
    const bool failed = entry.result.startsWith(QLatin1String("0x8"));
    if (role == Qt::ForegroundRole) {
        if (failed) {
            return QBrush(QColor(230, 120, 110));
        }
        return entry.kind == JournalEntry::Kind::Event ? QVariant(QBrush(QColor(120, 180, 220))) : QVariant();
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    switch (index.column()) {
    case ServiceColumn:
        return entry.service;
    case CallColumn:
        return QString(entry.depth * 3, QLatin1Char(' ')) + entry.operation + QLatin1Char('(') +
               entry.arguments.join(QLatin1String(", ")) + QLatin1Char(')');
    default:
        return entry.result;
    }
}

QVariant CallJournalModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case ServiceColumn:
        return tr("Service");
    case CallColumn:
        return tr("Call");
    default:
        return tr("Result");
    }
}

} // namespace Host
