#include "host/simulation/ClothPreview.h"

#include "host/simulation/BodyCollider.h"
#include "host/simulation/MeshNormals.h"
#include "host/simulation/ModelPose.h"
#include "host/simulation/PreviewPieces.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace Host {

namespace {

/// Where the reasons are translated.
class PreviewText
{
    Q_DECLARE_TR_FUNCTIONS(PreviewText)
};

} // namespace

class ClothPreview::Private
{
public:
    explicit Private(PreviewModel newModel)
        : model(std::move(newModel))
        , pose(model)
        , bodyShape(BuildBody(model))
        , body(bodyShape.Places(pose), bodyShape.triangles)
        , pieces(BuildPieces(model, pose))
    {
        for (const PreviewMesh& mesh : model.meshes) {
            normals.emplace_back(mesh);
        }
        UpdateValues();
    }

    void UpdateValues();
    void GoOnFrom(const Private& before);
    ClothFrame FrameFor(const PreviewSlot& slot, const ObjectAcceleration& felt, float gravity) const;
    void Follow(ClothPiece& piece) const;
    void ToScene(const Vectors& places, const Eigen::Isometry3d& place, std::size_t mesh,
                 std::vector<QVector3D>& positions) const;
    /// \return false, and says why, when there is a piece that has gone where no cloth can be
    bool Check();

    PreviewModel model;
    ModelPose pose;
    BodyShape bodyShape;
    BodyCollider body;
    std::vector<ClothPiece> pieces;
    std::vector<MeshNormals> normals; ///< Of each mesh.
    bool bodyMoved = false;           ///< In the last frame.
    qint64 frames = 0;
    QString problem;
};

void ClothPreview::Private::UpdateValues()
{
    for (ClothPiece& piece : pieces) {
        piece.cloth->SetValues(ToSolverValues(model.meshes[piece.mesh].materialSlots[piece.slot].values));
    }
}

/// Takes over the motion of the same object before it was rebuilt, material by material.
void ClothPreview::Private::GoOnFrom(const Private& before)
{
    pose.GoOnFrom(before.pose);
    frames = before.frames;
    problem = before.problem;
    body.Reset(bodyShape.Places(pose));
    const auto idsOf = [](const Private& which, const ClothPiece& piece) {
        const PreviewMesh& mesh = which.model.meshes[piece.mesh];
        return std::make_pair(mesh.id, mesh.materialSlots[piece.slot].material);
    };
    for (ClothPiece& piece : pieces) {
        Follow(piece);
        piece.cloth->Reset(piece.followed);
        const auto old = std::find_if(before.pieces.begin(), before.pieces.end(), [&](const ClothPiece& known) {
            return idsOf(before, known) == idsOf(*this, piece) &&
                   known.cloth->Shape().rest == piece.cloth->Shape().rest;
        });
        if (old != before.pieces.end()) {
            piece.cloth->GoOnFrom(*old->cloth);
        }
    }
}

/// The leaders must have moved already.
void ClothPreview::Private::Follow(ClothPiece& piece) const
{
    for (std::size_t i = 0; i < piece.sources.size(); ++i) {
        const ParticleSource& source = piece.sources[i];
        piece.followed[i] =
            source.leader >= 0
                ? pieces[std::size_t(source.leader)].cloth->Positions()[std::size_t(source.leaderParticle)]
                : pose.Places()[source.mesh][source.vertex];
    }
}

ClothFrame ClothPreview::Private::FrameFor(const PreviewSlot& slot, const ObjectAcceleration& felt, float gravity) const
{
    const auto toObject = [&](const Vector& v) -> Vector {
        const Eigen::Vector3d turned = felt.rotation.transpose() * v.head<3>().cast<double>();
        return {float(turned.x()), float(turned.y()), float(turned.z()), 0.0F};
    };
    const auto narrowed = [](const Eigen::Vector3d& v) -> Vector {
        return {float(v.x()), float(v.y()), float(v.z()), 0.0F};
    };
    const Wind wind(1);
    const double time = double(frames) * frameDuration;
    ClothFrame frame;
    frame.duration = frameDuration;
    frame.acceleration = toObject(Vector(0.0F, -gravity, 0.0F, 0.0F) + wind.Acceleration(slot.values.wind, time));
    frame.airVelocity = toObject(wind.Velocity(slot.values.wind, time)) - narrowed(felt.velocity);
    frame.linearAcceleration = narrowed(felt.linear);
    frame.angularVelocity = narrowed(felt.angularVelocity);
    frame.angularAcceleration = narrowed(felt.angular);
    return frame;
}

/// From the object to the scene. What does not move at all stays where it is, to the last bit.
void ClothPreview::Private::ToScene(const Vectors& places, const Eigen::Isometry3d& place, std::size_t mesh,
                                    std::vector<QVector3D>& positions) const
{
    const bool isStill = place.matrix() == Eigen::Matrix4d::Identity();
    const Eigen::Matrix4f matrix = place.matrix().cast<float>();
    const std::vector<QVector3D>& rest = model.meshes[mesh].positions;
    positions.resize(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (isStill && places[i] == ToVector(rest[i] - pose.Origin())) {
            positions[i] = rest[i];
        } else {
            Vector point = places[i];
            point.w() = 1.0F;
            positions[i] = ToQt(matrix * point) + pose.Origin();
        }
    }
}

bool ClothPreview::Private::Check()
{
    const bool isSound =
        std::all_of(pieces.begin(), pieces.end(), [](const ClothPiece& piece) { return piece.cloth->IsSound(); });
    if (!isSound) {
        problem = PreviewText::tr("The preview stopped because the cloth got out of control. Reset starts it again.");
    }
    return isSound;
}

ClothPreview::ClothPreview(PreviewModel model)
    : d(std::make_unique<Private>(std::move(model)))
{
}

ClothPreview::~ClothPreview() = default;

const PreviewModel& ClothPreview::Model() const
{
    return d->model;
}

void ClothPreview::SetModel(PreviewModel model)
{
    if (SameStructure(d->model, model)) {
        d->model = std::move(model);
        d->UpdateValues();
        return;
    }
    auto next = std::make_unique<Private>(std::move(model));
    if (next->model.object == d->model.object) {
        next->GoOnFrom(*d);
    } else {
        next->pose.SetMotion(d->pose.Motion());
    }
    d = std::move(next);
}

void ClothPreview::SetMotion(const MotionChoice& motion)
{
    d->pose.SetMotion(motion);
}

void ClothPreview::Step()
{
    // A model may come with vertices that are out of all bounds.
    if (!d->problem.isEmpty() || !d->Check()) {
        return;
    }
    const ObjectAcceleration felt =
        AccelerationDuring(d->pose.Motion(), d->pose.Time(), frameDuration, double(d->pose.Height()));
    const bool bodyMoves = d->pose.MoveOn(frameDuration);
    if (bodyMoves || d->bodyMoved) {
        d->body.SetFrame(d->bodyShape.Places(d->pose), frameDuration);
    }
    d->bodyMoved = bodyMoves;
    for (ClothPiece& piece : d->pieces) {
        const PreviewSlot& slot = d->model.meshes[piece.mesh].materialSlots[piece.slot];
        d->Follow(piece);
        piece.cloth->Step(d->FrameFor(slot, felt, piece.cloth->Values().gravity), piece.followed, &d->body);
    }
    ++d->frames;
    d->Check();
}

void ClothPreview::Reset()
{
    d->problem.clear();
    d->frames = 0;
    d->pose.Restart();
    d->body.Reset(d->bodyShape.Places(d->pose));
    for (ClothPiece& piece : d->pieces) {
        d->Follow(piece);
        piece.cloth->Reset(piece.followed);
    }
}

double ClothPreview::Time() const
{
    return double(d->frames) * frameDuration;
}

QString ClothPreview::Problem() const
{
    return d->problem;
}

void ClothPreview::Read(PreviewFrame& frame) const
{
    const Eigen::Isometry3d place = PlaceAt(d->pose.Motion(), d->pose.Time(), double(d->pose.Height()));
    frame.time = Time();
    frame.meshes.resize(d->model.meshes.size());
    for (std::size_t i = 0; i < frame.meshes.size(); ++i) {
        frame.meshes[i].mesh = d->model.meshes[i].id;
        Vectors places = d->pose.Places()[i];
        for (const ClothPiece& piece : d->pieces) {
            for (std::size_t k = 0; piece.mesh == i && k < piece.particle.size(); ++k) {
                if (piece.particle[k] >= 0) {
                    places[k] = piece.cloth->Positions()[std::size_t(piece.particle[k])];
                }
            }
        }
        d->ToScene(places, place, i, frame.meshes[i].positions);
        d->normals[i].Find(frame.meshes[i].positions, frame.meshes[i].normals);
    }
}

} // namespace Host
