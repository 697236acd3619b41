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
    void FollowNewest();

    QLineEdit* m_filter;
    QSortFilterProxyModel* m_filtered;
    QTableView* m_table;
    bool m_follows = true;
};

} // namespace Host
