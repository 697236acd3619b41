#pragma once

#include <MVPluginQt/ArrayList.h>
#include <MVPluginQt/Result.h>

#include <QtGlobal>

#include <string>

class QAction;
class QWidget;

namespace MV {

/// The host's hot keys. The order of the functions is part of the contract with the host.
class CHotKeyService
{
public:
    /// \return a value that identifies the registration; 0 when it failed
    virtual quint64 RegisterSectionHotKeys(const BF::CArrayList<std::wstring>& descriptions,
                                           const std::wstring& owner) = 0;
    virtual BF::Result DisableHotKeyAction(QAction* action) = 0;
    virtual BF::Result EnableHotKeyAction(QAction* action) = 0;
    /// Lets Escape trigger \p action while \p owner is in use.
    virtual BF::Result RegisterEscapeAction(quint64 registration, QAction* action, QWidget* owner) = 0;

protected:
    ~CHotKeyService() = default;
};

} // namespace MV
