#pragma once

#include "host/scene/Entities.h"
#include "host/simulation/PanelMapping.h"

#include <QImage>

#include <functional>
#include <memory>
#include <vector>

namespace Host {

/// The triangles of one material, as the preview needs them.
struct PreviewSlot
{
    Id material = 0;
    bool simulates = false; ///< The material is active, offered, and the object has soft cloth physics.
    std::vector<quint32> indices;
    /// How far each vertex of the mesh may be from where the model has it; only of slots that simulate. See
    /// AllowedDistance().
    std::vector<float> freedom;
    ClothValues values;
};

struct PreviewMesh
{
    Id id = 0;
    std::vector<QVector3D> positions;
    std::vector<PreviewSlot> materialSlots;
};

/// A copy of what the preview needs of an object: it refers to nothing of the scene, and any thread may use it.
struct PreviewModel
{
    BF::CHandle* object = nullptr; ///< Which object it is; never followed.
    std::vector<PreviewMesh> meshes;

    /// True when a material simulates.
    bool HasCloth() const;
};

/// The decoded image of a weight image; a null image when it cannot be read, which counts as none.
using WeightImageSource = std::function<QImage(const Texture&)>;

/// Copies \p object for the preview. Without a weight image all vertices of a material are free.
PreviewModel MakePreviewModel(const Object& object, const WeightImageSource& images);

/// True when the two differ in values only: then the cloth of one can go on with the values of the other.
bool SameStructure(const PreviewModel& a, const PreviewModel& b);

} // namespace Host
