#include "host/workbench/HostCallsView.h"

#include "host/services/CallJournal.h"
#include "host/workbench/CallJournalModel.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <memory>

namespace Host {

namespace {

/// Says how many calls are not in the list any more, once there are any.
QLabel* DroppedLabel(const CallJournal& journal, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("hostCallsDropped"));
    label->setWordWrap(true);
    label->hide();
    const auto show = [&journal, label] {
        label->setText(journal.DroppedText());
        label->setVisible(!label->text().isEmpty());
    };
    QObject::connect(&journal, &CallJournal::EntriesDropped, label, show);
    QObject::connect(&journal, &CallJournal::Cleared, label, show);
    return label;
}

/// Keeps a bar at its end unless the user has moved it away from there. It learns of new rows some time after the
/// model; its value changes only by a user's hand, or here.
void FollowEnd(QScrollBar& bar)
{
    const auto follows = std::make_shared<bool>(true);
    const auto keepState = [&bar, follows] { *follows = bar.value() >= bar.maximum(); };
    QObject::connect(&bar, &QScrollBar::valueChanged, &bar, keepState);
    QObject::connect(&bar, &QScrollBar::rangeChanged, &bar, [&bar, follows] {
        if (*follows) {
            bar.setValue(bar.maximum());
        }
    });
}

} // namespace

HostCallsView::HostCallsView(CallJournal& journal, QWidget* parent)
    : QWidget(parent)
    , m_filter(new QLineEdit(this))
    , m_filtered(new QSortFilterProxyModel(this))
    , m_table(new QTableView(this))
{
    m_filter->setObjectName(QStringLiteral("hostCallsFilter"));
    m_filter->setAccessibleName(tr("Filter of the host calls"));
    m_filter->setPlaceholderText(tr("Filter calls, for example SetSoftCloth"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setToolTip(tr("Shows only the calls that contain this text"));

    m_filtered->setSourceModel(new CallJournalModel(journal, this));
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    connect(m_filter, &QLineEdit::textChanged, m_filtered, &QSortFilterProxyModel::setFilterFixedString);

    m_table->setObjectName(QStringLiteral("hostCallsTable"));
    m_table->setAccessibleName(tr("Host calls"));
    m_table->setModel(m_filtered);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    m_table->horizontalHeader()->setSectionResizeMode(CallJournalModel::CallColumn, QHeaderView::Stretch);
    m_table->setColumnWidth(CallJournalModel::ServiceColumn, fontMetrics().horizontalAdvance(u'M') * 8);
    m_table->setColumnWidth(CallJournalModel::ResultColumn, fontMetrics().horizontalAdvance(u'M') * 10);

    auto* copy = new QPushButton(tr("Copy"), this);
    copy->setToolTip(tr("Copies the whole journal as text"));
    connect(copy, &QPushButton::clicked, this, [&journal] { QApplication::clipboard()->setText(journal.ToText()); });
    auto* clear = new QPushButton(tr("Clear"), this);
    clear->setToolTip(tr("Empties the journal"));
    connect(clear, &QPushButton::clicked, &journal, &CallJournal::Clear);

    auto* tools = new QHBoxLayout;
    tools->addWidget(m_filter, 1);
    tools->addWidget(copy);
    tools->addWidget(clear);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(tools);
    layout->addWidget(DroppedLabel(journal, this));
    layout->addWidget(m_table);

    FollowEnd(*m_table->verticalScrollBar());
}

} // namespace Host
