#pragma once

#include <QMetaType>
#include <QtGlobal>

#include <type_traits>

namespace MV {

/// The running application, a bit set. Two families of applications can show the panel.
enum class ECompatibleApp : quint32
{
    None = 0,
    FamilyA = 0x7,
    FamilyB = 0x1800000,
    Both = FamilyA | FamilyB,
};

/// What an object-data event says has changed, a bit set. The panel reacts to the bits named here.
enum class EObjectChangedDataType : quint32
{
    None = 0,
    Topology = 0x2,       ///< The object's structure changed; everything is read again.
    Replaced = 0x4,       ///< The object was exchanged for another one.
    MaterialList = 0x8,   ///< Materials were added or removed.
    Removed = 0x40,       ///< The object is about to leave the scene.
    MaterialNames = 0x100 ///< A material was renamed.
};

/// The modal state of the host's viewport tools.
enum class EDialogMode : int
{
    None = 0,
    WeightMap = 25,
};

/// What a click in the viewport picks.
enum class EPickMode : int
{
    None = 0,
    Material = 7,
};

/// Texture channels of a material.
enum class ETextureChannel : int
{
    Weight = -1, ///< The soft cloth weight image.
    Diffuse = 0,
    Opacity,
    Bump,
    Specular,
    Glow,
    Reflection,
    DiffuseBlend,
    Refraction,
    Cube,
    Displacement,
    Metallic,
    Roughness,
    AlphaRemap,
    DiffuseAndOpacity = 14,
};

/// Kind of a file that the host has loaded.
enum class EFileType : int
{
    Unknown = 0,
    Scene = 1,
    Model = 2,
};

/// The host's physics engines. The soft cloth panel belongs to the first.
enum class EPhysicsEngineType : int
{
    None = 0,
    SoftCloth = 1,
    RigidOnly = 2,
};

/// True when two bit sets have a bit in common.
template <class Bits>
constexpr bool HasAnyBit(Bits set, Bits mask)
{
    using Number = std::underlying_type_t<Bits>;
    return (static_cast<Number>(set) & static_cast<Number>(mask)) != 0;
}

constexpr EObjectChangedDataType operator|(EObjectChangedDataType a, EObjectChangedDataType b)
{
    return static_cast<EObjectChangedDataType>(static_cast<quint32>(a) | static_cast<quint32>(b));
}

constexpr ECompatibleApp operator|(ECompatibleApp a, ECompatibleApp b)
{
    return static_cast<ECompatibleApp>(static_cast<quint32>(a) | static_cast<quint32>(b));
}

} // namespace MV

Q_DECLARE_METATYPE(MV::ECompatibleApp)
Q_DECLARE_METATYPE(MV::EObjectChangedDataType)
Q_DECLARE_METATYPE(MV::EDialogMode)
Q_DECLARE_METATYPE(MV::EPickMode)
Q_DECLARE_METATYPE(MV::ETextureChannel)
Q_DECLARE_METATYPE(MV::EFileType)
Q_DECLARE_METATYPE(MV::EPhysicsEngineType)
