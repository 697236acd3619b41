#include "preset/ApplyKeys.h"

#include <QKeyEvent>
#include <QListWidget>

#include <utility>

namespace MV {

namespace {

bool IsApplyKey(const QKeyEvent& event)
{
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return isPlain && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space);
}

} // namespace

CApplyKeys::CApplyKeys(QListWidget* list, std::function<void()> apply)
    : QObject(list)
    , m_list(list)
    , m_apply(std::move(apply))
{
    list->installEventFilter(this);
}

bool CApplyKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    auto* key = static_cast<QKeyEvent*>(event);
    if (!IsApplyKey(*key) || !m_list->currentItem()) {
        return QObject::eventFilter(watched, event);
    }
    key->accept();
    if (!key->isAutoRepeat()) {
        // A copy: this object ends with the list.
        const auto apply = m_apply;
        apply();
    }
    return true;
}

} // namespace MV
