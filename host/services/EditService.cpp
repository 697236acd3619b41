#include "host/services/EditService.h"

#include "host/services/RecordFields.h"

namespace Host {

namespace {

constexpr int softClothPhysics = 3;

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

BF::Result EditService::ConvertToRigidBody(BF::CHandle* object)
{
    return Record("ConvertToRigidBody", {In(object)}, [&] {
        const Object* found = CurrentScene().FindObject(object);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        SceneEdit edit;
        edit.text = App().tr("Convert to rigid body");
        ObjectState state = found->state;
        state.softCloth = false;
        state.rigidBody = true;
        edit.objects.push_back({object, {}, state});
        App().PushObjectEdit(object, std::move(edit));
        return BF::Results::Success;
    });
}

BF::Result EditService::CancelMultiMaterialSoftCloth(BF::CHandle* object)
{
    return Record("CancelMultiMaterialSoftCloth", {In(object)}, [&] {
        return App().CancelSoftCloth(object) ? BF::Results::Success : BF::Results::InvalidArgument;
    });
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
                      return EditCloths({object, mesh, material}, affectAllMaterials, App().tr("World gravity"),
                                        [use](ClothState& cloth) {
                                            cloth.useGlobalGravity = use;
                                            return true;
                                        });
                  });
}

BF::Result EditService::DeleteWeightImage(BF::CHandle* object, Id mesh, Id material)
{
    return Record("DeleteWeightImage", {In(object), InId(mesh), InId(material)}, [] { return BF::Results::Refused; });
}

BF::Result EditService::EmbedWeightImage(BF::CHandle* object, Id mesh, Id material)
{
    return Record("EmbedWeightImage", {In(object), InId(mesh), InId(material)}, [] { return BF::Results::Refused; });
}

BF::Result EditService::SetWeightImageAdjust(BF::CHandle* object, Id mesh, Id material,
                                             const MV::WeightImageAdjust& adjust, bool flag1, bool flag2)
{
    return Record("SetWeightImageAdjust", {In(object), InId(mesh), InId(material), In(adjust), In(flag1), In(flag2)},
                  [] { return BF::Results::Refused; });
}

BF::Result EditService::SetIgnoredMaterialNames(BF::CHandle* object,
                                                const std::map<std::wstring, BF::CArrayList<std::wstring>>& names)
{
    return Record("SetIgnoredMaterialNames", {In(object), In(names)}, [] { return BF::Results::Refused; });
}

BF::Result EditService::SetSoftClothProperty(BF::CHandle* object, Id mesh, Id material, MV::ESoftClothPropertyType type,
                                             const MV::SoftClothPropertyData& data, bool affectAllMaterials)
{
    return Record("SetSoftClothProperty",
                  {In(object), InId(mesh), InId(material), In(type), In(data), In(affectAllMaterials)}, [&] {
                      return EditCloths({object, mesh, material}, affectAllMaterials, App().tr("Soft cloth property"),
                                        [&](ClothState& cloth) { return TakeField(cloth.property, data, type); });
                  });
}

BF::Result EditService::SetSoftClothCollision(BF::CHandle* object, Id mesh, Id material,
                                              MV::ESoftClothCollisionType type, const MV::SoftClothCollisionData& data,
                                              bool affectAllMaterials)
{
    return Record("SetSoftClothCollision",
                  {In(object), InId(mesh), InId(material), In(type), In(data), In(affectAllMaterials)}, [&] {
                      return EditCloths({object, mesh, material}, affectAllMaterials, App().tr("Soft cloth collision"),
                                        [&](ClothState& cloth) { return TakeField(cloth.collision, data, type); });
                  });
}

BF::Result EditService::SetSoftClothWind(BF::CHandle* object, Id mesh, Id material, MV::ESoftClothWindType type,
                                         const MV::SoftClothWindData& data, bool affectAllMaterials)
{
    return Record("SetSoftClothWind",
                  {In(object), InId(mesh), InId(material), In(type), In(data), In(affectAllMaterials)}, [&] {
                      return EditCloths({object, mesh, material}, affectAllMaterials, App().tr("Soft cloth wind"),
                                        [&](ClothState& cloth) { return TakeField(cloth.wind, data, type); });
                  });
}

BF::Result EditService::UndoLastEdit()
{
    return Record("UndoLastEdit", {}, [&] {
        if (!CurrentScene().UndoStack().canUndo()) {
            return BF::Results::NothingDone;
        }
        App().Undo();
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
        edit.text = enabled ? App().tr("Add %1 to the soft cloth").arg(found->name)
                            : App().tr("Take %1 out of the soft cloth").arg(found->name);
        edit.materials.push_back({material, {}, MaterialState{enabled}});
        if (CurrentScene().Push(std::move(edit))) {
            BF::CHandle* owner = CurrentScene().OwnerOfMaterial(material)->handle;
            App().Send("ObjectDataChanged", &MV::CEventSender::ObjectDataChanged, BF::CArrayList<BF::CHandle*>{owner},
                       MV::EObjectChangedDataType::MaterialList);
        }
        return BF::Results::Success;
    });
}

} // namespace Host
