#pragma once

#include <QObject>

#include <functional>

class QListWidget;

namespace MV {

/// Lets the user apply the current item of a list from the keyboard: with Return, Enter or Space, once for a key that
/// is held. The list's own signal for an activated item will not do: it is emitted at a double click as well.
class CApplyKeys : public QObject
{
    Q_OBJECT

public:
    /// \param list   owns the keys; without a current item they are left to it
    /// \param apply  may end the list
    CApplyKeys(QListWidget* list, std::function<void()> apply);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QListWidget* m_list;
    std::function<void()> m_apply;
};

} // namespace MV
