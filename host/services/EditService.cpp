#include "host/services/EditService.h"

#include "host/scene/RecordFields.h"
#include "host/services/WeightImages.h"
#include "panel/HostCodes.h"

#include <algorithm>

namespace Host {

namespace {

using MV::softClothPhysics;

QMap<QString, QStringList> ToIgnored(const std::map<std::wstring, BF::CArrayList<std::wstring>>& names)
{
    QMap<QString, QStringList> ignored;
    for (const auto& [mesh, materials] : names) {
        QStringList& list = ignored[QString::fromStdWString(mesh)];
        for (const std::wstring& material : materials) {
            list.append(QString::fromStdWString(material));
        }
    }
    return ignored;
}

/// Who offers a material wants it not to be ignored any more.
void StopIgnoring(const Object& owner, const Material& material, SceneEdit& edit)
{
    ObjectState state = owner.state;
    for (const Mesh& mesh : owner.meshes) {
        const auto names = state.ignoredMaterials.find(mesh.name);
        const bool hasMaterial =
            std::any_of(mesh.materialSlots.begin(), mesh.materialSlots.end(),
                        [&material](const MaterialSlot& slot) { return slot.material == material.id; });
        if (names != state.ignoredMaterials.end() && hasMaterial) {
            names->removeAll(material.name);
        }
    }
    edit.objects.push_back({owner.handle, {}, state});
}

} // namespace

EditService::EditService(HostApplication& host)
    : ServiceBase(host, "Edit")
{
}

template <class Change>
BF::Result EditService::EditCloths(const ClothAddress& address, bool affectAllMaterials, const QString& text,
                                   Change change)
{
    const Scene& scene = CurrentScene();
    if (!scene.FindSlot(address)) {
        return BF::Results::InvalidArgument;
    }
    SceneEdit edit;
    edit.text = text;
    const std::vector<ClothAddress> addresses =
        affectAllMaterials ? Scene::SlotsOf(*scene.FindObject(address.object)) : std::vector<ClothAddress>{address};
    for (const ClothAddress& touched : addresses) {
        ClothState cloth = scene.FindSlot(touched)->cloth;
        if (!change(cloth)) {
            return BF::Results::InvalidArgument;
        }
        edit.cloths.push_back({touched, {}, cloth});
    }
    CurrentScene().Push(std::move(edit));
    return BF::Results::Success;
}

template <class Change>
BF::Result EditService::EditObject(BF::CHandle* object, const QString& text, MV::EObjectChangedDataType changedData,
                                   Change change)
{
    const Object* found = CurrentScene().FindObject(object);
    if (!found) {
        return BF::Results::InvalidArgument;
    }
    SceneEdit edit;
    edit.text = text;
    ObjectState state = found->state;
    change(state);
    edit.objects.push_back({object, {}, state});
    App().PushObjectEdit(object, std::move(edit), changedData);
    return BF::Results::Success;
}

BF::Result EditService::ConvertToRigidBody(BF::CHandle* object)
{
    return Record("ConvertToRigidBody", {In(object)}, [&] {
        return EditObject(object, HostApplication::tr("Convert to rigid body"), MV::EObjectChangedDataType::Topology,
                          [](ObjectState& state) {
                              state.softCloth = false;
                              state.rigidBody = true;
                          });
    });
}

BF::Result EditService::CancelMultiMaterialSoftCloth(BF::CHandle* object)
{
    return Record("CancelMultiMaterialSoftCloth", {In(object)},
                  [&] { return App().CancelSoftCloth(object) ? BF::Results::Success : BF::Results::InvalidArgument; });
}

BF::Result EditService::SetPhysicsActive(BF::CHandle* object, int kind, bool active, bool flag1, bool flag2)
{
    return Record("SetPhysicsActive", {In(object), In(kind), In(active), In(flag1), In(flag2)}, [&] {
        if (kind != softClothPhysics || !App().SetSoftClothActive(object, active)) {
            return BF::Results::InvalidArgument;
        }
        return BF::Results::Success;
    });
}

BF::Result EditService::SetUseGlobalGravity(BF::CHandle* object, Id mesh, Id material, bool use,
                                            bool affectAllMaterials)
{
    return Record("SetUseGlobalGravity", {In(object), InId(mesh), InId(material), In(use), In(affectAllMaterials)},
                  [&] {
                      return EditCloths({object, mesh, material}, affectAllMaterials,
                                        HostApplication::tr("World gravity"), [use](ClothState& cloth) {
                                            cloth.useGlobalGravity = use;
                                            return true;
                                        });
                  });
}

BF::Result EditService::DeleteWeightImage(BF::CHandle* object, Id mesh, Id material)
{
    return Record("DeleteWeightImage", {In(object), InId(mesh), InId(material)}, [&] {
        return App().Weights().Delete({object, mesh, material});
    });
}

BF::Result EditService::EmbedWeightImage(BF::CHandle* object, Id mesh, Id material)
{
    return Record("EmbedWeightImage", {In(object), InId(mesh), InId(material)}, [&] {
        return App().Weights().Embed({object, mesh, material});
    });
}

BF::Result EditService::SetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material,
                                             const MV::WeightImageAdjust& adjust, bool flag1, bool flag2)
{
    bool wasRun = false;
    const BF::Result result =
        Record("SetWeightImageAdjust", {In(object), InId(mesh), InId(material), In(adjust), In(flag1), In(flag2)}, [&] {
            wasRun = true;
            return App().Weights().Adjust({object, mesh, material}, adjust, flag1);
        });
    if (!wasRun && result == BF::Results::Refused) {
        App().Weights().PushRefusal(HostApplication::tr("Adjust weight image"));
    }
    return result;
}

BF::Result EditService::SetIgnoredMaterialNames(BF::CHandle* object,
                                                const std::map<std::wstring, BF::CArrayList<std::wstring>>& names)
{
    return Record("SetIgnoredMaterialNames", {In(object), In(names)}, [&] {
        return EditObject(object, HostApplication::tr("Ignore materials"), MV::EObjectChangedDataType::MaterialList,
                          [&names](ObjectState& state) { state.ignoredMaterials = ToIgnored(names); });
    });
}

BF::Result EditService::SetSoftClothProperty(BF::CHandle* object, Id mesh, Id material, MV::ESoftClothPropertyType type,
                                             const MV::SoftClothPropertyData& data, bool affectAllMaterials)
{
    return Record("SetSoftClothProperty",
                  {In(object), InId(mesh), InId(material), In(type), In(data), In(affectAllMaterials)}, [&] {
                      return EditCloths({object, mesh, material}, affectAllMaterials,
                                        HostApplication::tr("Soft cloth property"),
                                        [&](ClothState& cloth) { return TakeField(cloth.property, data, type); });
                  });
}

BF::Result EditService::SetSoftClothCollision(BF::CHandle* object, Id mesh, Id material,
                                              MV::ESoftClothCollisionType type, const MV::SoftClothCollisionData& data,
                                              bool affectAllMaterials)
{
    return Record("SetSoftClothCollision",
                  {In(object), InId(mesh), InId(material), In(type), In(data), In(affectAllMaterials)}, [&] {
                      return EditCloths({object, mesh, material}, affectAllMaterials,
                                        HostApplication::tr("Soft cloth collision"),
                                        [&](ClothState& cloth) { return TakeField(cloth.collision, data, type); });
                  });
}

BF::Result EditService::SetSoftClothWind(BF::CHandle* object, Id mesh, Id material, MV::ESoftClothWindType type,
                                         const MV::SoftClothWindData& data, bool affectAllMaterials)
{
    return Record(
        "SetSoftClothWind", {In(object), InId(mesh), InId(material), In(type), In(data), In(affectAllMaterials)}, [&] {
            return EditCloths({object, mesh, material}, affectAllMaterials, HostApplication::tr("Soft cloth wind"),
                              [&](ClothState& cloth) { return TakeField(cloth.wind, data, type); });
        });
}

BF::Result EditService::UndoLastEdit()
{
    return Record("UndoLastEdit", {}, [&] {
        if (!CurrentScene().UndoStack().canUndo()) {
            return BF::Results::NothingDone;
        }
        App().TakeBack();
        return BF::Results::Success;
    });
}

BF::Result EditService::SetMaterialSoftClothEnabled(Id material, bool enabled)
{
    return Record("SetMaterialSoftClothEnabled", {InId(material), In(enabled)}, [&] {
        const Material* found = CurrentScene().FindMaterial(material);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        SceneEdit edit;
        edit.text = enabled ? HostApplication::tr("Add %1 to the soft cloth").arg(found->name)
                            : HostApplication::tr("Take %1 out of the soft cloth").arg(found->name);
        edit.materials.push_back({material, {}, MaterialState{enabled}});
        const Object& owner = *CurrentScene().OwnerOfMaterial(material);
        if (enabled && !owner.state.ignoredMaterials.isEmpty()) {
            StopIgnoring(owner, *found, edit);
        }
        if (CurrentScene().Push(std::move(edit))) {
            App().Send("ObjectDataChanged", &MV::CEventSender::ObjectDataChanged,
                       BF::CArrayList<BF::CHandle*>{owner.handle}, MV::EObjectChangedDataType::MaterialList);
        }
        return BF::Results::Success;
    });
}

} // namespace Host
