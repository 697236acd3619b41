#pragma once

#include <QImage>

#include <vector>

namespace Host {

struct MaterialSlot;
struct Mesh;

/// A slot together with the mesh that it is of.
struct SlotOfMesh
{
    const Mesh* mesh = nullptr;
    const MaterialSlot* slot = nullptr;
};

/// Draws the edges of the slots' triangles, where their UVs put them, over \p texture. Triangles outside the unit
/// square are drawn where the repeated texture shows them, up to 10,000 crossings from one repetition into the next;
/// what has UVs further out than 64 is left out. A small texture is enlarged and a large one reduced, so that
/// the lines can be distinguished and an image editor can open the result.
QImage DrawUvLayout(const QImage& texture, const std::vector<SlotOfMesh>& slotsOfMeshes);

} // namespace Host
