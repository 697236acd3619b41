#pragma once

#include "host/scene/Entities.h"

#include <QString>

/// Small objects built by code, for tests that need no model file.
namespace SampleModels {

/// A quad per material: every mesh name with its materials, in order. A material that two meshes name is shared.
using MeshList = std::vector<std::pair<QString, QStringList>>;

Host::Object Make(const QString& name, const MeshList& meshes);

/// "Hero": mesh "Body" with "Skin" and "Hair", mesh "Clothes" with "Skirt".
Host::Object Hero();

/// "Flag": one mesh "Sheet" with one material "Silk".
Host::Object Flag();

/// A file of the models that come with the distribution's test models, for example "OBJ/spider.obj".
QString RealModel(const QString& relativePath);

} // namespace SampleModels
