#pragma once

#include <QObject>
#include <QPointer>

class QItemSelectionModel;
class QLabel;
class QListView;

namespace MV {

/// Says in a label which material the whole panel edits: the text of the current row of the material list, or that
/// there is none. Follows the list's models, whose signals are not blocked while the list is filled.
class CEditedMaterial : public QObject
{
    Q_OBJECT

public:
    /// \param label  owns the object
    /// \param list   may be null, and may end before the label: there is no material then
    CEditedMaterial(QLabel* label, const QListView* list);

private:
    void Show();

    QLabel* m_label;
    QPointer<QItemSelectionModel> m_current;
};

} // namespace MV
