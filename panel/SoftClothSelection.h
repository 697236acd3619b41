#pragma once

#include <MVPluginQt/Handle.h>

#include <QtGlobal>

#include <cstddef>

namespace MV {

/// What the panel edits. Kept by the plug-in object; read by every section at the moment of use, never cached: a host
/// call can change it under its caller's feet.
struct SoftClothSelection
{
    BF::CHandle* object = nullptr;   ///< The one selected object that the panel shows; null for none.
    std::size_t mesh = 0;            ///< Mesh of the material dialog's current row; 0 for none.
    std::size_t material = 0;        ///< Material of that row; 0 for none.
    quint32 objectType = 0;          ///< The host's type code of the object.
    bool softClothActive = false;    ///< Soft cloth physics is active on the object.
    bool affectAllMaterials = false; ///< Writes apply to all materials of the object.

    /// Takes object, mesh and material away; the other fields stay as they were.
    void Clear()
    {
        object = nullptr;
        mesh = 0;
        material = 0;
    }
};

} // namespace MV
