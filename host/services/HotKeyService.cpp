#include "host/services/HotKeyService.h"

#include <QAction>
#include <QWidget>

namespace Host {

HotKeyService::HotKeyService(HostApplication& host)
    : ServiceBase(host, "HotKey")
{
}

quint64 HotKeyService::RegisterSectionHotKeys(const BF::CArrayList<std::wstring>& descriptions,
                                              const std::wstring& owner)
{
    return RecordValue("RegisterSectionHotKeys", {In(descriptions), In(owner)}, [&] {
        const quint64 registration = m_owners.size() + 1;
        m_owners.emplace(registration, owner);
        return registration;
    });
}

BF::Result HotKeyService::DisableHotKeyAction(QAction* action)
{
    return SetActionEnabled("DisableHotKeyAction", action, false);
}

BF::Result HotKeyService::EnableHotKeyAction(QAction* action)
{
    return SetActionEnabled("EnableHotKeyAction", action, true);
}

BF::Result HotKeyService::RegisterEscapeAction(quint64 registration, QAction* action, QWidget* owner)
{
    return Record("RegisterEscapeAction", {In(registration), In(action), In(owner)}, [&] {
        if (m_owners.count(registration) == 0 || !action || !owner) {
            return BF::Results::InvalidArgument;
        }
        action->setShortcut(Qt::Key_Escape);
        action->setShortcutContext(Qt::WindowShortcut);
        owner->addAction(action);
        return BF::Results::Success;
    });
}

BF::Result HotKeyService::SetActionEnabled(const char* operation, QAction* action, bool enabled)
{
    return Record(operation, {In(action)}, [&] {
        if (!action) {
            return BF::Results::InvalidArgument;
        }
        action->setEnabled(enabled);
        return BF::Results::Success;
    });
}

} // namespace Host
