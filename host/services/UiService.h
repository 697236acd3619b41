#pragma once

#include "host/services/ServiceBase.h"
#include "plugin/services/UiService.h"

namespace Host {

/// MV::CUiService: modes of the scene, real message boxes. The interface documents the operations.
class UiService final : public MV::CUiService, private ServiceBase
{
public:
    explicit UiService(HostApplication& host);

    BF::Result ChangePickMode(MV::EPickMode mode) override;
    BF::Result CancelPickMode() override;
    BF::Result SetDialogMode(MV::EDialogMode mode) override;
    BF::Result RefreshScene(int flag) override;
    BF::Result LaunchImageEditor(const BF::CArrayList<std::wstring>& files) override;
    int ShowMessageBox(const QString& text, const QString& title, QWidget* parent, int icon, int buttons,
                       int defaultButton) override;
    BF::Result ShowPanelPage(int page, int order, int flags) override;
};

} // namespace Host
