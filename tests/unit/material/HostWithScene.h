#pragma once

#include "plugin/services/MoviraInterface.h"

/// A host whose scene service is another one; everything else is its inner host's.
class HostWithScene final : public MV::CMoviraInterface
{
public:
    HostWithScene(MV::CMoviraInterface& inner, MV::CSceneService& scene)
        : m_inner(inner)
        , m_scene(scene)
    {
    }

    MV::CEventSender* GetEventSender() override { return m_inner.GetEventSender(); }
    MV::CEditService* GetEditService() override { return m_inner.GetEditService(); }
    MV::CFileService* GetFileService() override { return m_inner.GetFileService(); }
    MV::CSceneService* GetSceneService() override { return &m_scene; }
    MV::CUiService* GetUiService() override { return m_inner.GetUiService(); }
    MV::CHotKeyService* GetHotKeyService() override { return m_inner.GetHotKeyService(); }
    MV::CSoftClothService* GetSoftClothService() override { return m_inner.GetSoftClothService(); }
    MV::CAuxService* GetAuxService() override { return m_inner.GetAuxService(); }

private:
    MV::CMoviraInterface& m_inner;
    MV::CSceneService& m_scene;
};
