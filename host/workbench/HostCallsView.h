#pragma once

#include <QWidget>

class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

namespace Host {

class CallJournal;

/// Live view of the call journal with a filter.
class HostCallsView : public QWidget
{
    Q_OBJECT

public:
    HostCallsView(CallJournal& journal, QWidget* parent = nullptr);

private:
    QLineEdit* m_filter;
    QSortFilterProxyModel* m_filtered;
    QTableView* m_table;
};

} // namespace Host
