#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/HotKeyService.h"

#include <map>

namespace Host {

/// MV::CHotKeyService: hands out registrations and lets Escape trigger the registered actions.
class HotKeyService final : public MV::CHotKeyService, private ServiceBase
{
public:
    explicit HotKeyService(HostApplication& host);

    quint64 RegisterSectionHotKeys(const BF::CArrayList<std::wstring>& descriptions,
                                   const std::wstring& owner) override;
    BF::Result DisableHotKeyAction(QAction* action) override;
    BF::Result EnableHotKeyAction(QAction* action) override;
    BF::Result RegisterEscapeAction(quint64 registration, QAction* action, QWidget* owner) override;

private:
    BF::Result SetActionEnabled(const char* operation, QAction* action, bool enabled);

    std::map<quint64, std::wstring> m_owners; ///< By registration.
};

} // namespace Host
