#pragma once

#include "host/simulation/ClothPreview.h"
#include "tests/unit/simulation/ClothSamples.h"

/// Models for tests of the preview.
namespace PreviewSamples {

/// An object of one mesh with one material that simulates: \p shape, with its freedoms and \p values.
Host::PreviewModel Of(const Host::ClothShape& shape, const Host::ClothValues& values = {});
/// The same with \p body as a second mesh, which does not simulate.
Host::PreviewModel WithBody(const Host::ClothShape& shape, const ClothSamples::Body& body,
                            const Host::ClothValues& values = {});

/// Values without damping and inertia of their own: rigid, without bending, tether or collision.
Host::ClothValues Plain();

/// Two squares of 20 cm beside each other in one mesh "Sheet", with a material each, "Left" and "Right"; finely
/// divided. The object has soft cloth physics, its materials are not active yet.
Host::Object TwoSquares();

/// Steps on for \p seconds.
void Run(Host::ClothPreview& preview, double seconds);
/// The first mesh's positions.
std::vector<QVector3D> Positions(const Host::ClothPreview& preview);

} // namespace PreviewSamples
