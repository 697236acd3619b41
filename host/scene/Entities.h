#pragma once

#include "plugin/services/SoftClothRecords.h"

#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Handle.h>

#include <QByteArray>
#include <QColor>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector2D>
#include <QVector3D>

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

namespace Host {

/// Pointer-sized id of a mesh or a material; 0 is none. Never used twice while its scene lives.
using Id = std::size_t;

/// An image of a material: linked to a file, embedded, or (after saving a copy) both.
struct Texture
{
    QString filePath;    ///< Absolute path of the linked file; empty for none.
    QByteArray embedded; ///< The encoded image (PNG, JPEG, …); empty for none.
};

/// A gray image laid over the UVs of a material on a mesh: where it is black, vertices do not follow the simulation.
/// Either linked to a file, whose content may change, or embedded.
struct WeightImage
{
    Texture image;      ///< Of the two one at most; neither when there is no weight image.
    int brightness = 0; ///< -100 to 100.
    int contrast = 0;   ///< -100 to 100.

    bool IsNone() const { return image.filePath.isEmpty() && image.embedded.isEmpty(); }
};

/// Soft cloth values of one material on one mesh. Every change is an undoable edit.
struct ClothState
{
    bool active = false;          ///< The material simulates.
    bool useGlobalGravity = true; ///< Follows the scene's gravity.
    MV::SoftClothPropertyData property;
    MV::SoftClothCollisionData collision;
    MV::SoftClothWindData wind;
    WeightImage weight; ///< Copies share the embedded bytes.
};

/// Undoable state of a material that does not depend on the mesh.
struct MaterialState
{
    bool softClothEnabled = true; ///< May take part in the soft cloth.
};

/// Undoable state of an object.
struct ObjectState
{
    bool exists = true; ///< False once the object was deleted; it is kept for undo.
    bool softCloth = false;
    bool rigidBody = false;
    /// Materials that are not offered for the soft cloth: names of materials by the name of the mesh that they are on.
    QMap<QString, QStringList> ignoredMaterials{};
};

/// What the host reports of an object other than its values. Set through the host controls, not undoable.
struct ObjectTraits
{
    quint32 type = 1; ///< The host's object-type code.
    int kind = 0;     ///< The host's object-kind code.
    int convertState = 3;
    bool blocked = false;   ///< The panel is blocked in applications of family A.
    bool blockedEx = false; ///< The panel is blocked in applications of family B.
};

struct Material
{
    Id id = 0;
    QString name;
    QColor diffuse{Qt::lightGray};
    std::map<MV::ETextureChannel, Texture> textures;
    MaterialState state;
};

/// The triangles of a mesh that carry one material, with that material's soft cloth values on the mesh.
struct MaterialSlot
{
    Id material = 0;
    std::vector<quint32> indices; ///< Three per triangle, into the mesh's vertex arrays.
    ClothState cloth;
};

struct Mesh
{
    Id id = 0;
    QString name;
    std::vector<QVector3D> positions;
    std::vector<QVector3D> normals; ///< Empty, or one per position.
    std::vector<QVector2D> uvs;     ///< Empty, or one per position; (0, 0) is the lower left of an image.
    std::vector<MaterialSlot> materialSlots;
};

struct Object
{
    BF::CHandle* handle = nullptr;
    QString name;
    std::vector<Mesh> meshes;
    std::vector<Material> materials; ///< In the order of the host's material indices.
    ObjectTraits traits;
    ObjectState state;
};

} // namespace Host
