#pragma once

#include "host/services/HostApplication.h"
#include "tests/support/ForwardingServices.h"

#include <cstddef>
#include <memory>
#include <string>

/// The stand-in host, which returns what the benchmarks ask for in next to no time and without a journal: what is left
/// to measure is the panel's own work.
///
/// Every object has as many meshes and materials as Fill() said, all of them soft cloth.
class QuickHost : public Host::HostApplication
{
public:
    QuickHost();
    ~QuickHost() override;

    MV::CSceneService* GetSceneService() override;
    MV::CEditService* GetEditService() override;

    /// From now on there are \p meshes meshes with \p materialsPerMesh materials each.
    void Fill(std::size_t meshes, std::size_t materialsPerMesh);

private:
    class Scene;
    class Edit;

    std::unique_ptr<Scene> m_quickScene;
    std::unique_ptr<Edit> m_quickEdit;
};
