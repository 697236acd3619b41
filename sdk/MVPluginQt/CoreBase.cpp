#include "MVPluginQt/CoreBase.h"

namespace MV {

namespace {

// GUI thread only, as all of the SDK.
ECompatibleApp g_processApp = ECompatibleApp::None;

} // namespace

ECompatibleApp CCoreBase::GetCurrentAp() const
{
    return g_processApp;
}

void CCoreBase::SetProcessApp(ECompatibleApp app)
{
    g_processApp = app;
}

} // namespace MV
