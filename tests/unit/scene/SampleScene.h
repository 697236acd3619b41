#pragma once

#include "host/scene/Entities.h"
#include "host/scene/Scene.h"

#include <QRandomGenerator>

/// Things to put into a scene.
namespace Sample {

/// Two meshes and three materials; the mesh "Robe" carries the materials 1 and 2, the mesh "Belt" 2 and 3.
Host::Object Robe(const QString& name);

/// Any bits at all in every field: NaNs, infinities and denormals come up, and 64-bit numbers beyond any double.
Host::ClothState AnyCloth(QRandomGenerator& random);

/// An edit that gives every slot of \p scene a state of AnyCloth() and turns everything else around.
Host::SceneEdit AnyEdit(const Host::Scene& scene, QRandomGenerator& random);

/// Adds two robes, "First" and "Second", and three undo steps of which two are applied.
void FillScene(Host::Scene& scene);

/// Everything undoable of \p scene, deleted objects included, in a fixed order.
struct States
{
    std::vector<Host::ClothState> cloths;
    std::vector<Host::MaterialState> materials;
    std::vector<Host::ObjectState> objects;

    bool operator==(const States& other) const;
};

States StatesOf(const Host::Scene& scene);

} // namespace Sample
