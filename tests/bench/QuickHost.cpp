#include "tests/bench/QuickHost.h"

#include "host/scene/Handles.h"

namespace {

/// Ids of materials begin above those of meshes.
constexpr Host::Id firstMaterial = 1000000;

} // namespace

class QuickHost::Scene : public Forwarding::SceneService
{
public:
    explicit Scene(QuickHost& host)
        : SceneService(*host.HostApplication::GetSceneService())
    {
    }

    BF::Result GetMeshList(BF::CHandle* /*object*/, BF::CArrayList<Host::Id>& list) override
    {
        for (Host::Id mesh = 1; mesh <= meshes; ++mesh) {
            list.Add(mesh);
        }
        return BF::Results::Success;
    }
    BF::Result GetMaterialList(Host::Id mesh, BF::CArrayList<Host::Id>& list, int /*flag*/) override
    {
        const Host::Id first = firstMaterial + (mesh - 1) * materialsPerMesh;
        for (Host::Id i = 0; i < materialsPerMesh; ++i) {
            list.Add(first + i);
        }
        return BF::Results::Success;
    }
    BF::Result GetObjectName(std::wstring& name, BF::CHandle* id) override
    {
        const Host::Id number = Host::Id(reinterpret_cast<quintptr>(id));
        name = (number >= firstMaterial ? L"Material " : L"Mesh ") + std::to_wstring(number % firstMaterial);
        return BF::Results::Success;
    }
    bool IsMaterialSoftClothEnabled(Host::Id /*material*/) override { return true; }
    BF::Result IsSoftClothActive(BF::CHandle* /*object*/, Host::Id /*mesh*/, Host::Id material, bool& active) override
    {
        // Whoever looks for an active one looks at all of them.
        active = material == firstMaterial + meshes * materialsPerMesh - 1;
        return BF::Results::Success;
    }

    Host::Id meshes = 0;
    Host::Id materialsPerMesh = 0;
};

class QuickHost::Edit : public Forwarding::EditService
{
public:
    explicit Edit(QuickHost& host)
        : EditService(*host.HostApplication::GetEditService())
    {
    }

    BF::Result SetUseGlobalGravity(BF::CHandle* /*object*/, Host::Id /*mesh*/, Host::Id /*material*/, bool /*use*/,
                                   bool /*affectAllMaterials*/) override
    {
        return BF::Results::Success;
    }
    BF::Result SetSoftClothProperty(BF::CHandle* /*object*/, Host::Id /*mesh*/, Host::Id /*material*/,
                                    MV::ESoftClothPropertyType /*type*/, const MV::SoftClothPropertyData& /*data*/,
                                    bool /*affectAllMaterials*/) override
    {
        return BF::Results::Success;
    }
    BF::Result SetSoftClothCollision(BF::CHandle* /*object*/, Host::Id /*mesh*/, Host::Id /*material*/,
                                     MV::ESoftClothCollisionType /*type*/, const MV::SoftClothCollisionData& /*data*/,
                                     bool /*affectAllMaterials*/) override
    {
        return BF::Results::Success;
    }
    BF::Result SetSoftClothWind(BF::CHandle* /*object*/, Host::Id /*mesh*/, Host::Id /*material*/,
                                MV::ESoftClothWindType /*type*/, const MV::SoftClothWindData& /*data*/,
                                bool /*affectAllMaterials*/) override
    {
        return BF::Results::Success;
    }
};

QuickHost::QuickHost()
    : m_quickScene(std::make_unique<Scene>(*this))
    , m_quickEdit(std::make_unique<Edit>(*this))
{
}

QuickHost::~QuickHost() = default;

MV::CSceneService* QuickHost::GetSceneService()
{
    return m_quickScene.get();
}

MV::CEditService* QuickHost::GetEditService()
{
    return m_quickEdit.get();
}

void QuickHost::Fill(std::size_t meshes, std::size_t materialsPerMesh)
{
    m_quickScene->meshes = meshes;
    m_quickScene->materialsPerMesh = materialsPerMesh;
}
