#include "host/scene/SceneIndex.h"

#include "host/scene/SceneEdit.h"

namespace Host {

void SceneIndex::Add(Object& object)
{
    m_objects.emplace(object.handle, &object);
    for (std::size_t i = 0; i < object.materials.size(); ++i) {
        m_materials.emplace(object.materials[i].id, Place{&object, i});
    }
    for (std::size_t i = 0; i < object.meshes.size(); ++i) {
        const Mesh& mesh = object.meshes[i];
        m_meshes.emplace(mesh.id, Place{&object, i});
        auto& slots = m_slots[mesh.id];
        for (std::size_t k = 0; k < mesh.materialSlots.size(); ++k) {
            slots.emplace(mesh.materialSlots[k].material, k);
        }
    }
}

Object* SceneIndex::FindObject(const BF::CHandle* handle) const
{
    const auto found = m_objects.find(handle);
    return found == m_objects.end() ? nullptr : found->second;
}

Mesh* SceneIndex::FindMesh(Id id) const
{
    const Place place = Lookup(m_meshes, id);
    return place.object ? &place.object->meshes[place.position] : nullptr;
}

Material* SceneIndex::FindMaterial(Id id) const
{
    const Place place = Lookup(m_materials, id);
    return place.object ? &place.object->materials[place.position] : nullptr;
}

MaterialSlot* SceneIndex::FindSlot(const ClothAddress& address) const
{
    const auto slots = m_slots.find(address.mesh);
    if (slots == m_slots.end()) {
        return nullptr;
    }
    const Place place = Lookup(m_meshes, address.mesh);
    const auto position = slots->second.find(address.material);
    return place.object && place.object->handle == address.object && position != slots->second.end()
               ? &place.object->meshes[place.position].materialSlots[position->second]
               : nullptr;
}

SceneIndex::Place SceneIndex::Lookup(const Places& places, Id id)
{
    const auto found = places.find(id);
    return found == places.end() ? Place() : found->second;
}

} // namespace Host
