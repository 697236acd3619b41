#pragma once

#include <QtGlobal>

#include <initializer_list>

/// Numbers whose meaning is the host's, by the values that its interface uses. The panel and the stand-in host read
/// them here, each where it means the same contract.
namespace MV {

/// The physics kind of soft cloth.
inline constexpr int softClothPhysics = 3;
/// The physics engine that knows soft cloth.
inline constexpr int softClothEngine = 1;
/// The conversion state of an object that is not being converted.
inline constexpr int notConverting = 3;
/// The kind of object that is never turned into a rigid body.
inline constexpr int unconvertibleKind = 14;

/// Data folders: where the presets are, and where file dialogs for profiles start.
inline constexpr int presetDataFolder = 3;
inline constexpr int profileFolder = 72;

/// The three codes of a file dialog for weight images.
inline constexpr int weightImageDialog[] = {4, 71, 4};

/// The page of the host's panels that holds physics, the place there, and the flags to open it with.
inline constexpr int physicsPage[] = {4, 6, 64};

constexpr bool IsOneOf(quint32 type, std::initializer_list<quint32> types)
{
    for (const quint32 other : types) {
        if (other == type) {
            return true;
        }
    }
    return false;
}

/// Types of objects that can have soft cloth: the panel is shown for them.
constexpr bool CanHaveSoftCloth(quint32 type)
{
    return IsOneOf(type, {1, 2, 3, 4, 5, 6, 30, 31, 32, 33, 34, 38, 39, 51, 52, 53});
}

/// Types whose physics the host converts step by step, with a conversion state and an event beforehand.
constexpr bool IsConvertedInSteps(quint32 type)
{
    return IsOneOf(type, {5, 6});
}

/// Types that are soft cloth only: nobody may choose between rigid body and soft cloth for them.
constexpr bool IsSoftClothOnly(quint32 type)
{
    return IsOneOf(type, {1, 2, 3});
}

/// Types whose list of materials an undo or redo may change.
constexpr bool IsReloadedAfterUndo(quint32 type)
{
    return IsOneOf(type, {1, 2, 5, 30});
}

/// The type whose materials can be left out by a list of names.
inline constexpr quint32 filteredObjectType = 2;

} // namespace MV
