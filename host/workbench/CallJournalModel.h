#pragma once

#include <QAbstractTableModel>

namespace Host {

class CallJournal;

/// The call journal as a table: service, call with arguments, result.
class CallJournalModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        ServiceColumn,
        CallColumn,
        ResultColumn,
        ColumnCount
    };

    CallJournalModel(CallJournal& journal, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    CallJournal& m_journal;
    int m_rows;
};

} // namespace Host
