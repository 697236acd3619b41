#pragma once

#include "host/scene/Entities.h"

#include <QString>

#include <vector>

namespace Host {

/// Names one material of one mesh of one object, as the host's callers do.
struct ClothAddress
{
    BF::CHandle* object = nullptr;
    Id mesh = 0;
    Id material = 0;
};

/// One user action on the scene's undoable states: for each thing that it touches the state before and after.
/// At most one change per thing.
struct SceneEdit
{
    struct ClothChange
    {
        ClothAddress address;
        ClothState before;
        ClothState after;
    };
    struct MaterialChange
    {
        Id material = 0;
        MaterialState before;
        MaterialState after;
    };
    struct ObjectChange
    {
        BF::CHandle* object = nullptr;
        ObjectState before;
        ObjectState after;
    };

    QString text; ///< What the undo menu shows.
    std::vector<ClothChange> cloths;
    std::vector<MaterialChange> materials;
    std::vector<ObjectChange> objects;

    /// True when no change differs in its before and after.
    bool ChangesNothing() const;
};

bool operator==(const ClothState& a, const ClothState& b);
bool operator==(const MaterialState& a, const MaterialState& b);
bool operator==(const ObjectState& a, const ObjectState& b);

} // namespace Host
