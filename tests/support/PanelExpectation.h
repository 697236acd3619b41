#pragma once

#include "host/scene/Scene.h"

#include <MVPluginQt/Enumerations.h>

#include <QImage>
#include <QSize>
#include <QStringList>

#include <vector>

namespace Host {
class HostApplication;
}

/// What the panel is to show, worked out from the host's scene.
namespace PanelComparison {

/// A material on a mesh.
struct ExpectedRow
{
    Host::ClothAddress address;
    QString mesh;
    QString material;
    bool offered = false; ///< It may take part in the soft cloth.
};

/// What a panel that has just read everything shows.
struct Expectation
{
    bool isShown = false;
    bool softCloth = false;                  ///< The object's physics is on.
    bool isConvertible = false;              ///< The object may become a rigid body.
    std::vector<ExpectedRow> rows;           ///< All materials.
    std::vector<ExpectedRow> listed;         ///< Those that may take part.
    int currentRow = -1;                     ///< Among the listed ones.
    Host::ClothAddress address;              ///< Of the current row.
    const Host::ClothState* cloth = nullptr; ///< Of the current row; null for none.
    bool isActive = false;                   ///< The current row's values are shown and can be edited.

    QStringList ListedNames() const;
    /// "1 Mesh Material" for a ticked row.
    QStringList TableRows() const;
};

Expectation Expect(const Host::Scene& scene, MV::ECompatibleApp app);

/// The picture of a texture, or of the weight image, as the host draws it.
QImage PictureOf(Host::HostApplication& host, const Host::ClothAddress& address, MV::ETextureChannel channel,
                 const QSize& size);

} // namespace PanelComparison
