#pragma once

#include "plugin/services/MoviraInterface.h"

/// A host without services, for code that only hands its host on.
class EmptyHost final : public MV::CMoviraInterface
{
public:
    MV::CEventSender* GetEventSender() override { return nullptr; }
    MV::CEditService* GetEditService() override { return nullptr; }
    MV::CFileService* GetFileService() override { return nullptr; }
    MV::CSceneService* GetSceneService() override { return nullptr; }
    MV::CUiService* GetUiService() override { return nullptr; }
    MV::CHotKeyService* GetHotKeyService() override { return nullptr; }
    MV::CSoftClothService* GetSoftClothService() override { return nullptr; }
    MV::CAuxService* GetAuxService() override { return nullptr; }
};
