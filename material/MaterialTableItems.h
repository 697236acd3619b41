#pragma once

#include <QCheckBox>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTableWidgetItem>

namespace MV {

/// The cell of a name: not editable, with the whole name as tool tip, since a narrow column elides it.
class CNameItem : public QTableWidgetItem
{
public:
    CNameItem();
    QVariant data(int role) const override;
};

/// The cell behind a row's check box. It says for the check box what it shows, so that a screen reader, which goes
/// through a table by its cells, finds the ticks.
class CTickItem : public QTableWidgetItem
{
public:
    explicit CTickItem(QCheckBox* checkBox);
    QVariant data(int role) const override;
    void setData(int role, const QVariant& value) override;

private:
    QPointer<QCheckBox> m_checkBox;
};

/// Leaves the tick of a CTickItem to its check box: draws none, and takes no clicks and keys for one.
class CTickDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};

} // namespace MV
