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

    static constexpr int noRun = -1;
    static constexpr int noAction = 0;

    QString text; ///< What the undo menu shows.
    /// Edits of the same things that follow each other with the same number become one undo step, as while a slider is
    /// dragged.
    int run = noRun;
    /// Set by the scene: the user action that it was pushed in.
    int action = noAction;
    /// It is a step even when it changes nothing: whoever pushes it may want to take it back.
    bool isStepAnyway = false;
    /// The user gets a message that this was refused, and then it is undone. It is a step anyway, and undoing it
    /// removes it for good, so that nothing is left to redo. Scene files do not distinguish such steps from others.
    bool refused = false;
    std::vector<ClothChange> cloths;
    std::vector<MaterialChange> materials;
    std::vector<ObjectChange> objects;

    /// True when no change differs in its before and after.
    bool ChangesNothing() const;
};

bool operator==(const WeightImage& a, const WeightImage& b);
bool operator==(const ClothState& a, const ClothState& b);
bool operator==(const MaterialState& a, const MaterialState& b);
bool operator==(const ObjectState& a, const ObjectState& b);
bool operator==(const ObjectTraits& a, const ObjectTraits& b);

} // namespace Host
