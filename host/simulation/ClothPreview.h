#pragma once

#include "host/simulation/ObjectMotion.h"
#include "host/simulation/PreviewModel.h"

#include <QString>
#include <QVector3D>

#include <memory>
#include <vector>

namespace Host {

/// What a viewport draws of one mesh in place of its own positions and normals.
struct MeshFrame
{
    Id mesh = 0;
    std::vector<QVector3D> positions; ///< One per vertex of the mesh.
    std::vector<QVector3D> normals;   ///< One per vertex, smooth across the seams of the texture.
};

/// One moment of the preview.
struct PreviewFrame
{
    double time = 0.0; ///< Seconds of model time since the start.
    std::vector<MeshFrame> meshes;
};

/// The cloth of one object in motion: an approximation of what the application will do with the same values.
///
/// Works on a copy of the object, writes nothing to the scene and needs neither a window nor a certain thread. The same
/// calls give the same motion, bit by bit on one machine. Materials move on their own and collide with the body and
/// with themselves, not with each other. The body is every closed piece of the object that does not simulate; sheets
/// with open edges have no inside that anything could be kept out of.
class ClothPreview
{
public:
    static constexpr double frameDuration = 1.0 / 60.0; ///< Of Step(), in seconds of model time.

    explicit ClothPreview(PreviewModel model);
    ~ClothPreview();
    ClothPreview(const ClothPreview&) = delete;
    ClothPreview& operator=(const ClothPreview&) = delete;

    /// Takes over new values at the next step. The motion goes on, also where vertices became held or free; materials
    /// that begin to simulate start from where the model has them. Another object starts from the beginning.
    void SetModel(PreviewModel model);
    const PreviewModel& Model() const;

    /// Starts the motion from its beginning; the cloth keeps its state.
    void SetMotion(const MotionChoice& motion);

    /// Moves everything on by one frame. Does nothing once Problem() is set.
    void Step();
    /// Puts the cloth back to where the model has it, at rest, at time 0. Clears Problem().
    void Reset();

    /// Model time since the start, in seconds.
    double Time() const;
    /// Why the preview stopped, as a sentence for the user; empty while all is well.
    QString Problem() const;

    /// The current moment; reuses the memory of \p frame.
    void Read(PreviewFrame& frame) const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Host
