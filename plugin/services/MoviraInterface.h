#pragma once

namespace MV {

class CAuxService;
class CEditService;
class CEventSender;
class CFileService;
class CHotKeyService;
class CSceneService;
class CSoftClothService;
class CUiService;

/// The host application. Its services are borrowed: ask for them at each use, never keep or free them.
/// The order of the functions is part of the contract with the host.
class CMoviraInterface
{
public:
    virtual CEventSender* GetEventSender() = 0;
    virtual CEditService* GetEditService() = 0;
    virtual CFileService* GetFileService() = 0;
    virtual CSceneService* GetSceneService() = 0;
    virtual CUiService* GetUiService() = 0;
    virtual CHotKeyService* GetHotKeyService() = 0;
    virtual CSoftClothService* GetSoftClothService() = 0;
    virtual CAuxService* GetAuxService() = 0;

protected:
    ~CMoviraInterface() = default;
};

} // namespace MV
