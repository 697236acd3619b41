#include "material/MaterialTableItems.h"

namespace MV {

CNameItem::CNameItem()
{
    setFlags(flags() & ~Qt::ItemIsEditable);
}

QVariant CNameItem::data(int role) const
{
    return QTableWidgetItem::data(role == Qt::ToolTipRole ? int(Qt::DisplayRole) : role);
}

CTickItem::CTickItem(QCheckBox* checkBox)
    : m_checkBox(checkBox)
{
    setFlags((flags() & ~Qt::ItemIsEditable) | Qt::ItemIsUserCheckable);
}

QVariant CTickItem::data(int role) const
{
    if (m_checkBox && role == Qt::CheckStateRole) {
        return m_checkBox->checkState();
    }
    if (m_checkBox && role == Qt::AccessibleTextRole) {
        return m_checkBox->accessibleName();
    }
    return QTableWidgetItem::data(role);
}

void CTickItem::setData(int role, const QVariant& value)
{
    if (m_checkBox && role == Qt::CheckStateRole) {
        m_checkBox->setCheckState(Qt::CheckState(value.toInt()));
        return;
    }
    QTableWidgetItem::setData(role, value);
}

void CTickDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
}

bool CTickDelegate::editorEvent(QEvent* /*event*/, QAbstractItemModel* /*model*/,
                                const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/)
{
    return false;
}

} // namespace MV
