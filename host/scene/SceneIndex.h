#pragma once

#include "host/scene/Entities.h"

#include <cstddef>
#include <unordered_map>

namespace Host {

struct ClothAddress;

/// Finds the objects of a scene and their parts by handle and id in constant time, deleted objects included. Each
/// result is null for what is unknown.
class SceneIndex
{
public:
    /// From now on \p object is found. It must stay where it is, and its lists of parts as long as they are.
    void Add(Object& object);

    Object* FindObject(const BF::CHandle* handle) const;
    Object* OwnerOfMesh(Id id) const { return Lookup(m_meshes, id).object; }
    Object* OwnerOfMaterial(Id id) const { return Lookup(m_materials, id).object; }
    Mesh* FindMesh(Id id) const;
    Material* FindMaterial(Id id) const;
    MaterialSlot* FindSlot(const ClothAddress& address) const;
    /// The position of a material among its object's; 0 for an unknown one.
    std::size_t PositionOfMaterial(Id id) const { return Lookup(m_materials, id).position; }

private:
    /// An object, and a position in one of its lists.
    struct Place
    {
        Object* object = nullptr;
        std::size_t position = 0;
    };
    using Places = std::unordered_map<Id, Place>;

    static Place Lookup(const Places& places, Id id);

    std::unordered_map<const BF::CHandle*, Object*> m_objects;
    Places m_meshes;
    Places m_materials;
    /// Positions of slots by material, for each mesh.
    std::unordered_map<Id, std::unordered_map<Id, std::size_t>> m_slots;
};

} // namespace Host
