#include "preset/EditedMaterial.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>

namespace MV {

CEditedMaterial::CEditedMaterial(QLabel* label, const QListView* list)
    : QObject(label)
    , m_label(label)
    , m_current(list ? list->selectionModel() : nullptr)
{
    if (m_current) {
        const QAbstractItemModel* rows = m_current->model();
        connect(m_current, &QItemSelectionModel::currentChanged, this, &CEditedMaterial::Show);
        connect(m_current, &QObject::destroyed, this, &CEditedMaterial::Show);
        connect(rows, &QAbstractItemModel::modelReset, this, &CEditedMaterial::Show);
        connect(rows, &QAbstractItemModel::rowsRemoved, this, &CEditedMaterial::Show);
        connect(rows, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& first, const QModelIndex& last) {
                    const int row = m_current ? m_current->currentIndex().row() : -1;
                    if (first.row() <= row && row <= last.row()) {
                        Show();
                    }
                });
    }
    Show();
}

void CEditedMaterial::Show()
{
    const QModelIndex row = m_current && m_current->model() ? m_current->currentIndex() : QModelIndex();
    const QString text = row.isValid() ? row.data().toString() : tr("There is no material to edit");
    m_label->setText(text);
    // The whole of a name that has no room.
    m_label->setToolTip(text);
}

} // namespace MV
